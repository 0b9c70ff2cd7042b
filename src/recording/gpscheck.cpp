#include "recording/gpscheck.h"

#include <QCoreApplication>

using TPatch::PatchMessage;

namespace {

template <typename Render> QString renderDetail(const GpsCheck &check, Render render)
{
    if (check.detail.isEmpty())
        return {};
    if (check.items.isEmpty())
        return render(check.detail);
    QStringList shown;
    const bool lines = check.listStyle == GpsCheck::ListStyle::Lines;
    const int limit = lines ? int(check.items.size()) : GpsCheck::kMaxListedItems;
    for (int i = 0; i < check.items.size() && i < limit; ++i)
        shown.append(render(check.items.at(i)));
    QString list = shown.join(lines ? QStringLiteral("\n") : QStringLiteral("; "));
    if (check.items.size() > limit)
        list += QLatin1Char(' ') + render(PatchMessage(QT_TRANSLATE_NOOP("TPatch", "(+%1 more)"),
                                                       {qint64(check.items.size() - limit)}));
    PatchMessage whole = check.detail;
    whole.arguments.prepend(list);
    return render(whole);
}

} // namespace

QString GpsCheck::detailText() const
{
    return renderDetail(*this, [](const PatchMessage &m) { return m.text(); });
}

QString GpsCheck::untranslatedDetailText() const
{
    return renderDetail(*this, [](const PatchMessage &m) { return m.untranslatedText(); });
}

QString GpsCheck::verdictWord(Verdict verdict)
{
    switch (verdict) {
    case Pass:
        return QStringLiteral("PASS");
    case Warn:
        return QStringLiteral("WARN");
    case Fail:
        break;
    }
    return QStringLiteral("FAIL");
}
