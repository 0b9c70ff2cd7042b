#include "cli/healthcommand.h"

#include "cli/clicommon.h"
#include "live/healthfile.h"
#include "live/livepipeline.h"
#include "patch/patchloader.h"

#include <QHostAddress>
#include <QJsonArray>

namespace {

QJsonObject sourceJson(const Health::SourceHealth &s)
{
    return QJsonObject{{QStringLiteral("address"), QHostAddress(s.address).toString()},
                       {QStringLiteral("port"), s.port},
                       {QStringLiteral("packets"), s.packets},
                       {QStringLiteral("fps"), s.fps},
                       {QStringLiteral("lost"), s.lost},
                       {QStringLiteral("outOfOrder"), s.outOfOrder},
                       {QStringLiteral("duplicates"), s.duplicates},
                       {QStringLiteral("lengthChanges"), s.lengthChanges},
                       {QStringLiteral("lastSeenMs"), s.lastSeenMs},
                       {QStringLiteral("minIntervalMs"), s.minIntervalMs},
                       {QStringLiteral("medianIntervalMs"), s.medianIntervalMs},
                       {QStringLiteral("maxIntervalMs"), s.maxIntervalMs}};
}

} // namespace

QJsonArray universeHealthJson(const QVector<Health::UniverseHealth> &universes)
{
    QJsonArray out;
    for (const Health::UniverseHealth &u : universes) {
        QJsonArray sources;
        for (const Health::SourceHealth &s : u.sources)
            sources.append(sourceJson(s));
        out.append(QJsonObject{{QStringLiteral("portAddress"), u.portAddress},
                               {QStringLiteral("state"), u.state},
                               {QStringLiteral("packets"), u.packets},
                               {QStringLiteral("fps"), u.fps},
                               {QStringLiteral("lost"), u.lost},
                               {QStringLiteral("outOfOrder"), u.outOfOrder},
                               {QStringLiteral("duplicates"), u.duplicates},
                               {QStringLiteral("syncMissed"), u.syncMissed},
                               {QStringLiteral("sources"), sources}});
    }
    return out;
}

int runHealthCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    QString description = QStringLiteral(
        "Network health per universe and per sender from a capture (pcapng, pcap) or a recording (.tpx), so a\n"
        "show can be diagnosed afterwards: packets, frame rate over the whole file, intervals, sequence faults,\n"
        "length changes, and a state per universe; ArtSync too. A recording carries no senders or sequence\n"
        "numbers: its frames are timed by --fps. With --patch, patched universes that never came are listed.\n"
        "\n"
        "Counters (sequence numbers run 1-255, 0 means the sender does not number its packets):\n");
    for (const char *counter : {"lost", "outOfOrder", "duplicates", "syncMissed", "state"})
        description += QStringLiteral("  %1  %2\n")
                           .arg(QString::fromLatin1(counter).leftJustified(10), Health::definition(QLatin1String(counter)));
    description += QStringLiteral(
        "\n"
        "With --json, one object: ok, error, universeHealth (array of portAddress, state, packets, fps, lost,\n"
        "outOfOrder, duplicates, syncMissed, sources (array of address, port, packets, fps, lost, outOfOrder,\n"
        "duplicates, lengthChanges, lastSeenMs, minIntervalMs, medianIntervalMs, maxIntervalMs)) and artSync\n"
        "(seen, packets, fps). lastSeenMs counts back from the file's last packet.\n"
        "Exit codes: 0 done, 1 the file or the patch was refused, 2 usage error.");
    parser.setApplicationDescription(description);
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("A .pcapng, .pcap or .tpx file."));
    const QCommandLineOption patchOption(QStringLiteral("patch"), QStringLiteral("The installation's patch."),
                                         QStringLiteral("file"));
    const QCommandLineOption fps(QStringLiteral("fps"), QStringLiteral("Frame rate of a recording (default 40)."),
                                 QStringLiteral("n"), QStringLiteral("40"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOptions({patchOption, fps, json});
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("health"), arguments))
        return *done;
    if (parser.positionalArguments().size() != 1) {
        printErr(QStringLiteral("talu-cli health: give one capture or recording."));
        return ExitUsage;
    }
    bool ok = false;
    const int frameRate = parser.value(fps).toInt(&ok);
    if (!ok || frameRate < 1 || frameRate > 240) {
        printErr(QStringLiteral("talu-cli health: \"%1\" is not a frame rate (1 to 240).").arg(parser.value(fps)));
        return ExitUsage;
    }
    const bool asJson = parser.isSet(json);
    const auto refuse = [&](const QString &message) {
        if (asJson)
            printJson(QJsonObject{{QStringLiteral("ok"), false}, {QStringLiteral("error"), message}});
        else
            printErr(QStringLiteral("error: ") + message);
        return ExitRefused;
    };
    QVector<quint16> patched;
    if (parser.isSet(patchOption)) {
        const TPatch::PatchLoadResult loaded = TPatch::loadPatch(parser.value(patchOption));
        if (!loaded.ok)
            return refuse(loaded.error.untranslatedText());
        patched = LivePipeline::advertisedUniverses(loaded.patch);
    }

    const Health::FileHealth analysed = Health::analyseFile(parser.positionalArguments().constFirst(), frameRate);
    if (!analysed.ok)
        return refuse(analysed.untranslatedError);
    if (!asJson)
        for (const QString &w : analysed.warnings)
            printErr(QStringLiteral("warning: ") + w);
    const Health::Analyser &analyser = analysed.analyser;
    const QVector<Health::UniverseHealth> universes = analyser.universes(analyser.lastTimeNs(), patched);
    const Health::SyncHealth sync = analyser.sync();
    if (asJson) {
        printJson(QJsonObject{{QStringLiteral("ok"), true},
                              {QStringLiteral("error"), QJsonValue()},
                              {QStringLiteral("universeHealth"), universeHealthJson(universes)},
                              {QStringLiteral("artSync"), QJsonObject{{QStringLiteral("seen"), sync.seen},
                                                                      {QStringLiteral("packets"), sync.packets},
                                                                      {QStringLiteral("fps"), sync.fps}}}});
        return ExitOk;
    }
    printOut(QStringLiteral("universe  state      packets    fps   lost  order   dups  syncMissed  senders"));
    for (const Health::UniverseHealth &u : universes) {
        printOut(QStringLiteral("0x%1    %2 %3 %4 %5 %6 %7 %8  %9")
                     .arg(u.portAddress, 4, 16, QLatin1Char('0'))
                     .arg(u.state, -9)
                     .arg(u.packets, 8)
                     .arg(u.fps, 6, 'f', 1)
                     .arg(u.lost, 6)
                     .arg(u.outOfOrder, 6)
                     .arg(u.duplicates, 6)
                     .arg(u.syncMissed, 11)
                     .arg(u.sources.size()));
    }
    if (sync.seen)
        printOut(QStringLiteral("ArtSync: %1 packets, %2 per second").arg(sync.packets).arg(sync.fps, 0, 'f', 1));
    return ExitOk;
}
