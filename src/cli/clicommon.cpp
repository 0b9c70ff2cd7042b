#include "cli/clicommon.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTimer>

#include <atomic>
#include <cmath>
#include <limits>
#include <csignal>
#include <cstdio>

namespace {

// Set from the signal handler; polled by a timer so that the command stops
// cleanly on the event loop's thread.
std::atomic<bool> g_stopRequested{false};

extern "C" void requestStop(int)
{
    g_stopRequested.store(true);
}

} // namespace

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

void execUntilInterrupted(double seconds, const std::function<void()> &stop)
{
    const std::function<void()> stopNow = stop ? stop : [] { QCoreApplication::quit(); };
    g_stopRequested.store(false);
    std::signal(SIGINT, requestStop);
    std::signal(SIGTERM, requestStop);
    bool stopping = false;
    const auto stopOnce = [&] {
        if (!stopping) {
            stopping = true;
            stopNow();
        }
    };
    QTimer stopPoll;
    QObject::connect(&stopPoll, &QTimer::timeout, [&] {
        if (g_stopRequested.load())
            stopOnce();
    });
    stopPoll.start(100);
    QTimer runTimer;
    runTimer.setSingleShot(true);
    runTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&runTimer, &QTimer::timeout, stopOnce);
    if (std::isfinite(seconds) && seconds >= 0)
        runTimer.start(int(std::min(seconds * 1000, double(std::numeric_limits<int>::max()))));
    QCoreApplication::exec();
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}
