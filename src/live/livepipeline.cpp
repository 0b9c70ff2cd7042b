#include "live/livepipeline.h"

#include "monitor/pixelcolourbuffer.h"
#include "patch/frameorder.h"
#include "patch/pixellayout.h"

#include <algorithm>
#include <chrono>

QVector<quint16> LivePipeline::advertisedUniverses(const TPatch::PatchData &patch)
{
    QVector<quint16> universes = TPatch::expectedFrameOrder(patch).universes();
    std::sort(universes.begin(), universes.end());
    universes.erase(std::unique(universes.begin(), universes.end()), universes.end());
    return universes;
}

LivePipeline::LivePipeline(std::unique_ptr<ArtNetNode> node, QObject *parent)
    : QObject(parent), m_node(node ? std::move(node) : std::make_unique<ArtNetNode>())
{
    connect(m_node.get(), &ArtNetNode::dmxReceived, this, &LivePipeline::onDmxReceived);
    m_node->setPacketJournal(&m_journalFeed);
}

qint64 LivePipeline::healthNowNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void LivePipeline::JournalFeed::journalDatagram(Direction direction, const QHostAddress &peer, quint16 peerPort,
                                                QByteArrayView bytes, qint64 writeResult)
{
    // Received datagrams are classified once for the discovery tap and the health analysis.
    if (direction == Direction::Received && (m_pipeline.m_pollReplyTap || m_pipeline.m_healthEnabled)) {
        const ArtNet::ClassifiedDatagram c = ArtNet::classifyDatagram(bytes);
        if (m_pipeline.m_pollReplyTap && c.kind == ArtNet::DatagramKind::PollReply)
            m_pipeline.m_pollReplyTap(peer.toIPv4Address(), bytes);
        if (m_pipeline.m_healthEnabled && c.kind == ArtNet::DatagramKind::Dmx)
            m_pipeline.m_health.addDmx(healthNowNs(), peer.toIPv4Address(), peerPort, c.portAddress, c.sequence,
                                       c.dataLength);
        else if (m_pipeline.m_healthEnabled && ArtNet::isArtSync(bytes))
            m_pipeline.m_health.addSync(healthNowNs(), peer.toIPv4Address(), peerPort);
    }
    if (!m_pipeline.m_journal.isEnabled())
        return;
    const ArtNetNode &node = *m_pipeline.m_node;
    PacketLog::PacketEvent event;
    event.direction = direction == Direction::Sent ? PacketLog::Direction::Out : PacketLog::Direction::In;
    event.localIp = node.bindAddress().toIPv4Address();
    event.localPort = node.port();
    event.peerIp = peer.toIPv4Address();
    event.peerPort = peerPort;
    event.bytes = bytes;
    if (direction == Direction::Sent && writeResult < 0)
        event.outcome = PacketLog::Outcome::Failed;
    else if (direction == Direction::Sent && writeResult < bytes.size())
        event.outcome = PacketLog::Outcome::Partial;
    m_pipeline.m_journal.append(event);
}

LivePipeline::~LivePipeline()
{
    // The node first, so no packet arrives for a closing file.
    m_node->stop();
    m_node->setPacketJournal(nullptr);
    stopRecording();
}

void LivePipeline::setColourTarget(PixelColourBuffer *buffer, const TPatch::PixelLayout *layout)
{
    m_buffer = buffer;
    m_layout = layout;
}

bool LivePipeline::startRecording(const QString &path, int frameRate, int recordsPerFrame, QString *error)
{
    stopRecording();
    auto writer = std::make_unique<RecordingWriter>();
    if (!writer->open(path, frameRate, recordsPerFrame)) {
        if (error)
            *error = writer->lastError();
        return false;
    }
    connect(writer.get(), &RecordingWriter::writeFailed, this, [this](const QString &reason) {
        stopRecording();
        emit recordingFailed(reason);
    });
    m_writer = std::move(writer);
    return true;
}

void LivePipeline::stopRecording()
{
    if (m_writer && m_writer->isOpen())
        m_writer->close();
}

bool LivePipeline::takeDirty()
{
    const bool dirty = m_dirty;
    m_dirty = false;
    return dirty;
}

void LivePipeline::onDmxReceived(quint16 portAddress, const QByteArray &data, const QHostAddress &)
{
    ++m_packets;
    if (m_writer && m_writer->isOpen()) {
        // The flavour of the packet in hand: the node reports the latest source.
        m_writer->setSource(RecordFlavour(m_node->sourceFlavour()), m_node->kelDeviceName());
        m_writer->write(portAddress, data);
    }
    if (m_buffer && m_layout && !data.isEmpty()) {
        const auto *bytes = reinterpret_cast<const quint8 *>(data.constData());
        m_buffer->applyUniverse(m_layout->pixelsForPortAddress(portAddress), bytes, int(data.size()));
        m_buffer->storeUniverse(portAddress, bytes, int(data.size()));
    }
    m_dirty = true;
}
