#pragma once

#include "patch/patchdata.h"
#include "recording/gpssetmember.h"
#include "recording/gpsverification.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <vector>

// One record of a set's frame, ready to be drawn: the Port-Address its data
// belongs to and the DMX slots (a view into the member's file).
struct GpsFrameRecord
{
    quint16 portAddress = 0;
    QByteArrayView data;
};

// A GPS-Sync set: one recording per patch group, played together from one
// clock, frame n of every file at the same instant.
//
// Life: setGroups (from the patch) → setPaths or autoFill → load (verifies
// and arms) → frame(n) per clock tick → unload when the paths change.
// The set is armed for frames 0 .. frameCount() - 1 whenever every member has
// at least one complete frame, even when checks failed, so that the failure
// can be seen on the monitor.
//
// Threads: GUI thread only (loading reads the files; frame() reads the loaded
// bytes and may be called from any thread while no load or unload runs).
class GpsSyncSet
{
public:
    GpsSyncSet() = default;
    GpsSyncSet(const GpsSyncSet &) = delete;
    GpsSyncSet &operator=(const GpsSyncSet &) = delete;

    // The patch's groups, in order; unloads and clears every path.
    void setGroups(const TPatch::PatchData &patch);
    QStringList groupNames() const;
    int groupCount() const { return int(m_members.size()); }

    // One path per group, in group order (missing entries are empty); unloads.
    void setPaths(const QStringList &paths);
    QStringList paths() const;
    // Fills the groups that a file in folder matches (GpsFolderMatch) and
    // keeps the other paths; returns how many groups matched. Unloads when
    // anything matched.
    int autoFill(const QString &folder);

    // Loads and verifies every member against patch (null: no patch loaded)
    // and arms the set when every member has a complete frame.
    const GpsVerification &load(const TPatch::PatchData *patch);
    void unload();

    bool isLoaded() const { return m_loaded; }
    qint64 frameCount() const { return m_loaded ? m_verification.frameCount : 0; }
    const GpsVerification &verification() const { return m_verification; }
    const GpsSetMember &member(int group) const { return m_members.at(size_t(group)); }

    // Every member's records of frame n, group by group; empty when not
    // loaded or n is outside 0 .. frameCount() - 1. A record written with
    // the controller's GPS universe field is given under its slot's
    // Port-Address (see GpsPatchExpectation).
    QVector<GpsFrameRecord> frame(qint64 n) const;
    // The distinct Port-Addresses the members carry, ascending (for the DMX inspector).
    QVector<quint16> universes() const;
    // The timestamp spread across the members at frame n, in whole seconds:
    // the largest stamp of the frame's first and last records minus the
    // smallest. Stamps are whole numbers, so nothing is rounded. 0 when not loaded.
    int timestampDifferenceAt(qint64 n) const;

private:
    std::vector<GpsSetMember> m_members;
    std::vector<QVector<quint16>> m_slotPortAddresses; // per group: the patch's Port-Address per slot
    std::vector<QVector<quint16>>
        m_slotRecordUniverses; // per group: the controller's GPS universe field per slot
    GpsVerification m_verification;
    bool m_loaded = false;
};
