#pragma once

// Shared by the GPS-Sync tests: a small patch and a set of files made with
// our generator (cli/gpsrecordingmaker.h), which a test then damages.

#include "cli/gpsrecordingmaker.h"
#include "patch/frameorder.h"
#include "patch/patchdata.h"
#include "recording/gpssyncset.h"
#include "testfiles.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

namespace GpsTest {

// A torvoverse with one RGB pixel on channels 1-3, laid out so it is drawable.
inline TPatch::Torvoverse torvoverse(int universe, int subNet = 0, bool drawable = true)
{
    TPatch::Torvoverse t;
    t.universe = quint16(universe);
    t.subNet = quint8(subNet);
    TPatch::PatchFixture f;
    f.hasLayout = true;
    f.rect = QRectF(0, 0, 10, 10);
    f.scenePosX = 20.0 * universe;
    if (drawable) {
        TPatch::LedRecord led;
        led.roles = {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue, 0, 0, 0};
        f.leds.append(led);
    }
    t.fixtures.append(f);
    return t;
}

// "Front" on universes 1 and 2, "Back_Stage Left" (underscore and space) on 3, "Roof" on 4, 5 and 6.
inline TPatch::PatchData patch(bool drawable = true)
{
    TPatch::PatchData p;
    const QStringList names{QStringLiteral("Front"), QStringLiteral("Back_Stage Left"),
                            QStringLiteral("Roof")};
    const QVector<QVector<int>> universes{{1, 2}, {3}, {4, 5, 6}};
    for (int g = 0; g < names.size(); ++g) {
        TPatch::PatchGroup group;
        group.groupName = names.at(g);
        for (int u : universes.at(g))
            group.torvoverses.append(torvoverse(u, 0, drawable));
        p.groups.append(group);
    }
    return p;
}

constexpr int kFrames = 20;
constexpr int kLength = 12; // data bytes per record
constexpr int kRecordSize = 18 + kLength + 2;

// The file of group g as the controller writes it: correct in every respect.
inline GpsRecordingPlan plan(const TPatch::PatchData &p, int group, qint64 frames = kFrames)
{
    GpsRecordingPlan s;
    s.universes = TPatch::expectedFrameOrder(p).groupUniverses(group);
    s.lengths = QVector<int>(s.universes.size(), kLength);
    s.frames = frames;
    s.fps = 40;
    return s;
}

inline GpsDataSource pattern()
{
    return [](qint64 frame, int slot, char *data, int length) {
        for (int i = 0; i < length; ++i)
            data[i] = char(frame + slot + i);
    };
}

inline QByteArray fileBytes(const TPatch::PatchData &p, int group, qint64 frames = kFrames)
{
    return gpsRecordingBytes(plan(p, group, frames), pattern());
}

using TestFiles::write;

// Writes group g's file into dir as "<session>_<group name>.tpx"; its path.
inline QString writeGroup(const QString &dir, const TPatch::PatchData &p, int group, const QByteArray &bytes,
                          const QString &session = QStringLiteral("show"))
{
    return write(QDir(dir).filePath(QStringLiteral("%1_%2.tpx").arg(session, p.groups.at(group).groupName)),
                 bytes);
}

// A fresh set of the patch's groups, loaded from these paths (without the patch when withPatch is false).
inline const GpsVerification &load(GpsSyncSet &set, const TPatch::PatchData &p, const QStringList &paths,
                                   bool withPatch = true)
{
    set.setGroups(p);
    set.setPaths(paths);
    return set.load(withPatch ? &p : nullptr);
}

// Offset of record r (counted over the whole file) in a file of uniform records.
inline qsizetype recordOffset(qint64 record)
{
    return qsizetype(143 + record * kRecordSize);
}

inline void setStamp(QByteArray *bytes, qint64 record, quint16 stamp)
{
    qToLittleEndian<quint16>(stamp, bytes->data() + recordOffset(record) + kRecordSize - 2);
}

} // namespace GpsTest
