// The window's frame, its settings, its status line and the monitor bar.
#include "monitor/widgets/dmxinspector.h"
#include "monitor/widgets/led3drenderer.h"
#include "monitor/widgets/led3dview.h"
#include "monitor/widgets/ledcanvasitem.h"
#include "monitor/widgets/ledmonitorview.h"
#include "artnet/widgets/broadcastpanel.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/groupfilterpanel.h"
#include "panels/patchsummarypanel.h"
#include "panels/playbackpanel.h"
#include "panels/statuslabel.h"
#include "testfiles.h"
#include "windowdriver.h"

#include <QFile>
#include <QStackedWidget>
#include <QStandardPaths>

#include <algorithm>

using namespace WindowDriver;

class TestMainWindow : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { clearSettings(); }
    void firstStartDefaults();
    void settingsRoundTripUnchanged();
    void fullScreenKeepsStoredGeometry();
    void corruptSettingsFileStillStarts();
    void frameShowsEveryControl();
    void sourceModeSwitchesPage();
    void statusRetranslatesWhatIsStillShown();
    void loadingDemoPatchReports();
    void demoRecordingLightsTheMonitor();
    void monitorBarDrivesTheViews();
};

void TestMainWindow::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Torvane"));
}

void TestMainWindow::firstStartDefaults()
{
    MainWindow w;
    const StoredSettings v = w.currentSettings();
    QCOMPARE((QList<int>{v.playbackFps, v.gpsFps, v.broadcastRecordFps, v.viewTab, v.playbackTab}),
             (QList<int>{40, 40, 40, 0, 0}));
    QCOMPARE((QList<bool>{v.gpsLoop, v.whiteChannels, v.fastDraw3D}), (QList<bool>{true, false, false}));
    QCOMPARE(w.size(), QSize(1420, 880));
    QCOMPARE(w.windowTitle(), QStringLiteral("Torvane TALU"));
    QCOMPARE(status(w), QStringLiteral("Ready. Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to begin."));
}

void TestMainWindow::settingsRoundTripUnchanged()
{
    StoredSettings stored;
    stored.patchLastPath = QStringLiteral("/shows/hall.tpatch");
    stored.playbackLastPath = QStringLiteral("/shows/hall.tpx");
    stored.playbackFps = 44;
    stored.playbackTab = 1;
    stored.gpsFps = 25;
    stored.gpsLoop = false;
    stored.gpsPaths = QStringList{QStringLiteral("/gps/a_Facade.tpx"), QStringLiteral("/gps/a_Floor.tpx")};
    stored.broadcastAddress = QStringLiteral("192.0.2.1");
    stored.broadcastShortName = QStringLiteral("TALU");
    stored.broadcastLongName = QStringLiteral("TALU bench");
    stored.broadcastRecordDir = QStringLiteral("/rec");
    stored.broadcastRecordName = QStringLiteral("take1");
    stored.broadcastRecordFps = 30;
    stored.whiteChannels = true;
    stored.fastDraw3D = true;
    stored.viewTab = 1;
    stored.lastSnapshotDir = QStringLiteral("/snaps");
    {
        auto s = openSettings();
        writeStoredSettings(*s, stored, false);
        s->setValue(SettingsKey::theme, QStringLiteral("light"));
    }
    {
        MainWindow w;
        QCOMPARE(w.findChild<QTabWidget *>(QStringLiteral("Monitor"))->currentIndex(), 1);
        QCOMPARE(w.findChild<PatchBar *>()->path(), stored.patchLastPath);
        const StoredSettings shown = w.currentSettings();
        stored.windowGeometry = shown.windowGeometry; // the window's own, checked separately
        QCOMPARE(shown, stored);
    } // destructor saves
    auto s = openSettings();
    StoredSettings after = readStoredSettings(*s);
    QVERIFY(!after.windowGeometry.isEmpty());
    after.windowGeometry = stored.windowGeometry;
    QCOMPARE(after, stored);
    // Keys the window does not own are left alone.
    QCOMPARE(s->value(SettingsKey::theme).toString(), QStringLiteral("light"));
}

void TestMainWindow::fullScreenKeepsStoredGeometry()
{
    {
        MainWindow w;
        w.resize(900, 600);
    }
    const QByteArray earlier = openSettings()->value(SettingsKey::windowGeometry).toByteArray();
    QVERIFY(!earlier.isEmpty());
    {
        MainWindow w;
        // Set the state without showing: the offscreen platform reports back a normal window once shown.
        w.setWindowState(Qt::WindowFullScreen);
        QVERIFY(w.isFullScreen());
    }
    QCOMPARE(openSettings()->value(SettingsKey::windowGeometry).toByteArray(), earlier);
}

void TestMainWindow::corruptSettingsFileStillStarts()
{
    const QString path = openSettings()->fileName();
    QDir().mkpath(QFileInfo(path).absolutePath());
    QVERIFY(!TestFiles::write(path, QByteArray("[General\x01\xff]\nplayback/fps=abc\nmonitor/viewTab=\x00\x02\n[[[\n\xfe\xfe", 48))
                 .isEmpty());
    MainWindow w;
    QCOMPARE(w.currentSettings().playbackFps, 40); // unreadable: the default
}

void TestMainWindow::frameShowsEveryControl()
{
    MainWindow w;
    for (const char *t : {"Fit to view", "Snapshot", "White channels", "Axes", "Fast draw", "Auto orbit", "Front",
                          "Reset", "Recorded playback", "Live broadcast", "Upload"})
        QVERIFY2(button(&w, QString::fromLatin1(t)), t);
    QStringList tabs;
    for (auto *tw : w.findChildren<QTabWidget *>())
        for (int i = 0; i < tw->count(); ++i)
            tabs << tw->tabText(i);
    for (const char *t : {"Standard Art-Net", "GPS Mirra", "Groups", "Patch", "DMX"})
        QVERIFY2(tabs.contains(QString::fromLatin1(t)), t);
    QVERIFY(w.findChild<PlaybackPanel *>() && w.findChild<GpsPlaybackPanel *>());
    QVERIFY(w.findChild<BroadcastPanel *>() && w.findChild<GroupFilterPanel *>());
    QVERIFY(w.findChild<PatchSummaryPanel *>() && w.findChild<DmxInspector *>());
}

void TestMainWindow::sourceModeSwitchesPage()
{
    MainWindow w;
    auto *stack = w.findChild<QStackedWidget *>();
    QVERIFY(stack);
    QCOMPARE(stack->currentIndex(), 0);
    button<QRadioButton>(&w, QStringLiteral("Live broadcast"))->click();
    QCOMPARE(stack->currentIndex(), 1);
    QVERIFY(stack->widget(1)->isEnabled());
    QVERIFY(!stack->widget(0)->isEnabled());
}

void TestMainWindow::statusRetranslatesWhatIsStillShown()
{
    MainWindow w;
    QString language = QStringLiteral("en");
    w.showStatus([&language] { return language == QStringLiteral("en") ? QStringLiteral("Playing.")
                                                                          : QStringLiteral("Wiedergabe."); },
                 1500);
    QTest::qWait(900);
    language = QStringLiteral("de");
    w.retranslateStatus();
    QCOMPARE(status(w), QStringLiteral("Wiedergabe."));
    // Re-shown for what remained (about 600 ms), not for another 1500 ms.
    QTRY_VERIFY_WITH_TIMEOUT(status(w).isEmpty(), 1200);

    // A permanent message stays permanent.
    w.showStatus([&language] { return QStringLiteral("Ready (%1)").arg(language); }, 0);
    language = QStringLiteral("fr");
    w.retranslateStatus();
    QCOMPARE(status(w), QStringLiteral("Ready (fr)"));
    QTest::qWait(100);
    QCOMPARE(status(w), QStringLiteral("Ready (fr)"));

    // An expired message is not brought back, nor produced again.
    int produced = 0;
    w.showStatus([&produced] { ++produced; return QStringLiteral("Sustaining about 38 fps."); }, 100);
    QTRY_VERIFY(status(w).isEmpty());
    w.retranslateStatus();
    QVERIFY(status(w).isEmpty());
    QCOMPARE(produced, 1);

    // Replaced by someone else: left alone too.
    w.showStatus([] { return QStringLiteral("Playing."); }, 0);
    w.statusBar()->showMessage(QStringLiteral("tooltip hint"));
    w.retranslateStatus();
    QCOMPARE(status(w), QStringLiteral("tooltip hint"));
}

void TestMainWindow::loadingDemoPatchReports()
{
    MainWindow w;
    w.openFiles(kDemoPatch, QString());
    QVERIFY(w.isPatchLoaded());
    const QString loaded = w.findChild<PatchBar *>()->statusLabel()->text();
    QVERIFY2(loaded.startsWith(QStringLiteral("Loaded demo.tpatch in ")), qPrintable(loaded));
    QVERIFY(status(w).endsWith(QStringLiteral(" pixels drawn.")));
    QCOMPARE(openSettings()->value(SettingsKey::patchLastPath).toString(), kDemoPatch);
}

void TestMainWindow::monitorBarDrivesTheViews()
{
    StoredSettings fast;
    fast.fastDraw3D = true;
    writeStoredSettings(*openSettings(), fast, false);
    MainWindow w;
    auto *view2d = w.findChild<LedMonitorView *>();
    auto *view3d = w.findChild<Led3DView *>();
    auto *inspector = w.findChild<DmxInspector *>();
    QVERIFY(view2d && view3d && inspector);
    QVERIFY(view3d->fastDraw()); // the stored choice reaches the 3D view
    auto check = [&w](const char *text) { return button<QCheckBox>(&w, QString::fromLatin1(text)); };
    check("Fast draw")->setChecked(false);
    QVERIFY(!view3d->fastDraw());
    check("Axes")->setChecked(true);
    QVERIFY(view3d->renderer()->scene3d().showAxes());
    check("White channels")->setChecked(true);
    QVERIFY(w.colourBuffer().whiteEnabled());
    w.openFiles(kDemoPatch, QString());
    // Groups: 2D starts on the lowest Z layer; "All Z" shows every layer; "Hide all" leaves nothing drawn.
    const qint64 drawable = w.pixelLayout().drawablePixelCount();
    QVERIFY(view2d->canvas()->scene2d().visiblePixels().size() < drawable);
    auto *groups = w.findChild<GroupFilterPanel *>();
    groups->findChild<QCheckBox *>(QStringLiteral("allZBox"))->click();
    QCOMPARE(view2d->canvas()->scene2d().visiblePixels().size(), drawable);
    QCOMPARE(view3d->pointPixels().size(), drawable);
    button<QPushButton>(groups, QStringLiteral("Hide all"))->click();
    QCOMPARE(view2d->canvas()->scene2d().visiblePixels().size(), 0);
    const QVector<QRgb> &points = view3d->renderer()->scene3d().colours();
    QTRY_VERIFY(std::all_of(points.cbegin(), points.cend(), [](QRgb c) { return qAlpha(c) == 0; }));
    QCOMPARE(inspector->currentUniverse() >= 0, true);

    // Auto orbit: the box starts it; touching the view stops it and unchecks the box.
    check("Auto orbit")->setChecked(true);
    QVERIFY(view3d->isAutoOrbitRunning());
    button<QPushButton>(&w, QStringLiteral("Front"))->click();
    QVERIFY(!view3d->isAutoOrbitRunning());
    QVERIFY(!check("Auto orbit")->isChecked());
    QCOMPARE(view3d->camera().pitch, 0.0);
    QCOMPARE(view3d->camera().yaw, 0.0);
    button<QPushButton>(&w, QStringLiteral("Reset"))->click();
    QCOMPARE(view3d->camera().yaw, 0.7);

    // Hovering a pixel fills the monitor's hint line.
    emit view2d->cellHovered(0);
    const QString hint = labelText(&w, "monitorHint");
    QVERIFY2(hint.contains(QStringLiteral(" · port 0x")) && hint.contains(QStringLiteral("rgb(0, 0, 0)")),
             qPrintable(hint));
    emit view2d->cellHovered(-1);
    QVERIFY(labelText(&w, "monitorHint").isEmpty());
}

void TestMainWindow::demoRecordingLightsTheMonitor()
{
    MainWindow w;
    w.show();
    w.openFiles(kDemoPatch, kDemoRecording);
    QVERIFY2(status(w).startsWith(QStringLiteral("demo.tpx · Art-Net · 120 frames · 3.0 s at 40 fps")),
             qPrintable(status(w)));
    QCOMPARE(w.currentFrame(), 0);

    // Frame 0 of the demo lights the monitor.
    const QImage frame0 = w.findChild<LedMonitorView *>(QStringLiteral("LedMonitorView"))->snapshot();
    bool lit = false;
    for (int y = 0; y < frame0.height() && !lit; y += 2)
        for (int x = 0; x < frame0.width() && !lit; x += 2) {
            const QColor c = frame0.pixelColor(x, y);
            lit = c.value() > 120 && c != QColor(60, 60, 60);
        }
    QVERIFY(lit);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
