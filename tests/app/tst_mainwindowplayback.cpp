// The recorded-playback and GPS-Sync workflows, driven through the panels.
#include "artnet/artnetpacket.h"
#include "live/widgets/universehealthwindow.h"
#include "packetlog/logfiles.h"
#include "panels/gpsgrouprow.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/playbackpanel.h"
#include "panels/playbacktransport.h"
#include "panels/statuslabel.h"
#include "recording/playbackclock.h"
#include "recording/recording.h"
#include "testfiles.h"
#include "windowdriver.h"

#include <QSlider>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTreeView>

using namespace WindowDriver;

namespace {

QTabWidget *playbackTabs(MainWindow &w)
{
    return tabsWith(&w, QStringLiteral("Standard Art-Net"));
}

using Step = std::function<void(MainWindow &)>;

} // namespace

Q_DECLARE_METATYPE(Step)

class TestMainWindowPlayback : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { clearSettings(); }
    void recordingPlaysPausesRewindsAndSeeks();
    void recordingRefusals_data();
    void recordingRefusals();
    void statusEdgeCases_data();
    void statusEdgeCases();
    void failedPatchKeepsThePreviousOne();
    void gpsSetAutoFillsLoadsAndPlays();
    void whiteChannelsReport();
    void captureLoadsAsRecording();
};

void TestMainWindowPlayback::recordingPlaysPausesRewindsAndSeeks()
{
    MainWindow w;
    w.show();
    uploadPatch(w);
    QVERIFY(w.isPatchLoaded());
    auto *panel = w.findChild<PlaybackPanel *>();
    auto *path = panel->findChild<QLineEdit *>(QStringLiteral("recordingPath"));
    path->clear();
    QTest::keyClicks(path, kDemoRecording);
    click(panel, QStringLiteral("Load"));
    QCOMPARE(labelText(panel, "recordingInformation"),
             QStringLiteral("demo.tpx · Art-Net · 120 frames · 3.0 s at 40 fps"));
    QCOMPARE(labelText(panel, "frameLabel"), QStringLiteral("Frame 0 / 120"));
    click(panel, QStringLiteral("Play"));
    QCOMPARE(status(w), QStringLiteral("Playing."));
    QVERIFY(button(panel, QStringLiteral("Pause")));
    QTRY_VERIFY(w.currentFrame() > 3);
    click(panel, QStringLiteral("Pause"));
    QCOMPARE(status(w), QStringLiteral("Playback paused."));
    const qint64 pausedAt = w.currentFrame();
    // The clock's end of run and a tick it had already sent arrive queued: neither
    // is the end of the recording, neither moves the picture.
    QTest::qWait(100);
    QCOMPARE(status(w), QStringLiteral("Playback paused."));
    QCOMPARE(w.currentFrame(), pausedAt);
    QCOMPARE(labelText(panel, "frameLabel"), QStringLiteral("Frame %1 / 120").arg(pausedAt));

    // The rate box drives the clock and says what it means.
    QTest::keyClick(panel->findChild<QSpinBox *>(QStringLiteral("fpsBox")), Qt::Key_Up);
    QCOMPARE(w.clock()->fps(), 41.0);
    QCOMPARE(status(w), QStringLiteral("120 frames at 41 fps = 2.9 s"));
    // Loop is the box's, not forced on.
    click(panel, QStringLiteral("Loop playback"));
    QVERIFY(w.clock()->isLooping());
    click(panel, QStringLiteral("Loop playback"));
    QVERIFY(!w.clock()->isLooping());

    // Another source mode pauses playback: one source paints the monitor at a time.
    click(panel, QStringLiteral("Play"));
    QVERIFY(w.clock()->isPlaying());
    click(&w, QStringLiteral("Live broadcast"));
    QVERIFY(!w.clock()->isPlaying());
    const qint64 leftAt = w.currentFrame();
    QTest::qWait(100);
    QCOMPARE(w.currentFrame(), leftAt);
    click(&w, QStringLiteral("Recorded playback"));
    click(panel, QStringLiteral("Rewind"));
    QCOMPARE(status(w), QStringLiteral("Rewound to the first frame."));
    emit w.clock()->tick(57); // one more tick from the run just stopped
    QCoreApplication::processEvents();
    QCOMPARE(w.currentFrame(), 0);
    QCOMPARE(panel->findChild<QSlider *>()->value(), 0);
    QTest::keyClick(panel->findChild<QSlider *>(), Qt::Key_End);
    QCOMPARE(w.currentFrame(), 119);
    QCOMPARE(labelText(panel, "frameLabel"), QStringLiteral("Frame 119 / 120"));

    // Played to the end without loop: the end is reported.
    QTest::keyClick(panel->findChild<QSlider *>(), Qt::Key_PageDown);
    click(panel, QStringLiteral("Play"));
    QTRY_COMPARE(status(w), QStringLiteral("Reached the end of the recording."));
    QVERIFY(button(panel, QStringLiteral("Play")));
}

void TestMainWindowPlayback::recordingRefusals_data()
{
    QTest::addColumn<QString>("file");    // written into a temporary folder; "" types nothing
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message"); // %1: the path typed
    QTest::newRow("empty path") << QString() << QByteArray() << "Enter a .tpx path or pick one with the ... button.";
    QTest::newRow("missing") << "gone.tpx" << QByteArray() << "File not found: %1";
    QTest::newRow("not a recording") << "notes.tpx" << QByteArray(400, 'x')
                                     << "\"notes.tpx\" does not start with an Art-Net or KEL DMX record. It is not a "
                                        "Torvane recording, or it is damaged.";
}

void TestMainWindowPlayback::recordingRefusals()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    QTemporaryDir dir;
    const QString typed = file.isEmpty() ? QString() : dir.filePath(file);
    if (!bytes.isEmpty())
        TestFiles::write(typed, bytes);
    MainWindow w;
    auto *panel = w.findChild<PlaybackPanel *>();
    w.openFiles(QString(), kDemoRecording);
    QCOMPARE(w.recording().frameCount(), 120);
    panel->setPath(typed);
    click(panel, QStringLiteral("Load"));
    QCOMPARE(panel->messageLabel()->text(), message.arg(typed));
    QCOMPARE(panel->messageLabel()->messageLevel(), 2);
    // A refused path changes nothing; a file the reader refuses leaves no recording.
    QCOMPARE(w.recording().frameCount(), bytes.isEmpty() ? 120 : 0);
}

void TestMainWindowPlayback::statusEdgeCases_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("statusLine");
    QTest::newRow("play on the GPS tab without a set")
        << Step([](MainWindow &w) {
               playbackTabs(w)->setCurrentIndex(1);
               click(w.findChild<GpsPlaybackPanel *>(), QStringLiteral("Play"));
               QCOMPARE(w.findChild<GpsPlaybackPanel *>()->messageLabel()->text(),
                        QStringLiteral("There is no set to play. Fill in the group recordings and press Load set first."));
           })
        << "Nothing to play - no recording is loaded.";
    QTest::newRow("rate change on the hidden tab")
        << Step([](MainWindow &w) {
               w.openFiles(QString(), kDemoRecording);
               w.showStatus([] { return QStringLiteral("before"); }, 0);
               QTest::keyClick(w.findChild<GpsPlaybackPanel *>()->findChild<QSpinBox *>(QStringLiteral("fpsBox")),
                               Qt::Key_Up);
               QCOMPARE(w.clock()->fps(), 40.0);
           })
        << "before";
    QTest::newRow("0.3 fps is about 1 fps") << Step([](MainWindow &w) { w.onPerformanceWarning(0.3); })
                                           << "Sustaining about 1 fps.";
    QTest::newRow("tab change says what the tab does")
        << Step([](MainWindow &w) { playbackTabs(w)->setCurrentIndex(1); })
        << "GPS Mirra: one recording per group, all driven from one clock.";
}

void TestMainWindowPlayback::statusEdgeCases()
{
    QFETCH(Step, step);
    QFETCH(QString, statusLine);
    MainWindow w;
    step(w);
    QCOMPARE(status(w), statusLine);
}

void TestMainWindowPlayback::failedPatchKeepsThePreviousOne()
{
    QTemporaryDir dir;
    const QString broken = dir.filePath(QStringLiteral("broken.tpatch"));
    TestFiles::write(broken, "{ not json");
    MainWindow w;
    w.setImportLogsFolder(dir.filePath(QStringLiteral("logs")));
    uploadPatch(w);
    const qint64 pixels = w.pixelLayout().drawablePixelCount();
    QString title, text;
    acceptNextModal(&title, &text);
    uploadPatch(w, broken);
    QCOMPARE(title, QStringLiteral("Patch Error"));
    QVERIFY2(text.contains(QStringLiteral("\n\nA copy of the file and this message was saved to:\n")
                           + QDir::toNativeSeparators(dir.filePath(QStringLiteral("logs")))),
             qPrintable(text));
    QCOMPARE(status(w), QStringLiteral("Patch could not be loaded."));
    QCOMPARE(w.findChild<PatchBar *>()->statusLabel()->messageLevel(), 2);
    QCOMPARE(w.pixelLayout().drawablePixelCount(), pixels);
    // Every successful load shows the Patch tab.
    QTabWidget *sideTabs = tabsWith(&w, QStringLiteral("Groups"));
    sideTabs->setCurrentIndex(0);
    uploadPatch(w);
    QCOMPARE(sideTabs->tabText(sideTabs->currentIndex()), QStringLiteral("Patch"));
}

void TestMainWindowPlayback::gpsSetAutoFillsLoadsAndPlays()
{
    MainWindow w;
    w.show();
    auto *gps = w.findChild<GpsPlaybackPanel *>();
    w.onGpsAutoFill(kDemoGps);
    QCOMPARE(gps->messageLabel()->text(), QStringLiteral("Load a patch first - the group list comes from it."));
    uploadPatch(w);
    playbackTabs(w)->setCurrentIndex(1);
    QCOMPARE(gps->groupCount(), 4);
    w.onGpsAutoFill(QStringLiteral(TALU_SOURCE_DIR "/examples"));
    QCOMPARE(gps->messageLabel()->text(), QStringLiteral("No file in \"examples\" matches a group name. GPS-Sync "
                                                         "recordings are named <name>_<Group>.tpx."));
    w.onGpsAutoFill(kDemoGps);
    QCOMPARE(gps->messageLabel()->text(), QStringLiteral("Matched all 4 group(s). Press Load set to verify them."));
    // Loading the patch again keeps the files the user chose.
    const QStringList chosen = gps->paths();
    uploadPatch(w);
    QCOMPARE(gps->paths(), chosen);
    click(gps, QStringLiteral("Load set"));
    QVERIFY(w.gpsSet().isLoaded());
    const qint64 frames = w.gpsSet().frameCount();
    QCOMPARE(gps->setInformationLabel()->text(),
             QStringLiteral("Set loaded: 4 recording(s), %1 frames each.").arg(frames));
    QCOMPARE(status(w), QStringLiteral("GPS Mirra set: 4 recording(s), %1 frames each.").arg(frames));
    QCOMPARE(labelText(gps, "frameLabel"),
             QStringLiteral("Frame 0 / %1  -  4 file(s) driven together  -  timestamps in step").arg(frames));
    click(gps, QStringLiteral("Play"));
    QCOMPARE(status(w), QStringLiteral("Playing 4 recording(s) in step."));
    QTRY_VERIFY(w.currentFrame() > 2);
    click(gps, QStringLiteral("Pause"));
    // Editing a path unloads the set and says so.
    QTest::keyClicks(gps->row(0)->findChild<QLineEdit *>(), QStringLiteral("x"));
    QVERIFY(!w.gpsSet().isLoaded());
    QCOMPARE(gps->messageLabel()->text(), QStringLiteral("The file list changed - press Load set to verify it again."));
    QCOMPARE(gps->setInformationLabel()->text(), QStringLiteral("No set loaded."));
}

void TestMainWindowPlayback::whiteChannelsReport()
{
    MainWindow w;
    w.openFiles(kDemoPatch, kDemoRecording);
    button<QCheckBox>(&w, QStringLiteral("White channels"))->click();
    QVERIFY(w.colourBuffer().whiteEnabled());
    // The demo's RGBW bars carry white: the report counts them and tells the peak of the shown frame.
    QVERIFY2(status(w).startsWith(QStringLiteral("120 px with white (W 120 · CW 0 · WW 0) · ")), qPrintable(status(w)));
}

// A capture given where a recording goes plays as the recording the live
// recorder would have made of it: 4 frames of 3 universes, 25 ms apart.
void TestMainWindowPlayback::captureLoadsAsRecording()
{
    std::vector<PacketLog::PacketRecord> packets;
    for (int frame = 0; frame < 4; ++frame) {
        for (quint16 universe = 0; universe < 3; ++universe) {
            PacketLog::PacketRecord r;
            r.timeNs = 1767225600LL * 1000000000LL + frame * 25000000LL + universe * 100000LL;
            r.srcIp = 0xC0000201;
            r.dstIp = 0xC00002FF;
            r.srcPort = r.dstPort = 6454;
            r.setDatagram(ArtNet::buildDmx(universe, quint8(frame + 1), QByteArray(64, char(frame * 16 + universe))));
            packets.push_back(r);
        }
    }
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("site.pcapng"));
    PacketLog::LogMessage error;
    QVERIFY(PacketLog::savePacketLog(path, PacketLog::LogFormat::Pcapng, packets, &error));
    MainWindow w;
    auto *panel = w.findChild<PlaybackPanel *>();
    panel->setPath(path);
    click(panel, QStringLiteral("Load"));
    QCOMPARE(labelText(panel, "recordingInformation"),
             QStringLiteral("site.pcapng · capture of 12 ArtDmx packets, as Art-Net · 4 frames · 0.1 s at 40 fps  |  "
                            "No patch loaded - the monitor stays dark; the DMX tab shows every recorded universe."));
    QCOMPARE(w.recording().recordsPerFrame(), 3);
    const RecordRef last = w.recording().recordAt(3, 2);
    QCOMPARE(last.universe, quint16(2));
    QCOMPARE(w.recording().dataOf(last), QByteArray(64, char(3 * 16 + 2)));

    // Its health comes from the capture's own packets, senders and sequence numbers included.
    w.menuAction("Universe Health...")->trigger();
    auto *health = w.findChild<UniverseHealthWindow *>();
    QCOMPARE(labelText(health, "healthSource"), QStringLiteral("Capture site.pcapng, over the whole file."));
    QCOMPARE(labelText(health, "healthSummary"), QStringLiteral("3 universe(s): 3 ok"));
    const QAbstractItemModel *table = health->table()->model();
    QCOMPARE(table->index(0, 0, table->index(2, 0)).data().toString(), QStringLiteral("192.0.2.1:6454"));
    QCOMPARE(table->index(2, UniverseHealthModel::FpsColumn).data().toString(), QStringLiteral("40.0"));
}

QTEST_MAIN(TestMainWindowPlayback)
#include "tst_mainwindowplayback.moc"
