#include "panels/playbackpanel.h"
#include "panels/playbacktransport.h"
#include "panels/statuslabel.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QToolButton>
#include <QtTest>

namespace {

template <typename T>
T *child(QWidget &w, const char *name)
{
    return w.findChild<T *>(QLatin1String(name));
}

} // namespace

class TestPlaybackPanel : public QObject
{
    Q_OBJECT
private slots:
    void showsItsTexts();
    void frameRateStaysWithinRange_data();
    void frameRateStaysWithinRange();
    void loadEmitsTheTrimmedPath_data();
    void loadEmitsTheTrimmedPath();
    void buttonsAndBoxesEmitRequests();
    void onlyTheUserMovingTheSliderSeeks();
    void performanceLine_data();
    void performanceLine();
};

void TestPlaybackPanel::showsItsTexts()
{
    PlaybackPanel panel;
    QCOMPARE(panel.fps(), 40);
    QCOMPARE(child<QSpinBox>(panel, "fpsBox")->text(), QStringLiteral("40 fps"));
    QCOMPARE(child<QPushButton>(panel, "playPauseButton")->text(), QStringLiteral("Play"));
    QCOMPARE(child<QPushButton>(panel, "rewindButton")->toolTip(), QStringLiteral("Stop and return to the first frame"));
    QCOMPARE(child<QCheckBox>(panel, "loopBox")->text(), QStringLiteral("Loop playback"));
    QCOMPARE(child<QLabel>(panel, "frameLabel")->text(), QStringLiteral("Frame 0 / 0"));
    QCOMPARE(child<QSlider>(panel, "positionSlider")->maximum(), 0);
    QCOMPARE(child<QToolButton>(panel, "browseButton")->text(), QStringLiteral("..."));
    QCOMPARE(child<QToolButton>(panel, "browseButton")->toolTip(), QStringLiteral("Browse for a .tpx recording"));
    // The message line carries its severity; the information line names the recording.
    const QString noRecording = QStringLiteral("There is no recording to play. Load a .tpx file first.");
    panel.setMessage([noRecording] { return noRecording; }, 2);
    QCOMPARE(panel.messageLabel()->text(), noRecording);
    QCOMPARE(panel.messageLabel()->messageLevel(), 2);
    panel.setInformation([] { return QStringLiteral("hall.tpx · TPX · 120 frames"); });
    QCOMPARE(child<QLabel>(panel, "recordingInformation")->text(), QStringLiteral("hall.tpx · TPX · 120 frames"));
}

void TestPlaybackPanel::frameRateStaysWithinRange_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("shown");
    QTest::newRow("in range") << "25" << 25;
    QTest::newRow("above 240") << "999" << 99; // the third digit is refused
    QTest::newRow("zero") << "0" << 40;         // 0 is no valid start: the box keeps its value
}

void TestPlaybackPanel::frameRateStaysWithinRange()
{
    QFETCH(QString, typed);
    QFETCH(int, shown);
    PlaybackPanel panel;
    QSpinBox *box = child<QSpinBox>(panel, "fpsBox");
    box->selectAll();
    QTest::keyClicks(box, typed);
    QTest::keyClick(box, Qt::Key_Return);
    box->clearFocus();
    QCOMPARE(panel.fps(), shown);
    QVERIFY(panel.fps() >= 1 && panel.fps() <= 240);
}

void TestPlaybackPanel::loadEmitsTheTrimmedPath_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("padded") << "  /shows/hall.tpx  " << "/shows/hall.tpx";
    QTest::newRow("empty goes to the window to refuse") << "" << "";
}

void TestPlaybackPanel::loadEmitsTheTrimmedPath()
{
    QFETCH(QString, typed);
    QFETCH(QString, emitted);
    PlaybackPanel panel;
    QSignalSpy load(&panel, &PlaybackPanel::loadRequested);
    QTest::keyClicks(child<QLineEdit>(panel, "recordingPath"), typed);
    QTest::mouseClick(child<QPushButton>(panel, "loadButton"), Qt::LeftButton);
    QTest::keyClick(child<QLineEdit>(panel, "recordingPath"), Qt::Key_Return);
    QCOMPARE(load.count(), 2);
    QCOMPARE(load.at(0).at(0).toString(), emitted);
    QCOMPARE(load.at(1).at(0).toString(), emitted);
}

void TestPlaybackPanel::buttonsAndBoxesEmitRequests()
{
    PlaybackPanel panel;
    QSignalSpy play(&panel, &PlaybackPanel::playPauseRequested);
    QSignalSpy stop(&panel, &PlaybackPanel::stopRequested);
    QSignalSpy fps(&panel, &PlaybackPanel::fpsChanged);
    QSignalSpy loop(&panel, &PlaybackPanel::loopChanged);
    QTest::mouseClick(child<QPushButton>(panel, "playPauseButton"), Qt::LeftButton);
    QTest::mouseClick(child<QPushButton>(panel, "rewindButton"), Qt::LeftButton);
    QTest::keyClick(child<QSpinBox>(panel, "fpsBox"), Qt::Key_Up);
    QTest::mouseClick(child<QCheckBox>(panel, "loopBox"), Qt::LeftButton);
    QCOMPARE(play.count(), 1);
    QCOMPARE(stop.count(), 1);
    QCOMPARE(fps.count(), 1);
    QCOMPARE(fps.at(0).at(0).toInt(), 41);
    QCOMPARE(loop.count(), 1);
    QCOMPARE(loop.at(0).at(0).toBool(), true);
    panel.setPlaying(true);
    QCOMPARE(child<QPushButton>(panel, "playPauseButton")->text(), QStringLiteral("Pause"));
    panel.setPlaying(false);
    QCOMPARE(child<QPushButton>(panel, "playPauseButton")->text(), QStringLiteral("Play"));
    panel.setLoop(false); // the window restores it: no request
    QCOMPARE(loop.count(), 1);
}

void TestPlaybackPanel::onlyTheUserMovingTheSliderSeeks()
{
    PlaybackPanel panel;
    panel.resize(360, 400);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QSignalSpy seek(&panel, &PlaybackPanel::seekRequested);
    panel.setFrameCount(100);
    panel.setCurrentFrame(10);
    QSlider *slider = child<QSlider>(panel, "positionSlider");
    QLabel *frame = child<QLabel>(panel, "frameLabel");
    QCOMPARE(slider->maximum(), 99);
    QCOMPARE(slider->value(), 10);
    QCOMPARE(frame->text(), QStringLiteral("Frame 10 / 100"));
    QVERIFY(seek.isEmpty());
    QTest::keyClick(slider, Qt::Key_Right); // the user's key press on the slider is a seek
    QCOMPARE(seek.count(), 1);
    QCOMPARE(seek.at(0).at(0).toLongLong(), 11);
    QCOMPARE(frame->text(), QStringLiteral("Frame 11 / 100"));
    // A playback tick while the user holds the slider moves the frame line, not the handle.
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = Qt::Horizontal;
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->value();
    const QRect handle = slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
    QTest::mousePress(slider, Qt::LeftButton, {}, handle.center());
    panel.setCurrentFrame(50);
    QCOMPARE(slider->value(), 11);
    QCOMPARE(frame->text(), QStringLiteral("Frame 50 / 100"));
    QTest::mouseRelease(slider, Qt::LeftButton, {}, handle.center());
    panel.setCurrentFrame(60);
    QCOMPARE(slider->value(), 60);
}

void TestPlaybackPanel::performanceLine_data()
{
    QTest::addColumn<double>("measured");
    QTest::addColumn<qint64>("dropped");
    QTest::addColumn<double>("msPerFrame");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("role");
    QTest::newRow("no measurement") << 0.0 << qint64(5) << 3.0 << "" << "normal";
    QTest::newRow("36.7 of 40 warns") << 36.7 << qint64(0) << -1.0 << "Measured 36.7 fps" << "warning";
    QTest::newRow("36.9 of 40 does not") << 36.9 << qint64(0) << -1.0 << "Measured 36.9 fps" << "normal";
    QTest::newRow("every part") << 39.96 << qint64(3) << 4.321
                                << "Measured 40.0 fps · 3 frame(s) dropped · 4.32 ms/frame (max 231 fps)"
                                << "normal";
    QTest::newRow("too fast to divide") << 40.0 << qint64(0) << 0.004 << "Measured 40.0 fps · 0.00 ms/frame"
                                        << "normal";
}

void TestPlaybackPanel::performanceLine()
{
    QFETCH(double, measured);
    QFETCH(qint64, dropped);
    QFETCH(double, msPerFrame);
    QFETCH(QString, text);
    QFETCH(QString, role);
    PlaybackPanel panel;
    panel.setPerformance(measured, dropped, msPerFrame);
    QLabel *label = child<QLabel>(panel, "performanceLabel");
    QCOMPARE(label->text(), text);
    QCOMPARE(label->property("labelRole").toString(), role);
}

QTEST_MAIN(TestPlaybackPanel)
#include "tst_playbackpanel.moc"
