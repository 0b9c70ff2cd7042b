#include "cli/rendercommand.h"

#include "cli/clicommon.h"
#include "live/recordedframe.h"
#include "monitor/monitorrender.h"
#include "monitor/pixelcolourbuffer.h"
#include "patch/patchloader.h"
#include "patch/pixellayout.h"
#include "recording/recording.h"

#include <QRegularExpression>

#include <cmath>
#include <optional>

namespace {

constexpr int kMaxSide = 16384; // QImage's practical limit, and a 1 GB picture

std::optional<QSize> parseSize(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,5})[xX](\\d{1,5})$"));
    const QRegularExpressionMatch m = pattern.match(text.trimmed());
    if (!m.hasMatch())
        return std::nullopt;
    const int w = m.captured(1).toInt();
    const int h = m.captured(2).toInt();
    if (w < 1 || h < 1 || w > kMaxSide || h > kMaxSide)
        return std::nullopt;
    return QSize(w, h);
}

std::optional<double> parseDegrees(const QString &text)
{
    bool ok = false;
    const double v = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(v) || std::abs(v) > 36000)
        return std::nullopt;
    return v * 3.14159265358979323846 / 180.0;
}

int lit(const QVector<QRgb> &colours)
{
    int n = 0;
    for (const QRgb c : colours)
        n += (c & 0x00FFFFFF) != 0;
    return n;
}

} // namespace

int runRenderCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Draws one monitor picture of a patch exactly as the 2D or 3D monitor shows it after loading\n"
        "(fitted to the picture), without a display, and writes it as PNG.\n"
        "\n"
        "With --recording, frame N of the .tpx file (counted from 0, default 0) is evaluated against the\n"
        "patch as playback shows it; without a recording every pixel is dark, as on the monitor before\n"
        "data arrives.\n"
        "The 2D picture has the monitor's (60, 60, 60) background; the 3D picture its grey gradient,\n"
        "round dots (or squares with --fast) and kinetic items as white lines.\n"
        "\n"
        "Example: talu-cli render --patch examples/demo.tpatch --view 3d --yaw 30 --pitch 20 -o demo_3d.png\n"
        "\n"
        "With --json, one object: output (path), view (\"2d\" or \"3d\"), width, height (integers),\n"
        "pixels (drawable pixels of the patch), litPixels (pixels whose colour is not black),\n"
        "kinetics (kinetic items), frame (the frame drawn, or null without a recording), frames (the\n"
        "recording's frame count, or null).\n"
        "Exit codes: 0 written, 1 the patch or recording was refused, the frame is past the end or the\n"
        "file could not be written, 2 usage error."));
    const QCommandLineOption patch(QStringLiteral("patch"), QStringLiteral("The patch to draw (.tpatch, .mpz, .elm)."),
                                   QStringLiteral("file"));
    const QCommandLineOption view(QStringLiteral("view"), QStringLiteral("2d (default) or 3d."), QStringLiteral("view"),
                                  QStringLiteral("2d"));
    const QCommandLineOption white(QStringLiteral("white"),
                                   QStringLiteral("Add W / CW / WW slots to the colours (\"White channels\")."));
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Picture size (default 1920x1080)."),
                                  QStringLiteral("WxH"), QStringLiteral("1920x1080"));
    const QCommandLineOption yaw(QStringLiteral("yaw"), QStringLiteral("3D: turn about the vertical axis, degrees (default 40.1)."),
                                 QStringLiteral("deg"));
    const QCommandLineOption pitch(QStringLiteral("pitch"),
                                   QStringLiteral("3D: tilt about the horizontal axis, degrees (default 17.2)."),
                                   QStringLiteral("deg"));
    const QCommandLineOption fast(QStringLiteral("fast"), QStringLiteral("3D: squares without antialiasing (\"Fast draw\")."));
    const QCommandLineOption axes(QStringLiteral("axes"), QStringLiteral("3D: draw the X-Y-Z arrows."));
    const QCommandLineOption recording(QStringLiteral("recording"), QStringLiteral("A .tpx recording to take a frame from."),
                                       QStringLiteral("file"));
    const QCommandLineOption frame(QStringLiteral("frame"), QStringLiteral("The frame to draw, from 0 (default 0)."),
                                   QStringLiteral("N"), QStringLiteral("0"));
    const QCommandLineOption output(QStringList{QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("The PNG file to write."), QStringLiteral("file"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOptions({patch, recording, frame, view, white, size, yaw, pitch, fast, axes, output, json});
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("render"), arguments))
        return *done;

    auto usage = [](const QString &text) {
        printErr(QStringLiteral("talu-cli render: ") + text);
        return int(ExitUsage);
    };
    if (!parser.isSet(patch))
        return usage(QStringLiteral("give the patch with --patch FILE."));
    if (!parser.isSet(output))
        return usage(QStringLiteral("give the picture's file with -o OUT.png."));
    if (!parser.positionalArguments().isEmpty())
        return usage(QStringLiteral("unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst()));
    const QString viewName = parser.value(view).toLower();
    if (viewName != QLatin1StringView("2d") && viewName != QLatin1StringView("3d"))
        return usage(QStringLiteral("--view takes 2d or 3d."));
    const std::optional<QSize> pictureSize = parseSize(parser.value(size));
    if (!pictureSize)
        return usage(QStringLiteral("--size takes WxH, each from 1 to %1.").arg(kMaxSide));
    MonitorRender::Options3D options;
    for (const auto &[option, target] : {std::pair{&yaw, &options.yaw}, std::pair{&pitch, &options.pitch}}) {
        if (!parser.isSet(*option))
            continue;
        const std::optional<double> radians = parseDegrees(parser.value(*option));
        if (!radians)
            return usage(QStringLiteral("--%1 takes an angle in degrees.").arg(option->names().constFirst()));
        *target = *radians;
    }
    bool frameOk = false;
    const qint64 frameNumber = parser.value(frame).toLongLong(&frameOk);
    if (!frameOk || frameNumber < 0)
        return usage(QStringLiteral("--frame takes a frame number from 0."));
    if (parser.isSet(frame) && !parser.isSet(recording))
        return usage(QStringLiteral("--frame needs --recording."));
    options.fastDraw = parser.isSet(fast);
    options.showAxes = parser.isSet(axes);

    const TPatch::PatchLoadResult loaded = TPatch::loadPatch(parser.value(patch));
    if (!loaded.ok) {
        printErr(QStringLiteral("talu-cli render: ") + loaded.error.untranslatedText());
        return ExitRefused;
    }
    const TPatch::PixelLayout layout = TPatch::buildPixelLayout(loaded.patch);
    PixelColourBuffer buffer;
    buffer.setPatch(&layout.pixels);
    buffer.setWhiteEnabled(parser.isSet(white));
    Recording recorded;
    if (parser.isSet(recording)) {
        const RecordingLoadResult r = recorded.load(parser.value(recording), &loaded.patch);
        if (!r.ok) {
            printErr(QStringLiteral("talu-cli render: ") + r.error.untranslatedText());
            return ExitRefused;
        }
        if (frameNumber >= recorded.frameCount()) {
            printErr(QStringLiteral("talu-cli render: frame %1 is past the end (the recording has %2 frames).")
                         .arg(frameNumber)
                         .arg(recorded.frameCount()));
            return ExitRefused;
        }
        applyRecordedFrame(buffer, layout, recorded, frameNumber);
    }

    const QImage image = viewName == QLatin1StringView("3d")
                             ? MonitorRender::render3D(layout, buffer.colours(), buffer.kineticValues(), *pictureSize, options)
                             : MonitorRender::render2D(layout, buffer.colours(), *pictureSize);
    const QString outPath = parser.value(output);
    if (image.isNull() || !image.save(outPath, "PNG")) {
        printErr(QStringLiteral("talu-cli render: could not write %1.").arg(outPath));
        return ExitRefused;
    }
    const qint64 drawable = layout.drawablePixelCount();
    const qint64 kinetics = layout.pixels.size() - drawable;
    if (parser.isSet(json)) {
        printJson(QJsonObject{
            {QStringLiteral("output"), outPath},
            {QStringLiteral("view"), viewName},
            {QStringLiteral("width"), pictureSize->width()},
            {QStringLiteral("height"), pictureSize->height()},
            {QStringLiteral("pixels"), drawable},
            {QStringLiteral("litPixels"), lit(buffer.colours())},
            {QStringLiteral("kinetics"), kinetics},
            {QStringLiteral("frame"), recorded.isLoaded() ? QJsonValue(frameNumber) : QJsonValue()},
            {QStringLiteral("frames"), recorded.isLoaded() ? QJsonValue(recorded.frameCount()) : QJsonValue()},
        });
    } else {
        printOut(QStringLiteral("Wrote %1 (%2 x %3, %4 view, %5 pixels).")
                     .arg(outPath)
                     .arg(pictureSize->width())
                     .arg(pictureSize->height())
                     .arg(viewName)
                     .arg(drawable));
    }
    return ExitOk;
}
