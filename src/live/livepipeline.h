#pragma once

#include "artnet/artnetnode.h"
#include "live/healthanalyser.h"
#include "packetlog/packetjournal.h"
#include "recording/recordingwriter.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class PixelColourBuffer;
namespace TPatch {
struct PatchData;
struct PixelLayout;
}

// The live path, one object for the window and talu-cli listen alike: every
// ArtDmx the node receives goes, in this order, to the recording writer while
// one is open, into the colour buffer against the pixels patched on its
// Port-Address (the buffer also keeps the bytes for the DMX inspector), and
// then raises the dirty flag. Every datagram the node sends or receives also
// goes into the packet journal while it is enabled. Nothing is painted here: the owner repaints on
// its own timer when takeDirty() says something changed.
//
// Threads: GUI thread only (the node runs on it).
class LivePipeline : public QObject
{
    Q_OBJECT
public:
    // node: the node to listen with (a default system node when null).
    explicit LivePipeline(std::unique_ptr<ArtNetNode> node = nullptr, QObject *parent = nullptr);
    ~LivePipeline() override;

    // The Port-Addresses a patch makes the node advertise: every torvoverse's,
    // once, ascending (a patch without pixels on a universe still owns it).
    static QVector<quint16> advertisedUniverses(const TPatch::PatchData &patch);

    ArtNetNode &node() { return *m_node; }
    const ArtNetNode &node() const { return *m_node; }
    // The packet log of this node: enabled from the start, so the window's log
    // has the history; an owner without a log (talu-cli listen) disables it.
    PacketLog::PacketJournal &journal() { return m_journal; }
    // Network health of every datagram the node receives (ArtDmx and ArtSync),
    // live; off until someone reads it (talu-cli listen; the window while its
    // health overlay or table is on).
    const Health::Analyser &health() const { return m_health; }
    void setHealthEnabled(bool on) { m_healthEnabled = on; }
    bool healthEnabled() const { return m_healthEnabled; }
    void resetHealth() { m_health.reset(); }
    static qint64 healthNowNs();
    // Every ArtPollReply the node receives (it drops them itself), for a node
    // discovery that must not open a second socket on the node's port. Empty: none.
    void setPollReplyTap(std::function<void(quint32 sender, QByteArrayView datagram)> tap)
    {
        m_pollReplyTap = std::move(tap);
    }

    // Where received universes are evaluated (neither owned; both must stay
    // alive until replaced). Null for either: nothing is evaluated.
    void setColourTarget(PixelColourBuffer *buffer, const TPatch::PixelLayout *layout);

    // Opens path for appending (see RecordingWriter::open). On failure returns
    // false with the writer's reason in *error.
    bool startRecording(const QString &path, int frameRate, int recordsPerFrame, QString *error);
    // Closes the file; its figures stay readable through writer() until the next start.
    void stopRecording();
    bool isRecording() const { return m_writer && m_writer->isOpen(); }
    const RecordingWriter *writer() const { return m_writer.get(); }

    // Whether anything arrived since the last call; clears the flag.
    bool takeDirty();
    qint64 packetsApplied() const { return m_packets; }

signals:
    // The open recording failed (disk full, file gone); it has been closed.
    void recordingFailed(const QString &reason);

private:
    // Hands the node's datagrams to the packet journal as events.
    class JournalFeed : public ::PacketJournal
    {
    public:
        explicit JournalFeed(LivePipeline &pipeline) : m_pipeline(pipeline) {}
        bool isEnabled() const override
        {
            return m_pipeline.m_journal.isEnabled() || m_pipeline.m_healthEnabled || m_pipeline.m_pollReplyTap;
        }
        void journalDatagram(Direction direction, const QHostAddress &peer, quint16 peerPort, QByteArrayView bytes,
                             qint64 writeResult) override;

    private:
        LivePipeline &m_pipeline;
    };

    void onDmxReceived(quint16 portAddress, const QByteArray &data, const QHostAddress &sender);

    PacketLog::PacketJournal m_journal;
    Health::Analyser m_health{true};
    bool m_healthEnabled = false;
    std::function<void(quint32, QByteArrayView)> m_pollReplyTap;
    JournalFeed m_journalFeed{*this};
    // Declared after the journal so it goes first: the node holds the feed.
    std::unique_ptr<ArtNetNode> m_node;
    std::unique_ptr<RecordingWriter> m_writer;
    PixelColourBuffer *m_buffer = nullptr;
    const TPatch::PixelLayout *m_layout = nullptr;
    bool m_dirty = false;
    qint64 m_packets = 0;
};
