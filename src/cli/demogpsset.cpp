#include "cli/demogpsset.h"

#include "cli/demopatch.h"
#include "cli/demorecording.h"
#include "cli/gpsrecordingmaker.h"
#include "patch/frameorder.h"

#include <QDir>

#include <cstring>

using namespace TPatch;

bool writeDemoGpsSet(const QString &folder, QString *error)
{
    if (!QDir().mkpath(folder)) {
        *error = QStringLiteral("cannot create the folder");
        return false;
    }
    const PatchData patch = makeDemoPatch();
    const FrameOrder order = expectedFrameOrder(patch);
    for (int g = 0; g < patch.groups.size(); ++g) {
        const PatchGroup &group = patch.groups.at(g);
        GpsRecordingPlan plan;
        plan.universes = order.groupUniverses(g);
        plan.frames = kDemoGpsFrames;
        plan.fps = kDemoGpsFps;
        // Each torvoverse sends as many channels as its fixtures use, the
        // same in every frame, as the demo recording does.
        for (const Torvoverse &t : group.torvoverses)
            plan.lengths.append(int(demoUniverseData(t, g, 0).size()));
        const GpsDataSource source = [&](qint64 frame, int slot, char *data, int length) {
            const QByteArray bytes =
                demoUniverseData(group.torvoverses.at(slot), g, frame / double(kDemoGpsFps));
            std::memcpy(data, bytes.constData(), size_t(std::min<qsizetype>(length, bytes.size())));
        };
        const QString path = QDir(folder).filePath(QStringLiteral("demo_%1.tpx").arg(group.groupName));
        QString reason;
        if (!writeGpsRecording(path, plan, source, &reason)) {
            *error = QStringLiteral("%1: %2").arg(path, reason);
            return false;
        }
    }
    return true;
}
