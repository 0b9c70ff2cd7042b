#include "cli/listencommand.h"

#include "artnet/artnetnode.h"
#include "cli/clicommon.h"
#include "cli/healthcommand.h"
#include "live/livepipeline.h"
#include "patch/frameorder.h"
#include "patch/patchloader.h"
#include "recording/recordingwriter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool stdoutIsTerminal()
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(stdout)) != 0;
#else
    return isatty(fileno(stdout)) != 0;
#endif
}

// "1,2,0x12" -> Port-Addresses; hexadecimal with 0x, else decimal.
bool parseUniverses(const QString &text, QVector<quint16> *out, QString *bad)
{
    for (const QString &part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString item = part.trimmed();
        bool ok = false;
        const bool hex = item.startsWith(QLatin1StringView("0x"), Qt::CaseInsensitive);
        const uint value = hex ? item.mid(2).toUInt(&ok, 16) : item.toUInt(&ok, 10);
        // A Port-Address has 15 bits.
        if (!ok || value > 0x7FFF) {
            *bad = item;
            return false;
        }
        out->append(quint16(value));
    }
    return true;
}

QString statusLine(const NodeStats &s)
{
    return QStringLiteral("%1 packets, %2 pkt/s, %3 polls, %4 seq errors")
        .arg(s.dmxPackets)
        .arg(s.packetsPerSecond, 0, 'f', 0)
        .arg(s.artPolls)
        .arg(s.sequenceErrors);
}

QJsonObject reportJson(const ArtNetNode &node, double seconds, const RecordingWriter *writer,
                       const PacketLog::JournalCounters *log, const QString &logPath)
{
    const NodeStats s = node.stats();
    QJsonArray universes;
    for (quint16 u : node.universes())
        universes.append(int(u));
    const bool kel = node.sourceFlavour() == ArtNet::DmxFlavour::Kel;
    // Counters leave as doubles: exact up to 2^53 packets, far past any run.
    QJsonObject report{
        {QStringLiteral("dmxPackets"), double(s.dmxPackets)},
        {QStringLiteral("artPolls"), double(s.artPolls)},
        {QStringLiteral("ignored"), double(s.ignored)},
        {QStringLiteral("sequenceErrors"), double(s.sequenceErrors)},
        {QStringLiteral("packetsPerSecond"), s.packetsPerSecond},
        {QStringLiteral("universes"), universes},
        {QStringLiteral("source"), kel ? QStringLiteral("KEL") : QStringLiteral("Art-Net")},
        {QStringLiteral("kelDeviceName"), node.kelDeviceName()},
        {QStringLiteral("seconds"), seconds},
    };
    if (writer) {
        report.insert(QStringLiteral("frames"), double(writer->framesWritten()));
        report.insert(QStringLiteral("records"), double(writer->recordsWritten()));
        report.insert(QStringLiteral("bytes"), double(writer->bytesAppended()));
        report.insert(QStringLiteral("path"), writer->path());
        report.insert(QStringLiteral("recordError"),
                      writer->failed() ? QJsonValue(writer->failureReason()) : QJsonValue());
    }
    if (log) {
        report.insert(QStringLiteral("logRecords"), double(log->spooled));
        report.insert(QStringLiteral("logCollapsed"), double(log->collapsed));
        report.insert(QStringLiteral("logDropped"), double(log->spoolDropped));
        report.insert(QStringLiteral("logPath"), logPath);
        report.insert(QStringLiteral("logError"), log->spoolFailed
                                                      ? QJsonValue(QStringLiteral("A write to the packet log failed; "
                                                                                  "logging stopped there."))
                                                      : QJsonValue());
    }
    return report;
}

} // namespace

int runListenCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Runs the Art-Net node without a display: answers ArtPoll with one ArtPollReply per advertised\n"
        "universe, announces itself every 2 s to 255.255.255.255, receives ArtDmx and KEL DMX and counts them.\n"
        "Runs for --seconds, or until Ctrl-C / SIGTERM, then stops cleanly. It broadcasts: on a development\n"
        "machine run it inside scripts/netns, never on a show network by accident.\n"
        "\n"
        "Once bound it prints \"Listening on ADDRESS:PORT, advertising N universe(s).\" to standard error.\n"
        "Without --json, on a terminal, a status line (packets, pkt/s, polls, sequence errors) is refreshed\n"
        "once a second, and a summary line is printed at the end.\n"
        "\n"
        "With --json, one object at the end: dmxPackets, artPolls, ignored, sequenceErrors (counts since start),\n"
        "packetsPerSecond (the last full one-second rate window; 0 before one has passed), universes (the\n"
        "Port-Addresses received, ascending, as numbers), source (\"Art-Net\" or \"KEL\", the flavour of the latest\n"
        "DMX packet), kelDeviceName (the KEL device name, or empty), seconds (how long the node ran).\n"
        "With --record, every received ArtDmx is appended to FILE (a .tpx recording; an existing file is\n"
        "continued, never truncated) with frames at --fps (default 40); with --patch, frames hold the patch's\n"
        "records per frame, otherwise they are cut by universe repetition and pauses over 7 ms. The JSON then\n"
        "adds frames, records, bytes (appended this run), path, and recordError (why recording stopped, or null).\n"
        "A failed write stops the recording and is reported as \"Recording stopped: REASON\"; the node runs on.\n"
        "With --log, every datagram the node sends and receives goes to FILE, a .tlog packet log (created or\n"
        "truncated; an unchanged ArtDmx repeated within 250 ms is left out, as in the window's Network Log). The\n"
        "JSON then adds logRecords (written), logCollapsed (repeats left out), logDropped (records the disk could\n"
        "not take in time), logPath and logError (why logging stopped, or null).\n"
        "The JSON also carries universeHealth and artSync, as talu-cli health --help describes them (fps over\n"
        "the last second, lastSeenMs before the end of the run; with --patch the patched universes that never\n"
        "came are listed as \"never\"); --no-health leaves the analysis out.\n"
        "Exit codes: 0 ran and stopped, 1 the socket could not be bound, the patch was refused or the recording\n"
        "or packet log could not be opened, 2 usage error."));
    const QCommandLineOption address(QStringLiteral("address"),
                                     QStringLiteral("Local IPv4 address to listen on (default: any)."),
                                     QStringLiteral("address"));
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("UDP port (default 6454)."),
                                  QStringLiteral("port"), QStringLiteral("6454"));
    const QCommandLineOption universes(QStringLiteral("universes"),
                                       QStringLiteral("Port-Addresses to advertise, comma-separated, decimal or 0x hex "
                                                      "(default: none, one reply with Net 0, Sub-Net 0)."),
                                       QStringLiteral("list"));
    const QCommandLineOption patch(QStringLiteral("patch"),
                                   QStringLiteral("Advertise the Port-Addresses of this patch instead."),
                                   QStringLiteral("file"));
    const QCommandLineOption shortName(QStringLiteral("short-name"),
                                       QStringLiteral("ArtPollReply short name (default TorvaneTester)."),
                                       QStringLiteral("name"));
    const QCommandLineOption longName(QStringLiteral("long-name"),
                                      QStringLiteral("ArtPollReply long name (default Torvane Art-Net Tester)."),
                                      QStringLiteral("name"));
    const QCommandLineOption seconds(QStringLiteral("seconds"),
                                     QStringLiteral("Run time in seconds (default: until interrupted)."),
                                     QStringLiteral("n"));
    const QCommandLineOption record(QStringLiteral("record"),
                                    QStringLiteral("Append every received ArtDmx to this .tpx recording."),
                                    QStringLiteral("file"));
    const QCommandLineOption fps(QStringLiteral("fps"), QStringLiteral("Frame rate of the recording (1 to 240, default 40)."),
                                 QStringLiteral("n"), QStringLiteral("40"));
    const QCommandLineOption log(QStringLiteral("log"),
                                 QStringLiteral("Write the packet log of every datagram sent and received to this .tlog file."),
                                 QStringLiteral("file"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object at the end."));
    const QCommandLineOption noHealth(QStringLiteral("no-health"),
                                      QStringLiteral("Do not analyse the network health of the stream."));
    for (const QCommandLineOption &o :
         {address, port, universes, patch, shortName, longName, seconds, record, fps, log, json, noHealth})
        parser.addOption(o);
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("listen"), arguments))
        return *done;
    const auto usageError = [](const QString &text) {
        printErr(QStringLiteral("talu-cli listen: ") + text);
        return int(ExitUsage);
    };
    if (!parser.positionalArguments().isEmpty())
        return usageError(QStringLiteral("takes no file arguments."));

    QHostAddress bindAddress;
    if (parser.isSet(address)) {
        const QString text = parser.value(address);
        if (text != QLatin1StringView("any") && !bindAddress.setAddress(text))
            return usageError(QStringLiteral("\"%1\" is not an IP address.").arg(text));
        if (bindAddress == QHostAddress(QHostAddress::AnyIPv4))
            bindAddress = QHostAddress();
    }
    bool ok = false;
    const uint portValue = parser.value(port).toUInt(&ok);
    if (!ok || portValue > 65535)
        return usageError(QStringLiteral("\"%1\" is not a port number.").arg(parser.value(port)));
    double runSeconds = -1;
    if (parser.isSet(seconds)) {
        runSeconds = parser.value(seconds).toDouble(&ok);
        if (!ok || runSeconds < 0 || runSeconds > 1e6)
            return usageError(QStringLiteral("\"%1\" is not a number of seconds.").arg(parser.value(seconds)));
    }

    const int frameRate = parser.value(fps).toInt(&ok);
    if (!ok || frameRate < 1 || frameRate > 240)
        return usageError(QStringLiteral("\"%1\" is not a frame rate (1 to 240).").arg(parser.value(fps)));

    QVector<quint16> advertised;
    int recordsPerFrame = 0;
    if (parser.isSet(universes) && parser.isSet(patch))
        return usageError(QStringLiteral("give --universes or --patch, not both."));
    if (parser.isSet(universes)) {
        QString bad;
        if (!parseUniverses(parser.value(universes), &advertised, &bad))
            return usageError(QStringLiteral("\"%1\" is not a Port-Address (0 to 0x7FFF).").arg(bad));
    } else if (parser.isSet(patch)) {
        const TPatch::PatchLoadResult loaded = TPatch::loadPatch(parser.value(patch));
        if (!loaded.ok) {
            printErr(QStringLiteral("talu-cli listen: ") + loaded.error.untranslatedText());
            return ExitRefused;
        }
        advertised = LivePipeline::advertisedUniverses(loaded.patch);
        recordsPerFrame = TPatch::expectedFrameOrder(loaded.patch).recordsPerFrame();
    }

    NodeIdentity identity;
    if (parser.isSet(shortName))
        identity.shortName = parser.value(shortName);
    if (parser.isSet(longName))
        identity.longName = parser.value(longName);

    // The window's own live path; without a colour target it only records.
    LivePipeline pipeline;
    pipeline.setHealthEnabled(!parser.isSet(noHealth));
    // Without --log nothing would read the packet log: it is not kept.
    PacketLog::PacketJournal &journal = pipeline.journal();
    journal.setEnabled(parser.isSet(log));
    if (parser.isSet(log)) {
        PacketLog::LogMessage error;
        if (!journal.startSpool(parser.value(log), &error)) {
            printErr(QStringLiteral("talu-cli listen: ") + error.untranslatedText());
            return ExitRefused;
        }
    }
    ArtNetNode &node = pipeline.node();
    node.setIdentity(identity);
    node.setUniverses(advertised);
    const QString shownAddress = bindAddress.isNull() ? QStringLiteral("0.0.0.0") : bindAddress.toString();
    if (!node.start(bindAddress, quint16(portValue))) {
        printErr(QStringLiteral("talu-cli listen: cannot listen on %1:%2 - %3")
                     .arg(shownAddress)
                     .arg(portValue)
                     .arg(node.lastError()));
        return ExitRefused;
    }
    if (parser.isSet(record)) {
        QString reason;
        if (!pipeline.startRecording(parser.value(record), frameRate, recordsPerFrame, &reason)) {
            printErr(QStringLiteral("talu-cli listen: cannot record to %1: %2").arg(parser.value(record), reason));
            node.stop();
            return ExitRefused;
        }
        QObject::connect(&pipeline, &LivePipeline::recordingFailed,
                         [](const QString &reason) { printErr(QStringLiteral("Recording stopped: %1").arg(reason)); });
    }
    printErr(QStringLiteral("Listening on %1:%2, advertising %3 universe(s).")
                 .arg(shownAddress)
                 .arg(portValue)
                 .arg(advertised.size()));
    if (const int grantedKb = node.receiveBufferBytes() / 1024;
        grantedKb >= 0 && grantedKb < ArtNetNode::kReceiveBufferBytes / 1024)
        printErr(QStringLiteral("talu-cli listen: the system gives this node a receive queue of only %1 KB (%2 KB "
                                "asked for): a burst it cannot read at once is lost. Raise net.core.rmem_max.")
                     .arg(grantedKb)
                     .arg(ArtNetNode::kReceiveBufferBytes / 1024));

    const bool live = !parser.isSet(json) && stdoutIsTerminal();
    QTimer statusTimer;
    QObject::connect(&statusTimer, &QTimer::timeout, [&node] {
        std::fputs(qPrintable(QStringLiteral("\r%1  ").arg(statusLine(node.stats()))), stdout);
        std::fflush(stdout);
    });
    if (live)
        statusTimer.start(1000);

    QElapsedTimer ran;
    ran.start();
    execUntilInterrupted(runSeconds);
    node.stop();
    pipeline.stopRecording();
    journal.stopSpool();
    const PacketLog::JournalCounters logged = journal.counters();
    const PacketLog::JournalCounters *logReport = parser.isSet(log) ? &logged : nullptr;
    const RecordingWriter *writer = pipeline.writer();

    if (parser.isSet(json)) {
        QJsonObject report = reportJson(node, double(ran.elapsed()) / 1000.0, writer, logReport, parser.value(log));
        if (!parser.isSet(noHealth)) {
            const Health::Analyser &health = pipeline.health();
            const QVector<quint16> patched = parser.isSet(patch) ? advertised : QVector<quint16>();
            report.insert(QStringLiteral("universeHealth"),
                          universeHealthJson(health.universes(LivePipeline::healthNowNs(), patched)));
            const Health::SyncHealth sync = health.sync();
            report.insert(QStringLiteral("artSync"), QJsonObject{{QStringLiteral("seen"), sync.seen},
                                                                 {QStringLiteral("packets"), sync.packets},
                                                                 {QStringLiteral("fps"), sync.fps}});
        }
        printJson(report);
    } else {
        if (live)
            std::fputs("\n", stdout);
        printOut(statusLine(node.stats()) + QStringLiteral(", %1 ignored").arg(node.stats().ignored));
        if (writer) {
            printOut(QStringLiteral("recorded %1 records in %2 frames (%3 bytes) to %4")
                         .arg(writer->recordsWritten())
                         .arg(writer->framesWritten())
                         .arg(writer->bytesAppended())
                         .arg(writer->path()));
        }
        if (logReport) {
            printOut(QStringLiteral("logged %1 packets (%2 repeats left out, %3 dropped) to %4")
                         .arg(logged.spooled)
                         .arg(logged.collapsed)
                         .arg(logged.spoolDropped)
                         .arg(parser.value(log)));
        }
    }
    return ExitOk;
}
