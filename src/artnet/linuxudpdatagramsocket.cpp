#include "artnet/linuxudpdatagramsocket.h"

#ifdef Q_OS_LINUX

#include <QCoreApplication>

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
    });
}

LinuxUdpDatagramSocket::~LinuxUdpDatagramSocket()
{
    m_notifier.reset();
    if (m_fd >= 0)
        ::close(m_fd);
}

void LinuxUdpDatagramSocket::setErrorFromErrno()
{
    m_error = QString::fromLocal8Bit(std::strerror(errno));
}

bool LinuxUdpDatagramSocket::bind(const QHostAddress &address, quint16 port, int receiveBufferBytes)
{
    bool isIPv4 = false;
    const quint32 ip = address.toIPv4Address(&isIPv4);
    if (!isIPv4) {
        m_error = QCoreApplication::translate("ArtNetNode", "Only IPv4 addresses can be used.");
        return false;
    }
    m_fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (m_fd < 0) {
        setErrorFromErrno();
        return false;
    }
    const int one = 1;
    // Address sharing as QUdpSocket::ShareAddress does it, and broadcast for
    // the announcements.
    ::setsockopt(m_fd, SOL_SOCKET, SO_REUSEADDR, &one, sizeof one);
    ::setsockopt(m_fd, SOL_SOCKET, SO_BROADCAST, &one, sizeof one);
    ::setsockopt(m_fd, SOL_SOCKET, SO_RCVBUF, &receiveBufferBytes, sizeof receiveBufferBytes);
    sockaddr_in local{};
    local.sin_family = AF_INET;
    local.sin_port = htons(port);
    local.sin_addr.s_addr = htonl(ip);
    if (::bind(m_fd, reinterpret_cast<const sockaddr *>(&local), sizeof local) != 0) {
        setErrorFromErrno();
        ::close(m_fd);
        m_fd = -1;
        return false;
    }
    m_notifier = std::make_unique<QSocketNotifier>(qintptr(m_fd), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        const quint64 before = m_datagramsRead;
        if (m_readyRead)
            m_readyRead();
        // The handler may have closed us (stop() from a slot).
        if (m_notifier && m_datagramsRead != before) {
            m_notifier->setEnabled(false);
            m_resume.start();
        }
    });
    return true;
}

void LinuxUdpDatagramSocket::setReadyReadHandler(std::function<void()> handler)
{
    m_readyRead = std::move(handler);
}

bool LinuxUdpDatagramSocket::fillBatch() const
{
    Batch &b = *m_batch;
    b.count = 0;
    b.next = 0;
    if (m_fd < 0)
        return false;
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
    int n;
    do {
        n = ::recvmmsg(m_fd, b.messages, kBatch, MSG_DONTWAIT, nullptr);
    } while (n < 0 && errno == EINTR);
    b.count = n > 0 ? n : 0;
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
    const int i = b.next++;
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
