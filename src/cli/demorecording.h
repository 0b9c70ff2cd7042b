#pragma once

#include "patch/patchdata.h"

#include <QByteArray>
#include <QString>

// The bundled demo recording (examples/demo.tpx): four seconds at 30 fps of
// the demo patch (makeDemoPatch), one record per torvoverse per frame in the
// patch's order, written through RecordingWriter. A colour wave runs across
// the groups and the ball curtain's winches move. Deterministic: the same
// build always writes the same bytes. Overwrites path; on failure returns
// false with the reason in *error.
bool writeDemoRecording(const QString &path, QString *error);

constexpr int kDemoRecordingFps = 30;
constexpr int kDemoRecordingFrames = 120;

// One torvoverse's DMX data in the demo animation at time (seconds): what
// the demo recordings carry for it. group is its group's index.
QByteArray demoUniverseData(const TPatch::Torvoverse &torvoverse, int group, double time);
