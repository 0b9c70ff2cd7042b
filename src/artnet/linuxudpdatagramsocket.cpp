#include "artnet/linuxudpdatagramsocket.h"

#ifdef Q_OS_LINUX

#include <QCoreApplication>
#include <QNetworkInterface>

#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// Every slot holds the largest UDP payload, so no datagram is ever cut.
constexpr int kSlotBytes = 65536;

} // namespace

struct LinuxUdpDatagramSocket::Batch
{
    std::unique_ptr<char[]> storage{new char[size_t(kBatch) * kSlotBytes]};
    mmsghdr messages[kBatch];
    iovec vectors[kBatch];
    sockaddr_in senders[kBatch];
    int keep[kBatch]; // message indices handed out, in order
    int count = 0;
    int next = 0;

    Batch()
    {
        std::memset(messages, 0, sizeof messages);
        for (int i = 0; i < kBatch; ++i) {
            vectors[i].iov_base = storage.get() + size_t(i) * kSlotBytes;
            vectors[i].iov_len = kSlotBytes;
        }
    }
};

LinuxUdpDatagramSocket::LinuxUdpDatagramSocket() : m_batch(std::make_unique<Batch>())
{
    m_resume.setSingleShot(true);
    m_resume.setTimerType(Qt::PreciseTimer);
    m_resume.setInterval(kCoalesceMs);
    QObject::connect(&m_resume, &QTimer::timeout, &m_resume, [this] {
        if (m_notifier)
            m_notifier->setEnabled(true);
        for (const auto &n : m_broadcastNotifiers)
            n->setEnabled(true);
    });
}

LinuxUdpDatagramSocket::~LinuxUdpDatagramSocket()
{
    m_notifier.reset();
    m_broadcastNotifiers.clear();
    if (m_fd >= 0)
        ::close(m_fd);
    for (const int fd : m_broadcastFds)
        ::close(fd);
}

void LinuxUdpDatagramSocket::setErrorFromErrno()
{
    m_error = QString::fromLocal8Bit(std::strerror(errno));
}

int LinuxUdpDatagramSocket::openBound(quint32 ip, quint16 port, int receiveBufferBytes)
{
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd < 0) {
        setErrorFromErrno();
        return -1;
    }
    const int one = 1;
    // Address sharing as QUdpSocket::ShareAddress does it, and broadcast for
    // the announcements.
    ::setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &one, sizeof one);
    ::setsockopt(fd, SOL_SOCKET, SO_BROADCAST, &one, sizeof one);
    // Past net.core.rmem_max only with CAP_NET_ADMIN; otherwise the capped size.
    if (::setsockopt(fd, SOL_SOCKET, SO_RCVBUFFORCE, &receiveBufferBytes, sizeof receiveBufferBytes) != 0)
        ::setsockopt(fd, SOL_SOCKET, SO_RCVBUF, &receiveBufferBytes, sizeof receiveBufferBytes);
    // Linux reports twice the usable size (it counts its own bookkeeping).
    int granted = 0;
    socklen_t length = sizeof granted;
    if (::getsockopt(fd, SOL_SOCKET, SO_RCVBUF, &granted, &length) == 0)
        m_receiveBufferBytes = granted / 2;
    sockaddr_in local{};
    local.sin_family = AF_INET;
    local.sin_port = htons(port);
    local.sin_addr.s_addr = htonl(ip);
    if (::bind(fd, reinterpret_cast<const sockaddr *>(&local), sizeof local) != 0) {
        setErrorFromErrno();
        ::close(fd);
        return -1;
    }
    return fd;
}

void LinuxUdpDatagramSocket::watch(int fd)
{
    auto notifier = std::make_unique<QSocketNotifier>(qintptr(fd), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] {
        const quint64 before = m_datagramsRead + m_datagramsDropped;
        if (m_readyRead)
            m_readyRead();
        // The handler may have closed us (stop() from a slot).
        if (m_notifier && m_datagramsRead + m_datagramsDropped != before) {
            m_notifier->setEnabled(false);
            for (const auto &n : m_broadcastNotifiers)
                n->setEnabled(false);
            m_resume.start();
        }
    });
    if (fd == m_fd)
        m_notifier = std::move(notifier);
    else
        m_broadcastNotifiers.push_back(std::move(notifier));
}

quint32 LinuxUdpDatagramSocket::subnetBroadcast(quint32 ip, quint32 netmask, quint32 broadcast)
{
    // /31 and /32 have no broadcast address of their own (a /31's other
    // address is the peer); an interface whose broadcast is 255.255.255.255
    // is served by the limited-broadcast receiver alone.
    if (netmask >= 0xFFFFFFFEu)
        return 0;
    const quint32 b = broadcast != 0 ? broadcast : ((ip & netmask) | ~netmask);
    return b == INADDR_BROADCAST || b == ip ? 0 : b;
}

void LinuxUdpDatagramSocket::addBroadcastReceivers(quint32 ip, quint16 port, int receiveBufferBytes)
{
    // The interface that holds the address tells the subnet and its broadcast address.
    for (const QNetworkInterface &ni : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry &entry : ni.addressEntries()) {
            if (entry.ip().toIPv4Address() != ip)
                continue;
            m_netmask = entry.netmask().toIPv4Address();
            m_subnet = ip & m_netmask;
            // An address set without "brd" still has its subnet's broadcast address.
            const quint32 broadcast =
                subnetBroadcast(ip, m_netmask, entry.broadcast().isNull() ? 0 : entry.broadcast().toIPv4Address());
            // A receiver that cannot be opened costs broadcasts, not the node: the bind stands.
            if (broadcast != 0) {
                const int subnetFd = openBound(broadcast, port, receiveBufferBytes);
                if (subnetFd >= 0)
                    m_broadcastFds.push_back(subnetFd);
                else
                    qWarning("Art-Net node: subnet broadcasts will not be heard: %s", qPrintable(m_error));
            }
            m_limitedBroadcastFd = openBound(INADDR_BROADCAST, port, receiveBufferBytes);
            if (m_limitedBroadcastFd >= 0)
                m_broadcastFds.push_back(m_limitedBroadcastFd);
            else
                qWarning("Art-Net node: broadcasts to 255.255.255.255 will not be heard: %s", qPrintable(m_error));
            m_error.clear();
            return;
        }
    }
}

bool LinuxUdpDatagramSocket::bind(const QHostAddress &address, quint16 port, int receiveBufferBytes)
{
    bool isIPv4 = false;
    const quint32 ip = address.toIPv4Address(&isIPv4);
    if (!isIPv4) {
        m_error = QCoreApplication::translate("ArtNetNode", "Only IPv4 addresses can be used.");
        return false;
    }
    m_fd = openBound(ip, port, receiveBufferBytes);
    if (m_fd < 0)
        return false;
    watch(m_fd);
    // Any address (0) and loopback receive every broadcast they can get already.
    if (ip != INADDR_ANY && (ip >> 24) != 127)
        addBroadcastReceivers(ip, port, receiveBufferBytes);
    for (const int fd : m_broadcastFds)
        watch(fd);
    return true;
}

void LinuxUdpDatagramSocket::setReadyReadHandler(std::function<void()> handler)
{
    m_readyRead = std::move(handler);
}

bool LinuxUdpDatagramSocket::fillBatch() const
{
    m_batch->count = 0;
    m_batch->next = 0;
    if (m_fd < 0)
        return false;
    // The bound socket and the broadcast receivers take turns, so a flood on
    // one cannot starve the other.
    const size_t sources = 1 + m_broadcastFds.size();
    for (size_t tried = 0; tried < sources; ++tried) {
        const size_t source = m_nextSource;
        m_nextSource = (m_nextSource + 1) % sources;
        if (fillBatchFrom(source == 0 ? m_fd : m_broadcastFds[source - 1]))
            return true;
    }
    return false;
}

bool LinuxUdpDatagramSocket::fillBatchFrom(int fd) const
{
    Batch &b = *m_batch;
    for (int i = 0; i < kBatch; ++i) {
        msghdr &h = b.messages[i].msg_hdr;
        h.msg_name = &b.senders[i];
        h.msg_namelen = sizeof(sockaddr_in);
        h.msg_iov = &b.vectors[i];
        h.msg_iovlen = 1;
        h.msg_control = nullptr;
        h.msg_controllen = 0;
        h.msg_flags = 0;
    }
    b.count = 0;
    int n = 0;
    // A batch from the limited-broadcast receiver may hold other segments'
    // datagrams only; read on while whole batches are dropped.
    do {
        do {
            n = ::recvmmsg(fd, b.messages, kBatch, MSG_DONTWAIT, nullptr);
        } while (n < 0 && errno == EINTR);
        for (int i = 0; i < n; ++i) {
            // 255.255.255.255 arrives from every interface: keep our segment's only.
            const quint32 sender = ntohl(b.senders[i].sin_addr.s_addr);
            if (fd == m_limitedBroadcastFd && (sender & m_netmask) != m_subnet) {
                ++m_datagramsDropped; // read all the same: the coalescing pause counts it
                continue;
            }
            b.keep[b.count++] = i;
        }
    } while (b.count == 0 && n == kBatch);
    return b.count > 0;
}

bool LinuxUdpDatagramSocket::hasPendingDatagrams() const
{
    return m_batch->next < m_batch->count || fillBatch();
}

qint64 LinuxUdpDatagramSocket::readDatagram(char *buffer, qint64 maxSize, QHostAddress *sender, quint16 *senderPort)
{
    if (!hasPendingDatagrams())
        return -1;
    Batch &b = *m_batch;
    const int i = b.keep[b.next++];
    ++m_datagramsRead;
    const qint64 size = b.messages[i].msg_len;
    std::memcpy(buffer, b.vectors[i].iov_base, size_t(std::min(size, maxSize)));
    const quint32 ip = ntohl(b.senders[i].sin_addr.s_addr);
    if (ip != m_lastSenderIp || m_lastSender.isNull()) {
        m_lastSenderIp = ip;
        m_lastSender = QHostAddress(ip);
    }
    if (sender)
        *sender = m_lastSender;
    if (senderPort)
        *senderPort = ntohs(b.senders[i].sin_port);
    return std::min(size, maxSize);
}

qint64 LinuxUdpDatagramSocket::writeDatagram(QByteArrayView bytes, const QHostAddress &host, quint16 port)
{
    bool isIPv4 = false;
    const quint32 ip = host.toIPv4Address(&isIPv4);
    if (m_fd < 0 || !isIPv4)
        return -1;
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(port);
    to.sin_addr.s_addr = htonl(ip);
    ssize_t n;
    do {
        n = ::sendto(m_fd, bytes.data(), size_t(bytes.size()), 0, reinterpret_cast<const sockaddr *>(&to), sizeof to);
    } while (n < 0 && errno == EINTR);
    if (n < 0)
        setErrorFromErrno();
    return n;
}

#endif // Q_OS_LINUX
