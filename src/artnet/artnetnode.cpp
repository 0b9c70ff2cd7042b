#include "artnet/artnetnode.h"

#include "artnet/linuxudpdatagramsocket.h"
#include "artnet/udpdatagramsocket.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

// A rate figure needs a second of packets to mean anything.
constexpr qint64 kRateWindowNs = 999'999'999;

} // namespace

std::unique_ptr<DatagramSocket> ArtNetNode::makeSystemSocket()
{
#ifdef Q_OS_LINUX
    return std::make_unique<LinuxUdpDatagramSocket>();
#else
    return std::make_unique<UdpDatagramSocket>();
#endif
}

ArtNetNode::ArtNetNode(QObject *parent) : ArtNetNode(&ArtNetNode::makeSystemSocket, nullptr, parent) {}

ArtNetNode::ArtNetNode(SocketFactory socketFactory, const MonotonicClock *clock, QObject *parent)
    : QObject(parent), m_socketFactory(std::move(socketFactory)), m_clock(clock ? clock : &m_steadyClock),
      m_lastSequence(0x10000, 0), m_receiveBuffer(ArtNet::kMaxDatagramSize + 1, '\0')
{
    m_announceTimer.setInterval(kAnnounceIntervalMs);
    connect(&m_announceTimer, &QTimer::timeout, this, &ArtNetNode::onAnnounceTimer);
}

ArtNetNode::~ArtNetNode()
{
    m_announceTimer.stop();
    m_socket.reset();
}

bool ArtNetNode::start(const QHostAddress &address, quint16 port)
{
    stop();
    m_socket = m_socketFactory();
    const QHostAddress bindTo = address.isNull() ? QHostAddress(QHostAddress::AnyIPv4) : address;
    if (!m_socket || !m_socket->bind(bindTo, port, kReceiveBufferBytes)) {
        m_lastError = m_socket ? m_socket->errorString() : tr("No socket could be created.");
        m_socket.reset();
        return false;
    }
    m_socket->setReadyReadHandler([this] { onReadyRead(); });

    m_bindAddress = address;
    m_port = port;
    m_lastError.clear();
    resetStatistics();

    m_timerStartNs = m_clock->nowNs();
    m_rateWindowStartNs = nowNs();
    m_announceTimer.start();

    sendReplySet(QHostAddress(QHostAddress::Broadcast), 0);
    emit statusChanged();
    return true;
}

void ArtNetNode::stop()
{
    m_announceTimer.stop();
    if (m_inReadyRead && m_socket) {
        m_retiredSocket = std::move(m_socket);
        QTimer::singleShot(0, this, [this] { m_retiredSocket.reset(); });
    }
    m_socket.reset();
    m_bindAddress = QHostAddress();
    emit statusChanged();
}

void ArtNetNode::resetStatistics()
{
    m_dmxPackets = 0;
    m_artPolls = 0;
    m_ignored = 0;
    m_sequenceErrors = 0;
    m_packetsPerSecond = 0.0;
    m_rateWindowPackets = 0;
    std::fill(m_lastSequence.begin(), m_lastSequence.end(), quint8(0));
    const bool hadUniverses = !m_universesSeen.isEmpty();
    m_universesSeen.clear();
    m_sourceFlavour = ArtNet::DmxFlavour::ArtNet;
    m_kelDeviceName.clear();
    m_lastDmxNs = -1;
    m_lastPollNs = -1;
    if (hadUniverses)
        emit universesChanged();
}

void ArtNetNode::setIdentity(const NodeIdentity &identity)
{
    m_identity = identity;
    if (isRunning())
        sendReplySet(QHostAddress(QHostAddress::Broadcast), 0);
}

void ArtNetNode::setUniverses(const QVector<quint16> &universes)
{
    m_advertised = universes;
    if (isRunning())
        sendReplySet(QHostAddress(QHostAddress::Broadcast), 0);
}

void ArtNetNode::onAnnounceTimer()
{
    if (isRunning())
        sendReplySet(QHostAddress(QHostAddress::Broadcast), 0);
}

qint64 ArtNetNode::nowNs() const
{
    return m_timerStartNs < 0 ? 0 : m_clock->nowNs() - m_timerStartNs;
}

qint64 ArtNetNode::msSince(qint64 timeNs) const
{
    if (timeNs < 0 || m_timerStartNs < 0)
        return -1;
    return (nowNs() - timeNs) / 1'000'000;
}

NodeStats ArtNetNode::stats() const
{
    NodeStats s;
    s.dmxPackets = m_dmxPackets;
    s.artPolls = m_artPolls;
    s.ignored = m_ignored;
    s.sequenceErrors = m_sequenceErrors;
    s.packetsPerSecond = m_packetsPerSecond;
    s.msSinceLastDmx = msSince(m_lastDmxNs);
    return s;
}

qint64 ArtNetNode::msSinceLastPoll() const
{
    return msSince(m_lastPollNs);
}

void ArtNetNode::sendReplySet(const QHostAddress &destination, quint16 requestPort)
{
    ArtNet::PollReplyInput input;
    input.identity = m_identity;
    bool isIPv4 = false;
    const quint32 ip = m_bindAddress.toIPv4Address(&isIPv4);
    input.bindIPv4 = isIPv4 ? ip : 0;
    input.port = m_port;
    input.universes = m_advertised;
    input.dmxPackets = m_dmxPackets;

    const QHostAddress broadcast(QHostAddress::Broadcast);
    const bool toBroadcastToo = destination != broadcast;
    const int pages = ArtNet::pollReplyPageCount(m_advertised);
    for (int page = 0; page < pages && m_socket; ++page) {
        const QByteArray reply = ArtNet::buildPollReply(input, page);
        send(reply, destination, m_port);
        // A controller that polls from its own port expects the answer there.
        if (requestPort != 0 && requestPort != m_port)
            send(reply, destination, requestPort);
        if (toBroadcastToo)
            send(reply, broadcast, m_port);
    }
}

void ArtNetNode::send(const QByteArray &bytes, const QHostAddress &host, quint16 port)
{
    const qint64 written = m_socket->writeDatagram(bytes, host, port);
    if (m_journal && m_journal->isEnabled())
        m_journal->journalDatagram(PacketJournal::Direction::Sent, host, port, bytes, written);
}

void ArtNetNode::onReadyRead()
{
    QHostAddress sender;
    quint16 senderPort = 0;
    const QScopedValueRollback<bool> inReadyRead(m_inReadyRead, true);
    // Drain what is queued: one notification may stand for thousands of
    // datagrams, and each wake-up of the event loop costs more than a read.
    // But not for longer than kDrainBudgetNs: under a flood the queue never
    // empties, and the window's repaint and status timers must get their turn.
    // The rest is read on the next pass of the event loop (the kernel's queue
    // holds far more than one budget's worth).
    QElapsedTimer drained;
    drained.start();
    m_drainPosted = false;
    int read = 0;
    while (m_socket && m_socket->hasPendingDatagrams()) {
        if ((++read % kDrainCheckEvery) == 0 && drained.nsecsElapsed() > kDrainBudgetNs) {
            m_drainPosted = true;
            QMetaObject::invokeMethod(
                this, [this] {
                    if (m_drainPosted)
                        onReadyRead();
                },
                Qt::QueuedConnection);
            break;
        }
        const qint64 size =
            m_socket->readDatagram(m_receiveBuffer.data(), m_receiveBuffer.size(), &sender, &senderPort);
        if (size < 0)
            break;
        const QByteArrayView datagram(m_receiveBuffer.constData(), std::min<qint64>(size, m_receiveBuffer.size()));
        if (m_journal && m_journal->isEnabled())
            m_journal->journalDatagram(PacketJournal::Direction::Received, sender, senderPort, datagram, size);
        handleDatagram(datagram, sender, senderPort);
    }

    const qint64 now = nowNs();
    const qint64 elapsed = now - m_rateWindowStartNs;
    if (elapsed > kRateWindowNs) {
        m_packetsPerSecond = double(m_rateWindowPackets) / (double(elapsed) / 1e9);
        m_rateWindowPackets = 0;
        m_rateWindowStartNs = now;
        emit statusChanged();
    }
}

void ArtNetNode::handleDatagram(QByteArrayView datagram, const QHostAddress &sender, quint16 senderPort)
{
    const ArtNet::ClassifiedDatagram c = ArtNet::classifyDatagram(datagram);
    switch (c.kind) {
    case ArtNet::DatagramKind::Poll:
        // The poll's flags (diagnostics, reply-on-change) are not honoured:
        // this node always answers and never sends diagnostics.
        m_lastPollNs = nowNs();
        ++m_artPolls;
        sendReplySet(sender, senderPort);
        emit pollAnswered(sender);
        emit statusChanged();
        break;
    case ArtNet::DatagramKind::PollReply:
        break;
    case ArtNet::DatagramKind::Dmx:
        handleDmx(datagram, c, sender);
        break;
    case ArtNet::DatagramKind::Ignored:
        ++m_ignored;
        break;
    }
}

void ArtNetNode::handleDmx(QByteArrayView datagram, const ArtNet::ClassifiedDatagram &dmx,
                           const QHostAddress &sender)
{
    if (dmx.sequence != 0) {
        quint8 &last = m_lastSequence[dmx.portAddress];
        if (last != 0 && ArtNet::isSequenceError(last, dmx.sequence))
            ++m_sequenceErrors;
        last = dmx.sequence;
    }

    const auto seen = std::lower_bound(m_universesSeen.begin(), m_universesSeen.end(), dmx.portAddress);
    if (seen == m_universesSeen.end() || *seen != dmx.portAddress) {
        m_universesSeen.insert(seen, dmx.portAddress);
        emit universesChanged();
    }

    if (dmx.flavour != m_sourceFlavour || m_kelDeviceName.isEmpty()) {
        m_sourceFlavour = dmx.flavour;
        m_kelDeviceName = dmx.flavour == ArtNet::DmxFlavour::Kel ? ArtNet::kelDeviceName(datagram) : QString();
    }

    ++m_dmxPackets;
    ++m_rateWindowPackets;
    m_lastDmxNs = nowNs();
    emit dmxReceived(dmx.portAddress, QByteArray(datagram.data() + dmx.dataOffset, dmx.dataLength), sender);
}
