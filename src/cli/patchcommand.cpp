#include "cli/patchcommand.h"

#include "cli/clicommon.h"
#include "patch/patchloader.h"

#include <QJsonArray>

int runPatchCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Loads a patch (.tpatch, MADRIX .mpz or ENTTEC ELM .elm) the way the program does and prints the result.\n"
        "\n"
        "With --json, one object: ok (bool), error (text or null), warnings (array of texts, in order), format,\n"
        "project, groups, torvoverses, fixtures, pixels, kinetics.\n"
        "Exit codes: 0 loaded, 1 the patch was refused, 2 usage error."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The patch file."));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOption(json);
    bool helpShown = false;
    if (!parseCommandLine(parser, QStringLiteral("patch"), arguments, &helpShown))
        return ExitUsage;
    if (helpShown)
        return ExitOk;
    if (parser.positionalArguments().size() != 1) {
        printErr(QStringLiteral("talu-cli patch: give exactly one patch file."));
        return ExitUsage;
    }

    const TPatch::PatchLoadResult result = TPatch::loadPatch(parser.positionalArguments().constFirst());
    const TPatch::PatchCounts counts = TPatch::countPatch(result.patch);
    QStringList warnings;
    for (const TPatch::PatchMessage &w : result.warnings)
        warnings.append(w.untranslatedText());

    if (parser.isSet(json)) {
        printJson(QJsonObject{
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
        });
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
        for (const QString &w : warnings)
            printOut(QStringLiteral("warning: ") + w);
    }
    return result.ok ? ExitOk : ExitRefused;
}
