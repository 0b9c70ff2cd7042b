#include "recording/playbackclock.h"

#include <QMutex>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <functional>

namespace {

// Time that passes only when the clock waits or yields: every run is the
// same sequence of ticks, at the same simulated instants.
class FakeTime final : public PlaybackTimeSource
{
public:
    static constexpr qint64 kYieldNs = 50'000;

    qint64 nowNs() override { return m_now; }
    void waitNs(QWaitCondition &, QMutex &, qint64 timeoutNs) override { m_now += timeoutNs; }
    void yield() override { m_now += kYieldNs; }
    void advance(qint64 ns) { m_now += ns; }

private:
    std::atomic<qint64> m_now{1'000'000'000};
};

struct Run
{
    QVector<qint64> frames;
    QVector<qint64> times;
    int finished = 0;
    QVector<double> warnings;
};

} // namespace

class TestPlaybackClock : public QObject
{
    Q_OBJECT

    // Plays until the clock finishes; onTick runs on the clock's thread
    // after each tick is recorded (acknowledge there to keep up).
    static Run play(PlaybackClock &clock, FakeTime *time, const std::function<void(qint64, int)> &onTick)
    {
        Run run;
        QObject context;
        connect(
            &clock, &PlaybackClock::tick, &context,
            [&](qint64 frame) {
                run.frames.append(frame);
                run.times.append(time->nowNs());
                onTick(frame, int(run.frames.size()));
            },
            Qt::DirectConnection);
        connect(
            &clock, &PlaybackClock::finished_, &context, [&] { ++run.finished; }, Qt::DirectConnection);
        connect(
            &clock, &PlaybackClock::performanceWarning, &context,
            [&](double fps) { run.warnings.append(fps); }, Qt::DirectConnection);
        clock.play();
        if (!clock.wait(QDeadlineTimer(60'000))) {
            clock.stop();
            clock.wait();
        }
        return run;
    }

    static std::unique_ptr<PlaybackClock> makeClock(FakeTime **time, double fps, qint64 frames)
    {
        auto fake = std::make_unique<FakeTime>();
        *time = fake.get();
        auto clock = std::make_unique<PlaybackClock>(std::move(fake));
        clock->setFps(fps);
        clock->setFrameCount(frames);
        return clock;
    }

    static QVector<qint64> range(qint64 from, qint64 to)
    {
        QVector<qint64> out;
        for (qint64 i = from; i <= to; ++i)
            out.append(i);
        return out;
    }

private slots:
    void rates_data()
    {
        QTest::addColumn<double>("fps");
        QTest::addColumn<double>("clamped");
        QTest::addColumn<qint64>("period");
        QTest::newRow("40") << 40.0 << 40.0 << qint64(25'000'000);
        QTest::newRow("240") << 240.0 << 240.0 << qint64(4'166'666);
        QTest::newRow("0.05 clamps") << 0.05 << 0.1 << qint64(10'000'000'000);
        QTest::newRow("5000 clamps") << 5000.0 << 1000.0 << qint64(1'000'000);
    }
    void rates()
    {
        QFETCH(double, fps);
        QFETCH(double, clamped);
        QFETCH(qint64, period);
        QCOMPARE(PlaybackClock::clampFps(fps), clamped);
        QCOMPARE(PlaybackClock::periodNs(fps), period);
        PlaybackClock clock;
        clock.setFps(fps);
        QCOMPARE(clock.fps(), clamped);
    }

    void fpsComparison()
    {
        QVERIFY(!PlaybackClock::fpsDiffers(40.0, 40.0) && !PlaybackClock::fpsDiffers(40.0, 40.0 + 1e-12));
        QVERIFY(PlaybackClock::fpsDiffers(40.0, 40.001));
    }

    // One run from start to end: the ticks seen and the frame the clock ends on.
    void runs_data()
    {
        QTest::addColumn<qint64>("frames");
        QTest::addColumn<qint64>("seek");
        QTest::addColumn<qint64>("seekAt");    // the tick after which to seek; -1: before play
        QTest::addColumn<bool>("acknowledge"); // false: the consumer never answers
        QTest::addColumn<int>("loopStopAt");   // loop, and stop at this tick; 0: no loop
        QTest::addColumn<QVector<qint64>>("ticks");
        QTest::addColumn<qint64>("endFrame");
        const auto row = [](const char *name, qint64 frames, qint64 seek, qint64 seekAt, bool acknowledge,
                            int loopStopAt, const QVector<qint64> &ticks, qint64 endFrame) {
            QTest::newRow(name) << frames << seek << seekAt << acknowledge << loopStopAt << ticks << endFrame;
        };
        row("ten frames", 10, 0, -1, true, 0, range(0, 9), 9);
        row("loops", 10, 0, -1, true, 25, range(0, 9) + range(0, 9) + range(0, 4), 5);
        row("seek beyond the end", 10, 100, -1, true, 0, {9}, 9);
        row("seek negative", 10, -5, -1, true, 0, range(0, 9), 9);
        row("seek inside", 10, 7, -1, true, 0, {7, 8, 9}, 9);
        row("seek while playing", 10, 7, 3, true, 0, {0, 1, 2, 3, 7, 8, 9}, 9);
        row("back pressure drops frames", 10, 0, -1, false, 0, {0}, 9);
        row("empty recording", 0, 0, -1, false, 0, {}, 0);
    }
    void runs()
    {
        QFETCH(qint64, frames);
        QFETCH(qint64, seek);
        QFETCH(qint64, seekAt);
        QFETCH(bool, acknowledge);
        QFETCH(int, loopStopAt);
        QFETCH(QVector<qint64>, ticks);
        QFETCH(qint64, endFrame);
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 40, frames);
        clock->setLoop(loopStopAt > 0);
        if (seek != 0 && seekAt < 0)
            clock->seek(seek);
        const qint64 start = time->nowNs();
        qint64 seekTime = 0;
        const Run run = play(*clock, time, [&](qint64 frame, int count) {
            if (acknowledge)
                clock->acknowledge();
            if (count == loopStopAt)
                clock->stop();
            if (frame == seekAt) {
                clock->seek(seek);
                seekTime = time->nowNs();
            }
        });
        QCOMPARE(run.frames, ticks);
        QCOMPARE(run.finished, 1);
        QCOMPARE(clock->currentFrame(), endFrame);
        QVERIFY(!clock->isPlaying());
        // Each tick lands on its deadline, counted from the start, never before it and no later than one
        // spin step after it; a seek re-bases, so the next tick comes one period after it was applied.
        const auto onTime = [](qint64 at, qint64 deadline) {
            QVERIFY2(at - deadline >= 0 && at - deadline < FakeTime::kYieldNs,
                     qPrintable(QString::number(at - deadline)));
        };
        if (qstrcmp(QTest::currentDataTag(), "ten frames") == 0)
            for (int k = 0; k < run.times.size(); ++k)
                onTime(run.times.at(k), start + (k + 1) * 25'000'000);
        if (seekAt >= 0)
            onTime(run.times.at(seekAt + 1), seekTime + 25'000'000);
        if (!acknowledge && frames > 0) // time went on for all ten frames
            QVERIFY(time->nowNs() >= start + 10 * 25'000'000);
    }

    // A consumer that takes 1.5 periods per frame runs at two-thirds of the rate
    // and is warned about once; one that keeps up never is.
    void performanceWarning_data()
    {
        QTest::addColumn<qint64>("consumerNs");
        QTest::addColumn<int>("warnings");
        QTest::addColumn<double>("minFps");
        QTest::addColumn<double>("maxFps");
        QTest::newRow("slow consumer") << qint64(15'000'000) << 1 << 60.0 << 70.0;
        QTest::newRow("keeping up") << qint64(0) << 0 << 98.5 << 101.5;
    }
    void performanceWarning()
    {
        QFETCH(qint64, consumerNs);
        QFETCH(int, warnings);
        QFETCH(double, minFps);
        QFETCH(double, maxFps);
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 100, 1000);
        const Run run = play(*clock, time, [&](qint64, int) {
            time->advance(consumerNs);
            clock->acknowledge();
        });
        QCOMPARE(run.warnings.size(), warnings);
        for (double fps : run.warnings)
            QVERIFY2(fps > minFps && fps < maxFps, qPrintable(QString::number(fps)));
        QVERIFY(clock->measuredFps() < maxFps);
        if (warnings == 0) {
            QVERIFY(clock->measuredFps() > minFps);
            QCOMPARE(run.frames.size(), 1000);
        }
        QCOMPARE(run.finished, 1);
    }

    void rateChangeRebases()
    {
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 10, 20);
        const Run run = play(*clock, time, [&](qint64 frame, int) {
            clock->acknowledge();
            if (frame == 4)
                clock->setFps(20);
        });
        QCOMPARE(run.frames, range(0, 19));
        // 100 ms apart before the change, 50 ms after it, with no burst in between.
        QVERIFY(qAbs(run.times.at(4) - run.times.at(3) - 100'000'000) < FakeTime::kYieldNs);
        for (int k = 5; k < run.times.size(); ++k)
            QVERIFY(qAbs(run.times.at(k) - run.times.at(k - 1) - 50'000'000) < FakeTime::kYieldNs);
    }

    void realClockStopsPromptly()
    {
        // The system time source: a stop during a long sleep ends the run.
        PlaybackClock clock;
        clock.setFps(0.1);
        clock.setFrameCount(10);
        QSignalSpy finished(&clock, &PlaybackClock::finished_);
        clock.play();
        QTest::qWait(20);
        clock.stop();
        QVERIFY(clock.wait(QDeadlineTimer(5000)));
        QCOMPARE(finished.size(), 1);
        // Pause and play again: the run continues from where it stopped.
        clock.play();
        clock.stop();
        clock.play();
        QVERIFY(clock.isPlaying());
        clock.stop();
        QVERIFY(clock.wait(QDeadlineTimer(5000)));
        QCOMPARE(finished.size(), 3);
    }
};

QTEST_GUILESS_MAIN(TestPlaybackClock)
#include "tst_playbackclock.moc"
