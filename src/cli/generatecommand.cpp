#include "cli/generatecommand.h"

#include "cli/clicommon.h"
#include "cli/demopatch.h"
#include "cli/elmsample.h"
#include "cli/madrixsample.h"
#include "patch/tpatchwriter.h"

#include <QSaveFile>

#include <cmath>

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
        "  demo-patch OUT     the bundled demo installation as .tpatch (examples/demo.tpatch)\n"
        "  madrix-patch OUT   a MADRIX 5 patch (.mpz): a square LED wall of --fixtures single-pixel RGB\n"
        "                     fixtures (default 256), 170 per universe from universe 1; gzip unless --plain\n"
        "  elm-project OUT    an ENTTEC ELM project (.elm): a looped RGBW curve, a GRB line running into\n"
        "                     the next universe and an RGB16 bar breaking universes every 16 LEDs\n"
        "Exit codes: 0 written, 1 the file could not be written, 2 usage error."));
    parser.addPositionalArgument(QStringLiteral("kind"), QStringLiteral("What to generate."));
    parser.addPositionalArgument(QStringLiteral("out"), QStringLiteral("Output file."));
    const QCommandLineOption fixtures(QStringLiteral("fixtures"),
                                      QStringLiteral("madrix-patch: number of fixtures (1 to 1000000)."),
                                      QStringLiteral("n"), QStringLiteral("256"));
    const QCommandLineOption plain(QStringLiteral("plain"), QStringLiteral("madrix-patch: write plain XML, not gzip."));
    parser.addOption(fixtures);
    parser.addOption(plain);
    bool helpShown = false;
    if (!parseCommandLine(parser, QStringLiteral("generate"), arguments, &helpShown))
        return ExitUsage;
    if (helpShown)
        return ExitOk;
    const QStringList args = parser.positionalArguments();
    const QStringList kinds{QStringLiteral("demo-patch"), QStringLiteral("madrix-patch"), QStringLiteral("elm-project")};
    if (args.size() != 2 || !kinds.contains(args.at(0))) {
        printErr(QStringLiteral("talu-cli generate: give a kind (%1) and an output file.").arg(kinds.join(QStringLiteral(", "))));
        return ExitUsage;
    }
    QByteArray bytes;
    if (args.at(0) == kinds.at(0)) {
        bytes = TPatch::writeTPatch(makeDemoPatch());
    } else if (args.at(0) == kinds.at(1)) {
        bool ok = false;
        const int count = parser.value(fixtures).toInt(&ok);
        if (!ok || count < 1 || count > 1000000) {
            printErr(QStringLiteral("talu-cli generate: --fixtures takes a number from 1 to 1000000."));
            return ExitUsage;
        }
        const int columns = int(std::ceil(std::sqrt(double(count))));
        bytes = writeMadrixXml(makeMadrixMatrix(count, columns));
        if (!parser.isSet(plain))
            bytes = gzipCompress(bytes);
    } else {
        bytes = writeElmXml(makeElmDemo());
    }
    return writeFile(args.at(1), bytes) ? ExitOk : ExitRefused;
}
