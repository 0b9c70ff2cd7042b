#pragma once

#include "recording/gpsmetadatablock.h"
#include "recording/recording.h"

#include <QString>

#include <memory>

// One member of a GPS-Sync set: a group's file, loaded as a set member
// (the reader's quiet option), with what the verifier reads from it.
// Move-only: the Recording holds the file's bytes.
struct GpsSetMember
{
    QString groupName;
    QString path;
    std::unique_ptr<Recording> recording = std::make_unique<Recording>();
    RecordingLoadResult loadResult;
    bool gpsSync = false;
    GpsMetadataBlock block;        // zero unless gpsSync
    qint64 measuredFrameBytes = 0; // header + data + timestamp over the records of frame 0
    qint64 frameCount = 0;         // 0 when the file could not be read

    bool isReadable() const { return loadResult.ok; }
    QString fileName() const;

    // Loads path (nothing happens for an empty path). GUI thread.
    void load(const TPatch::PatchData *patch);
};
