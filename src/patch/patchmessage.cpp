#include "patch/patchmessage.h"

#include <QCoreApplication>

#include <cstring>

namespace TPatch {

namespace {

QString substitute(const QString &text, const QVector<PatchMessage::Argument> &arguments)
{
    // One pass, so that an argument that itself contains "%2" (a file named
    // "show%2.tpatch") is never substituted again.
    QString out;
    out.reserve(text.size() + 32);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'%' && i + 1 < text.size() && text.at(i + 1).isDigit()) {
            qsizetype j = i + 1;
            int number = 0;
            while (j < text.size() && text.at(j).isDigit() && number < 100)
                number = number * 10 + text.at(j++).digitValue();
            if (number >= 1 && number <= arguments.size()) {
                const auto &arg = arguments.at(number - 1);
                if (const auto *s = std::get_if<QString>(&arg))
                    out += *s;
                else
                    out += QString::number(std::get<qint64>(arg));
                i = j - 1;
                continue;
            }
        }
        out += c;
    }
    return out;
}

} // namespace

QString PatchMessage::text() const
{
    if (!sourceText)
        return {};
    return substitute(QCoreApplication::translate(context, sourceText), arguments);
}

QString PatchMessage::untranslatedText() const
{
    if (!sourceText)
        return {};
    return substitute(QString::fromUtf8(sourceText), arguments);
}

bool PatchMessage::operator==(const PatchMessage &other) const
{
    const auto same = [](const char *a, const char *b) {
        return a == b || (a && b && std::strcmp(a, b) == 0);
    };
    return same(context, other.context) && same(sourceText, other.sourceText) && arguments == other.arguments;
}

} // namespace TPatch
