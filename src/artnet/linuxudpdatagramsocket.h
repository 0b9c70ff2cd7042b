#pragma once

#include "artnet/datagramsocket.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX

#include <QSocketNotifier>
#include <QTimer>

#include <memory>

struct mmsghdr;

// DatagramSocket on a native Linux UDP socket that receives in batches
// (recvmmsg): at a hundred thousand ArtDmx a second one system call per
// datagram costs more than the node's own work. Same binding rules as
// UdpDatagramSocket (IPv4, address sharing, enlarged receive buffer,
// broadcast allowed).
class LinuxUdpDatagramSocket final : public DatagramSocket
{
public:
    LinuxUdpDatagramSocket();
    ~LinuxUdpDatagramSocket() override;

    bool bind(const QHostAddress &address, quint16 port, int receiveBufferBytes) override;
    QString errorString() const override { return m_error; }
    void setReadyReadHandler(std::function<void()> handler) override;
    bool hasPendingDatagrams() const override;
    qint64 readDatagram(char *buffer, qint64 maxSize, QHostAddress *sender, quint16 *senderPort) override;
    qint64 writeDatagram(QByteArrayView bytes, const QHostAddress &host, quint16 port) override;

    static constexpr int kBatch = 32;
    // After a wake-up that delivered datagrams the socket is not watched for
    // this long, so a flood is read in batches rather than one wake-up (and
    // two context switches) per datagram. The receive buffer holds well over
    // ten milliseconds of a 100,000 packets-per-second flood.
    static constexpr int kCoalesceMs = 1;

private:
    bool fillBatch() const;
    void setErrorFromErrno();

    int m_fd = -1;
    QString m_error;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_readyRead;
    QTimer m_resume;
    quint64 m_datagramsRead = 0;

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
