#pragma once

#include "artnet/datagramsocket.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX

#include <QSocketNotifier>
#include <QTimer>

#include <memory>
#include <vector>

struct mmsghdr;

// DatagramSocket on a native Linux UDP socket that receives in batches
// (recvmmsg): at a hundred thousand ArtDmx a second one system call per
// datagram costs more than the node's own work. Same binding rules as
// UdpDatagramSocket (IPv4, address sharing, enlarged receive buffer,
// broadcast allowed).
//
// Bound to one interface address, a Windows socket also receives that
// interface's broadcasts; a Linux socket does not (a broadcast is addressed
// to the subnet's broadcast address or to 255.255.255.255, not to ours). So
// that ArtPoll and broadcast ArtDmx reach a node listening on a chosen
// address, two receive-only sockets join the bound one: one on the subnet's
// broadcast address and one on 255.255.255.255 that keeps only datagrams
// from senders in our subnet. Everything is sent from the bound socket, so
// replies carry the chosen address.
class LinuxUdpDatagramSocket final : public DatagramSocket
{
public:
    LinuxUdpDatagramSocket();
    ~LinuxUdpDatagramSocket() override;

    bool bind(const QHostAddress &address, quint16 port, int receiveBufferBytes) override;
    QString errorString() const override { return m_error; }
    int receiveBufferBytes() const override { return m_receiveBufferBytes; }
    void setReadyReadHandler(std::function<void()> handler) override;
    bool hasPendingDatagrams() const override;
    qint64 readDatagram(char *buffer, qint64 maxSize, QHostAddress *sender, quint16 *senderPort) override;
    qint64 writeDatagram(QByteArrayView bytes, const QHostAddress &host, quint16 port) override;

    static constexpr int kBatch = 32;
    // The subnet broadcast address to listen on for an interface address, or
    // 0 when there is none worth a receiver of its own. broadcast: what the
    // interface reports, 0 when it reports none.
    static quint32 subnetBroadcast(quint32 ip, quint32 netmask, quint32 broadcast);
    // After a wake-up that delivered datagrams the socket is not watched for
    // this long, so a flood is read in batches rather than one wake-up (and
    // two context switches) per datagram. The receive buffer holds well over
    // ten milliseconds of a 100,000 packets-per-second flood.
    static constexpr int kCoalesceMs = 1;

private:
    bool fillBatch() const;
    bool fillBatchFrom(int source) const;
    void setErrorFromErrno();
    int openBound(quint32 ip, quint16 port, int receiveBufferBytes);
    void watch(int fd);
    void addBroadcastReceivers(quint32 ip, quint16 port, int receiveBufferBytes);

    int m_fd = -1;
    int m_receiveBufferBytes = -1;
    // Receive-only broadcast sockets (see above), and the subnet a datagram on
    // the limited-broadcast one must come from.
    std::vector<int> m_broadcastFds;
    int m_limitedBroadcastFd = -1;
    quint32 m_subnet = 0;
    quint32 m_netmask = 0;
    std::vector<std::unique_ptr<QSocketNotifier>> m_broadcastNotifiers;
    mutable size_t m_nextSource = 0;
    QString m_error;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_readyRead;
    QTimer m_resume;
    quint64 m_datagramsRead = 0;
    mutable quint64 m_datagramsDropped = 0; // other segments' limited broadcasts

    // The batch is refilled from hasPendingDatagrams(), which is const in the
    // interface; it is a read-ahead buffer, not observable state.
    struct Batch;
    std::unique_ptr<Batch> m_batch;

    // Senders rarely change within a batch; reusing the address saves an
    // allocation per datagram.
    quint32 m_lastSenderIp = 0;
    QHostAddress m_lastSender;
};

#endif // Q_OS_LINUX
