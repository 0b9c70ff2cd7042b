#pragma once

#include <QString>
#include <QVector>

#include <variant>

namespace TPatch {

// A message kept untranslated so that it is shown in whatever language is in
// force when it is shown: a translation context, an English source text with
// "%1", "%2", ... placeholders, and the arguments in placeholder order.
struct PatchMessage
{
    using Argument = std::variant<QString, qint64>;

    const char *context = "TPatch";
    const char *sourceText = nullptr; // a string literal; nullptr means "no message"
    QVector<Argument> arguments;

    PatchMessage() = default;
    PatchMessage(const char *source, QVector<Argument> args = {}) : sourceText(source), arguments(std::move(args)) {}

    bool isEmpty() const { return sourceText == nullptr; }
    // Translated under the context, arguments substituted. Call from any thread
    // once the translator is installed (QCoreApplication::translate is thread-safe).
    QString text() const;
    // The English source text with its arguments substituted (reports, CLI output).
    QString untranslatedText() const;

    bool operator==(const PatchMessage &other) const;
};

} // namespace TPatch
