#include "cli/generatecommand.h"

#include "cli/clicommon.h"
#include "cli/demopatch.h"
#include "cli/demorecording.h"
#include "patch/tpatchwriter.h"

#include <QSaveFile>

namespace {

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        printErr(QStringLiteral("talu-cli generate: cannot write %1: %2").arg(path, file.errorString()));
        return false;
    }
    return true;
}

} // namespace

int runGenerateCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Writes sample files made by our own generators.\n"
        "\n"
        "Kinds:\n"
        "  demo-patch OUT       the bundled demo installation as .tpatch (examples/demo.tpatch)\n"
        "  demo-recording OUT   four seconds at 30 fps of the demo patch as .tpx (examples/demo.tpx):\n"
        "                       a colour wave across the groups, the ball curtain's winches moving;\n"
        "                       one record per torvoverse per frame, in the patch's order\n"
        "Exit codes: 0 written, 1 the file could not be written, 2 usage error."));
    parser.addPositionalArgument(QStringLiteral("kind"), QStringLiteral("What to generate."));
    parser.addPositionalArgument(QStringLiteral("out"), QStringLiteral("Output file."));
    bool helpShown = false;
    if (!parseCommandLine(parser, QStringLiteral("generate"), arguments, &helpShown))
        return ExitUsage;
    if (helpShown)
        return ExitOk;
    const QStringList args = parser.positionalArguments();
    if (args.size() != 2
        || (args.at(0) != QLatin1StringView("demo-patch") && args.at(0) != QLatin1StringView("demo-recording"))) {
        printErr(QStringLiteral("talu-cli generate: give a kind (demo-patch, demo-recording) and an output file."));
        return ExitUsage;
    }
    if (args.at(0) == QLatin1StringView("demo-recording")) {
        QString error;
        if (!writeDemoRecording(args.at(1), &error)) {
            printErr(QStringLiteral("talu-cli generate: cannot write %1: %2").arg(args.at(1), error));
            return ExitRefused;
        }
        return ExitOk;
    }
    return writeFile(args.at(1), TPatch::writeTPatch(makeDemoPatch())) ? ExitOk : ExitRefused;
}
