#include "cli/capturecommand.h"

#include "cli/clicommon.h"
#include "packetlog/capturesession.h"
#include "packetlog/displayfilter.h"
#include "packetlog/logfiles.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QSaveFile>

using namespace PacketLog;

namespace {

int listAdapters(bool asJson)
{
    QVector<CaptureAdapter> adapters;
    LogMessage error;
    const bool ok = listCaptureAdapters(&adapters, &error);
    if (asJson) {
        QJsonArray list;
        for (const CaptureAdapter &a : adapters)
            list.append(QJsonObject{{QStringLiteral("name"), a.name},
                                    {QStringLiteral("description"), a.description},
                                    {QStringLiteral("addresses"), QJsonArray::fromStringList(a.addresses)}});
        printJson(QJsonObject{{QStringLiteral("ok"), ok},
                              {QStringLiteral("error"), ok ? QJsonValue() : QJsonValue(error.untranslatedText())},
                              {QStringLiteral("adapters"), list}});
    } else if (ok) {
        for (const CaptureAdapter &a : adapters)
            printOut(QStringLiteral("%1\t%2\t%3").arg(a.name, a.addresses.join(QLatin1Char(',')), a.description));
    } else {
        printErr(QStringLiteral("error: ") + error.untranslatedText());
    }
    return ok ? ExitOk : ExitRefused;
}

} // namespace

int runCaptureCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Captures the UDP packets to or from the Art-Net port on a network adapter, as a packet analyser does,\n"
        "and writes them to a file, by the name's suffix: .pcap keeps every packet whole, as captured (for\n"
        "talu-cli convert and Wireshark); .tlog (our own log), .pcapng, .csv and .txt hold the log's records,\n"
        "the first 256 bytes of each packet.\n"
        "Capturing runs in the capture helper (talu-capture), the only part of the program that holds the right\n"
        "to capture; without it the system refuses and the message says how to grant it.\n"
        "Says \"Capturing on NAME (UDP port N)...\" on standard error once the capture runs; runs for --seconds,\n"
        "until --count packets, or until Ctrl-C / SIGTERM, then writes the file.\n"
        "\n"
        "With --list, the adapters: one per line, name TAB IPv4 addresses TAB description (with --json: ok, error,\n"
        "adapters, an array of name, description, addresses).\n"
        "With --json, one object: ok (bool), error (text or null), interface, records (packets captured as records),\n"
        "saved (records written, after --filter), skipped (captured packets that were not UDP over IPv4),\n"
        "dropped (packets the system dropped before the helper read them), seconds (how long it ran), output.\n"
        "Exit codes: 0 done, 1 the capture was refused or failed, or the file could not be written\n"
        "(what was captured until then is still written), 2 usage error."));
    const QCommandLineOption list(QStringLiteral("list"), QStringLiteral("List the adapters and stop."));
    const QCommandLineOption interface(QStringList{QStringLiteral("i"), QStringLiteral("interface")},
                                       QStringLiteral("The adapter to capture on (see --list)."),
                                       QStringLiteral("name"));
    const QCommandLineOption output(QStringList{QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("The file to write (.tlog, .pcapng, .csv, .txt)."),
                                    QStringLiteral("file"));
    const QCommandLineOption seconds(QStringLiteral("seconds"),
                                     QStringLiteral("Capture time in seconds (default: until interrupted)."),
                                     QStringLiteral("s"));
    const QCommandLineOption count(QStringLiteral("count"), QStringLiteral("Stop after this many packets."),
                                   QStringLiteral("n"));
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("UDP port (default 6454)."),
                                  QStringLiteral("port"), QStringLiteral("6454"));
    const QCommandLineOption filter(QStringLiteral("filter"),
                                    QStringLiteral("Keep only the records this display filter selects."),
                                    QStringLiteral("expr"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOptions({list, interface, output, seconds, count, port, filter, json});
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("capture"), arguments))
        return *done;
    const bool asJson = parser.isSet(json);
    if (parser.isSet(list))
        return listAdapters(asJson);

    const auto usageError = [](const QString &message) {
        printErr(QStringLiteral("talu-cli capture: ") + message);
        return ExitUsage;
    };
    if (!parser.isSet(interface) || !parser.isSet(output))
        return usageError(QStringLiteral("give --interface and -o (or --list)."));
    LogFormat format = LogFormat::Tlog;
    const QString out = parser.value(output);
    // .pcap is the helper's own stream, whole packets as captured; the other formats hold the records.
    const bool raw = QFileInfo(out).suffix().compare(QLatin1String("pcap"), Qt::CaseInsensitive) == 0;
    if (!raw && !logFormatFromSuffix(out, &format))
        return usageError(QStringLiteral("the output must end in .pcap, .tlog, .pcapng, .csv or .txt."));
    if (raw && parser.isSet(filter))
        return usageError(QStringLiteral("--filter does not apply to .pcap, which keeps every packet whole."));
    bool ok = true;
    double runSeconds = -1;
    if (parser.isSet(seconds))
        runSeconds = parser.value(seconds).toDouble(&ok);
    if (!ok || (parser.isSet(seconds) && !(runSeconds >= 0 && runSeconds <= 1e6)))
        return usageError(QStringLiteral("\"%1\" is not a number of seconds.").arg(parser.value(seconds)));
    qint64 packetCount = 0;
    if (parser.isSet(count))
        packetCount = parser.value(count).toLongLong(&ok);
    if (!ok || (parser.isSet(count) && packetCount <= 0))
        return usageError(QStringLiteral("\"%1\" is not a number of packets.").arg(parser.value(count)));
    const uint portNumber = parser.value(port).toUInt(&ok);
    if (!ok || portNumber == 0 || portNumber > 65535)
        return usageError(QStringLiteral("\"%1\" is not a UDP port.").arg(parser.value(port)));

    QJsonObject report{{QStringLiteral("ok"), false}, {QStringLiteral("error"), QJsonValue()},
                       {QStringLiteral("interface"), parser.value(interface)}, {QStringLiteral("records"), 0},
                       {QStringLiteral("saved"), 0}, {QStringLiteral("skipped"), 0}, {QStringLiteral("dropped"), 0},
                       {QStringLiteral("seconds"), 0.0}, {QStringLiteral("output"), out}};
    const auto finish = [&](const LogMessage &error) {
        report[QStringLiteral("ok")] = error.isEmpty();
        if (!error.isEmpty())
            report[QStringLiteral("error")] = error.untranslatedText();
        if (asJson)
            printJson(report);
        else if (!error.isEmpty())
            printErr(QStringLiteral("error: ") + error.untranslatedText());
        else
            printOut(QStringLiteral("%1 records captured on %2, %3 written to %4")
                         .arg(report.value(QStringLiteral("records")).toInteger())
                         .arg(parser.value(interface))
                         .arg(report.value(QStringLiteral("saved")).toInteger())
                         .arg(out));
        return error.isEmpty() ? ExitOk : ExitRefused;
    };
    const FilterCompileResult compiled = compileFilter(parser.value(filter));
    if (!compiled.ok())
        return finish(compiled.error);

    // The adapter's own addresses tell sent packets from received ones.
    CaptureAdapter adapter{parser.value(interface), QString(), {}};
    QVector<CaptureAdapter> adapters;
    LogMessage listError;
    if (listCaptureAdapters(&adapters, &listError)) {
        for (const CaptureAdapter &a : adapters)
            if (a.name == adapter.name)
                adapter = a;
    }

    CaptureSession session;
    QSaveFile rawFile(out);
    if (raw) {
        if (!rawFile.open(QIODevice::WriteOnly))
            return finish(LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Cannot write %1: %2"),
                                     {out, rawFile.errorString()}));
        session.setRawCopy(&rawFile);
    }
    std::vector<PacketRecord> kept;
    LogMessage failure;
    const auto take = [&] {
        for (PacketRecord &r : session.takeRecords())
            if (!compiled.root || compiled.root->match(r))
                kept.push_back(r);
    };
    QObject::connect(&session, &CaptureSession::recordsReady, take);
    QObject::connect(&session, &CaptureSession::started, [&] {
        printErr(QStringLiteral("Capturing on %1 (UDP port %2)...").arg(adapter.name).arg(portNumber));
    });
    QObject::connect(&session, &CaptureSession::stopped, [&](const LogMessage &error) {
        failure = error;
        QCoreApplication::quit();
    });
    QElapsedTimer ran;
    ran.start();
    session.start(adapter, quint16(portNumber), packetCount);
    // A helper that cannot start says so at once; stopped() has then quit already.
    if (session.isRunning())
        execUntilInterrupted(runSeconds, [&session] { session.stop(); });
    take();
    report[QStringLiteral("seconds")] = double(ran.elapsed()) / 1000.0;
    report[QStringLiteral("records")] = session.recordCount();
    report[QStringLiteral("skipped")] = session.skipped();
    report[QStringLiteral("dropped")] = session.dropped();
    // What was captured is written even when the capture ended in a failure.
    LogMessage writeError;
    if (raw) {
        if (session.recordCount() > 0 || failure.isEmpty()) {
            if (!rawFile.commit())
                return finish(LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Cannot write %1: %2"),
                                         {out, rawFile.errorString()}));
            report[QStringLiteral("saved")] = session.recordCount();
        } else {
            rawFile.cancelWriting();
        }
    } else if (session.recordCount() > 0 || failure.isEmpty()) {
        if (!savePacketLog(out, format, kept, &writeError))
            return finish(writeError);
        report[QStringLiteral("saved")] = qint64(kept.size());
    }
    return finish(failure);
}
