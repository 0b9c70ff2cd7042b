#include "cli/clicommon.h"
#include "talu_version.h"
#include "cli/capturecommand.h"
#include "cli/colourcommand.h"
#include "cli/convertcommand.h"
#include "cli/discovercommand.h"
#include "cli/filtercommand.h"
#include "cli/generatecommand.h"
#include "cli/gpsverifycommand.h"
#include "cli/healthcommand.h"
#include "cli/logcommand.h"
#include "cli/listencommand.h"
#include "cli/patchcommand.h"
#include "cli/rendercommand.h"
#include "cli/recordingcommand.h"

#include <QCoreApplication>

#include <functional>

namespace {

struct Command
{
    const char *name;
    const char *summary;
    std::function<int(const QStringList &)> run;
};

const Command kCommands[] = {
    {"patch", "load a patch and print its contents and warnings", runPatchCommand},
    {"colour", "evaluate one pixel's colour from DMX bytes, as the monitor does", runColourCommand},
    {"render", "draw the 2D or 3D monitor picture of a patch (and a recorded frame) into a PNG file", runRenderCommand},
    {"log", "read a packet log or capture, filter it, print or export the records", runLogCommand},
    {"filter", "compile a packet log display filter and print its tree or its error", runFilterCommand},
    {"listen", "run the Art-Net node headless and report what arrives", runListenCommand},
    {"discover", "find the Art-Net nodes on the network (ArtPoll) and judge their replies", runDiscoverCommand},
    {"capture", "capture Art-Net from a network adapter into a packet log or pcapng file", runCaptureCommand},
    {"convert", "make a capture (pcapng, pcap) into a .tpx recording, framed as the live recorder frames",
     runConvertCommand},
    {"health", "network health per universe and sender from a capture or recording", runHealthCommand},
    {"diff", "compare two recordings or captures frame by frame", runDiffCommand},
    {"recording", "load a .tpx recording (optionally against a patch) and print its layout", runRecordingCommand},
    {"gps-verify", "verify a GPS-Sync set (one .tpx per group) against a patch, check by check",
     runGpsVerifyCommand},
    {"generate", "write sample files (demo patch and recording, MADRIX, ELM, packet log) from our generators",
     runGenerateCommand},
};

QString usage()
{
    QString text = QStringLiteral(
        "Usage: talu-cli COMMAND [OPTIONS...]\n"
        "\n"
        "The headless companion of Torvane TALU: every core capability without a display.\n"
        "Every command takes --help and, where it reports, --json.\n"
        "Exit codes: 0 ok, 1 the input was refused, 2 usage error.\n"
        "\n"
        "Commands:\n");
    for (const Command &c : kCommands)
        text += QStringLiteral("  %1%2\n").arg(QString::fromLatin1(c.name).leftJustified(12), QString::fromLatin1(c.summary));
    return text;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Torvane"));
    QCoreApplication::setApplicationName(QStringLiteral("talu-cli"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TALU_VERSION));

    const QStringList args = QCoreApplication::arguments().mid(1);
    if (args.isEmpty()) {
        printErr(usage());
        return ExitUsage;
    }
    const QString name = args.constFirst();
    if (name == QLatin1StringView("--help") || name == QLatin1StringView("-h") || name == QLatin1StringView("help")) {
        printOut(usage());
        return ExitOk;
    }
    if (name == QLatin1StringView("--version")) {
        printOut(QStringLiteral("talu-cli " TALU_VERSION));
        return ExitOk;
    }
    for (const Command &c : kCommands) {
        if (name == QLatin1StringView(c.name))
            return c.run(args.mid(1));
    }
    printErr(QStringLiteral("talu-cli: unknown command \"%1\".\n").arg(name) + usage());
    return ExitUsage;
}
