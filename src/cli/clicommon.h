#pragma once

#include <QCommandLineParser>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// Exit codes every talu-cli command keeps: scripts on show machines rely on them.
enum CliExit { ExitOk = 0, ExitRefused = 1, ExitUsage = 2 };

// Writes text to standard output or standard error, UTF-8, with a newline.
void printOut(const QString &text);
void printErr(const QString &text);
// One JSON object, indented, on standard output.
void printJson(const QJsonObject &object);

// Parses a command's own arguments (without the program and command names).
// Returns the exit code to stop with: ExitUsage after printing a usage error
// with the command's help, ExitOk after printing the help for --help; nothing
// when the command should go on.
std::optional<CliExit> parseCommandLine(QCommandLineParser &parser, const QString &command,
                                        const QStringList &arguments);

// Runs the event loop until Ctrl-C / SIGTERM or until `seconds` have passed
// (negative: no limit), then calls stop once, which must make the loop quit
// at once or later (by default it quits at once). Anything else may quit the
// loop earlier.
void execUntilInterrupted(double seconds, const std::function<void()> &stop = {});
