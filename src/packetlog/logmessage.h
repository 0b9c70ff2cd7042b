#pragma once

#include <QString>
#include <QStringList>

namespace PacketLog {

// A message of the packet log kept untranslated (an English source text with
// "%1", "%2", ... placeholders and its arguments), translated in the context
// "PacketLog" only when shown, so a language change re-renders it.
struct LogMessage
{
    const char *sourceText = nullptr; // a string literal; nullptr means "no message"
    QStringList arguments;

    LogMessage() = default;
    LogMessage(const char *source, QStringList args = {}) : sourceText(source), arguments(std::move(args)) {}

    bool isEmpty() const { return sourceText == nullptr; }
    QString text() const;             // translated; any thread once the translator is installed
    QString untranslatedText() const; // English (talu-cli, reports)
};

} // namespace PacketLog
