#include "cli/patchcommand.h"

#include "cli/clicommon.h"
#include "patch/importreport.h"
#include "patch/patchloader.h"
#include "patch/pixellayout.h"

#include <QFileInfo>
#include <QJsonArray>

namespace {

// --report: the diagnostic folder the main window leaves after a load, in
// English (talu-cli has no interface language). Empty on failure, reason printed.
QString writeReport(const QString &path, const TPatch::PatchLoadResult &result, const QString &logs)
{
    const QString folder = logs.isEmpty() ? TPatch::importLogsFolder() : logs;
    const TPatch::ImportReportResult report =
        folder.isEmpty() ? TPatch::ImportReportResult{false, false, {}, QStringLiteral("no writable logs folder")}
                         : TPatch::writeImportReport(folder, QFileInfo(path).absoluteFilePath(), result,
                                                     QStringLiteral("English"));
    if (!report.ok)
        printErr(QStringLiteral("talu-cli patch: the report could not be written: ") + report.error);
    return report.ok ? report.folder : QString();
}

} // namespace

int runPatchCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Loads a patch (.tpatch, MADRIX .mpz or ENTTEC ELM .elm) the way the program does and prints the result.\n"
        "\n"
        "With --json, one object:\n"
        "  ok             bool, true when the patch loaded\n"
        "  error          the reason it was refused, or null\n"
        "  warnings       array of texts: the reader's warnings in order, then the layout's (overlapping fixtures)\n"
        "  format         the patch format's name\n"
        "  project        the project name (empty when the patch has none)\n"
        "  groups, torvoverses, fixtures, pixels, kinetics   counts of the patch tree (pixels = colour records)\n"
        "  drawablePixels colour pixels the monitor draws (records of fixtures with a usable layout)\n"
        "  sceneRect      [x, y, width, height] of the union of all laid-out pixels and kinetic items,\n"
        "                 [0, 0, 0, 0] when nothing is drawn\n"
        "  zRange         [lowest, highest] Z layer of the laid-out records, or null when nothing is drawn\n"
        "With --report, also writes the import report folder (report.txt and a copy of the file) into the logs\n"
        "folder (beside talu-cli, else the per-user data folder; --logs DIR chooses another), reusing a folder\n"
        "whose report has the same fingerprint, and prints the folder as the last line (JSON: report, the folder\n"
        "or null when it could not be written).\n"
        "Exit codes: 0 loaded, 1 the patch was refused, 2 usage error."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The patch file."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOption(json);
    const QCommandLineOption reportOption(QStringLiteral("report"), QStringLiteral("Write the import report folder."));
    const QCommandLineOption logsOption(QStringLiteral("logs"), QStringLiteral("Logs folder for --report."),
                                        QStringLiteral("dir"));
    parser.addOption(reportOption);
    parser.addOption(logsOption);
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("patch"), arguments))
        return *done;
    if (parser.positionalArguments().size() != 1) {
        printErr(QStringLiteral("talu-cli patch: give exactly one patch file."));
        return ExitUsage;
    }

    const TPatch::PatchLoadResult result = TPatch::loadPatch(parser.positionalArguments().constFirst());
    const QString report = parser.isSet(reportOption)
                               ? writeReport(parser.positionalArguments().constFirst(), result, parser.value(logsOption))
                               : QString();
    const TPatch::PatchCounts counts = TPatch::countPatch(result.patch);
    const TPatch::PixelLayout layout = result.ok ? TPatch::buildPixelLayout(result.patch) : TPatch::PixelLayout{};
    QStringList warnings;
    for (const TPatch::PatchMessage &w : result.warnings)
        warnings.append(w.untranslatedText());
    for (const TPatch::PatchMessage &w : layout.warnings)
        warnings.append(w.untranslatedText());
    const QRectF scene = layout.sceneRect;

    if (parser.isSet(json)) {
        QJsonObject object{
            {QStringLiteral("ok"), result.ok},
            {QStringLiteral("error"), result.ok ? QJsonValue() : QJsonValue(result.error.untranslatedText())},
            {QStringLiteral("warnings"), QJsonArray::fromStringList(warnings)},
            {QStringLiteral("format"), result.patch.formatLabel},
            {QStringLiteral("project"), result.patch.projectName},
            {QStringLiteral("groups"), counts.groups},
            {QStringLiteral("torvoverses"), counts.torvoverses},
            {QStringLiteral("fixtures"), counts.fixtures},
            {QStringLiteral("pixels"), counts.pixels},
            {QStringLiteral("kinetics"), counts.kinetics},
            {QStringLiteral("drawablePixels"), layout.drawablePixelCount()},
            {QStringLiteral("sceneRect"), QJsonArray{scene.x(), scene.y(), scene.width(), scene.height()}},
            {QStringLiteral("zRange"), layout.zRange.seen ? QJsonValue(QJsonArray{layout.zRange.min, layout.zRange.max})
                                                          : QJsonValue()},
        };
        if (parser.isSet(reportOption))
            object.insert(QStringLiteral("report"), report.isEmpty() ? QJsonValue() : QJsonValue(report));
        printJson(object);
    } else if (!result.ok) {
        printErr(QStringLiteral("error: ") + result.error.untranslatedText());
    } else {
        printOut(QStringLiteral("%1: %2").arg(result.patch.formatLabel,
                                                result.patch.projectName.isEmpty() ? QStringLiteral("(unnamed project)")
                                                                                   : result.patch.projectName));
        printOut(QStringLiteral("%1 groups, %2 torvoverses, %3 fixtures, %4 pixels, %5 kinetics")
                     .arg(counts.groups)
                     .arg(counts.torvoverses)
                     .arg(counts.fixtures)
                     .arg(counts.pixels)
                     .arg(counts.kinetics));
        printOut(QStringLiteral("%1 drawable pixels, scene %2, %3 %4 x %5")
                     .arg(layout.drawablePixelCount())
                     .arg(scene.x())
                     .arg(scene.y())
                     .arg(scene.width())
                     .arg(scene.height()));
        if (layout.zRange.seen)
            printOut(QStringLiteral("Z layers %1 - %2").arg(layout.zRange.min).arg(layout.zRange.max));
        for (const QString &w : warnings)
            printOut(QStringLiteral("warning: ") + w);
    }
    if (parser.isSet(reportOption) && !parser.isSet(json) && !report.isEmpty())
        printOut(report);
    return result.ok ? ExitOk : ExitRefused;
}
