#include "cli/generatecommand.h"

#include "cli/clicommon.h"
#include "cli/demogpsset.h"
#include "cli/demopatch.h"
#include "cli/demorecording.h"
#include "cli/elmsample.h"
#include "cli/madrixsample.h"
#include "cli/samplelog.h"
#include "packetlog/tlogfile.h"
#include "patch/tpatchwriter.h"

#include <QSaveFile>

#include <cmath>
#include <functional>
#include <optional>

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

struct GenerateOptions
{
    int fixtures = 256;
    bool plain = false;
};

// One sample kind: its name and what it writes. A kind that writes its file
// itself (streaming, or through the program's own writer) returns nullopt
// after doing so and reports through ok.
struct SampleKind
{
    const char *name;
    std::function<std::optional<QByteArray>(const QString &out, const GenerateOptions &, bool *ok)> make;
};

const SampleKind kKinds[] = {
    {"demo-patch", [](const QString &, const GenerateOptions &, bool *) { return std::optional(TPatch::writeTPatch(makeDemoPatch())); }},
    {"demo-recording",
     [](const QString &out, const GenerateOptions &, bool *ok) {
         QString error;
         *ok = writeDemoRecording(out, &error);
         if (!*ok)
             printErr(QStringLiteral("talu-cli generate: cannot write %1: %2").arg(out, error));
         return std::optional<QByteArray>();
     }},
    {"demo-gps",
     [](const QString &out, const GenerateOptions &, bool *ok) {
         QString error;
         *ok = writeDemoGpsSet(out, &error);
         if (!*ok)
             printErr(QStringLiteral("talu-cli generate: cannot write %1").arg(error));
         return std::optional<QByteArray>();
     }},
    {"sample-log",
     [](const QString &, const GenerateOptions &, bool *) {
         const std::vector<PacketLog::PacketRecord> records = makeSampleLog();
         return std::optional(PacketLog::writeTlog(records, records.front().timeNs));
     }},
    {"madrix-patch",
     [](const QString &, const GenerateOptions &o, bool *) {
         const int columns = int(std::ceil(std::sqrt(double(o.fixtures))));
         const QByteArray xml = writeMadrixXml(makeMadrixMatrix(o.fixtures, columns));
         return std::optional(o.plain ? xml : gzipCompress(xml));
     }},
    {"elm-project", [](const QString &, const GenerateOptions &, bool *) { return std::optional(writeElmXml(makeElmDemo())); }},
};

} // namespace

int runGenerateCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Writes sample files made by our own generators.\n"
        "\n"
        "Kinds:\n"
        "  demo-patch OUT     the bundled demo installation as .tpatch (examples/demo.tpatch)\n"
        "  demo-recording OUT four seconds at 30 fps of the demo patch as .tpx (examples/demo.tpx): a colour\n"
        "                     wave across the groups, the ball curtain's winches moving; one record per\n"
        "                     torvoverse per frame, in the patch's order\n"
        "  demo-gps DIR       a GPS-Sync set for the demo patch (examples/gps/): one file per group,\n"
        "                     demo_<Group>.tpx, two seconds at 40 fps with the 143-byte GPS block\n"
        "  sample-log OUT     a short node session as a packet log (.tlog): polls, replies, ArtDmx, failed sends\n"
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
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("generate"), arguments))
        return *done;

    const QStringList args = parser.positionalArguments();
    const SampleKind *kind = nullptr;
    QStringList names;
    for (const SampleKind &k : kKinds) {
        names.append(QString::fromLatin1(k.name));
        if (args.size() == 2 && args.at(0) == QLatin1StringView(k.name))
            kind = &k;
    }
    if (!kind) {
        printErr(QStringLiteral("talu-cli generate: give a kind (%1) and an output file.")
                     .arg(names.join(QStringLiteral(", "))));
        return ExitUsage;
    }
    GenerateOptions options;
    bool ok = false;
    options.fixtures = parser.value(fixtures).toInt(&ok);
    if (!ok || options.fixtures < 1 || options.fixtures > 1000000) {
        printErr(QStringLiteral("talu-cli generate: --fixtures takes a number from 1 to 1000000."));
        return ExitUsage;
    }
    options.plain = parser.isSet(plain);

    bool written = true;
    const std::optional<QByteArray> bytes = kind->make(args.at(1), options, &written);
    if (bytes)
        written = writeFile(args.at(1), *bytes);
    return written ? ExitOk : ExitRefused;
}
