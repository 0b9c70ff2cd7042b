#include "live/healthanalyser.h"

#include <QCoreApplication>

#include <algorithm>

namespace Health {

namespace {

constexpr int kCycle = 255;
constexpr int kHalfCycle = 127;
constexpr qint64 kSecondNs = 1'000'000'000LL;

// Counts an arrival in one-second windows: the rate is the last full second's count.
void countInWindow(qint64 timeNs, qint64 *startNs, qint64 *count, qint64 *lastCount)
{
    if (timeNs - *startNs >= kSecondNs) {
        *lastCount = timeNs - *startNs < 2 * kSecondNs ? *count : 0;
        *startNs = timeNs;
        *count = 0;
    }
    ++*count;
}

// Steps forward from a to b in the cycle 1-255 (0 when equal).
int forward(int a, int b)
{
    return ((b - a) % kCycle + kCycle) % kCycle;
}

int step(int number, int by)
{
    return ((number - 1 + by) % kCycle + kCycle) % kCycle + 1;
}

} // namespace

namespace {

struct Definition
{
    const char *counter;
    const char *text;
};

const Definition kDefinitions[] = {
    {"packets", QT_TRANSLATE_NOOP("Health", "ArtDmx packets received for this universe.")},
    {"fps", QT_TRANSLATE_NOOP("Health", "Packets per second: over the last second live, over the whole file "
                                        "otherwise.")},
    {"lost", QT_TRANSLATE_NOOP("Health", "Sequence numbers skipped by forward jumps (shorter than half the 1-255 "
                                         "cycle, across the wrap from 255 to 1), less those that arrived late: a "
                                         "swapped pair loses nothing.")},
    {"outOfOrder", QT_TRANSLATE_NOOP("Health", "Packets that arrived behind the highest sequence number seen so far "
                                               "(a backward step shorter than half the cycle).")},
    {"duplicates", QT_TRANSLATE_NOOP("Health", "Packets repeating the highest sequence number seen so far.")},
    {"lengthChanges", QT_TRANSLATE_NOOP("Health", "Times the data length changed from one packet to the next.")},
    {"lastSeenMs", QT_TRANSLATE_NOOP("Health", "Milliseconds since the last packet.")},
    {"intervals", QT_TRANSLATE_NOOP("Health", "The shortest, median and longest time between two packets, in ms "
                                              "(the median of the latest 64).")},
    {"syncMissed", QT_TRANSLATE_NOOP("Health", "ArtSync periods in which the universe came twice or not at all (a "
                                               "torn frame).")},
    {"state", QT_TRANSLATE_NOOP("Health", "never: patched, nothing received; stale: nothing for more than 4 s; "
                                          "conflict: two or more senders; unstable: over 1 % of packets lost, out "
                                          "of order or repeated, or a longest interval over 4 times the median and "
                                          "over 100 ms; ok: none of these.")},
};

const char *definitionSource(const QString &counter)
{
    for (const Definition &d : kDefinitions)
        if (counter == QLatin1String(d.counter))
            return d.text;
    return nullptr;
}

} // namespace

QString definition(const QString &counter)
{
    const char *text = definitionSource(counter);
    return text ? QString::fromLatin1(text) : QString();
}

QString translatedDefinition(const QString &counter)
{
    const char *text = definitionSource(counter);
    return text ? QCoreApplication::translate("Health", text) : QString();
}

void Analyser::addDmx(qint64 timeNs, quint32 address, quint16 port, quint16 portAddress, quint8 sequence,
                      int length)
{
    m_lastNs = std::max(m_lastNs, timeNs);
    Universe &u = *universeOf(portAddress);
    ++u.sinceSync;
    const quint64 key = (quint64(address) << 16) | port;
    auto found = std::find_if(u.sources.begin(), u.sources.end(), [key](const auto &e) { return e.first == key; });
    if (found == u.sources.end()) {
        u.sources.emplace_back(key, Source());
        std::sort(u.sources.begin(), u.sources.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
        found = std::find_if(u.sources.begin(), u.sources.end(), [key](const auto &e) { return e.first == key; });
    }
    Source &s = found->second;
    if (s.packets > 0) {
        // Times that step back (a merged capture, a clock set) count as no interval.
        const qint64 interval = std::max<qint64>(0, timeNs - s.lastNs);
        s.minIntervalNs = s.minIntervalNs < 0 ? interval : std::min(s.minIntervalNs, interval);
        s.maxIntervalNs = std::max(s.maxIntervalNs, interval);
        // A ring of the latest intervals: the median is taken when asked, not per packet.
        const auto us = qint32(std::clamp<qint64>(interval / 1000, 0, INT32_MAX));
        s.intervalsUs[s.nextInterval] = us;
        s.nextInterval = (s.nextInterval + 1) % kIntervalsKept;
        s.intervalCount = std::min(s.intervalCount + 1, kIntervalsKept);
        if (length != s.lastLength)
            ++s.lengthChanges;
    } else {
        s.firstNs = timeNs;
    }
    ++s.packets;
    s.lastNs = timeNs;
    s.lastLength = length;
    if (m_live)
        countInWindow(timeNs, &s.windowStartNs, &s.windowCount, &s.lastWindowCount);
    if (sequence == 0)
        return; // not numbered
    if (s.highest == 0) {
        s.highest = sequence;
        return;
    }
    const int d = forward(s.highest, sequence);
    if (d == 0) {
        ++s.duplicates;
    } else if (d <= kHalfCycle) {
        // The numbers skipped may still come; those half a cycle behind no longer can.
        for (int k = 1; k < d; ++k)
            s.missing[size_t(step(s.highest, k))] = true;
        for (int k = 0; k < d; ++k)
            s.missing[size_t(step(sequence, -kHalfCycle - 1 - k))] = false;
        s.lost += d - 1;
        s.highest = sequence;
        s.missing[sequence] = false;
    } else {
        ++s.outOfOrder;
        if (s.missing[sequence]) {
            s.missing[sequence] = false;
            --s.lost;
        }
    }
}

void Analyser::addSync(qint64 timeNs, quint32, quint16)
{
    m_lastNs = std::max(m_lastNs, timeNs);
    // A universe sent twice, or not at all, between two ArtSync packets missed a sync.
    for (const std::unique_ptr<Universe> &u : m_universes) {
        if (!u)
            continue;
        if (m_syncPackets > 0 && u->sinceSync != 1)
            ++u->syncMissed;
        u->sinceSync = 0;
    }
    if (m_syncPackets == 0)
        m_firstSyncNs = timeNs;
    ++m_syncPackets;
    m_lastSyncNs = timeNs;
    if (m_live)
        countInWindow(timeNs, &m_syncWindowStartNs, &m_syncWindowCount, &m_lastSyncWindowCount);
}

Analyser::Universe *Analyser::universeOf(quint16 portAddress)
{
    if (m_universes.empty())
        m_universes.resize(0x8000);
    std::unique_ptr<Universe> &u = m_universes[portAddress & 0x7FFF];
    if (!u)
        u = std::make_unique<Universe>();
    return u.get();
}

void Analyser::reset()
{
    m_universes.clear();
    m_syncPackets = 0;
    m_firstSyncNs = m_lastSyncNs = 0;
    m_syncWindowStartNs = m_syncWindowCount = m_lastSyncWindowCount = 0;
    m_lastNs = 0;
}

double Analyser::fpsOf(const Source &s, qint64 nowNs) const
{
    if (m_live) // the last full second, or nothing when the sender has been silent since
        return nowNs - s.windowStartNs < 2 * kSecondNs ? double(s.lastWindowCount) : 0.0;
    const qint64 span = s.lastNs - s.firstNs;
    return span > 0 ? double(s.packets - 1) * 1e9 / double(span) : 0.0;
}

QVector<UniverseHealth> Analyser::universes(qint64 nowNs, const QVector<quint16> &patched) const
{
    QVector<UniverseHealth> out;
    for (size_t index = 0; index < m_universes.size(); ++index) {
        if (!m_universes[index])
            continue;
        const Universe &u = *m_universes[index];
        UniverseHealth h;
        h.portAddress = quint16(index);
        h.syncMissed = u.syncMissed;
        qint64 lastNs = 0, longest = 0;
        double medianMs = 0;
        int recentSenders = 0;
        for (const auto &[key, s] : u.sources) {
            SourceHealth sh;
            sh.address = quint32(key >> 16);
            sh.port = quint16(key & 0xFFFF);
            sh.packets = s.packets;
            sh.fps = fpsOf(s, nowNs);
            sh.lost = s.lost;
            sh.outOfOrder = s.outOfOrder;
            sh.duplicates = s.duplicates;
            sh.lengthChanges = s.lengthChanges;
            sh.lastSeenMs = std::max<qint64>(0, (nowNs - s.lastNs) / 1'000'000);
            std::vector<qint32> sorted(s.intervalsUs.begin(), s.intervalsUs.begin() + qsizetype(s.intervalCount));
            std::sort(sorted.begin(), sorted.end());
            sh.minIntervalMs = s.minIntervalNs < 0 ? 0 : double(s.minIntervalNs) / 1e6;
            sh.maxIntervalMs = double(s.maxIntervalNs) / 1e6;
            sh.medianIntervalMs = sorted.empty() ? 0 : double(sorted[sorted.size() / 2]) / 1e3;
            h.packets += sh.packets;
            h.fps += sh.fps;
            h.lost += sh.lost;
            h.outOfOrder += sh.outOfOrder;
            h.duplicates += sh.duplicates;
            h.lengthChanges += sh.lengthChanges;
            lastNs = std::max(lastNs, s.lastNs);
            if (s.maxIntervalNs > longest) {
                longest = s.maxIntervalNs;
                medianMs = sh.medianIntervalMs;
            }
            if (nowNs - s.lastNs <= kStaleNs)
                ++recentSenders;
            h.sources.append(sh);
        }
        if (!u.sources.empty())
            h.lastSeenMs = std::max<qint64>(0, (nowNs - lastNs) / 1'000'000);
        const qint64 faults = h.lost + h.outOfOrder + h.duplicates;
        if (nowNs - lastNs > kStaleNs)
            h.state = QStringLiteral("stale");
        else if (recentSenders >= 2)
            h.state = QStringLiteral("conflict");
        else if (faults * 100 > h.packets || (medianMs > 0 && longest > 100'000'000 && double(longest) / 1e6 > 4 * medianMs))
            h.state = QStringLiteral("unstable");
        else
            h.state = QStringLiteral("ok");
        out.append(h);
    }
    for (const quint16 p : patched) {
        if (size_t(p) >= m_universes.size() || !m_universes[p]) {
            UniverseHealth h;
            h.portAddress = p;
            h.state = QStringLiteral("never");
            out.append(h);
        }
    }
    std::sort(out.begin(), out.end(), [](const auto &a, const auto &b) { return a.portAddress < b.portAddress; });
    out.erase(std::unique(out.begin(), out.end(),
                          [](const auto &a, const auto &b) { return a.portAddress == b.portAddress; }),
              out.end());
    return out;
}

SyncHealth Analyser::sync() const
{
    SyncHealth s;
    s.seen = m_syncPackets > 0;
    s.packets = m_syncPackets;
    if (m_live)
        s.fps = double(m_lastSyncWindowCount);
    else if (m_lastSyncNs > m_firstSyncNs)
        s.fps = double(m_syncPackets - 1) * 1e9 / double(m_lastSyncNs - m_firstSyncNs);
    return s;
}

} // namespace Health
