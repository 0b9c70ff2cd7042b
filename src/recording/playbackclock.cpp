#include "recording/playbackclock.h"

#include <QMutexLocker>

#include <algorithm>
#include <cmath>

#ifdef Q_OS_WIN
#include <timeapi.h>
#include <windows.h>
#endif

namespace {

// Sleeping is only trusted up to this close to a deadline; the rest is spun.
constexpr qint64 kSpinNs = 1'200'000;
// A measurement window closes after more than one second.
constexpr qint64 kWindowNs = 999'999'999;
// Below this share of the target rate a window counts as slow; two slow
// windows in a row make the warning.
constexpr double kSlowShare = 0.92;
constexpr int kSlowWindowsForWarning = 2;

} // namespace

struct PlaybackClock::RunState
{
    qint64 base = 0; // time the frame count n is counted from
    qint64 n = 0;    // frames since base
    double fps = 0;  // the rate base and period belong to
    qint64 period = 0;
    qint64 deadline = 0;
};

PlaybackClock::PlaybackClock(QObject *parent) : PlaybackClock(makeSystemTimeSource(), parent) {}

PlaybackClock::PlaybackClock(std::unique_ptr<PlaybackTimeSource> timeSource, QObject *parent)
    : QThread(parent), m_time(std::move(timeSource))
{
}

PlaybackClock::~PlaybackClock()
{
    stop();
    wait();
}

double PlaybackClock::clampFps(double fps)
{
    if (std::isnan(fps))
        return kMinFps;
    return std::clamp(fps, kMinFps, kMaxFps);
}

qint64 PlaybackClock::periodNs(double fps)
{
    return qint64(std::floor(1e9 / clampFps(fps)));
}

bool PlaybackClock::fpsDiffers(double a, double b)
{
    return std::abs(a - b) * 1e12 > std::min(std::abs(a), std::abs(b));
}

void PlaybackClock::setFps(double fps)
{
    fps = clampFps(fps);
    QMutexLocker locker(&m_lock);
    if (!fpsDiffers(fps, m_fps))
        return;
    m_fps = fps;
    m_wake.wakeAll();
}

double PlaybackClock::fps() const
{
    QMutexLocker locker(&m_lock);
    return m_fps;
}

void PlaybackClock::setLoop(bool loop)
{
    m_loop = loop;
}

bool PlaybackClock::isLooping() const
{
    return m_loop;
}

void PlaybackClock::setFrameCount(qint64 frames)
{
    QMutexLocker locker(&m_lock);
    m_frameCount = std::max<qint64>(frames, 0);
    m_currentFrame = std::clamp<qint64>(m_currentFrame, 0, std::max<qint64>(m_frameCount - 1, 0));
}

qint64 PlaybackClock::frameCount() const
{
    QMutexLocker locker(&m_lock);
    return m_frameCount;
}

void PlaybackClock::seek(qint64 frame)
{
    QMutexLocker locker(&m_lock);
    // -1 means "no seek pending"; a negative target lands on frame 0 anyway.
    m_pendingSeek = std::max<qint64>(frame, 0);
    if (!m_running) // not playing: the next run starts there
        m_currentFrame = std::clamp<qint64>(m_pendingSeek, 0, std::max<qint64>(m_frameCount - 1, 0));
}

qint64 PlaybackClock::currentFrame() const
{
    QMutexLocker locker(&m_lock);
    return m_currentFrame;
}

void PlaybackClock::acknowledge()
{
    m_tickPending = false;
}

double PlaybackClock::measuredFps() const
{
    QMutexLocker locker(&m_statsLock);
    return m_measuredFps;
}

void PlaybackClock::play()
{
    if (isRunning()) {
        if (m_running)
            return; // already playing
        wait();     // a run that was told to stop is still winding down: let it end first
    }
    m_running = true;
    m_tickPending = false; // a tick left unanswered by the last run must not block this one
    // The thread inherits the owner's scheduling (an explicit priority would
    // reset a real-time policy the program was started with to the default).
    start();
}

void PlaybackClock::stop()
{
    m_running = false;
    QMutexLocker locker(&m_lock); // under the lock, so a thread about to wait cannot miss the wake-up
    m_wake.wakeAll();
}

void PlaybackClock::rebaseOnFpsChange(RunState &state, double newFps, qint64 now)
{
    // Keep the frame that is due on the old grid, but never schedule the
    // next one earlier than one new period from now.
    const qint64 newPeriod = periodNs(newFps);
    state.base = std::max(now - newPeriod, state.deadline - state.period);
    state.n = 0;
    state.fps = newFps;
    state.period = newPeriod;
    state.deadline = state.base + newPeriod;
}

void PlaybackClock::waitForDeadline(RunState &state)
{
    for (;;) {
        const qint64 remaining = state.deadline - m_time->nowNs();
        if (remaining <= 0)
            return;
        if (remaining <= kSpinNs) {
            m_time->yield();
            continue;
        }
        QMutexLocker locker(&m_lock);
        // Checked before sleeping (a change made meanwhile has already woken
        // nobody) and again after every wake-up.
        for (int pass = 0; pass < 2; ++pass) {
            if (!m_running)
                return;
            if (fpsDiffers(m_fps, state.fps)) {
                const double fps = m_fps;
                locker.unlock();
                rebaseOnFpsChange(state, fps, m_time->nowNs());
                break;
            }
            if (pass == 0)
                m_time->waitNs(m_wake, m_lock, remaining - kSpinNs);
        }
    }
}

void PlaybackClock::measure(qint64 now, double targetFps)
{
    bool warn = false;
    double measured = 0;
    {
        QMutexLocker locker(&m_statsLock);
        const qint64 elapsed = now - m_windowStartNs;
        if (elapsed <= kWindowNs)
            return;
        m_measuredFps = elapsed > 0 ? double(m_framesInWindow) / (double(elapsed) / 1e9) : 0;
        measured = m_measuredFps;
        // The first window only arms the measurement: it holds the start-up.
        if (++m_windowsSeen > 1) {
            if (m_measuredFps > 0 && m_measuredFps < kSlowShare * targetFps) {
                if (++m_slowWindows >= kSlowWindowsForWarning && !m_performanceWarned) {
                    m_performanceWarned = true;
                    warn = true;
                }
            } else {
                m_slowWindows = 0;
            }
        }
        m_framesInWindow = 0;
        m_windowStartNs = now;
    }
    if (warn)
        emit performanceWarning(measured);
}

void PlaybackClock::run()
{
#ifdef Q_OS_WIN
    const bool raisedResolution = timeBeginPeriod(1) == TIMERR_NOERROR;
#endif
    RunState state;
    const qint64 start = m_time->nowNs();
    state.base = start;
    {
        QMutexLocker locker(&m_lock);
        state.fps = m_fps;
    }
    state.period = periodNs(state.fps);
    {
        QMutexLocker locker(&m_statsLock);
        m_windowStartNs = start;
        m_framesInWindow = 0;
        m_performanceWarned = false;
        m_windowsSeen = 0;
        m_slowWindows = 0;
    }

    while (m_running) {
        qint64 seekTo = -1;
        double fps = 0;
        {
            QMutexLocker locker(&m_lock);
            seekTo = m_pendingSeek;
            m_pendingSeek = -1;
            fps = m_fps;
            if (m_frameCount < 1)
                break;
            if (seekTo >= 0)
                m_currentFrame = std::clamp<qint64>(seekTo, 0, m_frameCount - 1);
        }
        const qint64 now = m_time->nowNs();
        if (seekTo >= 0) {
            state.base = now;
            state.n = 0;
            state.deadline = state.base + state.period;
        } else {
            state.deadline = state.base + (state.n + 1) * state.period;
        }
        if (fpsDiffers(fps, state.fps))
            rebaseOnFpsChange(state, fps, now);

        waitForDeadline(state);
        if (!m_running)
            break;
        ++state.n;

        qint64 frame = 0;
        bool last = false;
        {
            QMutexLocker locker(&m_lock);
            if (m_frameCount < 1)
                break; // the recording was taken away while waiting
            frame = std::clamp<qint64>(m_currentFrame, 0, m_frameCount - 1);
            if (frame + 1 < m_frameCount)
                m_currentFrame = frame + 1;
            else if (m_loop)
                m_currentFrame = 0;
            else
                last = true; // stays on the last frame
        }
        if (!m_tickPending.exchange(true)) {
            emit tick(frame);
            QMutexLocker locker(&m_statsLock);
            ++m_framesInWindow;
        }
        // else: the consumer has not drawn the last tick; this frame is dropped.
        measure(m_time->nowNs(), state.fps);
        if (last)
            break;
    }

    m_running = false;
    emit finished_();
#ifdef Q_OS_WIN
    if (raisedResolution)
        timeEndPeriod(1);
#endif
}
