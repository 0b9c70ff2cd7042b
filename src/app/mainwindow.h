#pragma once

#include "app/appsettings.h"
#include "app/menutable.h"
#include "app/workflowstate.h"
#include "monitor/pixelcolourbuffer.h"
#include "patch/patchdata.h"
#include "patch/patchloadresult.h"
#include "patch/pixellayout.h"
#include "recording/gpssyncset.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>

class QAction;
class QCheckBox;
class QDialog;
class QDragEnterEvent;
class QDropEvent;
class QMenu;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTabWidget;
class BroadcastPanel;
class DmxInspector;
class GpsPlaybackPanel;
class GroupFilterPanel;
class Led3DView;
class LedMonitorView;
class LivePipeline;
class MoxStyle;
class PatchBar;
class PatchSummaryPanel;
class PlaybackClock;
class PlaybackPanel;
class Recording;
class Translator;
class UpdateController;

// The single main window: owns the side panels, the monitor views and the
// status line, and is the only place where the subsystems meet. Panels emit
// requests; the window decides, calls the cores and pushes state back. One
// class, its implementation in one file per workflow (src/app/README.md lists
// them). GUI thread only.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    // style: the theme engine the panels take their colours from (not owned;
    // nullptr makes the window keep a default one of its own).
    explicit MainWindow(MoxStyle *style = nullptr, QWidget *parent = nullptr);
    ~MainWindow() override;

    // The single way any workflow reports on the status line. The producer is
    // kept and called again on a language change; timeoutMs 0 means until replaced.
    void showStatus(std::function<QString()> textProducer, int timeoutMs);
    // Re-produces the current status text in the new language, for the time
    // that remains of its time-out; an expired or replaced message stays gone.
    void retranslateStatus();

    void loadSettings();
    void saveSettings();
    // The values the window would save now, taken from the widgets.
    StoredSettings currentSettings() const;

    // Loads the files named on the command line: a patch, then a recording.
    void openFiles(const QString &patchPath, const QString &recordingPath);
    // Files by their type, as given on the command line or dropped: a patch, a
    // recording, network logs (.tlog, .pcapng, .pcap) in windows of their own.
    void openPaths(const QStringList &paths);
    // Where import reports go; empty (the default) is the program's logs folder.
    void setImportLogsFolder(const QString &folder) { m_importLogsFolder = folder; }

    // The language engine the "Language..." entry drives (not owned; without
    // one the entry only stores the choice for the next start).
    void setTranslator(Translator *translator) { m_translator = translator; }
    UpdateController *updateController() const { return m_updates; }

    // Adds path to a recent list ("recent/patches" or "recent/recordings") and rebuilds its sub-menu.
    void addRecentPath(const QString &path, const QString &key);
    // The snapshot file proposed in the save dialog for the view on show.
    QString proposedSnapshotPath() const;
    // The menu entry with this (untranslated) text, for tests and the shortcut table.
    QAction *menuAction(const char *text) const;
    QMenu *recentMenu(bool patches) const { return patches ? m_recentPatchesMenu : m_recentRecordingsMenu; }

    bool isPatchLoaded() const { return m_patchLoaded; }
    qint64 currentFrame() const { return m_currentFrame; }
    const TPatch::PixelLayout &pixelLayout() const { return m_layout; }
    PixelColourBuffer &colourBuffer() { return m_colours; }
    const TPatch::PatchData &patch() const { return m_patch; }
    const Recording &recording() const { return *m_recording; }
    const GpsSyncSet &gpsSet() const { return m_gpsSet; }
    // The live path, or nullptr before the first start of listening or of the network log.
    LivePipeline *livePipeline() const { return m_live.get(); }
    PlaybackClock *clock() const { return m_clock; }
    int liveRepaintCount() const { return m_liveRepaints; }

public slots:
    void onUploadRequested(const QString &path);
    void onRecordingLoadRequested(const QString &path);
    void onPlaybackTabChanged(int index);
    void onModeChanged();
    void onPlayPause();
    void onStopPlayback();
    void onSeekRequested(qint64 frame);
    void onFpsChanged(int fps);
    void onPlaybackFinished();
    void onPerformanceWarning(double measuredFps);
    void onFrameTick(qint64 frame);
    void onGpsAutoFill(const QString &folder);
    void openGpsFolder();
    void onGpsLoadAll();
    void onGpsPathsChanged();
    void onBroadcastStart();
    void onBroadcastStop();
    void onBroadcastRefresh();
    void onRecordStart();
    void onRecordStop();
    void announceNow();
    void refreshInterfaces();
    void onCellHovered(int pixelNumber);
    void onSaveSnapshot();
    void onFitToView();
    void onInspectedUniverseChanged(int portAddress);
    void onWhiteChannelsToggled(bool on);
    void onFastDrawToggled(bool on);
    void copyMonitorImage();
    void applyTheme(const QString &id);
    void showShortcuts();
    void showNetworkLog();
    void openNetworkLog();
    void openNetworkLogFile(const QString &path);
    void saveNetworkLog();
    void saveNetworkLogAs();

protected:
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    // Construction and layout (mainwindow.cpp)
    void buildCentralWidget();
    QWidget *buildLeftColumn();
    QWidget *buildRightArea();
    void wirePanels();
    void wireMonitorBar();
    void wireGroupFilter();
    void retranslateUi();
    void applySourceMode();
    // Hands the colour buffer's current lists to the view on show and the
    // inspected universe's bytes to the inspector.
    void pushMonitor();
    void pushInspector();
    // Drops every colour and the inspector's bytes (the monitor goes dark).
    void clearLiveState();

    // Patch (mainwindowpatch.cpp)
    void reportFailedPatch(const TPatch::PatchLoadResult &result, const QString &path);
    QString writeImportReport(const TPatch::PatchLoadResult &result, const QString &path);
    void setPatchLoaded(bool loaded);

    // Recorded playback (mainwindowplayback.cpp)
    bool isGpsTab() const;
    // Returns true when it refused and has already said why.
    bool refuseWithoutSource();
    qint64 currentSourceFrames() const;
    int currentTabFps() const;
    // Stops the clock and puts both panels to "Play".
    void stopClock();
    void showFrame(qint64 frame);
    void showPerformance();
    void reportWhiteChannelState(bool on);

    // Menus (mainwindowmenus.cpp)
    void buildMenus();
    void retranslateMenus();
    void fillRecentMenu(QMenu *menu, const QString &key, bool isPatch);
    // Sets the checkable entries from the state they mirror (boxes, tabs, node).
    void syncMenuChecks();
    void enableSourceActions(bool recorded);
    void openPatchDialog();
    void openRecordingDialog();
    // A recording chosen from the menu, the recent list or a drop: Standard Art-Net playback.
    void openRecording(const QString &path);
    void openPatch(const QString &path);
    void stepFrame(int delta);
    void goToFrame();
    void toggleListening();
    void toggleRecording();
    void chooseTheme();
    void chooseLanguage();
    void showReleaseNotes();
    void showUserManual();
    void openLogsFolder();
    void showAbout();

    // Network log (mainwindowlog.cpp)
    // The log window a save applies to: the active one, else the live one (null when none is open).
    PacketLogWindow *logWindowToSave() const;
    bool saveLog(PacketLogWindow *window, const QString &path, const QString &format);
    // Shared recent filters, the save shortcuts and "the window saves apply to".
    void adoptLogWindow(PacketLogWindow *window);
    // Node discovery (mainwindowdiscovery.cpp)
    void showNodeDiscovery();
    void startDiscovery(const QString &target);
    void refreshDiscovery();
    void exportDiscovery();
    // Adapter capture from the live log window's capture bar.
    void startCapture(const QString &adapterName);
    void onCaptureStopped(const PacketLog::LogMessage &error);

    // Network health (mainwindowhealth.cpp)
    void setHealthOverlay(bool on);
    void showUniverseHealth();
    void refreshHealth();
    void exportHealth();
    // What the views show: the DMX colours, or the overlay's state colours.
    const QVector<QRgb> &shownColours() const;
    Health::StatePalette healthPalette() const;
    // The loaded recording's or capture's analysis, made on first use; null
    // (with *source saying why) when there is none.
    const Health::Analyser *recordedHealth(QString *source);
    QString healthHoverText(int pixelNumber) const;

    // Live (mainwindowlive.cpp)
    // The live pipeline, made on first use (listening or the network log).
    LivePipeline &ensureLive();
    void showListeningStatus(const QString &address, quint16 port, int universeCount);
    void onLiveRepaint();
    void refreshBroadcastStatus();
    void onRecordingFailed(const QString &reason);
    void onIdentityChanged();
    QVector<quint16> advertisedUniverses() const;

    // Left column
    PatchBar *m_patchBar = nullptr;
    QGroupBox *m_sourceBox = nullptr;
    QRadioButton *m_recordedRadio = nullptr;
    QRadioButton *m_liveRadio = nullptr;
    QStackedWidget *m_sourceStack = nullptr;
    QTabWidget *m_playbackTabs = nullptr;
    PlaybackPanel *m_playbackPanel = nullptr;
    GpsPlaybackPanel *m_gpsPanel = nullptr;
    BroadcastPanel *m_broadcastPanel = nullptr;
    QTabWidget *m_sideTabs = nullptr;
    GroupFilterPanel *m_groupPanel = nullptr;
    PatchSummaryPanel *m_summaryPanel = nullptr;
    DmxInspector *m_dmxInspector = nullptr;

    // Right area
    MonitorBar m_bar;
    QTabWidget *m_monitorTabs = nullptr;
    LedMonitorView *m_view2d = nullptr;
    Led3DView *m_view3d = nullptr;

    // Menus
    MenuTable m_menus{menuBar()};
    QMenu *m_recentPatchesMenu = nullptr;
    QMenu *m_recentRecordingsMenu = nullptr;
    QList<QAction *> m_playbackActions;  // enabled in Recorded playback
    QList<QAction *> m_broadcastActions; // enabled in Live broadcast
    QPointer<QDialog> m_shortcutsDialog;
    Translator *m_translator = nullptr;
    LogWorkflow m_log;
    DiscoveryWorkflow m_discovery;
    std::unique_ptr<QTemporaryDir> m_convertedCapture; // a capture opened as a recording, made into a .tpx
    UpdateController *m_updates = nullptr;

    HealthWorkflow m_health;
    QString m_recordingSourcePath; // the file opened, a capture before its conversion

    MoxStyle *m_style = nullptr;
    std::unique_ptr<MoxStyle> m_ownStyle;
    // Values the window keeps itself rather than a widget ("monitor/lastSnapshotDir").
    StoredSettings m_kept;
    // "gps/paths" as last loaded, written back while the GPS panel has no rows.
    QStringList m_rememberedGpsPaths;
    QString m_importLogsFolder;

    StatusLine m_status;

    // Paces playback on its own thread; owned through the QObject tree, stopped
    // and joined in the destructor before anything else goes.
    PlaybackClock *m_clock = nullptr;
    qint64 m_currentFrame = 0;
    std::unique_ptr<Recording> m_recording;
    GpsSyncSet m_gpsSet;
    ClockRun m_run;

    TPatch::PatchData m_patch;
    QString m_patchPath;
    bool m_patchLoaded = false;
    // The views and the inspector point into these; replaced only on a patch load.
    TPatch::PixelLayout m_layout;
    PixelColourBuffer m_colours;
    int m_inspectedUniverse = -1; // Port-Address shown in the DMX tab, -1 for none

    // Live: created on the first start of listening and kept.
    std::unique_ptr<LivePipeline> m_live;
    QTimer m_liveRepaintTimer;
    QTimer m_broadcastStatusTimer;
    int m_liveRepaints = 0;
};
