#include "artdmxflood.h"

#include "artnet/artnetpacket.h"

#include <QNetworkInterface>
#include <QUdpSocket>
#include <QVariant>

#include <chrono>
#include <cstring>
#include <thread>

#ifdef Q_OS_LINUX
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#endif

namespace {

// Sends packets[first .. first + count) (cyclic); returns how many the socket took.
class Sender
{
public:
    explicit Sender(QUdpSocket &socket, const QHostAddress &target, quint16 port)
        : m_socket(socket), m_target(target), m_port(port)
    {
#ifdef Q_OS_LINUX
        m_to.sin_family = AF_INET;
        m_to.sin_port = htons(port);
        m_to.sin_addr.s_addr = htonl(target.toIPv4Address());
#endif
    }

    // One system call per batch where the platform allows it: the sender
    // must outrun the listener it measures.
    int send(QByteArray *const *packets, int count)
    {
#ifdef Q_OS_LINUX
        constexpr int kMax = 64;
        mmsghdr messages[kMax];
        iovec vectors[kMax];
        int sent = 0;
        while (sent < count) {
            const int n = std::min(kMax, count - sent);
            std::memset(messages, 0, sizeof(mmsghdr) * size_t(n));
            for (int i = 0; i < n; ++i) {
                vectors[i].iov_base = packets[sent + i]->data();
                vectors[i].iov_len = size_t(packets[sent + i]->size());
                messages[i].msg_hdr.msg_name = &m_to;
                messages[i].msg_hdr.msg_namelen = sizeof m_to;
                messages[i].msg_hdr.msg_iov = &vectors[i];
                messages[i].msg_hdr.msg_iovlen = 1;
            }
            const int r = ::sendmmsg(int(m_socket.socketDescriptor()), messages, unsigned(n), 0);
            if (r <= 0)
                break;
            sent += r;
        }
        return sent;
#else
        int sent = 0;
        for (int i = 0; i < count; ++i)
            sent += m_socket.writeDatagram(*packets[i], m_target, m_port) == packets[i]->size() ? 1 : 0;
        return sent;
#endif
    }

private:
    QUdpSocket &m_socket;
    QHostAddress m_target;
    quint16 m_port;
#ifdef Q_OS_LINUX
    sockaddr_in m_to{};
#endif
};

} // namespace

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

    Sender sender(socket, o.target, o.port);
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
        // Send what is due in chunks; a packet is prepared (its sequence
        // set) only once the previous use of it has been sent.
        while (attempted < due) {
            const int chunk = int(std::min<quint64>({due - attempted, 256, quint64(universes)}));
            QByteArray *batch[256];
            for (int i = 0; i < chunk; ++i) {
                const quint64 n = attempted + quint64(i);
                QByteArray &p = packets[int(n % quint64(universes))];
                // 1 .. 255: sequence numbers on, 0 never sent.
                p[12] = char((n / quint64(universes)) % 255 + 1);
                batch[i] = &p;
            }
            const int ok = sender.send(batch, chunk);
            result.sent += quint64(ok);
            result.sendErrors += quint64(chunk - ok);
            attempted += quint64(chunk);
        }
    }
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    result.ok = true;
    return result;
}
