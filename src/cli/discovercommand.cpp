#include "cli/discovercommand.h"

#include "artnet/nodediscovery.h"
#include "cli/clicommon.h"
#include "live/livepipeline.h"
#include "patch/patchloader.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QNetworkInterface>

using namespace ArtNet;

namespace {

QString hex4(quint16 v)
{
    return QStringLiteral("0x%1").arg(v, 4, 16, QLatin1Char('0'));
}

// The subnet broadcast of the interface that holds address; the limited broadcast when none does.
QHostAddress broadcastOf(const QHostAddress &address)
{
    for (const QNetworkInterface &i : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry &e : i.addressEntries()) {
            if (e.ip() == address && !e.broadcast().isNull())
                return e.broadcast();
        }
    }
    return QHostAddress::Broadcast;
}

QJsonObject deviceJson(const DiscoveredDevice &d)
{
    QJsonArray bindIndexes, ports;
    for (const quint8 b : d.bindIndexes)
        bindIndexes.append(b);
    for (const DiscoveredPort &p : d.ports)
        ports.append(QJsonObject{{QStringLiteral("portAddress"), p.portAddress},
                                 {QStringLiteral("direction"), p.output ? QStringLiteral("output") : QStringLiteral("input")}});
    return QJsonObject{{QStringLiteral("address"), QHostAddress(d.address).toString()},
                       {QStringLiteral("shortName"), d.first.shortName},
                       {QStringLiteral("longName"), d.first.longName},
                       {QStringLiteral("oem"), d.first.oem},
                       {QStringLiteral("esta"), d.first.esta},
                       {QStringLiteral("mac"), macText(d.first.mac)},
                       {QStringLiteral("bindIndexes"), bindIndexes},
                       {QStringLiteral("ports"), ports},
                       {QStringLiteral("report"), d.first.report},
                       {QStringLiteral("replyMs"), d.replyMs},
                       {QStringLiteral("online"), d.online},
                       {QStringLiteral("findings"), QJsonArray::fromStringList(d.findings)},
                       {QStringLiteral("self"), d.self}};
}

} // namespace

int runDiscoverCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Finds the Art-Net nodes on the network: sends ArtPoll (again every 2.5 s) and collects the ArtPollReply\n"
        "packets for --seconds, one device per sender address with its BindIndex pages, and judges each: replies\n"
        "slower than 3 s, a length other than 239 bytes (207 is the legal legacy layout), an IP field that is\n"
        "not the sender's address, BindIp addresses that differ between pages, several ports in one reply\n"
        "(Art-Net 3 style), two devices outputting one Port-Address; with --patch, the patched universes that no\n"
        "device outputs. A node of this program on this machine is marked self. It broadcasts: on a development\n"
        "machine run it only inside scripts/netns.\n"
        "\n"
        "With --json, one object: nodes (array of address, shortName, longName, oem, esta, mac, bindIndexes,\n"
        "ports (array of portAddress, direction \"output\"/\"input\"), report, replyMs, online, findings (texts),\n"
        "self) and patchUniversesWithoutNode (Port-Addresses), error (text or null).\n"
        "Exit codes: 0 done (also when nothing answered), 1 the socket or the patch was refused, 2 usage error."));
    const QCommandLineOption address(QStringLiteral("address"),
                                     QStringLiteral("Poll from this interface address (default: any)."),
                                     QStringLiteral("ip"));
    const QCommandLineOption target(QStringLiteral("target"),
                                    QStringLiteral("Poll this address (default: the interface's subnet broadcast, "
                                                   "else 255.255.255.255)."),
                                    QStringLiteral("ip"));
    const QCommandLineOption seconds(QStringLiteral("seconds"), QStringLiteral("How long to collect (default 3)."),
                                     QStringLiteral("s"), QStringLiteral("3"));
    const QCommandLineOption patch(QStringLiteral("patch"),
                                   QStringLiteral("Check that every universe of this patch has a device."),
                                   QStringLiteral("file"));
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print one JSON object."));
    parser.addOptions({address, target, seconds, patch, json});
    if (const std::optional<CliExit> done = parseCommandLine(parser, QStringLiteral("discover"), arguments))
        return *done;
    const auto usageError = [](const QString &message) {
        printErr(QStringLiteral("talu-cli discover: ") + message);
        return ExitUsage;
    };
    QHostAddress from(QHostAddress::AnyIPv4);
    if (parser.isSet(address) && (!from.setAddress(parser.value(address)) || from.protocol() != QAbstractSocket::IPv4Protocol))
        return usageError(QStringLiteral("\"%1\" is not an IPv4 address.").arg(parser.value(address)));
    QHostAddress to = parser.isSet(address) ? broadcastOf(from) : QHostAddress(QHostAddress::Broadcast);
    if (parser.isSet(target) && (!to.setAddress(parser.value(target)) || to.protocol() != QAbstractSocket::IPv4Protocol))
        return usageError(QStringLiteral("\"%1\" is not an IPv4 address.").arg(parser.value(target)));
    bool ok = false;
    const double runSeconds = parser.value(seconds).toDouble(&ok);
    if (!ok || !(runSeconds >= 0 && runSeconds <= 1e6))
        return usageError(QStringLiteral("\"%1\" is not a number of seconds.").arg(parser.value(seconds)));
    QVector<quint16> patchUniverses;
    if (parser.isSet(patch)) {
        const TPatch::PatchLoadResult loaded = TPatch::loadPatch(parser.value(patch));
        if (!loaded.ok) {
            printErr(QStringLiteral("talu-cli discover: ") + loaded.error.untranslatedText());
            return ExitRefused;
        }
        patchUniverses = LivePipeline::advertisedUniverses(loaded.patch);
    }

    NodeDiscovery discovery;
    QString error;
    // Standalone: the scan reads port 6454 itself (stop a node of this machine first, or it loses unicast).
    if (!discovery.start(to, false, &error)) {
        if (parser.isSet(json))
            printJson(QJsonObject{{QStringLiteral("nodes"), QJsonArray()}, {QStringLiteral("error"), error}});
        else
            printErr(QStringLiteral("error: ") + error);
        return ExitRefused;
    }
    execUntilInterrupted(runSeconds);
    discovery.stop();

    const QVector<DiscoveredDevice> devices = discovery.table().devices(discovery.nowMs());
    const QVector<quint16> missing = discovery.table().universesWithoutNode(patchUniverses);
    if (parser.isSet(json)) {
        QJsonArray nodes, without;
        for (const DiscoveredDevice &d : devices)
            nodes.append(deviceJson(d));
        for (const quint16 u : missing)
            without.append(u);
        printJson(QJsonObject{{QStringLiteral("nodes"), nodes},
                              {QStringLiteral("patchUniversesWithoutNode"), without},
                              {QStringLiteral("error"), QJsonValue()}});
        return ExitOk;
    }
    for (const DiscoveredDevice &d : devices) {
        printOut(QStringLiteral("%1  %2%3  \"%4\"  %5")
                     .arg(QHostAddress(d.address).toString(), d.first.shortName,
                          d.self ? QStringLiteral(" (this program)") : QString(), d.first.longName,
                          portsText(d.ports)));
        for (const QString &f : d.findings)
            printOut(QStringLiteral("    ! ") + f);
    }
    if (!missing.isEmpty()) {
        QStringList texts;
        for (const quint16 u : missing)
            texts << hex4(u);
        printOut(QStringLiteral("Patched universes no device outputs: ") + texts.join(QStringLiteral(", ")));
    }
    printOut(QStringLiteral("%1 device(s)").arg(devices.size()));
    return ExitOk;
}
