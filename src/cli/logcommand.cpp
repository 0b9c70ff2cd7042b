#include "cli/logcommand.h"

#include "cli/clicommon.h"
#include "packetlog/displayfilter.h"
#include "packetlog/logfiles.h"
#include "packetlog/textexport.h"

#include <QJsonArray>

using namespace PacketLog;

namespace {

QJsonObject recordJson(const PacketRecord &r)
{
    return QJsonObject{
        {QStringLiteral("time"), formatRecordTime(r.timeNs)},
        {QStringLiteral("timeNs"), QString::number(r.timeNs)},
        {QStringLiteral("direction"), directionWord(r.direction)},
        {QStringLiteral("source"), ipv4Text(r.srcIp)},
        {QStringLiteral("sourcePort"), r.srcPort},
        {QStringLiteral("destination"), ipv4Text(r.dstIp)},
        {QStringLiteral("destinationPort"), r.dstPort},
        {QStringLiteral("length"), qint64(r.length)},
        {QStringLiteral("opcode"), r.isArtNet() ? QJsonValue(r.opcode) : QJsonValue()},
        {QStringLiteral("universe"), r.isDmx() ? QJsonValue(r.portAddress) : QJsonValue()},
        {QStringLiteral("sequence"), r.isDmx() ? QJsonValue(r.sequence) : QJsonValue()},
        {QStringLiteral("outcome"), outcomeWord(r.outcome)},
        {QStringLiteral("reason"), reasonWord(r.reason)},
        {QStringLiteral("error"), r.error},
        {QStringLiteral("errorName"), errorName(r.error, false)},
        {QStringLiteral("origin"), sourceWord(r.source)},
        {QStringLiteral("info"), r.info()},
    };
}

QJsonArray messagesJson(const QVector<LogMessage> &messages)
{
    QJsonArray out;
    for (const LogMessage &m : messages)
        out.append(m.untranslatedText());
    return out;
}

} // namespace

int runLogCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Reads a packet log (.tlog) or a pcapng or pcap capture, keeps the records the display filter selects\n"
        "and prints them one per line (time UTC, direction, source -> destination, length, Info), or exports them.\n"
        "The file type is taken from its first bytes, not its name. Captures keep their UDP-over-IPv4 packets.\n"
        "\n"
        "Filter: the packet log's display filter, e.g. \"artnet.opcode == artdmx && udp.port == 6454\"\n"
        "(see talu-cli filter --help).\n"
        "Export formats: tlog (our own log), csv, text (the printed lines), pcapng (Wireshark).\n"
        "\n"
        "With --json, one object: ok (bool), error (text or null), format (\"tlog\", \"pcapng\", \"pcap\" or null),\n"
        "warnings (array of texts: where a damaged file stopped, packets left out), total (records read),\n"
        "matched (records the filter kept), skipped (captured packets that were not UDP over IPv4), and either\n"
        "records (array, one object per matched record: time (UTC text), timeNs (ns since 1970 as text),\n"
        "direction (\"in\"/\"out\"), source, sourcePort, destination, destinationPort, length, opcode (number or null),\n"
        "universe (Port-Address or null), sequence (or null), outcome, reason, error (number), errorName,\n"
        "origin (\"mox\"/\"capture\"), info) or, with --export, output (the written file).\n"
        "Exit codes: 0 done, 1 the file or the filter was refused (or the export could not be written),\n"
        "2 usage error."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The .tlog, .pcapng or .pcap file."));
    const QCommandLineOption filter(QStringLiteral("filter"), QStringLiteral("Display filter expression."),
                                    QStringLiteral("expr"));
    const QCommandLineOption exportOption(QStringLiteral("export"),
                                          QStringLiteral("Write the matching records as csv, text, pcapng or tlog."),
                                          QStringLiteral("format"));
    const QCommandLineOption output(QStringList{QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("Output file of --export."), QStringLiteral("out"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOptions({filter, exportOption, output, json});
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("log"), arguments))
        return *done;
    if (parser.positionalArguments().size() != 1) {
        printErr(QStringLiteral("talu-cli log: give exactly one log file."));
        return ExitUsage;
    }
    LogFormat format = LogFormat::Text;
    const bool exporting = parser.isSet(exportOption);
    if (exporting && !logFormatFromName(parser.value(exportOption), &format)) {
        printErr(QStringLiteral("talu-cli log: --export takes csv, text, pcapng or tlog."));
        return ExitUsage;
    }
    if (exporting != parser.isSet(output)) {
        printErr(QStringLiteral("talu-cli log: --export and -o go together."));
        return ExitUsage;
    }

    const bool asJson = parser.isSet(json);
    QJsonObject report{{QStringLiteral("ok"), false}, {QStringLiteral("error"), QJsonValue()},
                       {QStringLiteral("format"), QJsonValue()}, {QStringLiteral("warnings"), QJsonArray()},
                       {QStringLiteral("total"), 0}, {QStringLiteral("matched"), 0}, {QStringLiteral("skipped"), 0}};
    const auto refuse = [&](const QString &message) {
        if (asJson) {
            report[QStringLiteral("error")] = message;
            printJson(report);
        } else {
            printErr(QStringLiteral("error: ") + message);
        }
        return ExitRefused;
    };

    const FilterCompileResult compiled = compileFilter(parser.value(filter));
    if (!compiled.ok())
        return refuse(compiled.error.untranslatedText());
    LogLoadResult loaded = loadPacketLog(parser.positionalArguments().constFirst());
    report[QStringLiteral("warnings")] = messagesJson(loaded.warnings);
    if (!loaded.ok)
        return refuse(loaded.error.untranslatedText());

    std::vector<PacketRecord> matched;
    if (compiled.root) {
        for (const PacketRecord &r : loaded.records) {
            if (compiled.root->match(r))
                matched.push_back(r);
        }
    } else {
        matched = std::move(loaded.records);
        loaded.records.clear();
    }
    report[QStringLiteral("format")] = loaded.format;
    report[QStringLiteral("total")] = qint64(compiled.root ? loaded.records.size() : matched.size());
    report[QStringLiteral("matched")] = qint64(matched.size());
    report[QStringLiteral("skipped")] = loaded.skipped;
    if (!asJson) {
        for (const LogMessage &w : loaded.warnings)
            printErr(QStringLiteral("warning: ") + w.untranslatedText());
    }

    if (exporting) {
        LogMessage error;
        const QString out = parser.value(output);
        if (!savePacketLog(out, format, matched, &error))
            return refuse(error.untranslatedText());
        report[QStringLiteral("ok")] = true;
        report[QStringLiteral("output")] = out;
        if (asJson)
            printJson(report);
        else
            printOut(QStringLiteral("%1 of %2 records written to %3")
                         .arg(matched.size())
                         .arg(report.value(QStringLiteral("total")).toInteger())
                         .arg(out));
        return ExitOk;
    }

    report[QStringLiteral("ok")] = true;
    if (asJson) {
        QJsonArray records;
        for (const PacketRecord &r : matched)
            records.append(recordJson(r));
        report[QStringLiteral("records")] = records;
        printJson(report);
    } else {
        QString text;
        for (const PacketRecord &r : matched) {
            text += recordLine(r);
            text += QLatin1Char('\n');
        }
        text.chop(1);
        if (!text.isEmpty())
            printOut(text);
    }
    return ExitOk;
}
