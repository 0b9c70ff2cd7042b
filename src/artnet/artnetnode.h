#pragma once

#include "artnet/artnetpacket.h"
#include "artnet/datagramsocket.h"
#include "artnet/monotonicclock.h"
#include "artnet/nodeidentity.h"
#include "artnet/nodestats.h"
#include "artnet/packetjournal.h"

#include <QByteArray>
#include <QHostAddress>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

// This program as a node on an Art-Net network: answers ArtPoll with one
// ArtPollReply per advertised universe, announces itself every two seconds,
// receives ArtDmx and its KEL variant, checks sequence numbers and keeps live
// statistics. Received DMX leaves through dmxReceived.
//
// Lives on and is called from one thread (the GUI thread in the program, the
// main thread in talu-cli); it is driven by the socket's readyRead and a timer.
class ArtNetNode : public QObject
{
    Q_OBJECT

public:
    using SocketFactory = std::function<std::unique_ptr<DatagramSocket>()>;

    static constexpr int kAnnounceIntervalMs = 2000;
    // Large installations send bursts of thousands of ArtDmx; the queue must
    // hold them while the GUI thread paints. Painting 350,000 pixels takes
    // 20-30 ms, in which 100,000 packets/s queue 3,000 datagrams, over 6 MB
    // with the kernel's own bookkeeping per datagram. The system may grant
    // less (Linux caps it at net.core.rmem_max unless we may force it).
    static constexpr int kReceiveBufferBytes = 16 << 20;

    // The platform's UDP socket: batched receives on Linux, QUdpSocket elsewhere.
    static std::unique_ptr<DatagramSocket> makeSystemSocket();

    // Without arguments the node uses real UDP sockets and the steady clock.
    // A clock passed in must outlive the node.
    explicit ArtNetNode(QObject *parent = nullptr);
    ArtNetNode(SocketFactory socketFactory, const MonotonicClock *clock, QObject *parent = nullptr);
    ~ArtNetNode() override;

    // Binds (address null = any IPv4 address) and begins; on failure returns
    // false and lastError() holds the socket's error text.
    bool start(const QHostAddress &address, quint16 port = ArtNet::kDefaultPort);
    void stop();
    bool isRunning() const { return m_socket != nullptr; }
    QString lastError() const { return m_lastError; }
    // The receive queue the system granted the running node (bytes), -1 when unknown.
    int receiveBufferBytes() const { return m_socket ? m_socket->receiveBufferBytes() : -1; }
    QHostAddress bindAddress() const { return m_bindAddress; }
    quint16 port() const { return m_port; }

    void setIdentity(const NodeIdentity &identity);
    NodeIdentity identity() const { return m_identity; }
    // The Port-Addresses advertised, one reply page each.
    void setUniverses(const QVector<quint16> &universes);
    QVector<quint16> advertisedUniverses() const { return m_advertised; }

    NodeStats stats() const;
    qint64 msSinceLastPoll() const;
    // Port-Addresses received since start, ascending.
    QVector<quint16> universes() const { return m_universesSeen; }
    // The flavour of the most recent DMX packet and, for KEL, its device
    // name: what the recording writer stamps into the records it writes.
    ArtNet::DmxFlavour sourceFlavour() const { return m_sourceFlavour; }
    QString kelDeviceName() const { return m_kelDeviceName; }

    // Non-owning; nullptr detaches.
    void setPacketJournal(PacketJournal *journal) { m_journal = journal; }

signals:
    void dmxReceived(quint16 portAddress, const QByteArray &data, const QHostAddress &sender);
    void pollAnswered(const QHostAddress &asker);
    void statusChanged();
    void universesChanged();

public slots:
    void onReadyRead();
    void onAnnounceTimer();

private:
    qint64 nowNs() const;
    qint64 msSince(qint64 timeNs) const;
    void sendReplySet(const QHostAddress &destination, quint16 requestPort);
    void send(const QByteArray &bytes, const QHostAddress &host, quint16 port);
    void handleDatagram(QByteArrayView datagram, const QHostAddress &sender, quint16 senderPort);
    void handleDmx(QByteArrayView datagram, const ArtNet::ClassifiedDatagram &dmx, const QHostAddress &sender);
    void resetStatistics();

    SocketFactory m_socketFactory;
    SteadyClock m_steadyClock;
    const MonotonicClock *m_clock;

    std::unique_ptr<DatagramSocket> m_socket;
    // A socket stopped from a slot during its own readyRead lives until the
    // event loop comes back: its notification is still on the stack.
    std::unique_ptr<DatagramSocket> m_retiredSocket;
    bool m_inReadyRead = false;
    // A drain cut short by its time budget has posted its continuation.
    bool m_drainPosted = false;
    static constexpr qint64 kDrainBudgetNs = 15'000'000;
    static constexpr int kDrainCheckEvery = 64;
    QTimer m_announceTimer;
    PacketJournal *m_journal = nullptr;
    QHostAddress m_bindAddress;
    quint16 m_port = ArtNet::kDefaultPort;
    QString m_lastError;
    NodeIdentity m_identity;
    QVector<quint16> m_advertised;

    quint64 m_dmxPackets = 0;
    quint64 m_artPolls = 0;
    quint64 m_ignored = 0;
    quint64 m_sequenceErrors = 0;
    double m_packetsPerSecond = 0.0;
    qint64 m_timerStartNs = -1; // -1: never started
    qint64 m_lastDmxNs = -1;
    qint64 m_lastPollNs = -1;
    qint64 m_rateWindowStartNs = 0;
    quint64 m_rateWindowPackets = 0;
    // Last non-zero sequence per Port-Address, 0 when none: a flat table
    // because it is looked up for every packet.
    std::vector<quint8> m_lastSequence;
    QVector<quint16> m_universesSeen;
    ArtNet::DmxFlavour m_sourceFlavour = ArtNet::DmxFlavour::ArtNet;
    QString m_kelDeviceName;

    QByteArray m_receiveBuffer;
};
