#pragma once

#include <QString>
#include <QVector>

#include <array>
#include <bitset>
#include <memory>
#include <vector>

// Network health per universe and per source: frame rate, intervals, the
// sequence faults, length changes, and whether the universe is fed at all,
// by one sender, steadily; plus ArtSync. Fed packet by packet with the
// packet's own time, from the live node, a recording or a capture, so a show
// can be diagnosed afterwards from a file. Pure logic; any thread, not shared.
//
// Sequence numbers run 1-255 (0: the sender does not number its packets).
// Against the highest number seen so far:
//   outOfOrder  a packet behind it (a backward step shorter than half the cycle);
//   duplicates  a packet repeating it;
//   lost        the numbers a forward jump (shorter than half the cycle, across
//               the wrap from 255 to 1) skips, less those that arrive late, so a
//               swapped pair is one out-of-order packet and nothing lost.
// A universe's state: "never" (patched, nothing received), "stale" (nothing for
// more than the 4 s keep-alive), "conflict" (two or more senders within it),
// "unstable" (more than 1 % of its packets lost, out of order or repeated, or a
// longest interval over 4 times the median and over 100 ms), else "ok".
namespace Health {

struct SourceHealth
{
    quint32 address = 0;
    quint16 port = 0;
    qint64 packets = 0;
    double fps = 0;
    qint64 lost = 0;
    qint64 outOfOrder = 0;
    qint64 duplicates = 0;
    qint64 lengthChanges = 0;
    qint64 lastSeenMs = 0;      // before now
    double minIntervalMs = 0;
    double medianIntervalMs = 0;
    double maxIntervalMs = 0;
};

struct UniverseHealth
{
    quint16 portAddress = 0;
    QString state; // "never", "stale", "conflict", "unstable", "ok"
    qint64 packets = 0;
    double fps = 0;
    qint64 lost = 0;
    qint64 outOfOrder = 0;
    qint64 duplicates = 0;
    qint64 syncMissed = 0; // sync periods in which it came twice or not at all
    qint64 lengthChanges = 0; // of all its senders
    qint64 lastSeenMs = -1;   // since its latest packet from any sender; -1: never
    QVector<SourceHealth> sources;
};

struct SyncHealth
{
    bool seen = false;
    qint64 packets = 0;
    double fps = 0;
};

// The definition of a counter ("packets", "fps", "lost", "outOfOrder",
// "duplicates", "lengthChanges", "lastSeenMs", "intervals", "syncMissed",
// "state"), in English as talu-cli shows it; empty for an unknown counter.
QString definition(const QString &counter);
// The same in the user's language, for tooltips.
QString translatedDefinition(const QString &counter);

class Analyser
{
public:
    static constexpr qint64 kStaleNs = 4'000'000'000LL;

    // live: fps over the last second; otherwise over the whole stream.
    explicit Analyser(bool live = false) : m_live(live) {}

    void addDmx(qint64 timeNs, quint32 address, quint16 port, quint16 portAddress, quint8 sequence, int length);
    void addSync(qint64 timeNs, quint32 address, quint16 port);
    void reset();

    // Every universe seen, and the patched ones never seen, ascending.
    QVector<UniverseHealth> universes(qint64 nowNs, const QVector<quint16> &patched = {}) const;
    SyncHealth sync() const;
    qint64 lastTimeNs() const { return m_lastNs; }

private:
    // About 1.5 s at 44 Hz: little to touch per packet on thousands of universes.
    static constexpr size_t kIntervalsKept = 64;
    struct Source
    {
        qint64 packets = 0;
        qint64 firstNs = 0, lastNs = 0;
        int lastLength = -1;
        quint8 highest = 0;                // 0: no numbered packet yet
        std::bitset<256> missing;          // numbers skipped that may still arrive
        qint64 lost = 0, outOfOrder = 0, duplicates = 0, lengthChanges = 0;
        // A ring of the latest intervals, for the median; kept inline, as the
        // rest, so a packet touches one block of memory per sender.
        std::array<qint32, kIntervalsKept> intervalsUs{};
        size_t intervalCount = 0, nextInterval = 0;
        qint64 minIntervalNs = -1, maxIntervalNs = 0;
        qint64 windowStartNs = 0;          // live: packets counted in one-second windows
        qint64 windowCount = 0;
        qint64 lastWindowCount = 0;        // the last full second
    };
    struct Universe
    {
        std::vector<std::pair<quint64, Source>> sources; // by (address << 16) | port: one or two, rarely more
        int sinceSync = 0;
        qint64 syncMissed = 0;
    };
    double fpsOf(const Source &s, qint64 nowNs) const;

    bool m_live;
    Universe *universeOf(quint16 portAddress);
    // By Port-Address (15 bits): one pointer each, made on a universe's first packet.
    std::vector<std::unique_ptr<Universe>> m_universes;
    qint64 m_syncPackets = 0, m_firstSyncNs = 0, m_lastSyncNs = 0;
    qint64 m_syncWindowStartNs = 0, m_syncWindowCount = 0, m_lastSyncWindowCount = 0;
    qint64 m_lastNs = 0;
};

} // namespace Health
