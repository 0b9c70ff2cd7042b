#pragma once

#include <QCommandLineParser>
#include <QJsonObject>
#include <QString>
#include <QStringList>

// Exit codes every talu-cli command keeps: scripts on show machines rely on them.
enum CliExit { ExitOk = 0, ExitRefused = 1, ExitUsage = 2 };

// Writes text to standard output or standard error, UTF-8, with a newline.
void printOut(const QString &text);
void printErr(const QString &text);
// One JSON object, indented, on standard output.
void printJson(const QJsonObject &object);

// Parses a command's own arguments (without the program and command names).
// On a usage error prints it with the command's help and returns false; on
// --help prints the help and sets helpShown.
bool parseCommandLine(QCommandLineParser &parser, const QString &command, const QStringList &arguments,
                      bool *helpShown);
