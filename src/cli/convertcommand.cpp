#include "cli/convertcommand.h"

#include "cli/clicommon.h"
#include "live/captureconversion.h"
#include "packetlog/capturereader.h"
#include "packetlog/packetrecord.h"
#include "patch/frameorder.h"
#include "patch/patchloader.h"
#include "recording/recording.h"
#include "recording/recordingdiff.h"

#include <QJsonArray>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr int kDefaultFps = 40;

// The patch of --patch, or none; false with the message printed when it is refused.
bool loadPatchOption(const QCommandLineParser &parser, const QCommandLineOption &option, const QString &command,
                     std::optional<TPatch::PatchData> *patch)
{
    if (!parser.isSet(option))
        return true;
    const TPatch::PatchLoadResult loaded = TPatch::loadPatch(parser.value(option));
    if (!loaded.ok) {
        printErr(QStringLiteral("talu-cli %1: %2").arg(command, loaded.error.untranslatedText()));
        return false;
    }
    *patch = loaded.patch;
    return true;
}

int recordsPerFrameOf(const std::optional<TPatch::PatchData> &patch)
{
    return patch ? TPatch::expectedFrameOrder(*patch).recordsPerFrame() : 0;
}

QJsonValue optionalJson(const std::optional<int> &v)
{
    return v ? QJsonValue(*v) : QJsonValue();
}

} // namespace

int runConvertCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Makes a capture (pcapng or pcap, from Wireshark, tcpdump or talu-cli capture) into a .tpx recording:\n"
        "its ArtDmx packets to UDP port 6454, to any destination (only --source's with that option), go through\n"
        "the live recorder's writer in capture order, with the capture's timestamps as the clock. Frames form as\n"
        "when the live stream is recorded: by the patch's universe count with --patch, else where a universe\n"
        "repeats or after a pause of more than 7 ms. The records take the sender's shape (Art-Net or KEL).\n"
        "The output is written whole or not at all.\n"
        "\n"
        "With --json, one object: ok, error (text or null), warnings (where a damaged capture stopped),\n"
        "datagrams (UDP datagrams in the capture), dmxPackets (written as records), otherSenders (ArtDmx left out\n"
        "by --source), records, frames, output.\n"
        "Exit codes: 0 done, 1 the capture, the patch or the output was refused, 2 usage error."));
    parser.addPositionalArgument(QStringLiteral("capture"), QStringLiteral("The .pcapng or .pcap file."));
    const QCommandLineOption output(QStringList{QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("The .tpx to write."), QStringLiteral("out"));
    const QCommandLineOption patchOption(QStringLiteral("patch"),
                                         QStringLiteral("Frames by this patch's universes."), QStringLiteral("file"));
    const QCommandLineOption sourceOption(QStringLiteral("source"),
                                          QStringLiteral("Only the ArtDmx this IPv4 address sent."),
                                          QStringLiteral("ip"));
    const QCommandLineOption fps(QStringLiteral("fps"), QStringLiteral("Frame rate of the timestamps (default 40)."),
                                 QStringLiteral("n"), QString::number(kDefaultFps));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOptions({output, patchOption, sourceOption, fps, json});
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("convert"), arguments))
        return *done;
    const auto usageError = [](const QString &message) {
        printErr(QStringLiteral("talu-cli convert: ") + message);
        return ExitUsage;
    };
    if (parser.positionalArguments().size() != 1 || !parser.isSet(output))
        return usageError(QStringLiteral("give one capture and -o OUT.tpx."));
    bool ok = false;
    const int frameRate = parser.value(fps).toInt(&ok);
    if (!ok || frameRate < 1 || frameRate > 240)
        return usageError(QStringLiteral("\"%1\" is not a frame rate (1 to 240).").arg(parser.value(fps)));
    std::optional<quint32> source;
    if (parser.isSet(sourceOption)) {
        quint32 ip = 0;
        if (!PacketLog::parseIpv4(parser.value(sourceOption), &ip))
            return usageError(QStringLiteral("\"%1\" is not an IPv4 address.").arg(parser.value(sourceOption)));
        source = ip;
    }
    std::optional<TPatch::PatchData> patch;
    if (!loadPatchOption(parser, patchOption, QStringLiteral("convert"), &patch))
        return ExitRefused;

    const QString out = parser.value(output);
    const CaptureConversion c = convertCapture(parser.positionalArguments().constFirst(), out, frameRate,
                                               recordsPerFrameOf(patch), source);
    if (parser.isSet(json)) {
        printJson(QJsonObject{{QStringLiteral("ok"), c.ok},
                              {QStringLiteral("error"), c.ok ? QJsonValue() : QJsonValue(c.error)},
                              {QStringLiteral("warnings"), QJsonArray::fromStringList(c.warnings)},
                              {QStringLiteral("datagrams"), c.datagrams},
                              {QStringLiteral("dmxPackets"), c.dmxPackets},
                              {QStringLiteral("otherSenders"), c.otherSenders},
                              {QStringLiteral("records"), c.records},
                              {QStringLiteral("frames"), c.frames},
                              {QStringLiteral("output"), out}});
    } else {
        for (const QString &w : c.warnings)
            printErr(QStringLiteral("warning: ") + w);
        if (c.ok)
            printOut(QStringLiteral("%1 ArtDmx packets of %2 datagrams written to %3: %4 records in %5 frames")
                         .arg(c.dmxPackets)
                         .arg(c.datagrams)
                         .arg(out)
                         .arg(c.records)
                         .arg(c.frames));
        else
            printErr(QStringLiteral("error: ") + c.error);
    }
    return c.ok ? ExitOk : ExitRefused;
}

int runDiffCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Compares two recordings frame by frame: does the show file still play what was recorded? Either may be\n"
        "a capture (pcapng or pcap), converted first as talu-cli convert does. A frame is its set of universes\n"
        "and their DMX bytes; the order of records within a frame and their timestamps do not count.\n"
        "With --patch the recordings are framed by the patch's universes (and captures converted so).\n"
        "\n"
        "With --json, one object: identical (bool), framesA, framesB, differingFrames (among the frames both\n"
        "have), firstDifference (null, or frame (from 0), portAddress, channel (from 1), a, b: each null where\n"
        "that side has no such universe, channel or frame), error (text or null).\n"
        "Exit codes: 0 identical, 1 different (or a file was refused), 2 usage error."));
    parser.addPositionalArgument(QStringLiteral("a"), QStringLiteral("The first recording or capture."));
    parser.addPositionalArgument(QStringLiteral("b"), QStringLiteral("The second recording or capture."));
    const QCommandLineOption patchOption(QStringLiteral("patch"), QStringLiteral("Frame by this patch."),
                                         QStringLiteral("file"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOptions({patchOption, json});
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("diff"), arguments))
        return *done;
    if (parser.positionalArguments().size() != 2) {
        printErr(QStringLiteral("talu-cli diff: give two recordings or captures."));
        return ExitUsage;
    }
    std::optional<TPatch::PatchData> patch;
    if (!loadPatchOption(parser, patchOption, QStringLiteral("diff"), &patch))
        return ExitRefused;
    const bool asJson = parser.isSet(json);
    const auto refuse = [&](const QString &message) {
        if (asJson)
            printJson(QJsonObject{{QStringLiteral("identical"), false}, {QStringLiteral("error"), message}});
        else
            printErr(QStringLiteral("error: ") + message);
        return ExitRefused;
    };

    QTemporaryDir scratch;
    Recording recordings[2];
    for (int i = 0; i < 2; ++i) {
        QString path = parser.positionalArguments().at(i);
        if (PacketLog::isCaptureFile(path)) {
            const QString converted = scratch.filePath(QStringLiteral("%1.tpx").arg(i));
            const CaptureConversion c = convertCapture(path, converted, kDefaultFps, recordsPerFrameOf(patch));
            if (!c.ok)
                return refuse(QStringLiteral("%1: %2").arg(path, c.error));
            path = converted;
        }
        const RecordingLoadResult loaded = recordings[i].load(path, patch ? &*patch : nullptr, true);
        if (!loaded.ok)
            return refuse(QStringLiteral("%1: %2").arg(parser.positionalArguments().at(i),
                                                       loaded.error.untranslatedText()));
    }
    const RecordingDiff diff = compareRecordings(recordings[0], recordings[1]);
    QJsonValue first;
    if (const auto &d = diff.firstDifference) {
        first = QJsonObject{{QStringLiteral("frame"), d->frame},
                            {QStringLiteral("portAddress"), d->portAddress ? QJsonValue(*d->portAddress) : QJsonValue()},
                            {QStringLiteral("channel"), optionalJson(d->channel)},
                            {QStringLiteral("a"), optionalJson(d->a)},
                            {QStringLiteral("b"), optionalJson(d->b)}};
    }
    if (asJson) {
        printJson(QJsonObject{{QStringLiteral("identical"), diff.identical},
                              {QStringLiteral("framesA"), diff.framesA},
                              {QStringLiteral("framesB"), diff.framesB},
                              {QStringLiteral("differingFrames"), diff.differingFrames},
                              {QStringLiteral("firstDifference"), first},
                              {QStringLiteral("error"), QJsonValue()}});
    } else if (diff.identical) {
        printOut(QStringLiteral("identical: %1 frames").arg(diff.framesA));
    } else {
        const auto text = [](const auto &v) { return v ? QString::number(*v) : QStringLiteral("-"); };
        const RecordingDifference &d = *diff.firstDifference;
        printOut(QStringLiteral("different: %1 of %2 / %3 frames differ; first at frame %4, universe %5, "
                                "channel %6: %7 / %8")
                     .arg(diff.differingFrames)
                     .arg(diff.framesA)
                     .arg(diff.framesB)
                     .arg(d.frame)
                     .arg(d.portAddress ? QStringLiteral("0x%1").arg(*d.portAddress, 4, 16, QLatin1Char('0'))
                                        : QStringLiteral("-"))
                     .arg(text(d.channel), text(d.a), text(d.b)));
    }
    return diff.identical ? ExitOk : ExitRefused;
}
