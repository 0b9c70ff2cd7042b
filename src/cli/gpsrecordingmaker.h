#pragma once

#include "recording/gpsmetadatablock.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>

// Our generator of GPS-Sync recordings (one group's file), for the demo set,
// tests and benchmarks: the 143-byte block, then per frame one plain ArtDmx
// record per universe in the given order, each stamped from the frame clock
// as RecordingWriter stamps it (frame × fps ÷ 1000, 16 bits).
struct GpsRecordingPlan
{
    QVector<quint16> universes; // the universe field of each record of a frame, in order
    QVector<int> lengths;       // data length of each record (0 .. 512), same size as universes
    qint64 frames = 0;
    int fps = 40;
};

// Fills one record's data (length bytes, zeroed beforehand).
using GpsDataSource = std::function<void(qint64 frame, int slot, char *data, int length)>;

// The block that truthfully describes plan's file.
GpsMetadataBlock gpsBlockFor(const GpsRecordingPlan &plan);
// The stamp of frame n at fps.
quint16 gpsFrameStamp(qint64 frame, int fps);
// One frame's records.
QByteArray gpsFrameBytes(const GpsRecordingPlan &plan, qint64 frame, const GpsDataSource &source = {});
// The whole file in memory (block and every frame): for small files.
QByteArray gpsRecordingBytes(const GpsRecordingPlan &plan, const GpsDataSource &source = {});
// Streams the file to path (overwritten); on failure false with the reason in *error.
bool writeGpsRecording(const QString &path, const GpsRecordingPlan &plan, const GpsDataSource &source,
                       QString *error);
