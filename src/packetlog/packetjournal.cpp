#include "packetlog/packetjournal.h"

#include "packetlog/spoolqueue.h"
#include "packetlog/tlogfile.h"

#include <QFile>

#include <chrono>

namespace PacketLog {

namespace {

qint64 wallClockNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

quint64 roundUpToPowerOfTwo(int n)
{
    quint64 v = 1;
    while (v < quint64(std::max(n, 1)))
        v <<= 1;
    return v;
}

// Where the sequence byte sits: it changes on every frame of an unchanged stream.
qsizetype sequenceOffset(const PacketRecord &r) { return r.opcode == kOpKel ? 24 : 12; }

// The spool's session file, owned by the spool thread once started.
struct SpoolFile
{
    QFile file;
};

} // namespace

PacketJournal::PacketJournal(int capacity)
    : m_mask(roundUpToPowerOfTwo(capacity) - 1), m_ring(new PacketRecord[size_t(m_mask + 1)])
{
}

PacketJournal::~PacketJournal() { stopSpool(); }

PacketRecord &PacketJournal::nextSlot()
{
    PacketRecord &slot = m_ring[m_written & m_mask];
    ++m_written;
    return slot;
}

bool PacketJournal::isRepeat(const PacketRecord &r, QByteArrayView bytes)
{
    const StreamKey key{(quint64(r.srcIp) << 32) | r.dstIp,
                        (quint64(r.srcPort) << 48) | (quint64(r.dstPort) << 32) | (quint64(r.portAddress) << 16)
                            | (quint64(r.direction) << 8) | (r.opcode == kOpKel ? 1 : 0)};
    // A capture of many short-lived streams must not grow this without end.
    if (m_lastFrames.size() > 4096)
        m_lastFrames.clear();
    LastFrame &last = m_lastFrames[key];
    const qsizetype seq = sequenceOffset(r);
    const bool same = qsizetype(last.bytes.size()) == bytes.size() && bytes.size() > seq
                   && std::memcmp(last.bytes.data(), bytes.data(), size_t(seq)) == 0
                   && std::memcmp(last.bytes.data() + seq + 1, bytes.data() + seq + 1, size_t(bytes.size() - seq - 1)) == 0;
    if (same && r.timeNs - last.timeNs < kCollapseWindowNs && r.timeNs >= last.timeNs)
        return true;
    last.timeNs = r.timeNs;
    last.bytes.assign(bytes.data(), bytes.data() + bytes.size());
    return false;
}

bool PacketJournal::append(const PacketEvent &event)
{
    if (!m_enabled)
        return false;
    // Built in a reused scratch record: every field is set below, and skipping
    // a fresh zero-filled record each time is a measurable share of the cost.
    PacketRecord &record = m_scratch;
    record.timeNs = event.timeNs >= 0 ? event.timeNs : wallClockNs();
    record.direction = event.direction;
    if (event.direction == Direction::Out) {
        record.srcIp = event.localIp;
        record.srcPort = event.localPort;
        record.dstIp = event.peerIp;
        record.dstPort = event.peerPort;
    } else {
        record.srcIp = event.peerIp;
        record.srcPort = event.peerPort;
        record.dstIp = event.localIp;
        record.dstPort = event.localPort;
    }
    record.outcome = event.outcome;
    record.reason = event.reason;
    record.error = event.error;
    record.source = RecordSource::Mox;
    record.setDatagram(event.bytes);
    if (record.outcome == Outcome::Ok && record.isDmx() && isRepeat(record, event.bytes)) {
        ++m_collapsed;
        return false;
    }
    append(record);
    return true;
}

void PacketJournal::append(const PacketRecord &record)
{
    nextSlot() = record;
    if (m_queue && !m_queue->push(record))
        ++m_spoolDropped;
}

bool PacketJournal::startSpool(const QString &path, LogMessage *error)
{
    stopSpool();
    auto spool = std::make_unique<SpoolFile>();
    spool->file.setFileName(path);
    const QByteArray header = tlogHeader(wallClockNs());
    if (!spool->file.open(QIODevice::WriteOnly | QIODevice::Truncate) || spool->file.write(header) != header.size()
        || !spool->file.flush()) {
        if (error)
            *error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Cannot write the packet log %1: %2"),
                                {path, spool->file.errorString()});
        return false;
    }
    m_queue = std::make_unique<SpoolQueue>(kSpoolQueueCapacity);
    m_spoolPath = path;
    m_spoolFailed = false;
    {
        std::lock_guard<std::mutex> lock(m_stopMutex);
        m_stopRequested = false;
    }
    m_spoolThread = std::thread([this, file = spool.release()] {
        std::unique_ptr<SpoolFile> owned(file);
        std::vector<PacketRecord> batch(kSpoolBatch);
        QByteArray bytes(qsizetype(kSpoolBatch) * kTlogRecordSize, '\0');
        bool stopping = false;
        while (true) {
            int n;
            while ((n = m_queue->pop(batch.data(), kSpoolBatch)) > 0) {
                auto *p = reinterpret_cast<unsigned char *>(bytes.data());
                for (int i = 0; i < n; ++i)
                    encodeTlogRecord(batch[size_t(i)], p + qsizetype(i) * kTlogRecordSize);
                const qint64 size = qint64(n) * kTlogRecordSize;
                if (!m_spoolFailed && owned->file.write(bytes.constData(), size) != size)
                    m_spoolFailed = true;
                else if (!m_spoolFailed)
                    m_spooled += n;
            }
            if (!m_spoolFailed)
                owned->file.flush();
            if (stopping)
                break;
            std::unique_lock<std::mutex> lock(m_stopMutex);
            // One more drain after a stop request, so nothing queued before it is lost.
            stopping = m_stopCondition.wait_for(lock, std::chrono::milliseconds(kSpoolSleepMs),
                                                [this] { return m_stopRequested; });
        }
        owned->file.close();
    });
    return true;
}

void PacketJournal::stopSpool()
{
    if (!m_spoolThread.joinable())
        return;
    {
        std::lock_guard<std::mutex> lock(m_stopMutex);
        m_stopRequested = true;
    }
    m_stopCondition.notify_all();
    m_spoolThread.join();
    m_queue.reset();
}

int PacketJournal::size() const { return int(std::min<quint64>(m_written, m_mask + 1)); }

const PacketRecord &PacketJournal::at(int index) const
{
    const quint64 first = m_written - quint64(size());
    return m_ring[(first + quint64(index)) & m_mask];
}

std::vector<PacketRecord> PacketJournal::records() const
{
    std::vector<PacketRecord> out;
    out.reserve(size_t(size()));
    for (int i = 0; i < size(); ++i)
        out.push_back(at(i));
    return out;
}

void PacketJournal::clear()
{
    m_written = 0;
    m_lastFrames.clear();
}

JournalCounters PacketJournal::counters() const
{
    JournalCounters c;
    c.appended = qint64(m_written);
    c.collapsed = m_collapsed;
    c.spooled = m_spooled.load();
    c.spoolDropped = m_spoolDropped;
    c.spoolFailed = m_spoolFailed.load();
    return c;
}

} // namespace PacketLog
