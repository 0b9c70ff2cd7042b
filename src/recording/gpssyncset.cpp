#include "recording/gpssyncset.h"

#include "recording/gpsfoldermatch.h"
#include "recording/gpspatchexpectation.h"
#include "recording/gpsverifier.h"

#include <algorithm>

void GpsSyncSet::setGroups(const TPatch::PatchData &patch)
{
    unload();
    m_members.clear();
    m_slotPortAddresses.clear();
    m_slotRecordUniverses.clear();
    m_members.resize(size_t(patch.groups.size()));
    for (int g = 0; g < patch.groups.size(); ++g)
        m_members[size_t(g)].groupName = GpsPatchExpectation::groupCaption(patch.groups.at(g), g);
}

QStringList GpsSyncSet::groupNames() const
{
    QStringList out;
    for (const GpsSetMember &m : m_members)
        out.append(m.groupName);
    return out;
}

void GpsSyncSet::setPaths(const QStringList &paths)
{
    unload();
    for (size_t g = 0; g < m_members.size(); ++g)
        m_members[g].path = g < size_t(paths.size()) ? paths.at(qsizetype(g)) : QString();
}

QStringList GpsSyncSet::paths() const
{
    QStringList out;
    for (const GpsSetMember &m : m_members)
        out.append(m.path);
    return out;
}

int GpsSyncSet::autoFill(const QString &folder)
{
    const GpsFolderMatch match = GpsFolderMatch::match(folder, groupNames());
    if (match.matched == 0)
        return 0;
    unload();
    for (size_t g = 0; g < m_members.size(); ++g)
        if (!match.paths.at(qsizetype(g)).isEmpty())
            m_members[g].path = match.paths.at(qsizetype(g));
    return match.matched;
}

const GpsVerification &GpsSyncSet::load(const TPatch::PatchData *patch)
{
    unload();
    const GpsPatchExpectation expected =
        patch ? GpsPatchExpectation::fromPatch(*patch) : GpsPatchExpectation{};
    m_verification = GpsVerifier::verify(patch, expected, &m_members);
    if (patch) {
        for (const GpsGroupExpectation &g : expected.groups) {
            m_slotPortAddresses.push_back(g.portAddresses);
            m_slotRecordUniverses.push_back(g.recordUniverses);
        }
    }
    m_loaded = m_verification.armable;
    return m_verification;
}

void GpsSyncSet::unload()
{
    m_loaded = false;
    m_verification = GpsVerification{};
    m_slotPortAddresses.clear();
    m_slotRecordUniverses.clear();
    for (GpsSetMember &m : m_members) {
        m.recording->reset();
        m.loadResult = RecordingLoadResult{};
        m.frameCount = 0;
    }
}

QVector<GpsFrameRecord> GpsSyncSet::frame(qint64 n) const
{
    QVector<GpsFrameRecord> out;
    if (!m_loaded || n < 0 || n >= m_verification.frameCount)
        return out;
    for (size_t g = 0; g < m_members.size(); ++g) {
        const Recording &r = *m_members[g].recording;
        const QVector<RecordRef> records = r.frameRecords(n);
        for (int slot = 0; slot < records.size(); ++slot) {
            quint16 universe = records.at(slot).universe;
            if (g < m_slotPortAddresses.size() && slot < m_slotPortAddresses[g].size() &&
                universe != m_slotPortAddresses[g].at(slot) && universe == m_slotRecordUniverses[g].at(slot))
                universe = m_slotPortAddresses[g].at(slot);
            out.append(GpsFrameRecord{universe, r.dataOf(records.at(slot))});
        }
    }
    return out;
}

QVector<quint16> GpsSyncSet::universes() const
{
    QVector<quint16> out;
    if (!m_loaded)
        return out;
    for (const GpsFrameRecord &record : frame(0))
        out.append(record.portAddress);
    std::sort(out.begin(), out.end());
    out.erase(std::unique(out.begin(), out.end()), out.end());
    return out;
}

int GpsSyncSet::timestampDifferenceAt(qint64 n) const
{
    if (!m_loaded || n < 0 || n >= m_verification.frameCount)
        return 0;
    int low = 65536;
    int high = -1;
    for (const GpsSetMember &m : m_members) {
        const Recording &r = *m.recording;
        const int perFrame = r.recordsPerFrame();
        if (perFrame < 1)
            continue;
        const int t0 = r.timestampOf(r.recordAt(n, 0));
        const int tL = r.timestampOf(r.recordAt(n, perFrame - 1));
        low = std::min({low, t0, tL});
        high = std::max({high, t0, tL});
    }
    return high >= low ? high - low : 0;
}
