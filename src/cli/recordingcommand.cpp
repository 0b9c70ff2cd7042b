#include "cli/recordingcommand.h"

#include "cli/clicommon.h"
#include "patch/patchloader.h"
#include "recording/recording.h"

#include <QJsonArray>

int runRecordingCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Loads a .tpx recording the way the program does, optionally against a patch, and prints its "
        "layout.\n"
        "\n"
        "With --json, one object:\n"
        "  ok                 bool, whether the recording loaded\n"
        "  error              text of the error, or null\n"
        "  warnings           array of warning texts, in order\n"
        "  format             the format label (\"Art-Net\", \"KEL (name)\", \"KEL\", each maybe + \" "
        "GPS-Sync\")\n"
        "  records            number of records indexed\n"
        "  recordsPerFrame    records that make one frame\n"
        "  frames             complete frames\n"
        "  universes          array of the distinct Port-Addresses, ascending\n"
        "  gpsSync            bool, a 143-byte GPS metadata block precedes the first record\n"
        "  detectedPeriod     repetition period of the universe sequence (candidates up to 4096)\n"
        "  matchesPatch       bool, the frame layout was confirmed against --patch\n"
        "  parsedBytes        bytes from the first record to where parsing ended\n"
        "  firstRecordOffset  0, or 143 for GPS-Sync files\n"
        "Exit codes: 0 loaded, 1 the recording (or the patch) was refused, 2 usage error."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The .tpx recording."));
    const QCommandLineOption patchOption(QStringLiteral("patch"),
                                         QStringLiteral("Check the recording against this patch."),
                                         QStringLiteral("PATCH"));
    const QCommandLineOption quiet(
        QStringLiteral("quiet"),
        QStringLiteral("Load as a member of a GPS-Sync set (no one-group warning)."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOption(patchOption);
    parser.addOption(quiet);
    parser.addOption(json);
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("recording"), arguments))
        return *done;
    if (parser.positionalArguments().size() != 1) {
        printErr(QStringLiteral("talu-cli recording: give exactly one recording file."));
        return ExitUsage;
    }

    TPatch::PatchLoadResult patch;
    if (parser.isSet(patchOption)) {
        patch = TPatch::loadPatch(parser.value(patchOption));
        if (!patch.ok) {
            printErr(QStringLiteral("error: patch: ") + patch.error.untranslatedText());
            return ExitRefused;
        }
    }

    Recording recording;
    const RecordingLoadResult result = recording.load(parser.positionalArguments().constFirst(),
                                                      patch.ok ? &patch.patch : nullptr, parser.isSet(quiet));
    QStringList warnings;
    for (const TPatch::PatchMessage &w : result.warnings)
        warnings.append(w.untranslatedText());

    if (parser.isSet(json)) {
        QJsonArray universes;
        for (quint16 u : recording.universes())
            universes.append(int(u));
        printJson(QJsonObject{
            {QStringLiteral("ok"), result.ok},
            {QStringLiteral("error"), result.ok ? QJsonValue() : QJsonValue(result.error.untranslatedText())},
            {QStringLiteral("warnings"), QJsonArray::fromStringList(warnings)},
            {QStringLiteral("format"), result.ok ? recording.formatLabel() : QString()},
            {QStringLiteral("records"), qint64(recording.records().size())},
            {QStringLiteral("recordsPerFrame"), recording.recordsPerFrame()},
            {QStringLiteral("frames"), recording.frameCount()},
            {QStringLiteral("universes"), universes},
            {QStringLiteral("gpsSync"), recording.isGpsSync()},
            {QStringLiteral("detectedPeriod"), qint64(recording.detectedPeriod())},
            {QStringLiteral("matchesPatch"), recording.matchesPatch()},
            {QStringLiteral("parsedBytes"), recording.parsedBytes()},
            {QStringLiteral("firstRecordOffset"), recording.firstRecordOffset()},
        });
    } else if (!result.ok) {
        printErr(QStringLiteral("error: ") + result.error.untranslatedText());
    } else {
        printOut(QStringLiteral("%1: %2 records, %3 per frame, %4 frames, %5 universes")
                     .arg(recording.formatLabel())
                     .arg(recording.records().size())
                     .arg(recording.recordsPerFrame())
                     .arg(recording.frameCount())
                     .arg(recording.universes().size()));
        printOut(QStringLiteral("detected period %1, first record at %2, %3 bytes parsed%4")
                     .arg(recording.detectedPeriod())
                     .arg(recording.firstRecordOffset())
                     .arg(recording.parsedBytes())
                     .arg(patch.ok ? (recording.matchesPatch() ? QStringLiteral(", matches the patch")
                                                               : QStringLiteral(", does not match the patch"))
                                   : QString()));
        for (const QString &w : warnings)
            printOut(QStringLiteral("warning: ") + w);
    }
    return result.ok ? ExitOk : ExitRefused;
}
