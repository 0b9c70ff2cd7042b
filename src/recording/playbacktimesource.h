#pragma once

#include <QtGlobal>

#include <memory>

class QMutex;
class QWaitCondition;

// Where the playback clock takes its time from, and how it waits. The
// program uses the system's monotonic clock; tests put in a clock that
// advances only when the playback clock waits, so that every run is the
// same sequence of ticks, however loaded the test machine is.
//
// All methods are called on the playback clock's thread.
class PlaybackTimeSource
{
public:
    virtual ~PlaybackTimeSource() = default;

    // Monotonic nanoseconds from an arbitrary origin.
    virtual qint64 nowNs() = 0;
    // Waits on wake (lock held, as for QWaitCondition::wait) for at most timeoutNs.
    virtual void waitNs(QWaitCondition &wake, QMutex &lock, qint64 timeoutNs) = 0;
    // Gives up the processor for a moment while spinning towards a deadline.
    virtual void yield() = 0;
};

// QElapsedTimer's monotonic clock, wait-condition sleeps and thread yields.
std::unique_ptr<PlaybackTimeSource> makeSystemTimeSource();
