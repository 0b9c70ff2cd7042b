#include "cli/clicommon.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdio>

void printOut(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void printErr(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fputc('\n', stderr);
}

void printJson(const QJsonObject &object)
{
    const QByteArray bytes = QJsonDocument(object).toJson(QJsonDocument::Indented);
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

std::optional<CliExit> parseCommandLine(QCommandLineParser &parser, const QString &command,
                                        const QStringList &arguments)
{
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    parser.addOption(help);
    QStringList argv{QStringLiteral("talu-cli ") + command};
    argv += arguments;
    // QCommandLineParser names the binary's path in its usage line; users type "talu-cli COMMAND".
    const QString helpText = parser.helpText().replace(QCoreApplication::arguments().value(0), argv.constFirst());
    if (!parser.parse(argv)) {
        printErr(QStringLiteral("talu-cli %1: %2").arg(command, parser.errorText()));
        printErr(helpText);
        return ExitUsage;
    }
    if (parser.isSet(help)) {
        printOut(helpText);
        return ExitOk;
    }
    return std::nullopt;
}
