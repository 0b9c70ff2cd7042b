#pragma once

#include "recording/playbacktimesource.h"

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>
#include <memory>

// Paces playback: on its own thread it advances a frame index against a
// monotonic clock and tells the GUI thread which frame to draw through tick.
//
// Deadlines are counted from a base time, so lateness never accumulates. The
// thread sleeps until 1.2 ms before a deadline and spins with yields for the
// rest (a sleep alone wakes up to a scheduler quantum late). At most one tick
// is outstanding: until the consumer calls acknowledge(), frames that fall due
// are dropped, so a slow GUI skips frames instead of falling behind. When the
// emitted rate stays below 92 % of the target for two one-second windows,
// performanceWarning reports the achievable rate, once per run.
//
// Threads: every public method may be called from the GUI thread; the
// signals are emitted on the clock's thread (connect queued, the default).
class PlaybackClock : public QThread
{
    Q_OBJECT

public:
    explicit PlaybackClock(QObject *parent = nullptr);
    // Takes its time from timeSource (tests inject a controlled one).
    explicit PlaybackClock(std::unique_ptr<PlaybackTimeSource> timeSource, QObject *parent = nullptr);
    // Stops the thread and joins it.
    ~PlaybackClock() override;

    static constexpr double kMinFps = 0.1;
    static constexpr double kMaxFps = 1000.0;
    static double clampFps(double fps);
    // floor(1e9 / fps) for the clamped rate: 25 000 000 at 40 fps.
    static qint64 periodNs(double fps);
    // Whether two rates differ by more than rounding (|a - b| * 1e12 > min(|a|, |b|)).
    static bool fpsDiffers(double a, double b);

    void setFps(double fps);
    double fps() const;
    void setLoop(bool loop);
    bool isLooping() const;
    // Frames in the recording or set; set before play().
    void setFrameCount(qint64 frames);
    qint64 frameCount() const;
    // Moves playback to frame (clamped to the recording) at the thread's next step.
    void seek(qint64 frame);
    // The frame the next tick will show.
    qint64 currentFrame() const;
    // The consumer has drawn the last tick; the next one may be emitted.
    void acknowledge();
    double measuredFps() const;

    // Starts the thread (running); does nothing while already playing, and
    // after a stop() first lets the stopped run end. stop() clears running
    // and wakes the thread; the owner waits for it (QThread::wait) when it
    // has to be gone.
    void play();
    void stop();
    bool isPlaying() const { return m_running.load(); }

signals:
    void tick(qint64 frame);
    void finished_();
    void performanceWarning(double achievableFps);

protected:
    void run() override;

private:
    struct RunState;
    void waitForDeadline(RunState &state);
    void rebaseOnFpsChange(RunState &state, double newFps, qint64 now);
    void measure(qint64 now, double targetFps);

    std::unique_ptr<PlaybackTimeSource> m_time;

    std::atomic<bool> m_running{false};
    std::atomic<bool> m_tickPending{false};
    std::atomic<bool> m_loop{false};
    mutable QMutex m_lock;
    QWaitCondition m_wake;
    double m_fps = 40.0;
    qint64 m_frameCount = 0;
    qint64 m_currentFrame = 0;
    qint64 m_pendingSeek = -1;

    mutable QMutex m_statsLock;
    qint64 m_framesInWindow = 0;
    qint64 m_windowStartNs = 0;
    double m_measuredFps = 0;
    bool m_performanceWarned = false;
    qint32 m_windowsSeen = 0;
    qint32 m_slowWindows = 0;
};
