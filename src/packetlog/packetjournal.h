#pragma once

#include "packetlog/logmessage.h"
#include "packetlog/packetrecord.h"

#include <QByteArrayView>
#include <QString>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <vector>

namespace PacketLog {

class SpoolQueue;

// One datagram as the node's send routine or receive loop sees it. Addresses
// are host-order IPv4 (QHostAddress::toIPv4Address()); "local" is our socket's
// side, "peer" the other host's, so the same event describes a send and a receive.
struct PacketEvent
{
    Direction direction = Direction::In;
    quint32 localIp = 0;
    quint16 localPort = 0;
    quint32 peerIp = 0;
    quint16 peerPort = 0;
    QByteArrayView bytes;
    Outcome outcome = Outcome::Ok;
    quint8 reason = ReasonNone;
    qint32 error = 0;
    qint64 timeNs = -1; // wall-clock ns since 1970 UTC; -1 takes the time of the append
};

struct JournalCounters
{
    qint64 appended = 0;      // records kept in the ring
    qint64 collapsed = 0;     // repeated ArtDmx left out
    qint64 spooled = 0;       // records written to the .tlog file
    qint64 spoolDropped = 0;  // records the spool could not take in time
    bool spoolFailed = false; // a write to the .tlog file failed; spooling stopped
};

// The packet journal: every datagram the node sends and receives, kept in a
// ring of recent records and, while a session file is open, spooled to it.
//
// The ring holds the most recent capacity records (65,536 by default, about
// 19 MB): at 7,000 packets a second (160 universes at 44 Hz) that is over nine
// seconds of traffic at full rate, and much longer once repeated frames are
// collapsed. Hours of traffic never grow it; the session file has the rest.
// A view polls counters().appended (on its repaint timer) to see new records.
//
// An identical ArtDmx (same sender, receiver, universe and bytes apart from
// the sequence number) that repeats within 250 ms of the last one kept for its
// stream is left out, so a controller refreshing an unchanged frame at 40 Hz
// shows four rows a second instead of forty. Failed sends are always kept.
//
// Threads: every method is for the GUI thread (the thread that owns the
// journal). The spool runs on its own thread: it wakes every 15 ms and writes
// what has queued in batches of up to 2,048 records. append() never waits for
// it or for the disk; when the queue is full the record stays in the ring but
// is left out of the file and counted in spoolDropped.
class PacketJournal
{
public:
    static constexpr int kDefaultCapacity = 65536;
    static constexpr int kSpoolQueueCapacity = 32768;
    static constexpr int kSpoolBatch = 2048;
    static constexpr int kSpoolSleepMs = 15;
    static constexpr qint64 kCollapseWindowNs = 250'000'000;

    // capacity is rounded up to a power of two.
    explicit PacketJournal(int capacity = kDefaultCapacity);
    ~PacketJournal(); // stops the spool, writing what is queued
    PacketJournal(const PacketJournal &) = delete;
    PacketJournal &operator=(const PacketJournal &) = delete;

    // The node offers datagrams only while the journal is enabled.
    void setEnabled(bool enabled) { m_enabled = enabled; }
    bool isEnabled() const { return m_enabled; }

    // Records one datagram. False when it was collapsed into an earlier one or
    // the journal is disabled. Costs well under a microsecond; never blocks.
    bool append(const PacketEvent &event);
    // Records a finished record as it is (imports); no collapsing.
    void append(const PacketRecord &record);

    // Opens (creates or truncates) a .tlog session file and starts the spool
    // thread. False with a message when the file cannot be created.
    bool startSpool(const QString &path, LogMessage *error);
    // Writes everything queued, closes the file and joins the thread.
    void stopSpool();
    bool isSpooling() const { return m_spoolThread.joinable(); }

    int capacity() const { return int(m_mask + 1); }
    // Records in the ring, oldest first; at most capacity().
    int size() const;
    const PacketRecord &at(int index) const;
    std::vector<PacketRecord> records() const;
    void clear(); // the ring and the collapsing memory; the file keeps what it has

    JournalCounters counters() const;

private:
    struct StreamKey
    {
        quint64 hosts;
        quint64 portsAndUniverse;
        bool operator==(const StreamKey &o) const { return hosts == o.hosts && portsAndUniverse == o.portsAndUniverse; }
    };
    struct StreamKeyHash
    {
        size_t operator()(const StreamKey &k) const { return size_t(k.hosts * 0x9E3779B97F4A7C15ULL ^ k.portsAndUniverse); }
    };
    struct LastFrame
    {
        qint64 timeNs = 0;
        std::vector<char> bytes;
    };

    bool isRepeat(const PacketRecord &record, QByteArrayView bytes);
    PacketRecord &nextSlot();
    void spoolLoop();

    bool m_enabled = true;
    quint64 m_mask;
    std::unique_ptr<PacketRecord[]> m_ring;
    quint64 m_written = 0; // records ever put in the ring
    qint64 m_collapsed = 0;
    qint64 m_spoolDropped = 0;
    std::unordered_map<StreamKey, LastFrame, StreamKeyHash> m_lastFrames;
    PacketRecord m_scratch;

    std::unique_ptr<SpoolQueue> m_queue;
    std::thread m_spoolThread;
    std::mutex m_stopMutex;
    std::condition_variable m_stopCondition;
    bool m_stopRequested = false; // guarded by m_stopMutex
    QString m_spoolPath;
    std::atomic<qint64> m_spooled{0};
    std::atomic<bool> m_spoolFailed{false};
};

} // namespace PacketLog
