// The menu bar as a user meets it: every entry with its shortcut, icon and state per source mode, and
// what the entries do (recent lists, frames, monitor bar, snapshots, help, dialogs, network logs, drops).
#include "app/updater.h"
#include "i18n/translator.h"
#include "packetlog/logfiles.h"
#include "packetlog/widgets/packetlistmodel.h"
#include "packetlog/widgets/packetlogwindow.h"
#include "panels/playbackpanel.h"
#include "recording/playbackclock.h"
#include "recording/recording.h"
#include "style/moxstyle.h"
#include "talu_version.h"
#include "windowdriver.h"
#include "capturebuilder.h"
#include "testfiles.h"

#include <QClipboard>
#include <QComboBox>
#include <QMessageBox>
#include <QDropEvent>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QStandardPaths>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextBrowser>

using namespace WindowDriver;

namespace {

// One row per entry of the menu bar, in order. state: 'a' enabled in both
// modes, 'r' only in Recorded playback, 'l' only in Live broadcast, 'p' planned.
struct Entry
{
    const char *menu;
    const char *text;
    const char *shortcut; // portable text
    char state;
    bool icon;
};

const Entry kEntries[] = {
    {"&File", "Open Patch...", "Ctrl+O", 'a', true},
    {"&File", "Open Recording...", "Ctrl+Shift+O", 'a', true},
    {"&File", "Open GPS-Sync Set Folder...", "", 'a', false},
    {"&File", "Recent Patches", "", 'a', false},
    {"&File", "Recent Recordings", "", 'a', false},
    {"&File", "Open Network Log...", "", 'a', false},
    {"&File", "Save Network Log", "Ctrl+S", 'a', true},
    {"&File", "Save Network Log As...", "Ctrl+Shift+S", 'a', true},
    {"&File", "Save Monitor Snapshot...", "", 'a', false},
    {"&File", "Export Patch Report...", "", 'p', false},
    {"&File", "Exit", "Ctrl+Q", 'a', true},
    {"&Edit", "Network Log...", "Ctrl+L", 'a', true},
    {"&Edit", "Copy Monitor Image", "Ctrl+Shift+C", 'a', false},
    {"&Edit", "Interface Theme...", "", 'a', true},
    {"&Edit", "Preferences...", "", 'p', false},
    {"&View", "2D Monitor", "Ctrl+1", 'a', false},
    {"&View", "3D Monitor", "Ctrl+2", 'a', false},
    {"&View", "Fit to View", "Ctrl+0", 'a', true},
    {"&View", "3D Camera", "", 'a', false},
    {"&View", "White Channels", "", 'a', false},
    {"&View", "Health Overlay", "Ctrl+H", 'a', false},
    {"&View", "Universe Health...", "Ctrl+Shift+H", 'a', false},
    {"&View", "Full Screen", "F11", 'a', false},
    {"&Playback", "Play / Pause", "Space", 'a', true},
    {"&Playback", "Rewind", "Home", 'r', false},
    {"&Playback", "Previous Frame", "Ctrl+Left", 'r', false},
    {"&Playback", "Next Frame", "Ctrl+Right", 'r', false},
    {"&Playback", "Go to Frame...", "Ctrl+G", 'r', false},
    {"&Playback", "Loop", "", 'r', false},
    {"&Playback", "Standard Art-Net", "", 'r', false},
    {"&Playback", "GPS Mirra Set", "", 'r', false},
    {"&Broadcast", "Listen for Art-Net", "Ctrl+Shift+L", 'l', false},
    {"&Broadcast", "Record Incoming Stream", "Ctrl+Shift+R", 'l', false},
    {"&Broadcast", "Announce Node Now", "", 'l', false},
    {"&Broadcast", "Refresh Network Interfaces", "", 'l', false},
    {"&Broadcast", "Node Discovery (ArtPoll Scan)...", "", 'a', false},
    {"&Broadcast", "Test Signal Generator...", "", 'p', false},
    {"&Broadcast", "sACN (E1.31) Input", "", 'p', false},
    {"&Help", "Language...", "", 'a', false},
    {"&Help", "Website", "", 'a', false},
    {"&Help", "Release Notes", "", 'a', false},
    {"&Help", "Keyboard Shortcuts", "F1", 'a', false},
    {"&Help", "Open Logs Folder", "", 'a', false},
    {"&Help", "User Manual", "", 'a', false},
    {"&Help", "Check for Updates...", "", 'a', false},
    {"&Help", "About", "", 'a', true},
};

// The entries of the menu bar in order, sub-menus as entries, separators left out.
QList<std::pair<QString, QAction *>> menuBarEntries(MainWindow &w)
{
    QList<std::pair<QString, QAction *>> entries;
    for (QAction *top : w.menuBar()->actions())
        for (QAction *a : top->menu()->actions())
            if (!a->isSeparator())
                entries.append({top->text(), a});
    return entries;
}

QStringList recentTexts(MainWindow &w, bool patches)
{
    QStringList texts;
    for (QAction *a : w.recentMenu(patches)->actions())
        texts << (a->isSeparator() ? QStringLiteral("-") : a->text() + (a->isEnabled() ? "" : " (disabled)"));
    return texts;
}

QAction *recentEntry(MainWindow &w, bool patches, const QString &text)
{
    for (QAction *a : w.recentMenu(patches)->actions())
        if (a->text() == text)
            return a;
    return nullptr;
}

void dropFiles(MainWindow &w, const QStringList &paths, bool *accepted = nullptr)
{
    QMimeData mime;
    QList<QUrl> urls;
    for (const QString &p : paths)
        urls << QUrl::fromLocalFile(p);
    mime.setUrls(urls);
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&w, &enter);
    if (accepted)
        *accepted = enter.isAccepted();
    if (!enter.isAccepted())
        return;
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&w, &drop);
}

} // namespace

class TestMainWindowMenus : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { clearSettings(); }
    void everyEntryInOrderWithShortcutAndState();
    void recentListsKeepEightNewestFirst();
    void framesStepAndGoTo();
    void entriesMirrorTheMonitorBar();
    void snapshotProposal();
    void helpEntriesShowWhatTheySay();
    void droppedFilesLoad();
    void themeAndLanguageDialogs();
    void networkLogFilesOpenReadOnly();
    void networkLogCapturesFromAnAdapter();
};

void TestMainWindowMenus::everyEntryInOrderWithShortcutAndState()
{
    MainWindow w;
    const auto entries = menuBarEntries(w);
    QCOMPARE(entries.size(), int(std::size(kEntries)));
    QStringList menus;
    for (QAction *top : w.menuBar()->actions())
        menus << top->text();
    QCOMPARE(menus, (QStringList{"&File", "&Edit", "&View", "&Playback", "&Broadcast", "&Help"}));
    auto *live = button<QRadioButton>(&w, QStringLiteral("Live broadcast"));
    for (const bool recorded : {true, false}) {
        if (!recorded)
            click(&w, QStringLiteral("Live broadcast"));
        QCOMPARE(live->isChecked(), !recorded);
        for (int i = 0; i < entries.size(); ++i) {
            const Entry &e = kEntries[i];
            const auto &[menu, action] = entries.at(i);
            const QString where = menu + QStringLiteral(" > ") + QString::fromLatin1(e.text);
            QCOMPARE(menu, QString::fromLatin1(e.menu));
            QCOMPARE(action->text(), QString::fromLatin1(e.text));
            QCOMPARE(action->shortcut(), QKeySequence(QString::fromLatin1(e.shortcut)));
            QVERIFY2(action->icon().pixmap(16).isNull() != e.icon, qPrintable(where)); // resource found
            const bool enabled = e.state == 'a' || e.state == (recorded ? 'r' : 'l');
            QVERIFY2(action->isEnabled() == enabled, qPrintable(where));
            if (e.state == 'p')
                QCOMPARE(action->toolTip(), QStringLiteral("Planned for a future version."));
        }
    }
    QCOMPARE(w.menuAction("Announce Node Now")->toolTip(),
             QStringLiteral("Broadcast an ArtPollReply immediately instead of waiting for the next poll."));
    QStringList camera;
    for (const auto &[menu, action] : entries)
        if (action->text() == QLatin1String("3D Camera"))
            for (QAction *a : action->menu()->actions())
                camera << a->text();
    QCOMPARE(camera, (QStringList{"Reset Camera", "Show Axes", "Fast Draw", "Auto Orbit"}));

    // Play / Pause in Live broadcast says why it does nothing.
    w.menuAction("Play / Pause")->trigger();
    QCOMPARE(status(w), QStringLiteral("Playback controls work in Recorded playback mode."));

    // The shortcut table lists every shortcut of the table above, in its order.
    w.menuAction("Keyboard Shortcuts")->trigger();
    auto *table = w.findChild<QTableWidget *>(QStringLiteral("shortcutsTable"));
    QVERIFY(table);
    QCOMPARE(table->horizontalHeaderItem(0)->text(), QStringLiteral("Action"));
    QCOMPARE(table->horizontalHeaderItem(1)->text(), QStringLiteral("Shortcut"));
    QStringList shown, expected;
    for (int row = 0; row < table->rowCount(); ++row)
        shown << table->item(row, 0)->text() + " = " + table->item(row, 1)->text();
    for (const Entry &e : kEntries)
        if (*e.shortcut)
            expected << QString::fromLatin1(e.text).remove('&') + " = " +
                            QKeySequence(QString::fromLatin1(e.shortcut)).toString(QKeySequence::NativeText);
    QCOMPARE(shown, expected);
}

void TestMainWindowMenus::recentListsKeepEightNewestFirst()
{
    QTemporaryDir dir;
    MainWindow w;
    QCOMPARE(recentTexts(w, false), QStringList{"(empty) (disabled)"});

    // Loading the same patch twice through the patch bar leaves one entry.
    const QString patch = dir.filePath(QStringLiteral("show.tpatch"));
    QVERIFY(QFile::copy(kDemoPatch, patch));
    uploadPatch(w, patch);
    uploadPatch(w, patch);
    const QString first = QStringLiteral("&1  ") + QDir::toNativeSeparators(patch);
    QCOMPARE(recentTexts(w, true), (QStringList{first, "-", "Clear List"}));
    auto *panel = w.findChild<PlaybackPanel *>();
    click(panel, QStringLiteral("Load"));
    QCOMPARE(recentTexts(w, false).size(), 1); // an empty path loads nothing
    panel->setPath(kDemoRecording);
    click(panel, QStringLiteral("Load"));
    QCOMPARE(recentTexts(w, false).first(),
             QStringLiteral("&1  ") + QDir::toNativeSeparators(kDemoRecording));

    // Eight more: the first one falls off, the newest is on top; paths are cleaned.
    for (int i = 1; i <= 8; ++i)
        w.addRecentPath(dir.filePath(QStringLiteral("sub/../p%1.tpatch").arg(i)), SettingsKey::recentPatches);
    QStringList texts = recentTexts(w, true);
    QCOMPARE(texts.size(), 8 + 2);
    QCOMPARE(texts.first(), QStringLiteral("&1  ") + QDir::toNativeSeparators(dir.filePath("p8.tpatch")));
    QCOMPARE(texts.at(7), QStringLiteral("&8  ") + QDir::toNativeSeparators(dir.filePath("p1.tpatch")));
    QVERIFY(!texts.contains(first));

    // A missing file is reported by the workflow and stays listed.
    QString error;
    acceptNextModal(&error);
    recentEntry(w, true, texts.first())->trigger();
    QTRY_COMPARE(error, QStringLiteral("Patch Error"));
    QTRY_COMPARE(w.findChild<PatchBar *>()->path(), dir.filePath("p8.tpatch"));
    QCOMPARE(status(w), QStringLiteral("Patch could not be loaded."));
    QCOMPARE(recentTexts(w, true), texts);

    // In the next session, choosing the recording entry loads it.
    MainWindow next;
    QVERIFY(!next.recording().isLoaded());
    recentEntry(next, false, recentTexts(next, false).first())->trigger();
    QTRY_VERIFY(next.recording().frameCount() > 0);
    recentEntry(w, true, QStringLiteral("Clear List"))->trigger();
    QTRY_COMPARE(recentTexts(w, true), QStringList{"(empty) (disabled)"});
    QVERIFY(openSettings()->value(SettingsKey::recentPatches).toStringList().isEmpty());
}

void TestMainWindowMenus::framesStepAndGoTo()
{
    MainWindow w;
    // Without a recording the entries refuse in the workflow's words.
    w.menuAction("Next Frame")->trigger();
    QCOMPARE(status(w), QStringLiteral("Nothing to play - no recording is loaded."));
    w.openFiles(kDemoPatch, kDemoRecording);
    const qint64 last = w.recording().frameCount() - 1;
    w.menuAction("Next Frame")->trigger();
    w.menuAction("Next Frame")->trigger();
    QCOMPARE(w.currentFrame(), 2);
    w.menuAction("Previous Frame")->trigger();
    QCOMPARE(w.currentFrame(), 1);
    QString label;
    onNextModal([&label](QWidget *modal) {
        auto *dialog = qobject_cast<QInputDialog *>(modal);
        label = dialog->windowTitle() + " / " + dialog->labelText();
        dialog->setIntValue(dialog->intMaximum() + 5); // clamped to the last frame
        dialog->accept();
    });
    w.menuAction("Go to Frame...")->trigger();
    QCOMPARE(label, QStringLiteral("Go to Frame / Frame (0 - %1):").arg(last));
    QCOMPARE(w.currentFrame(), last);
    w.menuAction("Next Frame")->trigger(); // stays on the last frame
    QCOMPARE(w.currentFrame(), last);
    w.menuAction("Rewind")->trigger();
    QCOMPARE(w.currentFrame(), 0);
    w.menuAction("Previous Frame")->trigger();
    QCOMPARE(w.currentFrame(), 0);

    // Stepping while playing pauses first.
    w.menuAction("Play / Pause")->trigger();
    QTRY_VERIFY(w.currentFrame() > 0);
    w.menuAction("Next Frame")->trigger();
    const qint64 stepped = w.currentFrame();
    QTest::qWait(100);
    QCOMPARE(w.currentFrame(), stepped);
    QCOMPARE(status(w), QStringLiteral("Playback paused."));
}

void TestMainWindowMenus::entriesMirrorTheMonitorBar()
{
    MainWindow w;
    w.show();
    QAction *white = w.menuAction("White Channels");
    auto *whiteBox = button<QCheckBox>(&w, QStringLiteral("White channels"));
    white->trigger();
    QVERIFY(whiteBox->isChecked());
    QVERIFY(white->isChecked());
    QCOMPARE(status(w),
             QStringLiteral("This patch has no W / CW / WW channels - white contribution has nothing to add."));
    click(&w, QStringLiteral("White channels"));
    QVERIFY(!white->isChecked());
    QCOMPARE(status(w), QStringLiteral("White channel contribution off."));
    for (const auto &[entry, box] : {std::pair{"Show Axes", "Axes"}, std::pair{"Fast Draw", "Fast draw"},
                                     std::pair{"Health Overlay", "Health"}}) {
        w.menuAction(entry)->trigger();
        QVERIFY2(button<QCheckBox>(&w, QString::fromLatin1(box))->isChecked(), entry);
        click(&w, QString::fromLatin1(box));
        QVERIFY2(!w.menuAction(entry)->isChecked(), entry);
    }
    auto *monitor = w.findChild<QTabWidget *>(QStringLiteral("Monitor"));
    w.menuAction("3D Monitor")->trigger();
    QCOMPARE(monitor->currentIndex(), 1);
    monitor->setCurrentIndex(0);
    QVERIFY(w.menuAction("2D Monitor")->isChecked());

    // Loop follows the box of the tab on show.
    auto *panel = w.findChild<PlaybackPanel *>();
    const bool loop = panel->loop();
    w.menuAction("Loop")->trigger();
    QCOMPARE(panel->loop(), !loop);
    QCOMPARE(w.clock()->isLooping(), !loop);
    w.menuAction("GPS Mirra Set")->trigger();
    QCOMPARE(button<QRadioButton>(&w, QStringLiteral("Recorded playback"))->isChecked(), true);
    QCOMPARE(panel->isVisibleTo(&w), false);
    w.menuAction("Full Screen")->trigger();
    QVERIFY(w.isFullScreen());
    w.menuAction("Full Screen")->trigger();
    QVERIFY(!w.isFullScreen());
}

void TestMainWindowMenus::snapshotProposal()
{
    QTemporaryDir dir;
    MainWindow w;
    auto *monitor = w.findChild<QTabWidget *>(QStringLiteral("Monitor"));
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    QCOMPARE(w.proposedSnapshotPath(), QDir(pictures).filePath("monitor_2d.png"));
    monitor->setCurrentIndex(1);
    QCOMPARE(w.proposedSnapshotPath(), QDir(pictures).filePath("monitor_3d.png"));
    w.openFiles(kDemoPatch, QString());
    const QDir examples(QStringLiteral(TALU_SOURCE_DIR "/examples"));
    QCOMPARE(w.proposedSnapshotPath(), examples.filePath("demo_3d.png"));
    monitor->setCurrentIndex(0);
    QCOMPARE(w.proposedSnapshotPath(), examples.filePath("demo_2d.png"));

    // The folder of the last snapshot wins over the patch's.
    openSettings()->setValue(SettingsKey::lastSnapshotDir, dir.path());
    MainWindow again;
    again.openFiles(kDemoPatch, QString());
    again.findChild<QTabWidget *>(QStringLiteral("Monitor"))->setCurrentIndex(0);
    QCOMPARE(again.proposedSnapshotPath(), QDir(dir.path()).filePath("demo_2d.png"));
    again.menuAction("Copy Monitor Image")->trigger();
    QCOMPARE(status(again), QStringLiteral("Monitor image copied to the clipboard."));
    QVERIFY(!QGuiApplication::clipboard()->image().isNull());
}

void TestMainWindowMenus::helpEntriesShowWhatTheySay()
{
    MainWindow w;
    w.menuAction("About")->trigger();
    auto *about = w.findChild<QMessageBox *>(QStringLiteral("aboutBox"));
    QVERIFY(about);
    QCOMPARE(about->windowTitle(), QStringLiteral("About Torvane TALU"));
    QVERIFY(about->text().contains(QStringLiteral("Torvane TALU " TALU_VERSION)));
    const QString credits = about->informativeText();
    for (const QString &part :
         {QStringLiteral("Running on Qt %1.").arg(qVersion()), QStringLiteral("zlib"), QStringLiteral("libpcap"),
          QStringLiteral("GNU Lesser General Public License version 3"), QStringLiteral("© 2026 Torvane")})
        QVERIFY2(credits.contains(part), qPrintable(part));
    about->close();
    w.menuAction("Release Notes")->trigger();
    auto *notes = w.findChild<QTextBrowser *>(QStringLiteral("releaseNotesText"));
    QVERIFY(notes);
    QVERIFY(notes->toPlainText().startsWith(QStringLiteral(TALU_VERSION)));
    QVERIFY(notes->toPlainText().contains(QStringLiteral("Live broadcast")));

    // The manual with its pictures, all from the resources.
    w.menuAction("User Manual")->trigger();
    auto *manual = w.findChild<QTextBrowser *>(QStringLiteral("userManualText"));
    QVERIFY(manual);
    QVERIFY(manual->toPlainText().contains(QStringLiteral("Capturing from a network adapter")));
    const QImage picture = manual->document()
                               ->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("network-log.png")))
                               .value<QImage>();
    QCOMPARE(picture.size(), QImage(QStringLiteral(TALU_SOURCE_DIR "/docs/network-log.png")).size());
    QTemporaryDir dir;
    w.setImportLogsFolder(dir.filePath(QStringLiteral("logs")));
    w.menuAction("Open Logs Folder")->trigger();
    QVERIFY(QFileInfo(dir.filePath(QStringLiteral("logs"))).isDir());
}

void TestMainWindowMenus::droppedFilesLoad()
{
    MainWindow w;
    bool accepted = true;
    dropFiles(w, {QStringLiteral("/tmp/notes.txt")}, &accepted);
    QVERIFY(!accepted);
    // A patch and a recording in one drop: the patch first, then the recording against it.
    dropFiles(w, {kDemoRecording, kDemoPatch}, &accepted);
    QVERIFY(accepted);
    QTRY_VERIFY(w.recording().frameCount() > 0);
    QVERIFY(w.isPatchLoaded());
    QVERIFY2(!status(w).contains(QStringLiteral("No patch loaded")), qPrintable(status(w)));
    QCOMPARE(w.findChild<PatchBar *>()->path(), kDemoPatch);
    QCOMPARE(w.findChild<PlaybackPanel *>()->path(), kDemoRecording);
}

void TestMainWindowMenus::themeAndLanguageDialogs()
{
    MoxStyle style;
    style.install(*qApp);
    MainWindow w(&style);
    const QColor dark = qApp->palette().color(QPalette::Window);

    // Selecting previews at once; Cancel goes back to the theme in force.
    QColor previewed;
    onNextModal([&previewed](QWidget *modal) {
        auto *list = modal->findChild<QListWidget *>(QStringLiteral("themeList"));
        QStringList names;
        for (int i = 0; i < list->count(); ++i)
            names << list->item(i)->text();
        QCOMPARE(names, (QStringList{"Dark", "Light", "High contrast", "Dim red"}));
        list->setCurrentRow(1);
        previewed = qApp->palette().color(QPalette::Window);
        qobject_cast<QDialog *>(modal)->reject();
    });
    w.menuAction("Interface Theme...")->trigger();
    QVERIFY(previewed.lightness() > dark.lightness());
    QCOMPARE(qApp->palette().color(QPalette::Window), dark);
    QVERIFY(!openSettings()->contains(SettingsKey::theme));
    onNextModal([](QWidget *modal) {
        modal->findChild<QListWidget *>(QStringLiteral("themeList"))->setCurrentRow(3);
        qobject_cast<QDialog *>(modal)->accept();
    });
    w.menuAction("Interface Theme...")->trigger();
    QCOMPARE(style.currentThemeId(), QStringLiteral("dimred"));
    QCOMPARE(openSettings()->value(SettingsKey::theme).toString(), QStringLiteral("dimred"));
    QCOMPARE(status(w), QStringLiteral("Interface theme: Dim red"));

    // Languages by their own names; the choice is stored and applied.
    Translator translator;
    translator.install(*qApp);
    w.setTranslator(&translator);
    QStringList offered;
    onNextModal([&offered](QWidget *modal) {
        auto *dialog = qobject_cast<QInputDialog *>(modal);
        offered = dialog->comboBoxItems();
        dialog->setTextValue(QStringLiteral("Deutsch"));
        dialog->accept();
    });
    w.menuAction("Language...")->trigger();
    QCOMPARE(offered, (QStringList{"Deutsch", "English", "Español", "Français"}));
    QCOMPARE(translator.currentLanguageId(), QStringLiteral("de"));
    QCOMPARE(openSettings()->value(SettingsKey::language).toString(), QStringLiteral("de"));
    translator.applyLanguage(QStringLiteral("en"));
    style.applyTheme(MoxStyle::defaultThemeId());
    style.install(*qApp);
}

void TestMainWindowMenus::networkLogFilesOpenReadOnly()
{
    QTemporaryDir dir;
    std::vector<PacketLog::PacketRecord> records(3);
    for (size_t i = 0; i < records.size(); ++i) {
        records[i].timeNs = qint64(i) * 1000;
        records[i].setDatagram(QByteArrayView("Art-Net\0\x00\x20\x00\x0e\x00\x00", 14)); // ArtPoll
    }
    const QString path = dir.filePath(QStringLiteral("show.tlog"));
    PacketLog::LogMessage error;
    QVERIFY(PacketLog::savePacketLog(path, PacketLog::LogFormat::Tlog, records, &error));
    MainWindow w;
    w.openPaths({path}); // as from the command line: a log by its suffix
    auto *log = w.findChild<PacketLogWindow *>();
    QVERIFY(log && log->isReadOnly());
    QCOMPARE(log->windowTitle(), QStringLiteral("Network Log - show.tlog (read-only)"));
    QTRY_COMPARE(status(w), QStringLiteral("Opened show.tlog: 3 records."));
    QCOMPARE(log->model()->rowCount(), 3);
    QVERIFY(!log->isLoading());
    for (const char *paused : {"Pause", "Clear"}) // a file is not a stream
        QVERIFY2(!button<QPushButton>(log, QString::fromLatin1(paused))->isEnabled(), paused);

    // Not a log: refused in the reader's words, no window.
    const QString text = TestFiles::write(dir.filePath(QStringLiteral("notes.tlog")), "not a log");
    QVERIFY(!text.isEmpty());
    QString title;
    acceptNextModal(&title);
    w.openNetworkLogFile(text);
    QTRY_COMPARE(title, QStringLiteral("Network Log"));
    QVERIFY(status(w).startsWith(QStringLiteral("Network log not opened: ")));
    QTRY_COMPARE(w.findChildren<PacketLogWindow *>().size(), 1);

    // A long file: its reading stops at Cancel and keeps what was read.
    std::vector<PacketLog::PacketRecord> many(200000, records.front());
    const QString big = dir.filePath(QStringLiteral("big.tlog"));
    QVERIFY(PacketLog::savePacketLog(big, PacketLog::LogFormat::Tlog, many, &error));
    w.openNetworkLogFile(big);
    auto *loading = w.findChildren<PacketLogWindow *>().constLast();
    QVERIFY(loading->isLoading());
    QTest::mouseClick(button<QPushButton>(loading, QStringLiteral("Cancel")), Qt::LeftButton);
    QTRY_VERIFY(!loading->isLoading());
    QVERIFY(loading->model()->recordCount() < qint64(many.size()));
    QVERIFY(labelText(loading, "packetLogStatus")
                .endsWith(QStringLiteral(" · Reading stopped; the records read until then are shown.")));
}

// The capture bar with a stand-in helper (no network): its adapters, its packets as capture rows,
// Stop with a summary, a refusal in the helper's words with the rows kept.
void TestMainWindowMenus::networkLogCapturesFromAnAdapter()
{
    using namespace TestCapture;
    QTemporaryDir dir;
    const QByteArray frame = ipUdp(QByteArray("Art-Net\0\x00\x20\x00\x0e\x00\x00", 14)); // ArtPoll
    const QString helper = standInHelper(
        dir.path(), pcap(101, {frame, frame}),
        QStringLiteral("if [ \"$1\" = --list ]; then printf 'talu1\\tveth\\t192.0.2.1\\n'; exit 0; fi\n"
                       "[ -e \"$PCAP.refuse\" ] && { echo 'talu-capture: cannot capture: no permission' >&2; exit 3; }\n"
                       "trap 'exit 0' TERM\ncat \"$PCAP\"\nwhile :; do sleep 0.05; done"));
    qputenv("TALU_CAPTURE_HELPER", helper.toUtf8());
    MainWindow w;
    w.menuAction("Network Log...")->trigger();
    auto *log = w.findChild<PacketLogWindow *>();
    QVERIFY(log);
    auto *adapter = log->findChild<QComboBox *>(QStringLiteral("captureAdapter"));
    auto *button = log->findChild<QPushButton *>(QStringLiteral("captureButton"));
    auto *state = log->findChild<QLabel *>(QStringLiteral("captureStatus"));
    QCOMPARE(adapter->currentText(), QStringLiteral("talu1 (192.0.2.1)"));
    QCOMPARE(button->text(), QStringLiteral("Start Capture"));
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(state->text(), QStringLiteral("Capturing on talu1."));
    QCOMPARE(button->text(), QStringLiteral("Stop Capture"));
    QVERIFY(!adapter->isEnabled());
    QTRY_COMPARE(log->model()->rowCount(), 2);
    QCOMPARE(log->model()->index(0, PacketListModel::DirectionColumn).data().toString(), QStringLiteral("in"));
    QCOMPARE(log->model()->recordAt(0).source, PacketLog::RecordSource::Capture);
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(state->text(), QStringLiteral("Capture on talu1 stopped: 2 packets, 0 dropped by the system."));
    QCOMPARE(button->text(), QStringLiteral("Start Capture"));
    QVERIFY(!TestFiles::write(dir.filePath(QStringLiteral("stand-in.pcap.refuse")), QByteArray()).isEmpty());
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(state->text().startsWith(
        QStringLiteral("Capturing on talu1 is not permitted (cannot capture: no permission). Only the capture helper "
                       "may capture: join the group \"talu-capture\"")));
    auto *box = log->findChild<QMessageBox *>();
    QVERIFY(box && box->isVisible());
    QCOMPARE(box->text(), state->text());
    QCOMPARE(log->model()->rowCount(), 2); // what was captured stays
    qunsetenv("TALU_CAPTURE_HELPER");
}

QTEST_MAIN(TestMainWindowMenus)
#include "tst_mainwindowmenus.moc"
