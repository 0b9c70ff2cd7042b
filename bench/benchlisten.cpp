// Node reception under load: `talu-cli listen --json` runs as a child while
// this process floods it with ArtDmx at fixed rates over loopback. For each
// rate it prints sent, received, lost and the listener's CPU time per packet;
// at the end the highest rate without loss against the target.
//
// Run inside the private namespace only:
//   scripts/netns build/bench/bench/bench_listen [--seconds 10] [--rates 50000,100000,...]
//                                               [--listen-args "--record /tmp/b.tpx --fps 40"]
// Extra listen arguments are passed through; when the report carries a
// "records" count (recording on) it must equal the packets sent as well.
//
// CPU is the child's user + system time (getrusage of reaped children), less
// an idle run of the same length, divided by the packets it counted. The
// kernel's loopback delivery is charged to the sender, so this is the
// receiving side's own cost: the receive syscalls and the node.
#include "artdmxflood.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#ifndef Q_OS_WIN
#include <sys/resource.h>
#endif

#include <cstdio>

namespace {

// CPU of reaped children; the namespace (and so this benchmark) is Linux only.
double childCpuSeconds()
{
#ifdef Q_OS_WIN
    return 0;
#else
    rusage u{};
    getrusage(RUSAGE_CHILDREN, &u);
    return double(u.ru_utime.tv_sec + u.ru_stime.tv_sec) + double(u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e6;
#endif
}

struct Run
{
    bool ok = false;
    quint64 sent = 0;
    quint64 received = 0;
    quint64 sequenceErrors = 0;
    double floodSeconds = 0;
    double cpuSeconds = 0;
    qint64 records = -1; // -1: the listener did not record
};

Run runOnce(const QString &cli, const QStringList &extraArgs, double seconds, double rate, int universes)
{
    Run run;
    const double cpuBefore = childCpuSeconds();
    QProcess listen;
    const QStringList args = QStringList{QStringLiteral("listen"), QStringLiteral("--json"), QStringLiteral("--address"),
                                         QStringLiteral("127.0.0.1"), QStringLiteral("--seconds"),
                                         QString::number(seconds + 2)} +
                             extraArgs;
    listen.start(cli, args);
    listen.setReadChannel(QProcess::StandardError); // the "Listening on" line comes there
    QByteArray err;
    while (!err.contains("Listening on") && listen.waitForReadyRead(5000))
        err += listen.readAllStandardError();
    err += listen.readAllStandardError();
    if (!err.contains("Listening on")) {
        std::fprintf(stderr, "listen did not start: %s\n", err.constData());
        return run;
    }
    if (rate > 0) {
        FloodOptions o;
        o.packetsPerSecond = rate;
        o.seconds = seconds;
        o.universes = universes;
        const FloodResult f = floodArtDmx(o);
        if (!f.ok) {
            std::fprintf(stderr, "flood failed: %s\n", qPrintable(f.error));
            listen.kill();
            listen.waitForFinished();
            return run;
        }
        run.sent = f.sent;
        run.floodSeconds = f.seconds;
    }
    if (!listen.waitForFinished(int(seconds * 1000) + 30000))
        return run;
    run.cpuSeconds = childCpuSeconds() - cpuBefore;
    err += listen.readAllStandardError();
    if (qEnvironmentVariableIsSet("BENCH_LISTEN_VERBOSE"))
        std::fprintf(stderr, "%s", err.constData());
    const QByteArray out = listen.readAllStandardOutput();
    if (qEnvironmentVariableIsSet("BENCH_LISTEN_VERBOSE"))
        std::fprintf(stderr, "%s", out.left(300).constData());
    const QJsonObject report = QJsonDocument::fromJson(out).object();
    run.received = quint64(report.value(QStringLiteral("dmxPackets")).toDouble());
    run.sequenceErrors = quint64(report.value(QStringLiteral("sequenceErrors")).toDouble());
    if (report.contains(QStringLiteral("records")))
        run.records = qint64(report.value(QStringLiteral("records")).toDouble());
    run.ok = !report.isEmpty();
    return run;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption cli(QStringLiteral("cli"), QStringLiteral("talu-cli to run."), QStringLiteral("path"),
                                 QStringLiteral(TALU_CLI_PATH));
    const QCommandLineOption seconds(QStringLiteral("seconds"), QStringLiteral("Flood time per rate (10)."),
                                     QStringLiteral("s"), QStringLiteral("10"));
    const QCommandLineOption rates(QStringLiteral("rates"), QStringLiteral("Rates to try, packets per second."),
                                   QStringLiteral("list"), QStringLiteral("50000,100000,150000,200000"));
    const QCommandLineOption universes(QStringLiteral("universes"), QStringLiteral("Universes in turn (2048)."),
                                       QStringLiteral("n"), QStringLiteral("2048"));
    const QCommandLineOption listenArgs(QStringLiteral("listen-args"),
                                        QStringLiteral("Extra arguments for talu-cli listen, blank-separated."),
                                        QStringLiteral("args"));
    parser.addOptions({cli, seconds, rates, universes, listenArgs});
    parser.process(app);

    QString why;
    if (!floodTargetIsSafe(QHostAddress(QHostAddress::LocalHost), &why)) {
        std::fprintf(stderr, "bench_listen: %s\n", qPrintable(why));
        return 1;
    }
    const double s = parser.value(seconds).toDouble();
    const int u = parser.value(universes).toInt();
    const QStringList extra = parser.value(listenArgs).split(QLatin1Char(' '), Qt::SkipEmptyParts);

    // The figures depend on what else the two cores run; say so beside them.
    QFile loadavg(QStringLiteral("/proc/loadavg"));
    if (loadavg.open(QIODevice::ReadOnly))
        std::printf("load average before the run: %s", loadavg.readLine().constData());
    const Run idle = runOnce(parser.value(cli), extra, s, 0, u);
    if (!idle.ok)
        return 1;
    std::printf("idle listener, %.0f s: %.3f s CPU (subtracted below)\n", s + 2, idle.cpuSeconds);
    std::printf("%10s %10s %10s %8s %8s %12s\n", "rate", "sent", "received", "lost", "seqerr", "CPU us/pkt");

    double bestRate = 0;
    double bestCpuUs = 0;
    for (const QString &r : parser.value(rates).split(QLatin1Char(','))) {
        const double rate = r.toDouble();
        const Run run = runOnce(parser.value(cli), extra, s, rate, u);
        if (!run.ok)
            return 1;
        const quint64 lost = run.sent > run.received ? run.sent - run.received : 0;
        const double cpuUs = run.received ? (run.cpuSeconds - idle.cpuSeconds) * 1e6 / double(run.received) : 0;
        std::printf("%10.0f %10llu %10llu %8llu %8llu %12.2f   (sent at %.0f pkt/s)\n", rate,
                    static_cast<unsigned long long>(run.sent), static_cast<unsigned long long>(run.received),
                    static_cast<unsigned long long>(lost), static_cast<unsigned long long>(run.sequenceErrors), cpuUs,
                    double(run.sent) / run.floodSeconds);
        std::fflush(stdout);
        if (run.records >= 0)
            std::printf("%10s records in the file: %lld\n", "", static_cast<long long>(run.records));
        const bool recordsOk = run.records < 0 || quint64(run.records) == run.sent;
        if (lost == 0 && run.sent == run.received && recordsOk && double(run.sent) / run.floodSeconds > bestRate) {
            bestRate = double(run.sent) / run.floodSeconds;
            bestCpuUs = cpuUs;
        }
    }
    std::printf("zero-loss rate: %.0f pkt/s over %.0f s (target: at least 100000)\n", bestRate, s);
    const bool recording = parser.value(listenArgs).contains(QLatin1StringView("--record"));
    std::printf("CPU per packet at that rate: %.2f us (target: under 3 us including the recording writer; "
                "measured %s it)\n",
                bestCpuUs, recording ? "with" : "without");
    return 0;
}
