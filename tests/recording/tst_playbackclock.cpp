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
        const bool ended = clock.wait(QDeadlineTimer(60'000));
        if (!ended) {
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
        QVERIFY(!PlaybackClock::fpsDiffers(40.0, 40.0));
        QVERIFY(!PlaybackClock::fpsDiffers(40.0, 40.0 + 1e-12));
        QVERIFY(PlaybackClock::fpsDiffers(40.0, 40.001));
    }

    void tenFramesThenFinished()
    {
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 40, 10);
        const qint64 start = time->nowNs();
        const Run run = play(*clock, time, [&](qint64, int) { clock->acknowledge(); });
        QCOMPARE(run.frames, range(0, 9));
        QCOMPARE(run.finished, 1);
        QCOMPARE(clock->currentFrame(), 9);
        QVERIFY(!clock->isPlaying());
        // Each tick lands on its deadline, counted from the start, never before
        // it and no later than one spin step after it.
        for (int k = 0; k < run.times.size(); ++k) {
            const qint64 late = run.times.at(k) - (start + (k + 1) * 25'000'000);
            QVERIFY2(late >= 0 && late < FakeTime::kYieldNs, qPrintable(QString::number(late)));
        }
    }

    void loops()
    {
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 40, 10);
        clock->setLoop(true);
        const Run run = play(*clock, time, [&](qint64, int count) {
            clock->acknowledge();
            if (count == 25)
                clock->stop();
        });
        QCOMPARE(run.frames, range(0, 9) + range(0, 9) + range(0, 4));
        QCOMPARE(run.finished, 1);
    }

    void seekClamps_data()
    {
        QTest::addColumn<qint64>("target");
        QTest::addColumn<QVector<qint64>>("frames");
        QTest::newRow("beyond the end") << qint64(100) << QVector<qint64>{9};
        QTest::newRow("negative") << qint64(-5) << range(0, 9);
        QTest::newRow("inside") << qint64(7) << QVector<qint64>{7, 8, 9};
    }

    void seekClamps()
    {
        QFETCH(qint64, target);
        QFETCH(QVector<qint64>, frames);
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 40, 10);
        clock->seek(target);
        const Run run = play(*clock, time, [&](qint64, int) { clock->acknowledge(); });
        QCOMPARE(run.frames, frames);
    }

    void seekWhilePlaying()
    {
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 40, 10);
        qint64 seekTime = 0;
        const Run run = play(*clock, time, [&](qint64 frame, int) {
            clock->acknowledge();
            if (frame == 3) {
                clock->seek(7);
                seekTime = time->nowNs();
            }
        });
        QCOMPARE(run.frames, (QVector<qint64>{0, 1, 2, 3, 7, 8, 9}));
        // The seek re-bases: frame 7 comes one period after it was applied.
        const qint64 late = run.times.at(4) - (seekTime + 25'000'000);
        QVERIFY2(late >= 0 && late < FakeTime::kYieldNs, qPrintable(QString::number(late)));
    }

    void backPressureDropsFrames()
    {
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 40, 10);
        const qint64 start = time->nowNs();
        const Run run = play(*clock, time, [](qint64, int) {}); // the consumer never answers
        QCOMPARE(run.frames, QVector<qint64>{0});
        QCOMPARE(run.finished, 1);
        QCOMPARE(clock->currentFrame(), 9);
        QVERIFY(time->nowNs() >= start + 10 * 25'000'000); // time went on for all ten frames
    }

    void slowConsumerWarnsOnce()
    {
        // The consumer takes 1.5 periods per frame: two-thirds of the rate.
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 100, 1000);
        const Run run = play(*clock, time, [&](qint64, int) {
            time->advance(15'000'000);
            clock->acknowledge();
        });
        QCOMPARE(run.warnings.size(), 1);
        QVERIFY2(run.warnings.at(0) > 60 && run.warnings.at(0) < 70,
                 qPrintable(QString::number(run.warnings.at(0))));
        QVERIFY(clock->measuredFps() < 70);
        QCOMPARE(run.finished, 1);
    }

    void keepingUpNeverWarns()
    {
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 100, 500);
        const Run run = play(*clock, time, [&](qint64, int) { clock->acknowledge(); });
        QVERIFY(run.warnings.isEmpty());
        QVERIFY(qAbs(clock->measuredFps() - 100) < 1.5);
        QCOMPARE(run.frames.size(), 500);
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

    void emptyRecordingFinishesAtOnce()
    {
        FakeTime *time = nullptr;
        auto clock = makeClock(&time, 40, 0);
        const Run run = play(*clock, time, [](qint64, int) {});
        QVERIFY(run.frames.isEmpty());
        QCOMPARE(run.finished, 1);
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
