// talu-artdmx-flood: sends ArtDmx at a fixed rate, for load tests of
// `talu-cli listen` inside scripts/netns. Prints one JSON object.
#include "artdmxflood.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Floods ArtDmx (sequence numbers on) at a fixed rate. "
                                                    "Only inside scripts/netns, only to 127.0.0.1 or 192.0.2.x."));
    parser.addHelpOption();
    const QCommandLineOption target(QStringLiteral("target"), QStringLiteral("Destination (127.0.0.1)."),
                                    QStringLiteral("ip"), QStringLiteral("127.0.0.1"));
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("Destination port (6454)."),
                                  QStringLiteral("port"), QStringLiteral("6454"));
    const QCommandLineOption rate(QStringLiteral("rate"), QStringLiteral("Packets per second (100000)."),
                                  QStringLiteral("pps"), QStringLiteral("100000"));
    const QCommandLineOption seconds(QStringLiteral("seconds"), QStringLiteral("Duration (10)."), QStringLiteral("s"),
                                     QStringLiteral("10"));
    const QCommandLineOption universes(QStringLiteral("universes"), QStringLiteral("Universes in turn (2048)."),
                                       QStringLiteral("n"), QStringLiteral("2048"));
    const QCommandLineOption length(QStringLiteral("length"), QStringLiteral("Data bytes (512)."),
                                    QStringLiteral("n"), QStringLiteral("512"));
    parser.addOptions({target, port, rate, seconds, universes, length});
    parser.process(app);

    FloodOptions o;
    o.target = QHostAddress(parser.value(target));
    o.port = quint16(parser.value(port).toUInt());
    o.packetsPerSecond = parser.value(rate).toDouble();
    o.seconds = parser.value(seconds).toDouble();
    o.universes = parser.value(universes).toInt();
    o.dataLength = std::clamp(parser.value(length).toInt(), 1, 512);
    const FloodResult r = floodArtDmx(o);
    if (!r.ok) {
        std::fprintf(stderr, "talu-artdmx-flood: %s\n", qPrintable(r.error));
        return 1;
    }
    const QJsonObject report{{QStringLiteral("sent"), double(r.sent)},
                             {QStringLiteral("sendErrors"), double(r.sendErrors)},
                             {QStringLiteral("seconds"), r.seconds},
                             {QStringLiteral("packetsPerSecond"), double(r.sent) / r.seconds}};
    std::fputs(QJsonDocument(report).toJson().constData(), stdout);
    return 0;
}
