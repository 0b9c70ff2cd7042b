// MainWindow: the menu bar, the recent lists, the shortcut table, the help
// entries and files dropped on the window. Every entry calls a workflow slot;
// nothing here decides what a workflow does.
#include "app/mainwindow.h"

#include "app/updater.h"
#include "i18n/translator.h"
#include "live/livepipeline.h"
#include "live/widgets/universehealthwindow.h"
#include "monitor/widgets/led3dview.h"
#include "monitor/widgets/ledmonitorview.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/patchbar.h"
#include "panels/playbackpanel.h"
#include "patch/importreport.h"
#include "recording/playbackclock.h"
#include "style/moxstyle.h"
#include "talu_version.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPixmap>
#include <QRadioButton>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

const QUrl kWebsite(QStringLiteral("https://torvane.example/talu"));

enum MonitorTab
{
    View2DTab = 0,
    View3DTab = 1
};
enum PlaybackTab
{
    StandardTab = 0,
    GpsTab = 1
};

bool isPatchFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("tpatch") || suffix == QLatin1String("mpz") ||
           suffix == QLatin1String("elm") || suffix == QLatin1String("elmbackup");
}

bool isRecordingFile(const QString &path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("tpx"), Qt::CaseInsensitive) == 0;
}

bool isNetworkLogFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("tlog") || suffix == QLatin1String("pcapng") || suffix == QLatin1String("pcap");
}

QStringList droppedFiles(const QMimeData *mime)
{
    QStringList files;
    if (!mime || !mime->hasUrls())
        return files;
    for (const QUrl &url : mime->urls())
        if (const QString path = url.toLocalFile();
            url.isLocalFile() && (isPatchFile(path) || isRecordingFile(path) || isNetworkLogFile(path)))
            files << path;
    return files;
}

// A non-modal window around one widget with a Close button, gone when closed.
QDialog *openPlainDialog(QWidget *parent, const QString &objectName, const QString &title, QWidget *content,
                         const QSize &size)
{
    auto *dialog = new QDialog(parent);
    dialog->setObjectName(objectName);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(content);
    layout->addWidget(buttons);
    dialog->resize(size);
    dialog->show();
    return dialog;
}

} // namespace

QAction *MainWindow::menuAction(const char *text) const
{
    return m_menus.action(text);
}

void MainWindow::buildMenus()
{
    QMenu *file = m_menus.addMenu(nullptr, QT_TR_NOOP("&File"));
    connect(m_menus.addEntry(file, QT_TR_NOOP("Open Patch..."), QKeySequence::Open, nullptr,
                             QStringLiteral(":/icons/open-patch.png")),
            &QAction::triggered, this, &MainWindow::openPatchDialog);
    connect(m_menus.addEntry(file, QT_TR_NOOP("Open Recording..."),
                             QKeySequence(QStringLiteral("Ctrl+Shift+O")), nullptr,
                             QStringLiteral(":/icons/open.png")),
            &QAction::triggered, this, &MainWindow::openRecordingDialog);
    connect(m_menus.addEntry(
                file, QT_TR_NOOP("Open GPS-Sync Set Folder..."), QKeySequence(),
                QT_TR_NOOP(
                    "Match every group of the loaded patch with its <name>_<Group>.tpx file in a folder.")),
            &QAction::triggered, this, &MainWindow::openGpsFolder);
    m_recentPatchesMenu = m_menus.addMenu(file, QT_TR_NOOP("Recent Patches"));
    m_recentRecordingsMenu = m_menus.addMenu(file, QT_TR_NOOP("Recent Recordings"));
    file->addSeparator();
    connect(m_menus.addEntry(file, QT_TR_NOOP("Open Network Log..."), QKeySequence()), &QAction::triggered,
            this, &MainWindow::openNetworkLog);
    connect(m_menus.addEntry(file, QT_TR_NOOP("Save Network Log"), QKeySequence::Save, nullptr,
                             QStringLiteral(":/icons/save.png")),
            &QAction::triggered, this, &MainWindow::saveNetworkLog);
    connect(m_menus.addEntry(file, QT_TR_NOOP("Save Network Log As..."),
                             QKeySequence(QStringLiteral("Ctrl+Shift+S")), nullptr,
                             QStringLiteral(":/icons/save-as.png")),
            &QAction::triggered, this, &MainWindow::saveNetworkLogAs);
    file->addSeparator();
    connect(m_menus.addEntry(file, QT_TR_NOOP("Save Monitor Snapshot..."), QKeySequence()),
            &QAction::triggered, this, &MainWindow::onSaveSnapshot);
    m_menus.addPlanned(file, QT_TR_NOOP("Export Patch Report..."));
    file->addSeparator();
    connect(m_menus.addEntry(file, QT_TR_NOOP("Exit"), QKeySequence(QStringLiteral("Ctrl+Q")), nullptr,
                             QStringLiteral(":/icons/exit_icon.png")),
            &QAction::triggered, this, &MainWindow::close);

    QMenu *edit = m_menus.addMenu(nullptr, QT_TR_NOOP("&Edit"));
    connect(m_menus.addEntry(edit, QT_TR_NOOP("Network Log..."), QKeySequence(QStringLiteral("Ctrl+L")),
                             QT_TR_NOOP("See every packet this node receives and sends."),
                             QStringLiteral(":/icons/network_log_icon.png")),
            &QAction::triggered, this, &MainWindow::showNetworkLog);
    connect(m_menus.addEntry(edit, QT_TR_NOOP("Copy Monitor Image"),
                             QKeySequence(QStringLiteral("Ctrl+Shift+C"))),
            &QAction::triggered, this, &MainWindow::copyMonitorImage);
    connect(m_menus.addEntry(edit, QT_TR_NOOP("Interface Theme..."), QKeySequence(), nullptr,
                             QStringLiteral(":/icons/settings.png")),
            &QAction::triggered, this, &MainWindow::chooseTheme);
    m_menus.addPlanned(edit, QT_TR_NOOP("Preferences..."));

    QMenu *view = m_menus.addMenu(nullptr, QT_TR_NOOP("&View"));
    auto *views = new QActionGroup(this);
    for (const auto &[text, key, tab] : {std::tuple{QT_TR_NOOP("2D Monitor"), "Ctrl+1", int(View2DTab)},
                                         std::tuple{QT_TR_NOOP("3D Monitor"), "Ctrl+2", int(View3DTab)}}) {
        QAction *action = m_menus.addEntry(view, text, QKeySequence(QString::fromLatin1(key)));
        action->setCheckable(true);
        views->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, tab = tab] { m_monitorTabs->setCurrentIndex(tab); });
    }
    connect(m_menus.addEntry(view, QT_TR_NOOP("Fit to View"), QKeySequence(QStringLiteral("Ctrl+0")), nullptr,
                             QStringLiteral(":/icons/fit_to_window.png")),
            &QAction::triggered, this, &MainWindow::onFitToView);
    QMenu *camera = m_menus.addMenu(view, QT_TR_NOOP("3D Camera"));
    connect(m_menus.addEntry(camera, QT_TR_NOOP("Reset Camera"), QKeySequence()), &QAction::triggered,
            m_view3d, &Led3DView::reset);
    // These mirror the monitor bar's boxes: the box is the state, the entry clicks it.
    for (const auto &[text, box] : {std::pair{QT_TR_NOOP("Show Axes"), m_bar.axes},
                                    std::pair{QT_TR_NOOP("Fast Draw"), m_bar.fastDraw},
                                    std::pair{QT_TR_NOOP("Auto Orbit"), m_bar.autoOrbit}}) {
        QAction *action = m_menus.addEntry(camera, text, QKeySequence());
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [box = box] { box->click(); });
    }
    QAction *white = m_menus.addEntry(view, QT_TR_NOOP("White Channels"), QKeySequence());
    white->setCheckable(true);
    connect(white, &QAction::triggered, this, [this] { m_bar.white->click(); });
    QAction *health = m_menus.addEntry(view, QT_TR_NOOP("Health Overlay"), QKeySequence(QStringLiteral("Ctrl+H")),
                                       QT_TR_NOOP("Paint every fixture in the health colour of its universe."));
    health->setCheckable(true);
    connect(health, &QAction::triggered, this, [this] { m_bar.health->click(); });
    connect(m_menus.addEntry(view, QT_TR_NOOP("Universe Health..."), QKeySequence(QStringLiteral("Ctrl+Shift+H")),
                             QT_TR_NOOP("Per universe and sender: rate, lost and late packets, conflicts, ArtSync.")),
            &QAction::triggered, this, &MainWindow::showUniverseHealth);
    QAction *fullScreen =
        m_menus.addEntry(view, QT_TR_NOOP("Full Screen"), QKeySequence(QStringLiteral("F11")));
    fullScreen->setCheckable(true);
    connect(fullScreen, &QAction::triggered, this,
            [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });

    QMenu *playback = m_menus.addMenu(nullptr, QT_TR_NOOP("&Playback"));
    QAction *playPause = m_menus.addEntry(playback, QT_TR_NOOP("Play / Pause"), QKeySequence(Qt::Key_Space),
                                          nullptr, QStringLiteral(":/icons/play.png"));
    connect(playPause, &QAction::triggered, this, &MainWindow::onPlayPause);
    QAction *rewind = m_menus.addEntry(playback, QT_TR_NOOP("Rewind"), QKeySequence(Qt::Key_Home));
    connect(rewind, &QAction::triggered, this, &MainWindow::onStopPlayback);
    QAction *previous =
        m_menus.addEntry(playback, QT_TR_NOOP("Previous Frame"), QKeySequence(QStringLiteral("Ctrl+Left")));
    connect(previous, &QAction::triggered, this, [this] { stepFrame(-1); });
    QAction *next =
        m_menus.addEntry(playback, QT_TR_NOOP("Next Frame"), QKeySequence(QStringLiteral("Ctrl+Right")));
    connect(next, &QAction::triggered, this, [this] { stepFrame(1); });
    QAction *goTo =
        m_menus.addEntry(playback, QT_TR_NOOP("Go to Frame..."), QKeySequence(QStringLiteral("Ctrl+G")));
    connect(goTo, &QAction::triggered, this, &MainWindow::goToFrame);
    playback->addSeparator();
    QAction *loop = m_menus.addEntry(playback, QT_TR_NOOP("Loop"), QKeySequence());
    loop->setCheckable(true);
    connect(loop, &QAction::triggered, this, [this](bool on) {
        // The panels set their box quietly; the clock of a running playback is told here.
        if (m_playbackTabs->currentIndex() == GpsTab)
            m_gpsPanel->setLoop(on);
        else
            m_playbackPanel->setLoop(on);
        m_clock->setLoop(on);
    });
    playback->addSeparator();
    auto *tabs = new QActionGroup(this);
    for (const auto &[text, tab] : {std::pair{QT_TR_NOOP("Standard Art-Net"), int(StandardTab)},
                                    std::pair{QT_TR_NOOP("GPS Mirra Set"), int(GpsTab)}}) {
        QAction *action = m_menus.addEntry(playback, text, QKeySequence());
        action->setCheckable(true);
        tabs->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, tab = tab] { m_playbackTabs->setCurrentIndex(tab); });
        m_playbackActions << action;
    }
    // Play / Pause stays enabled in Live broadcast: pressed there it says why it does nothing.
    m_playbackActions << rewind << previous << next << goTo << loop;

    QMenu *broadcast = m_menus.addMenu(nullptr, QT_TR_NOOP("&Broadcast"));
    QAction *listen = m_menus.addEntry(broadcast, QT_TR_NOOP("Listen for Art-Net"),
                                       QKeySequence(QStringLiteral("Ctrl+Shift+L")));
    listen->setCheckable(true);
    connect(listen, &QAction::triggered, this, &MainWindow::toggleListening);
    QAction *record = m_menus.addEntry(broadcast, QT_TR_NOOP("Record Incoming Stream"),
                                       QKeySequence(QStringLiteral("Ctrl+Shift+R")));
    record->setCheckable(true);
    connect(record, &QAction::triggered, this, &MainWindow::toggleRecording);
    QAction *announce = m_menus.addEntry(
        broadcast, QT_TR_NOOP("Announce Node Now"), QKeySequence(),
        QT_TR_NOOP("Broadcast an ArtPollReply immediately instead of waiting for the next poll."));
    connect(announce, &QAction::triggered, this, &MainWindow::announceNow);
    QAction *refresh = m_menus.addEntry(broadcast, QT_TR_NOOP("Refresh Network Interfaces"), QKeySequence());
    connect(refresh, &QAction::triggered, this, &MainWindow::refreshInterfaces);
    m_broadcastActions << listen << record << announce << refresh;
    broadcast->addSeparator();
    connect(m_menus.addEntry(broadcast, QT_TR_NOOP("Node Discovery (ArtPoll Scan)..."), QKeySequence(),
                             QT_TR_NOOP("List the Art-Net nodes on the network and what is wrong with their replies.")),
            &QAction::triggered, this, &MainWindow::showNodeDiscovery);
    m_menus.addPlanned(broadcast, QT_TR_NOOP("Test Signal Generator..."));
    m_menus.addPlanned(broadcast, QT_TR_NOOP("sACN (E1.31) Input"));

    QMenu *help = m_menus.addMenu(nullptr, QT_TR_NOOP("&Help"));
    connect(m_menus.addEntry(help, QT_TR_NOOP("Language..."), QKeySequence()), &QAction::triggered, this,
            &MainWindow::chooseLanguage);
    connect(m_menus.addEntry(help, QT_TR_NOOP("Website"), QKeySequence()), &QAction::triggered, this,
            [] { QDesktopServices::openUrl(kWebsite); });
    connect(m_menus.addEntry(help, QT_TR_NOOP("Release Notes"), QKeySequence()), &QAction::triggered, this,
            &MainWindow::showReleaseNotes);
    connect(m_menus.addEntry(help, QT_TR_NOOP("Keyboard Shortcuts"), QKeySequence(QStringLiteral("F1"))),
            &QAction::triggered, this, &MainWindow::showShortcuts);
    connect(
        m_menus.addEntry(
            help, QT_TR_NOOP("Open Logs Folder"), QKeySequence(),
            QT_TR_NOOP("Patches that produced import warnings are kept here together with the messages.")),
        &QAction::triggered, this, &MainWindow::openLogsFolder);
    help->addSeparator();
    connect(m_menus.addEntry(help, QT_TR_NOOP("User Manual"), QKeySequence(),
                             QT_TR_NOOP("How to load a patch, play, go live, record, log and capture.")),
            &QAction::triggered, this, &MainWindow::showUserManual);
    connect(m_menus.addEntry(help, QT_TR_NOOP("Check for Updates..."), QKeySequence()), &QAction::triggered,
            this, [this] { m_updates->checkNow(); });
    connect(m_menus.addEntry(help, QT_TR_NOOP("About"), QKeySequence(), nullptr,
                             QStringLiteral(":/icons/information.png")),
            &QAction::triggered, this, &MainWindow::showAbout);

    for (QMenu *menu : menuBar()->findChildren<QMenu *>())
        connect(menu, &QMenu::aboutToShow, this, &MainWindow::syncMenuChecks);
    // The boxes change the state the entries mirror; keyboard users see it without opening a menu.
    for (QCheckBox *box : {m_bar.white, m_bar.health, m_bar.axes, m_bar.fastDraw, m_bar.autoOrbit})
        connect(box, &QCheckBox::toggled, this, &MainWindow::syncMenuChecks);
    connect(m_monitorTabs, &QTabWidget::currentChanged, this, &MainWindow::syncMenuChecks);
    connect(m_playbackTabs, &QTabWidget::currentChanged, this, &MainWindow::syncMenuChecks);
    connect(m_playbackPanel, &PlaybackPanel::loopChanged, this, &MainWindow::syncMenuChecks);
    connect(m_gpsPanel, &GpsPlaybackPanel::loopChanged, this, &MainWindow::syncMenuChecks);

    fillRecentMenu(m_recentPatchesMenu, SettingsKey::recentPatches, true);
    fillRecentMenu(m_recentRecordingsMenu, SettingsKey::recentRecordings, false);
}

void MainWindow::retranslateMenus()
{
    m_menus.retranslate();
    fillRecentMenu(m_recentPatchesMenu, SettingsKey::recentPatches, true);
    fillRecentMenu(m_recentRecordingsMenu, SettingsKey::recentRecordings, false);
}

void MainWindow::syncMenuChecks()
{
    const auto check = [this](const char *text, bool on) {
        if (QAction *action = menuAction(text))
            action->setChecked(on);
    };
    check("2D Monitor", m_monitorTabs->currentIndex() == View2DTab);
    check("3D Monitor", m_monitorTabs->currentIndex() == View3DTab);
    check("Show Axes", m_bar.axes->isChecked());
    check("Fast Draw", m_bar.fastDraw->isChecked());
    check("Auto Orbit", m_bar.autoOrbit->isChecked());
    check("White Channels", m_bar.white->isChecked());
    check("Health Overlay", m_bar.health->isChecked());
    check("Full Screen", isFullScreen());
    check("Loop", m_playbackTabs->currentIndex() == GpsTab ? m_gpsPanel->loop() : m_playbackPanel->loop());
    check("Standard Art-Net", m_playbackTabs->currentIndex() == StandardTab);
    check("GPS Mirra Set", m_playbackTabs->currentIndex() == GpsTab);
    check("Listen for Art-Net", m_live && m_live->node().isRunning());
    check("Record Incoming Stream", m_live && m_live->isRecording());
}

void MainWindow::enableSourceActions(bool recorded)
{
    for (QAction *action : std::as_const(m_playbackActions))
        action->setEnabled(recorded);
    for (QAction *action : std::as_const(m_broadcastActions))
        action->setEnabled(!recorded);
}

void MainWindow::addRecentPath(const QString &path, const QString &key)
{
    if (path.isEmpty())
        return;
    const auto settings = openSettings();
    settings->setValue(key, withRecentPath(settings->value(key).toStringList(), path));
    if (key == SettingsKey::recentPatches)
        fillRecentMenu(m_recentPatchesMenu, key, true);
    else
        fillRecentMenu(m_recentRecordingsMenu, key, false);
}

void MainWindow::fillRecentMenu(QMenu *menu, const QString &key, bool isPatch)
{
    menu->clear();
    const QStringList paths = openSettings()->value(key).toStringList();
    if (paths.isEmpty()) {
        menu->addAction(tr("(empty)"))->setEnabled(false);
        return;
    }
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QString path = paths.at(i);
        // Numbered from 1 so the first entry is Alt+1; "&&" keeps an ampersand in a path visible.
        QAction *entry = menu->addAction(QStringLiteral("&%1  %2").arg(i + 1).arg(
            QDir::toNativeSeparators(path).replace(QLatin1Char('&'), QLatin1String("&&"))));
        // Queued: the workflow may rebuild this very menu while the entry is still being triggered.
        connect(entry, &QAction::triggered, this, [this, path, isPatch] {
            QMetaObject::invokeMethod(
                this, [this, path, isPatch] { isPatch ? openPatch(path) : openRecording(path); },
                Qt::QueuedConnection);
        });
    }
    menu->addSeparator();
    connect(menu->addAction(tr("Clear List")), &QAction::triggered, this, [this, menu, key, isPatch] {
        openSettings()->remove(key);
        QMetaObject::invokeMethod(
            this, [this, menu, key, isPatch] { fillRecentMenu(menu, key, isPatch); }, Qt::QueuedConnection);
    });
}

void MainWindow::openPatch(const QString &path)
{
    m_patchBar->setPath(path);
    onUploadRequested(path);
}

void MainWindow::openRecording(const QString &path)
{
    m_recordedRadio->setChecked(true);
    m_playbackTabs->setCurrentIndex(StandardTab);
    m_playbackPanel->setPath(path);
    onRecordingLoadRequested(path);
}

void MainWindow::openPatchDialog()
{
    const QString start = m_patchPath.isEmpty() ? m_patchBar->path() : m_patchPath;
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open Patch"), QFileInfo(start).absolutePath(),
                                     tr("Patches (*.tpatch *.mpz *.elm *.elmbackup);;All files (*)"));
    if (!path.isEmpty())
        openPatch(path);
}

void MainWindow::openRecordingDialog()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Recording"),
                                                      QFileInfo(m_playbackPanel->path()).absolutePath(),
                                                      tr("Recordings and captures (*.tpx *.pcapng *.pcap);;All files (*)"));
    if (!path.isEmpty())
        openRecording(path);
}

void MainWindow::stepFrame(int delta)
{
    if (refuseWithoutSource())
        return;
    // Stepping is for looking at one frame: a running playback pauses first.
    if (m_clock->isPlaying()) {
        stopClock();
        showStatus([] { return tr("Playback paused."); }, 0);
    }
    onSeekRequested(m_currentFrame + delta);
}

void MainWindow::goToFrame()
{
    if (refuseWithoutSource())
        return;
    const qint64 last = currentSourceFrames() - 1;
    QInputDialog dialog(this);
    dialog.setObjectName(QStringLiteral("goToFrameDialog"));
    dialog.setWindowTitle(tr("Go to Frame"));
    dialog.setLabelText(tr("Frame (0 - %1):").arg(last));
    dialog.setInputMode(QInputDialog::IntInput);
    // The spin box is an int; a recording of more than 2^31 frames (over a
    // year at 44 fps) is not a case to design the dialog for.
    dialog.setIntRange(0, int(std::min<qint64>(last, std::numeric_limits<int>::max())));
    dialog.setIntValue(int(std::min<qint64>(m_currentFrame, std::numeric_limits<int>::max())));
    if (dialog.exec() == QDialog::Accepted)
        onSeekRequested(dialog.intValue());
}

void MainWindow::toggleListening()
{
    if (m_live && m_live->node().isRunning())
        onBroadcastStop();
    else
        onBroadcastStart();
    syncMenuChecks();
}

void MainWindow::toggleRecording()
{
    if (m_live && m_live->isRecording())
        onRecordStop();
    else
        onRecordStart();
    syncMenuChecks();
}

QString MainWindow::proposedSnapshotPath() const
{
    const bool is3d = m_monitorTabs->currentIndex() == View3DTab;
    const QFileInfo patchFile(m_patchPath);
    QString folder = m_kept.lastSnapshotDir;
    if (folder.isEmpty())
        folder = m_patchPath.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)
                                       : patchFile.absolutePath();
    const QString base = m_patchPath.isEmpty() ? QStringLiteral("monitor") : patchFile.completeBaseName();
    return QDir(folder).filePath(base + (is3d ? QStringLiteral("_3d.png") : QStringLiteral("_2d.png")));
}

void MainWindow::copyMonitorImage()
{
    QGuiApplication::clipboard()->setImage(m_monitorTabs->currentIndex() == View3DTab ? m_view3d->snapshot()
                                                                                      : m_view2d->snapshot());
    showStatus([] { return tr("Monitor image copied to the clipboard."); }, 4000);
}

void MainWindow::applyTheme(const QString &id)
{
    m_style->applyTheme(id);
    m_style->install(*qApp);
    const QString applied = m_style->currentThemeId();
    openSettings()->setValue(SettingsKey::theme, applied);
    if (m_health.window)
        m_health.window->setStatePalette(healthPalette());
    refreshHealth();
    showStatus([applied] { return tr("Interface theme: %1").arg(MoxStyle::themeDisplayName(applied)); },
               4000);
}

void MainWindow::chooseTheme()
{
    // Each theme is shown on the whole program as it is selected; Cancel goes back.
    const QString before = m_style->currentThemeId();
    QDialog dialog(this);
    dialog.setObjectName(QStringLiteral("themeDialog"));
    dialog.setWindowTitle(tr("Interface Theme"));
    auto *hint = new QLabel(tr("The window shows each theme as you select it."), &dialog);
    auto *list = new QListWidget(&dialog);
    list->setObjectName(QStringLiteral("themeList"));
    list->setAccessibleName(tr("Interface Theme"));
    for (const QString &id : m_style->themeIds()) {
        auto *item = new QListWidgetItem(MoxStyle::themeDisplayName(id), list);
        item->setData(Qt::UserRole, id);
        if (id == before)
            list->setCurrentItem(item);
    }
    connect(list, &QListWidget::currentItemChanged, &dialog, [this](QListWidgetItem *item) {
        if (!item)
            return;
        m_style->applyTheme(item->data(Qt::UserRole).toString());
        m_style->install(*qApp);
    });
    connect(list, &QListWidget::itemActivated, &dialog, &QDialog::accept);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(hint);
    layout->addWidget(list);
    layout->addWidget(buttons);
    if (dialog.exec() == QDialog::Accepted && list->currentItem()) {
        applyTheme(list->currentItem()->data(Qt::UserRole).toString());
    } else if (m_style->currentThemeId() != before) {
        m_style->applyTheme(before);
        m_style->install(*qApp);
    }
}

void MainWindow::chooseLanguage()
{
    const QStringList ids = Translator::languageIds();
    QStringList names;
    for (const QString &id : ids)
        names << Translator::languageName(id);
    const QString current = m_translator ? m_translator->currentLanguageId()
                                         : openSettings()->value(SettingsKey::language).toString();
    bool ok = false;
    const QString chosen = QInputDialog::getItem(this, tr("Language"), tr("Language:"), names,
                                                 std::max<int>(0, int(ids.indexOf(current))), false, &ok);
    if (!ok || !names.contains(chosen))
        return;
    const QString id = ids.at(names.indexOf(chosen));
    openSettings()->setValue(SettingsKey::language, id);
    if (m_translator)
        m_translator->applyLanguage(id);
}

void MainWindow::showShortcuts()
{
    if (m_shortcutsDialog) {
        m_shortcutsDialog->raise();
        m_shortcutsDialog->activateWindow();
        return;
    }
    auto *table = new QTableWidget(0, 2);
    table->setObjectName(QStringLiteral("shortcutsTable"));
    table->setAccessibleName(tr("Keyboard Shortcuts"));
    table->setHorizontalHeaderLabels({tr("Action"), tr("Shortcut")});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    // Built from the menus themselves, so the table can never disagree with them.
    for (const auto &[text, shortcut] : m_menus.shortcutRows()) {
        const int row = table->rowCount();
        table->insertRow(row);
        table->setItem(row, 0, new QTableWidgetItem(text));
        table->setItem(row, 1, new QTableWidgetItem(shortcut));
    }
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    m_shortcutsDialog = openPlainDialog(this, QStringLiteral("shortcutsDialog"), tr("Keyboard Shortcuts"),
                                        table, QSize(440, 600));
}

void MainWindow::showReleaseNotes()
{
    QFile file(QStringLiteral(":/notes/release-notes.md"));
    QString notes = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    // The file holds every version, newest first; this version's section is shown.
    const QString heading = QStringLiteral("## ") + QStringLiteral(TALU_VERSION);
    const qsizetype from = notes.indexOf(heading);
    if (from >= 0) {
        const qsizetype to = notes.indexOf(QStringLiteral("\n## "), from + heading.size());
        notes = notes.mid(from, to < 0 ? -1 : to - from);
    }
    auto *text = new QTextBrowser;
    text->setObjectName(QStringLiteral("releaseNotesText"));
    text->setAccessibleName(tr("Release Notes"));
    text->setOpenExternalLinks(true);
    text->setMarkdown(notes);
    openPlainDialog(this, QStringLiteral("releaseNotesDialog"), tr("Release Notes"), text, QSize(560, 480));
}

void MainWindow::showUserManual()
{
    // The manual in the repository (docs/manual.md), with its pictures beside it in the resources.
    auto *text = new QTextBrowser;
    text->setObjectName(QStringLiteral("userManualText"));
    text->setAccessibleName(tr("User Manual"));
    text->setOpenExternalLinks(true);
    text->setSource(QUrl(QStringLiteral("qrc:/manual/manual.md")), QTextDocument::MarkdownResource);
    // Screenshots wider than the page are shown scaled to its width.
    constexpr int kPictureWidth = 740;
    QTextDocument *document = text->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            QTextImageFormat format = fragment.charFormat().toImageFormat();
            const QImage picture = format.isValid()
                                       ? document->resource(QTextDocument::ImageResource, format.name()).value<QImage>()
                                       : QImage();
            if (picture.width() <= kPictureWidth)
                continue;
            format.setWidth(kPictureWidth);
            format.setHeight(double(picture.height()) * kPictureWidth / picture.width());
            QTextCursor cursor(document);
            cursor.setPosition(fragment.position());
            cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
    }
    openPlainDialog(this, QStringLiteral("userManualDialog"), tr("User Manual"), text, QSize(820, 700));
}

void MainWindow::openLogsFolder()
{
    const QString folder = m_importLogsFolder.isEmpty() ? TPatch::importLogsFolder() : m_importLogsFolder;
    if (folder.isEmpty() || !QDir().mkpath(folder)) {
        showStatus([] { return tr("There is no writable logs folder."); }, 5000);
        return;
    }
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
    const QString shown = QDir::toNativeSeparators(folder);
    showStatus([shown] { return tr("Logs folder: %1").arg(shown); }, 5000);
}

void MainWindow::showAbout()
{
    auto *box = new QMessageBox(this);
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(tr("About Torvane TALU"));
    box->setIconPixmap(QPixmap(QStringLiteral(":/icons/logo.png"))
                           .scaled(64, 64, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    box->setTextFormat(Qt::RichText);
    box->setText(
        QStringLiteral("<h3>Torvane TALU %1</h3><p>%2</p>")
            .arg(QStringLiteral(TALU_VERSION).toHtmlEscaped(),
                 tr("See what an LED installation shows for a stream of Art-Net DMX data.").toHtmlEscaped()));
    box->setInformativeText(
        QStringLiteral("<p>%1</p><p>%2</p><p>%3</p><ul><li>%4</li><li>%5</li><li>%6</li></ul><p>%7</p>")
            .arg(tr("Version %1, built %2.")
                     .arg(QStringLiteral(TALU_VERSION), QStringLiteral(__DATE__))
                     .toHtmlEscaped(),
                 tr("Running on Qt %1.").arg(QString::fromLatin1(qVersion())).toHtmlEscaped(),
                 tr("This program uses:").toHtmlEscaped(),
                 tr("Qt %1 (The Qt Company), under the GNU Lesser General Public License version 3.")
                     .arg(QString::fromLatin1(qVersion()))
                     .toHtmlEscaped(),
                 tr("zlib (Jean-loup Gailly and Mark Adler), under the zlib licence.").toHtmlEscaped(),
                 tr("libpcap (The Tcpdump Group), in the capture helper, under the BSD licence.").toHtmlEscaped(),
                 tr("Torvane TALU is © 2026 Torvane. All rights reserved.").toHtmlEscaped()));
    box->setStandardButtons(QMessageBox::Ok);
    box->addButton(tr("About Qt"), QMessageBox::HelpRole);
    connect(box, &QMessageBox::buttonClicked, this, [box](QAbstractButton *button) {
        if (box->buttonRole(button) == QMessageBox::HelpRole)
            QMessageBox::aboutQt(box->parentWidget());
    });
    box->open();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QStringList files = droppedFiles(event->mimeData());
    if (files.isEmpty())
        return;
    event->acceptProposedAction();
    // Loaded after the drop has ended: a failing patch opens a dialog, and the
    // file manager the files came from must not wait for it.
    QMetaObject::invokeMethod(this, [this, files] { openPaths(files); }, Qt::QueuedConnection);
}

void MainWindow::openPaths(const QStringList &paths)
{
    // A patch first, so a recording that comes with it is evaluated against it;
    // every network log opens in a window of its own.
    QString patch, recording;
    QStringList logs, unknown;
    for (const QString &path : paths) {
        if (isPatchFile(path) && patch.isEmpty())
            patch = path;
        else if (isRecordingFile(path) && recording.isEmpty())
            recording = path;
        else if (isNetworkLogFile(path))
            logs << path;
        else
            unknown << path;
    }
    // A name the program does not know by its suffix: as before, the first is the patch, the next the recording.
    for (const QString &path : std::as_const(unknown)) {
        if (patch.isEmpty())
            patch = path;
        else if (recording.isEmpty())
            recording = path;
    }
    openFiles(patch, recording);
    for (const QString &log : std::as_const(logs))
        openNetworkLogFile(log);
}
