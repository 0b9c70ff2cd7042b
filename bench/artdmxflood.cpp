#include "artdmxflood.h"

#include "artnet/artnetpacket.h"

#include <QNetworkInterface>
#include <QUdpSocket>
#include <QVariant>

#include <chrono>
#include <thread>

bool floodTargetIsSafe(const QHostAddress &target, QString *why)
{
    const QStringList allowed{QStringLiteral("127.0.0.1"), QStringLiteral("192.0.2.1"), QStringLiteral("192.0.2.2")};
    if (!allowed.contains(target.toString())) {
        *why = QStringLiteral("only 127.0.0.1, 192.0.2.1 and 192.0.2.2 may be flooded");
        return false;
    }
    // scripts/netns makes this veth end; without it we are on a real network.
    if (!QNetworkInterface::interfaceFromName(QStringLiteral("talu0")).isValid()) {
        *why = QStringLiteral("run me inside scripts/netns");
        return false;
    }
    return true;
}

FloodResult floodArtDmx(const FloodOptions &o)
{
    FloodResult result;
    if (!floodTargetIsSafe(o.target, &result.error))
        return result;
    QUdpSocket socket;
    if (!socket.bind(QHostAddress(QHostAddress::LocalHost), 0)) {
        result.error = socket.errorString();
        return result;
    }
    socket.setSocketOption(QAbstractSocket::SendBufferSizeSocketOption, QVariant(1 << 20));

    // One prepared packet per universe; only the sequence byte changes.
    const int universes = std::max(1, o.universes);
    QVector<QByteArray> packets;
    for (int u = 0; u < universes; ++u)
        packets.append(ArtNet::buildDmx(quint16(u & 0x7FFF), 1, QByteArray(o.dataLength, char(u))));

    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const auto total = quint64(o.packetsPerSecond * o.seconds);
    quint64 attempted = 0;
    while (attempted < total) {
        const double elapsed = std::chrono::duration<double>(Clock::now() - start).count();
        const quint64 due = std::min(total, quint64(elapsed * o.packetsPerSecond));
        if (attempted >= due) {
            std::this_thread::sleep_for(std::chrono::microseconds(100));
            continue;
        }
        for (; attempted < due; ++attempted) {
            QByteArray &p = packets[int(attempted % quint64(universes))];
            // 1 .. 255: sequence numbers on, 0 never sent.
            p[12] = char((attempted / quint64(universes)) % 255 + 1);
            if (socket.writeDatagram(p, o.target, o.port) == p.size())
                ++result.sent;
            else
                ++result.sendErrors;
        }
    }
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    result.ok = true;
    return result;
}
