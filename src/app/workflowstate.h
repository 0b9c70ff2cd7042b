#pragma once

#include "live/healthoverlay.h"
#include "packetlog/capturesession.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QRgb>
#include <QTimer>

#include <functional>
#include <memory>

class QCheckBox;
class QLabel;
class QPushButton;
class NodeDiscoveryWindow;
class PacketLogWindow;
class UniverseHealthWindow;
namespace ArtNet {
class NodeDiscovery;
}

// What some of MainWindow's workflows keep between events, one struct per
// workflow (its file in brackets). GUI thread only.

// The monitor bar above the views (mainwindow.cpp builds it; the menus mirror its boxes).
struct MonitorBar
{
    QLabel *hint = nullptr;
    QPushButton *fit = nullptr, *snapshot = nullptr, *front = nullptr, *reset = nullptr;
    QCheckBox *white = nullptr, *health = nullptr, *axes = nullptr, *fastDraw = nullptr, *autoOrbit = nullptr;
};

// The status line (mainwindow.cpp): the producer is called again on a language change.
struct StatusLine
{
    std::function<QString()> producer;
    QString text;
    int timeoutMs = 0; // 0: until replaced
    QElapsedTimer shown;
};

// The network log and the adapter capture (mainwindowlog.cpp).
struct LogWorkflow
{
    QPointer<PacketLogWindow> window;             // the live log window
    QPointer<PacketLogWindow> lastWindow;         // the log window last active
    QString path;                                 // where "Save Network Log" writes
    PacketLog::CaptureSession *capture = nullptr; // the live log window's adapter capture
    QVector<PacketLog::CaptureAdapter> adapters;
};

// Node discovery (mainwindowdiscovery.cpp).
struct DiscoveryWorkflow
{
    QPointer<NodeDiscoveryWindow> window;
    ArtNet::NodeDiscovery *scan = nullptr;
};

// Network health (mainwindowhealth.cpp): the last figures, the overlay's
// colours, and the analysis of the file loaded for playback.
struct HealthWorkflow
{
    QPointer<UniverseHealthWindow> window;
    QTimer timer;
    QVector<Health::UniverseHealth> figures;
    QVector<QRgb> colours;
    bool available = false;      // whether the figures follow a source (not a GPS set, not nothing)
    QString unavailableReason;   // shown on the hint line then
    std::unique_ptr<Health::Analyser> recorded;
    bool recordedIsCapture = false;
    int recordedFps = 0;
    QString recordedError;
};

// A run of the playback clock (mainwindowplayback.cpp).
struct ClockRun
{
    // Every run of the clock ends with one finished signal, also a run we
    // stopped ourselves; those are counted here and not reported as the end.
    int stopsPending = 0;
    // Ticks already queued when the window stops the clock arrive afterwards; they are dropped.
    bool ticksWanted = false;
    // What the performance line shows: frames the clock skipped and the time
    // one frame takes to evaluate and hand to the views.
    qint64 lastTickFrame = -1;
    qint64 droppedFrames = 0;
    double msPerFrame = -1;
    QTimer performanceTimer;
};
