#pragma once

#include <QtGlobal>

#include <optional>

class Recording;

// Where two recordings first part: the frame, the universe (Port-Address)
// and the DMX channel (from 1), with each side's value. A universe one frame
// lacks has no channel and no value on that side; a frame one recording
// lacks (one is longer) has no universe.
struct RecordingDifference
{
    qint64 frame = 0;
    std::optional<quint16> portAddress;
    std::optional<int> channel;
    std::optional<int> a;
    std::optional<int> b;
};

// Two recordings compared frame by frame in order, each frame as its set of
// universes and their DMX bytes (the order of the records within a frame and
// their timestamps do not count). This answers "does the show file still
// play what we recorded last night?". Any thread.
struct RecordingDiff
{
    bool identical = false;
    qint64 framesA = 0;
    qint64 framesB = 0;
    qint64 differingFrames = 0; // among the frames both have
    std::optional<RecordingDifference> firstDifference;
};

RecordingDiff compareRecordings(const Recording &a, const Recording &b);
