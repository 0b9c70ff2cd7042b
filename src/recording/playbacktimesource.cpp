#include "recording/playbacktimesource.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <chrono>

namespace {

class SystemTimeSource final : public PlaybackTimeSource
{
public:
    SystemTimeSource() { m_timer.start(); }

    qint64 nowNs() override { return m_timer.nsecsElapsed(); }

    void waitNs(QWaitCondition &wake, QMutex &lock, qint64 timeoutNs) override
    {
        wake.wait(&lock, QDeadlineTimer(std::chrono::nanoseconds(timeoutNs), Qt::PreciseTimer));
    }

    void yield() override { QThread::yieldCurrentThread(); }

private:
    QElapsedTimer m_timer;
};

} // namespace

std::unique_ptr<PlaybackTimeSource> makeSystemTimeSource()
{
    return std::make_unique<SystemTimeSource>();
}
