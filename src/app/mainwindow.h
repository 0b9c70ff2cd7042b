#pragma once

#include "app/appsettings.h"
#include "monitor/pixelcolourbuffer.h"
#include "patch/patchdata.h"
#include "patch/pixellayout.h"

#include <QElapsedTimer>
#include <QMainWindow>

#include <functional>
#include <memory>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTabWidget;
class DmxInspector;
class Led3DView;
class LedMonitorView;
class BroadcastPanel;
class GpsPlaybackPanel;
class GroupFilterPanel;
class MoxStyle;
class PatchBar;
class PatchSummaryPanel;
class PlaybackPanel;
class PlaybackClock;
class Recording;
namespace PacketLog {
class PacketJournal;
}

// The single main window: owns the side panels, the monitor views and the
// status line, and is the only place where the subsystems meet. Panels emit
// requests; the window decides, calls the cores and pushes state back.
// GUI thread only.
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

    // The values the window would save now (the panels' state and what it keeps
    // for panels still to come).
    StoredSettings currentSettings() const;

    // Loads the files named on the command line: a patch, then a recording.
    void openFiles(const QString &patchPath, const QString &recordingPath);

    bool isPatchLoaded() const { return m_patchLoaded; }
    qint64 currentFrame() const { return m_currentFrame; }
    const TPatch::PixelLayout &pixelLayout() const { return m_layout; }
    PixelColourBuffer &colourBuffer() { return m_colours; }
    const TPatch::PatchData &patch() const { return m_patch; }

public slots:
    void onUploadRequested(const QString &path);
    void onRecordingLoadRequested(const QString &path);
    void onModeChanged();
    void onCellHovered(int pixelNumber);
    void onSaveSnapshot();
    void onFitToView();
    void onInspectedUniverseChanged(int portAddress);
    void onFrameTick(qint64 frame);
    void onPlayPause();
    void onPlaybackFinished();
    void onPerformanceWarning(double measuredFps);

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildCentralWidget();
    QWidget *buildLeftColumn();
    QWidget *buildRightArea();
    void retranslateUi();
    void applySourceMode();
    void wireMonitorBar();
    void wireGroupFilter();
    // Hands the colour buffer's current lists to both views and the inspected
    // universe's bytes to the inspector.
    void pushMonitor();

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
    QLabel *m_monitorHint = nullptr;
    QPushButton *m_fitButton = nullptr;
    QPushButton *m_snapshotButton = nullptr;
    QCheckBox *m_whiteCheck = nullptr;
    QCheckBox *m_axesCheck = nullptr;
    QCheckBox *m_fastDrawCheck = nullptr;
    QCheckBox *m_autoOrbitCheck = nullptr;
    QPushButton *m_frontButton = nullptr;
    QPushButton *m_resetButton = nullptr;
    QTabWidget *m_monitorTabs = nullptr;
    LedMonitorView *m_view2d = nullptr;
    Led3DView *m_view3d = nullptr;

    MoxStyle *m_style = nullptr;
    std::unique_ptr<MoxStyle> m_ownStyle;
    // Values kept by the window itself rather than a widget ("monitor/lastSnapshotDir").
    StoredSettings m_kept;
    // "gps/paths" as last loaded, written back while the GPS panel has no rows.
    QStringList m_rememberedGpsPaths;

    // Status line
    std::function<QString()> m_statusProducer;
    QString m_statusText;
    int m_statusTimeoutMs = 0;
    QElapsedTimer m_statusShown;

    // Paces playback on its own thread; owned through the QObject tree, stopped
    // and joined in the destructor before anything else goes.
    PlaybackClock *m_clock = nullptr;
    std::unique_ptr<PacketLog::PacketJournal> m_journal;
    qint64 m_currentFrame = 0;
    std::unique_ptr<Recording> m_recording;
    void showFrame(qint64 frame);

    TPatch::PatchData m_patch;
    QString m_patchPath;
    bool m_patchLoaded = false;
    // The views and the inspector point into these; replaced only on a patch load.
    TPatch::PixelLayout m_layout;
    PixelColourBuffer m_colours;
    int m_inspectedUniverse = -1; // Port-Address shown in the DMX tab, -1 for none
};
