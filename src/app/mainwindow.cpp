#include "app/mainwindow.h"

#include "app/updater.h"
#include "artnet/widgets/broadcastpanel.h"
#include "live/livepipeline.h"
#include "monitor/pixeltexts.h"
#include "monitor/widgets/dmxinspector.h"
#include "monitor/widgets/led3dview.h"
#include "monitor/widgets/ledmonitorview.h"
#include "panels/currentpagestack.h"
#include "panels/currentpagetabs.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/groupfilterpanel.h"
#include "panels/patchbar.h"
#include "panels/patchsummarypanel.h"
#include "panels/playbackpanel.h"
#include "recording/playbackclock.h"
#include "recording/recording.h"
#include "style/moxstyle.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kLeftColumnMinWidth = 340;
constexpr int kLeftColumnMaxWidth = 460;

enum SourcePage { RecordedPage = 0, BroadcastPage = 1 };
enum SideTab { GroupsTab = 0, PatchTab = 1, DmxTab = 2 };

enum MonitorTab { View2DTab = 0, View3DTab = 1 };
constexpr int kFrontPreset = 0;

} // namespace

MainWindow::MainWindow(MoxStyle *style, QWidget *parent) : QMainWindow(parent), m_style(style)
{
    if (!m_style) {
        m_ownStyle = std::make_unique<MoxStyle>();
        m_style = m_ownStyle.get();
    }
    setWindowTitle(QStringLiteral("Torvane TALU"));
    resize(1420, 880);

    m_clock = new PlaybackClock(this);
    m_recording = std::make_unique<Recording>();

    buildCentralWidget();
    wirePanels();
    wireMonitorBar();
    wireGroupFilter();
    m_updates = new UpdateController(this, this);
    buildMenus();
    // Files may be dropped anywhere, the monitor included: the views would
    // otherwise take the drop for their scenes and refuse it.
    setAcceptDrops(true);
    for (QGraphicsView *view : std::initializer_list<QGraphicsView *>{m_view2d, m_view3d}) {
        view->setAcceptDrops(false);
        view->viewport()->setAcceptDrops(false);
    }
    showStatus([] { return tr("Ready. Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to begin."); }, 0);
    retranslateUi();

    loadSettings();
    applySourceMode();

    // The clock runs in its own thread: its signals arrive queued.
    connect(m_clock, &PlaybackClock::tick, this, &MainWindow::onFrameTick, Qt::QueuedConnection);
    connect(m_clock, &PlaybackClock::finished_, this, &MainWindow::onPlaybackFinished, Qt::QueuedConnection);
    connect(m_clock, &PlaybackClock::performanceWarning, this, &MainWindow::onPerformanceWarning,
            Qt::QueuedConnection);

    // The measured-rate line is refreshed once a second while playing.
    m_run.performanceTimer.setInterval(1000);
    connect(&m_run.performanceTimer, &QTimer::timeout, this, &MainWindow::showPerformance);
    // Live painting is never per packet: at most every 20 ms, when something arrived.
    m_liveRepaintTimer.setInterval(20);
    m_liveRepaintTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_liveRepaintTimer, &QTimer::timeout, this, &MainWindow::onLiveRepaint);
    connect(&m_health.timer, &QTimer::timeout, this, &MainWindow::refreshHealth);
    m_broadcastStatusTimer.setInterval(1000);
    connect(&m_broadcastStatusTimer, &QTimer::timeout, this, &MainWindow::refreshBroadcastStatus);
}

MainWindow::~MainWindow()
{
    saveSettings();
    m_clock->stop();
    m_clock->wait();
    // Node stopped, then the live recording file closed, before the members go;
    // the node's last status signal must not reach a window being taken apart.
    if (m_live) {
        disconnect(&m_live->node(), nullptr, this, nullptr);
        m_live->node().stop();
        m_live->stopRecording();
        m_live.reset();
    }
}

void MainWindow::buildCentralWidget()
{
    auto *central = new QWidget(this);
    auto *layout = new QHBoxLayout(central);
    layout->addWidget(buildLeftColumn());
    layout->addWidget(buildRightArea(), 1);
    setCentralWidget(central);
}

QWidget *MainWindow::buildLeftColumn()
{
    auto *column = new QWidget(this);
    column->setMinimumWidth(kLeftColumnMinWidth);
    column->setMaximumWidth(kLeftColumnMaxWidth);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);

    m_patchBar = new PatchBar(column);
    connect(m_patchBar, &PatchBar::uploadRequested, this, &MainWindow::onUploadRequested);
    layout->addWidget(m_patchBar);

    m_sourceBox = new QGroupBox(column);
    auto *sourceLayout = new QVBoxLayout(m_sourceBox);
    m_recordedRadio = new QRadioButton(m_sourceBox);
    m_liveRadio = new QRadioButton(m_sourceBox);
    m_recordedRadio->setChecked(true);
    auto *modes = new QButtonGroup(m_sourceBox);
    modes->setExclusive(true);
    modes->addButton(m_recordedRadio);
    modes->addButton(m_liveRadio);
    sourceLayout->addWidget(m_recordedRadio);
    sourceLayout->addWidget(m_liveRadio);
    connect(m_recordedRadio, &QRadioButton::toggled, this, &MainWindow::onModeChanged);
    layout->addWidget(m_sourceBox);

    m_sourceStack = new CurrentPageStack(column);
    m_playbackTabs = new CurrentPageTabs(m_sourceStack);
    m_playbackPanel = new PlaybackPanel;
    m_gpsPanel = new GpsPlaybackPanel(*m_style);
    m_playbackTabs->addTab(m_playbackPanel, QString());
    m_playbackTabs->addTab(m_gpsPanel, QString());
    m_broadcastPanel = new BroadcastPanel;
    m_broadcastPanel->refreshInterfaces();
    m_sourceStack->insertWidget(RecordedPage, m_playbackTabs);
    m_sourceStack->insertWidget(BroadcastPage, m_broadcastPanel);
    layout->addWidget(m_sourceStack);

    auto *scroll = new QScrollArea(column);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setStyleSheet(QStringLiteral("QScrollArea { background: transparent; }"));
    m_sideTabs = new QTabWidget(scroll);
    m_groupPanel = new GroupFilterPanel;
    m_summaryPanel = new PatchSummaryPanel(*m_style);
    m_dmxInspector = new DmxInspector;
    m_dmxInspector->setObjectName(QStringLiteral("DmxInspector"));
    m_sideTabs->insertTab(GroupsTab, m_groupPanel, QString());
    m_sideTabs->insertTab(PatchTab, m_summaryPanel, QString());
    m_sideTabs->insertTab(DmxTab, m_dmxInspector, QString());
    scroll->setWidget(m_sideTabs);
    layout->addWidget(scroll, 1);
    return column;
}

QWidget *MainWindow::buildRightArea()
{
    auto *area = new QWidget(this);
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);

    auto *bar = new QHBoxLayout;
    m_bar.hint = new QLabel(area);
    m_bar.hint->setObjectName(QStringLiteral("monitorHint"));
    m_bar.hint->setProperty("labelRole", QStringLiteral("hint"));
    m_bar.fit = new QPushButton(area);
    m_bar.snapshot = new QPushButton(area);
    m_bar.white = new QCheckBox(area);
    m_bar.health = new QCheckBox(area);
    m_bar.health->setObjectName(QStringLiteral("healthOverlay"));
    m_bar.axes = new QCheckBox(area);
    m_bar.fastDraw = new QCheckBox(area);
    m_bar.autoOrbit = new QCheckBox(area);
    m_bar.front = new QPushButton(area);
    m_bar.reset = new QPushButton(area);
    bar->addWidget(m_bar.hint, 1);
    for (QWidget *w : std::initializer_list<QWidget *>{m_bar.fit, m_bar.snapshot, m_bar.white, m_bar.health, m_bar.axes,
                                                       m_bar.fastDraw, m_bar.autoOrbit, m_bar.front,
                                                       m_bar.reset})
        bar->addWidget(w);
    layout->addLayout(bar);

    m_monitorTabs = new QTabWidget(area);
    m_monitorTabs->setObjectName(QStringLiteral("Monitor"));
    m_view2d = new LedMonitorView;
    m_view2d->setObjectName(QStringLiteral("LedMonitorView"));
    m_view2d->setColours(&shownColours());
    m_view3d = new Led3DView;
    m_view3d->setObjectName(QStringLiteral("Led3DView"));
    m_monitorTabs->insertTab(0, m_view2d, QString());
    m_monitorTabs->insertTab(1, m_view3d, QString());
    layout->addWidget(m_monitorTabs, 1);
    return area;
}

void MainWindow::wireMonitorBar()
{
    connect(m_bar.fit, &QPushButton::clicked, this, &MainWindow::onFitToView);
    connect(m_monitorTabs, &QTabWidget::currentChanged, this, &MainWindow::pushMonitor);
    connect(m_bar.snapshot, &QPushButton::clicked, this, &MainWindow::onSaveSnapshot);
    connect(m_bar.white, &QCheckBox::toggled, this, &MainWindow::onWhiteChannelsToggled);
    connect(m_bar.health, &QCheckBox::toggled, this, &MainWindow::setHealthOverlay);
    connect(m_bar.axes, &QCheckBox::toggled, m_view3d, &Led3DView::setShowAxes);
    connect(m_bar.fastDraw, &QCheckBox::toggled, this, &MainWindow::onFastDrawToggled);
    connect(m_bar.autoOrbit, &QCheckBox::toggled, this, [this](bool on) {
        if (on)
            m_view3d->startAutoOrbit();
        else
            m_view3d->stopAutoOrbit();
    });
    connect(m_view3d, &Led3DView::autoMovementStopped, this, [this] {
        const QSignalBlocker block(m_bar.autoOrbit);
        m_bar.autoOrbit->setChecked(false);
    });
    connect(m_bar.front, &QPushButton::clicked, this, [this] { m_view3d->setViewPreset(kFrontPreset); });
    connect(m_bar.reset, &QPushButton::clicked, m_view3d, &Led3DView::reset);
    connect(m_view2d, &LedMonitorView::cellHovered, this, &MainWindow::onCellHovered);
    connect(m_dmxInspector, &DmxInspector::universeChanged, this, &MainWindow::onInspectedUniverseChanged);
}

void MainWindow::wirePanels()
{
    connect(m_playbackTabs, &QTabWidget::currentChanged, this, &MainWindow::onPlaybackTabChanged);

    connect(m_playbackPanel, &PlaybackPanel::loadRequested, this, &MainWindow::onRecordingLoadRequested);
    connect(m_playbackPanel, &PlaybackPanel::playPauseRequested, this, &MainWindow::onPlayPause);
    connect(m_playbackPanel, &PlaybackPanel::stopRequested, this, &MainWindow::onStopPlayback);
    connect(m_playbackPanel, &PlaybackPanel::seekRequested, this, &MainWindow::onSeekRequested);
    connect(m_playbackPanel, &PlaybackPanel::fpsChanged, this, &MainWindow::onFpsChanged);
    // The loop box of the tab being played decides.
    connect(m_playbackPanel, &PlaybackPanel::loopChanged, this, [this](bool loop) {
        if (m_playbackTabs->currentWidget() == m_playbackPanel)
            m_clock->setLoop(loop);
    });

    connect(m_gpsPanel, &GpsPlaybackPanel::autoFillRequested, this, &MainWindow::onGpsAutoFill);
    connect(m_gpsPanel, &GpsPlaybackPanel::loadAllRequested, this, &MainWindow::onGpsLoadAll);
    connect(m_gpsPanel, &GpsPlaybackPanel::pathsChanged, this, &MainWindow::onGpsPathsChanged);
    connect(m_gpsPanel, &GpsPlaybackPanel::playPauseRequested, this, &MainWindow::onPlayPause);
    connect(m_gpsPanel, &GpsPlaybackPanel::stopRequested, this, &MainWindow::onStopPlayback);
    connect(m_gpsPanel, &GpsPlaybackPanel::seekRequested, this, &MainWindow::onSeekRequested);
    connect(m_gpsPanel, &GpsPlaybackPanel::fpsChanged, this, &MainWindow::onFpsChanged);
    connect(m_gpsPanel, &GpsPlaybackPanel::loopChanged, this, [this](bool loop) {
        if (m_playbackTabs->currentWidget() == m_gpsPanel)
            m_clock->setLoop(loop);
    });

    connect(m_broadcastPanel, &BroadcastPanel::startRequested, this, &MainWindow::onBroadcastStart);
    connect(m_broadcastPanel, &BroadcastPanel::stopRequested, this, &MainWindow::onBroadcastStop);
    connect(m_broadcastPanel, &BroadcastPanel::recordStartRequested, this, &MainWindow::onRecordStart);
    connect(m_broadcastPanel, &BroadcastPanel::recordStopRequested, this, &MainWindow::onRecordStop);
    connect(m_broadcastPanel, &BroadcastPanel::refreshInterfacesRequested, this, &MainWindow::onBroadcastRefresh);
    connect(m_broadcastPanel, &BroadcastPanel::identityChanged, this, &MainWindow::onIdentityChanged);
}

void MainWindow::wireGroupFilter()
{
    connect(m_groupPanel, &GroupFilterPanel::allVisibilityChanged, m_view2d, &LedMonitorView::setAllVisible);
    connect(m_groupPanel, &GroupFilterPanel::groupVisibilityChanged, m_view2d, &LedMonitorView::setGroupVisible);
    connect(m_groupPanel, &GroupFilterPanel::torvoverseVisibilityChanged, m_view2d,
            &LedMonitorView::setTorvoverseVisible);
    connect(m_groupPanel, &GroupFilterPanel::visibleZChanged, m_view2d, &LedMonitorView::setVisibleZ);
    connect(m_groupPanel, &GroupFilterPanel::highlightTorvoverseChanged, m_view2d, &LedMonitorView::setHighlight);
    // The 3D view draws every Z layer at its depth, so it takes all but the layer choice.
    connect(m_groupPanel, &GroupFilterPanel::allVisibilityChanged, m_view3d, &Led3DView::setAllVisible);
    connect(m_groupPanel, &GroupFilterPanel::groupVisibilityChanged, m_view3d, &Led3DView::setGroupVisible);
    connect(m_groupPanel, &GroupFilterPanel::torvoverseVisibilityChanged, m_view3d,
            &Led3DView::setTorvoverseVisible);
    connect(m_groupPanel, &GroupFilterPanel::highlightTorvoverseChanged, m_view3d, &Led3DView::setHighlight);
}

void MainWindow::pushMonitor()
{
    // Only the view on show: mapping a large patch's colours into the hidden
    // 3D model costs as much as painting, and a tab change brings it up to date.
    if (m_monitorTabs->currentIndex() == View3DTab) {
        m_view3d->setColours(shownColours());
        m_view3d->setKinetics(m_colours.kineticValues());
    } else {
        m_view2d->refresh();
    }
    pushInspector();
}

void MainWindow::pushInspector()
{
    m_dmxInspector->setUniverseData(m_inspectedUniverse < 0 ? QByteArray()
                                                            : m_colours.universeData(quint16(m_inspectedUniverse)));
}

void MainWindow::onFitToView()
{
    if (m_monitorTabs->currentIndex() == View3DTab)
        m_view3d->fitCamera();
    else
        m_view2d->fitToView();
}

void MainWindow::clearLiveState()
{
    m_colours.clear();
    pushMonitor();
}

void MainWindow::onCellHovered(int pixelNumber)
{
    if (pixelNumber < 0 || pixelNumber >= m_colours.colours().size()) {
        m_bar.hint->clear();
        return;
    }
    const QString hint = PixelTexts::hoverHint(m_patch, m_layout, pixelNumber, m_colours.colours().at(pixelNumber));
    m_bar.hint->setText(m_bar.health->isChecked() ? hint + QStringLiteral("  |  ") + healthHoverText(pixelNumber)
                                                      : hint);
}

void MainWindow::onInspectedUniverseChanged(int portAddress)
{
    m_inspectedUniverse = portAddress;
    m_dmxInspector->setUniverseData(portAddress < 0 ? QByteArray() : m_colours.universeData(quint16(portAddress)));
}

void MainWindow::onSaveSnapshot()
{
    const bool is3d = m_monitorTabs->currentIndex() == View3DTab;
    const QString path = QFileDialog::getSaveFileName(this, tr("Save Monitor Snapshot"), proposedSnapshotPath(),
                                                      tr("PNG Image (*.png)"));
    if (path.isEmpty())
        return;
    const QImage image = is3d ? m_view3d->snapshot() : m_view2d->snapshot();
    if (!image.save(path, "PNG")) {
        QMessageBox::warning(this, tr("Snapshot Failed"), tr("Could not write %1.").arg(path));
        return;
    }
    m_kept.lastSnapshotDir = QFileInfo(path).absolutePath();
    showStatus([path] { return tr("Snapshot saved to %1").arg(path); }, 0);
    saveSettings();
}

void MainWindow::retranslateUi()
{
    m_sourceBox->setTitle(tr("Source"));
    m_recordedRadio->setText(tr("Recorded playback"));
    m_recordedRadio->setToolTip(tr("Play a .tpx recording. A patch is optional: without one the monitor stays "
                                   "dark and the DMX tab shows the data."));
    m_liveRadio->setText(tr("Live broadcast"));
    m_liveRadio->setToolTip(tr("Act as an Art-Net node and paint the monitor from live DMX."));
    m_playbackTabs->setTabText(0, tr("Standard Art-Net"));
    m_playbackTabs->setTabToolTip(0, tr("One .tpx file recorded for the whole patch."));
    m_playbackTabs->setTabText(1, tr("GPS Mirra"));
    m_playbackTabs->setTabToolTip(1, tr("One .tpx file per group, recorded with GPS Sync Compatible Record.\n"
                                        "All of them are driven from a single clock, frame n at the same instant."));
    m_sideTabs->setTabText(GroupsTab, tr("Groups"));
    m_sideTabs->setTabText(PatchTab, tr("Patch"));
    m_sideTabs->setTabText(DmxTab, tr("DMX"));
    m_dmxInspector->retranslate();

    m_bar.fit->setText(tr("Fit to view"));
    m_bar.snapshot->setText(tr("Snapshot"));
    m_bar.snapshot->setToolTip(tr("Save the current monitor image as a PNG file"));
    m_bar.white->setText(tr("White channels"));
    m_bar.white->setToolTip(
        tr("Add W / CW / WW channel values to the pixel colour.\n\nOff by default: MOX derives the white channels "
           "FROM rgb, so there is no single correct way back. This is a visibility aid - without it, white-only "
           "fixtures stay black even while they are receiving data."));
    m_bar.health->setText(tr("Health"));
    m_bar.health->setToolTip(tr("Paint every fixture in the health colour of its universe: ok, unstable, "
                                 "conflict (several senders), stale (nothing for 4 s) or never received. "
                                 "Hover a fixture for its universe's figures."));
    m_bar.axes->setText(tr("Axes"));
    m_bar.axes->setToolTip(tr("Show the red / green / blue X-Y-Z arrows at the origin."));
    m_bar.fastDraw->setText(tr("Fast draw"));
    m_bar.fastDraw->setToolTip(tr("Draw LEDs as squares without antialiasing.\n\nRoughly 5x faster on large "
                                   "patches - use it when the 3D view cannot keep up with playback. Pixels look "
                                   "square instead of round."));
    m_bar.autoOrbit->setText(tr("Auto orbit"));
    m_bar.autoOrbit->setToolTip(
        tr("Swing the model through +-45 degrees on two axes.\nTouching the view with the mouse stops it."));
    m_bar.front->setText(tr("Front"));
    m_bar.reset->setText(tr("Reset"));
    m_bar.reset->setToolTip(tr("Back to the default angle and distance"));
    m_monitorTabs->setTabText(0, tr("2D"));
    m_monitorTabs->setTabText(1, tr("3D"));
    retranslateMenus();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        retranslateStatus();
        // The shortcut table is built from the menus' texts: built again in the new language.
        if (m_shortcutsDialog) {
            m_shortcutsDialog->close();
            m_shortcutsDialog.clear();
            showShortcuts();
        }
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::showStatus(std::function<QString()> textProducer, int timeoutMs)
{
    std::function<QString()> producer = std::move(textProducer);
    const QString text = producer ? producer() : QString();
    m_status.producer = std::move(producer);
    m_status.text = text;
    m_status.timeoutMs = timeoutMs;
    m_status.shown.start();
    statusBar()->showMessage(text, timeoutMs);
}

void MainWindow::retranslateStatus()
{
    if (!m_status.producer)
        return;
    if (statusBar()->currentMessage() != m_status.text)
        return; // expired, or something else replaced it
    int remainingMs = 0;
    if (m_status.timeoutMs > 0) {
        const qint64 left = m_status.timeoutMs - m_status.shown.elapsed();
        if (left < 1)
            return;
        remainingMs = int(left);
    }
    m_status.text = m_status.producer();
    statusBar()->showMessage(m_status.text, remainingMs);
}

StoredSettings MainWindow::currentSettings() const
{
    StoredSettings v = m_kept;
    v.patchLastPath = m_patchBar->path();
    v.playbackLastPath = m_playbackPanel->path();
    v.playbackFps = m_playbackPanel->fps();
    v.gpsFps = m_gpsPanel->fps();
    v.gpsLoop = m_gpsPanel->loop();
    // Without group rows (no patch yet) the remembered set is written back
    // unchanged, so starting without a patch never erases it.
    v.gpsPaths = m_gpsPanel->groupCount() > 0 ? m_gpsPanel->paths() : m_rememberedGpsPaths;
    v.broadcastAddress = m_broadcastPanel->address();
    v.broadcastShortName = m_broadcastPanel->identity().shortName;
    v.broadcastLongName = m_broadcastPanel->identity().longName;
    v.broadcastRecordDir = m_broadcastPanel->recordFolder();
    v.broadcastRecordName = m_broadcastPanel->recordName();
    v.broadcastRecordFps = m_broadcastPanel->recordFps();
    v.playbackTab = m_playbackTabs->currentIndex();
    v.whiteChannels = m_bar.white->isChecked();
    v.fastDraw3D = m_bar.fastDraw->isChecked();
    v.viewTab = m_monitorTabs->currentIndex();
    v.windowGeometry = saveGeometry();
    return v;
}

void MainWindow::loadSettings()
{
    const std::unique_ptr<QSettings> settings = openSettings();
    const StoredSettings v = readStoredSettings(*settings);
    m_kept = v;
    m_patchBar->setPath(v.patchLastPath);
    m_playbackPanel->setPath(v.playbackLastPath);
    m_playbackPanel->setFps(v.playbackFps);
    m_gpsPanel->setFps(v.gpsFps);
    m_gpsPanel->setLoop(v.gpsLoop);
    m_rememberedGpsPaths = v.gpsPaths;
    m_broadcastPanel->setAddress(v.broadcastAddress);
    m_broadcastPanel->setNames(v.broadcastShortName, v.broadcastLongName);
    m_broadcastPanel->setRecordFolder(v.broadcastRecordDir);
    m_broadcastPanel->setRecordName(v.broadcastRecordName);
    m_broadcastPanel->setRecordFps(v.broadcastRecordFps);
    {
        // Restored values are not the user's toggles: no status messages, no saving.
        const QSignalBlocker blockWhite(m_bar.white);
        const QSignalBlocker blockFast(m_bar.fastDraw);
        m_bar.white->setChecked(v.whiteChannels);
        m_bar.fastDraw->setChecked(v.fastDraw3D);
    }
    m_colours.setWhiteEnabled(v.whiteChannels);
    m_view3d->setFastDraw(m_bar.fastDraw->isChecked());
    m_monitorTabs->setCurrentIndex(v.viewTab);
    {
        // Restoring the tab is not a user's tab change: no tab-change handling.
        const QSignalBlocker block(m_playbackTabs);
        m_playbackTabs->setCurrentIndex(v.playbackTab);
    }
    if (!v.windowGeometry.isEmpty())
        restoreGeometry(v.windowGeometry);
    syncMenuChecks();
}

void MainWindow::saveSettings()
{
    const std::unique_ptr<QSettings> settings = openSettings();
    writeStoredSettings(*settings, currentSettings(), !isFullScreen());
}

void MainWindow::onModeChanged()
{
    // One source paints the monitor at a time. Leaving playback pauses it;
    // leaving live stops feeding the monitor, but a running node and its
    // recording go on (a recording is never cut short by a look elsewhere).
    if (m_liveRadio->isChecked()) {
        stopClock();
        if (m_live && m_live->node().isRunning()) {
            m_live->setColourTarget(&m_colours, &m_layout);
            m_liveRepaintTimer.start();
        }
    } else if (m_live) {
        m_live->setColourTarget(nullptr, nullptr);
        m_liveRepaintTimer.stop();
    }
    clearLiveState();
    applySourceMode();
    if (m_recordedRadio->isChecked() && currentSourceFrames() > 0)
        showFrame(m_currentFrame);
    refreshHealth();
}

void MainWindow::applySourceMode()
{
    const bool recorded = m_recordedRadio->isChecked();
    m_sourceStack->setCurrentIndex(recorded ? RecordedPage : BroadcastPage);
    m_playbackTabs->setEnabled(recorded);
    m_broadcastPanel->setEnabled(!recorded);
    enableSourceActions(recorded);
    m_broadcastPanel->setPatchLoaded(m_patchLoaded);
}

