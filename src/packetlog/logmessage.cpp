#include "packetlog/logmessage.h"

#include <QCoreApplication>

namespace PacketLog {

namespace {

QString substitute(const QString &text, const QStringList &arguments)
{
    // One pass, so an argument holding "%2" (a token typed by the user) is never substituted again.
    QString out;
    out.reserve(text.size() + 32);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'%' && i + 1 < text.size() && text.at(i + 1).isDigit()) {
            const int number = text.at(i + 1).digitValue();
            if (number >= 1 && number <= arguments.size()) {
                out += arguments.at(number - 1);
                ++i;
                continue;
            }
        }
        out += c;
    }
    return out;
}

} // namespace

QString LogMessage::text() const
{
    return sourceText ? substitute(QCoreApplication::translate("PacketLog", sourceText), arguments) : QString();
}

QString LogMessage::untranslatedText() const
{
    return sourceText ? substitute(QString::fromUtf8(sourceText), arguments) : QString();
}

} // namespace PacketLog
