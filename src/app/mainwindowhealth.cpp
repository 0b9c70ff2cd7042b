// MainWindow: network health. The overlay paints every fixture in its
// universe's state colour and the "Universe health" window lists the figures.
// Both follow the live node in Live broadcast (counting from when either was
// turned on), otherwise the recording or capture loaded for Standard Art-Net
// playback, analysed once over the whole file; a timer refreshes them twice a
// second while either is on show.
#include "app/mainwindow.h"

#include "live/healthfile.h"
#include "live/livepipeline.h"
#include "live/widgets/universehealthwindow.h"
#include "monitor/pixeltexts.h"
#include "monitor/widgets/ledmonitorview.h"
#include "packetlog/capturereader.h"
#include "panels/playbackpanel.h"
#include "recording/recording.h"
#include "style/moxstyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHostAddress>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTabWidget>

namespace {

constexpr int kHealthRefreshMs = 500;

} // namespace

const QVector<QRgb> &MainWindow::shownColours() const
{
    return m_bar.health->isChecked() && m_health.available ? m_health.colours : m_colours.colours();
}

Health::StatePalette MainWindow::healthPalette() const
{
    // In the order of Health::State.
    static const char *const kRoles[Health::kStateCount] = {"healthNever", "healthStale", "healthConflict",
                                                             "healthUnstable", "healthOk"};
    Health::StatePalette palette;
    for (int i = 0; i < Health::kStateCount; ++i)
        palette.colours[size_t(i)] = m_style->colour(QLatin1String(kRoles[i])).rgba();
    return palette;
}

void MainWindow::setHealthOverlay(bool on)
{
    if (on)
        refreshHealth();
    m_view2d->setColours(&shownColours());
    pushMonitor();
    onCellHovered(m_view2d->hoveredPixel());
    if (on && !m_health.timer.isActive())
        m_health.timer.start(kHealthRefreshMs);
}

void MainWindow::showUniverseHealth()
{
    if (!m_health.window) {
        m_health.window = new UniverseHealthWindow(this);
        connect(m_health.window, &UniverseHealthWindow::resetRequested, this, [this] {
            if (m_live)
                m_live->resetHealth();
            refreshHealth();
        });
        connect(m_health.window, &UniverseHealthWindow::exportRequested, this, &MainWindow::exportHealth);
    }
    m_health.window->setStatePalette(healthPalette());
    m_health.window->show();
    m_health.window->raise();
    m_health.window->activateWindow();
    refreshHealth();
    if (!m_health.timer.isActive())
        m_health.timer.start(kHealthRefreshMs);
}

const Health::Analyser *MainWindow::recordedHealth(QString *source)
{
    if (isGpsTab()) {
        *source = tr("A GPS-Sync set is not analysed: the table follows the live node or a Standard Art-Net "
                     "recording.");
        return nullptr;
    }
    if (!m_recording->isLoaded()) {
        *source = tr("No recording loaded: open a recording or a capture, or listen live.");
        return nullptr;
    }
    const QString path = m_recordingSourcePath;
    const int fps = m_playbackPanel->fps();
    // Analysed once per file: a capture from its packets (with senders and
    // sequence numbers), a recording from its frames, again when its rate changes.
    if (!m_health.recorded || (!m_health.recordedIsCapture && m_health.recordedFps != fps)) {
        m_health.recordedFps = fps;
        m_health.recordedError.clear();
        m_health.recordedIsCapture = PacketLog::isCaptureFile(path);
        QApplication::setOverrideCursor(Qt::WaitCursor); // a large capture takes a moment
        if (m_health.recordedIsCapture) {
            Health::FileHealth analysed = Health::analyseFile(path, fps);
            m_health.recordedError = analysed.error;
            m_health.recorded = std::make_unique<Health::Analyser>(std::move(analysed.analyser));
        } else {
            m_health.recorded = std::make_unique<Health::Analyser>();
            Health::analyseRecording(*m_recording, fps, m_health.recorded.get());
        }
        QApplication::restoreOverrideCursor();
    }
    const QString name = QFileInfo(path).fileName();
    if (!m_health.recordedError.isEmpty())
        *source = tr("Capture %1 could not be read: %2").arg(name, m_health.recordedError);
    else if (m_health.recordedIsCapture)
        *source = tr("Capture %1, over the whole file.").arg(name);
    else
        *source = tr("Recording %1 at %2 fps, over the whole file (a recording keeps no senders or sequence "
                     "numbers).")
                      .arg(name)
                      .arg(fps);
    return m_health.recorded.get();
}

void MainWindow::refreshHealth()
{
    const bool windowShown = m_health.window && m_health.window->isVisible();
    const bool wanted = m_bar.health->isChecked() || windowShown;
    // The node analyses its stream only while someone looks: at thousands of
    // universes the analysis costs the live monitor repaints. A new look
    // starts from zero, so a pause never reads as one long interval.
    if (m_live && wanted != m_live->healthEnabled()) {
        m_live->resetHealth();
        m_live->setHealthEnabled(wanted);
    }
    if (!wanted) {
        m_health.timer.stop();
        return;
    }
    const QVector<quint16> patched = m_patchLoaded ? advertisedUniverses() : QVector<quint16>();
    const bool live = m_liveRadio->isChecked();
    QString source;
    const Health::Analyser *analyser = nullptr;
    qint64 nowNs = 0;
    if (live) {
        const bool listening = m_live && m_live->node().isRunning();
        const QHostAddress bound = listening ? m_live->node().bindAddress() : QHostAddress();
        source = listening ? tr("Live: the node on %1:%2, fps over the last second.")
                                 .arg(bound.isNull() ? QStringLiteral("0.0.0.0") : bound.toString())
                                 .arg(m_live->node().port())
                           : tr("Live: the node is not listening.");
        if (m_live) {
            analyser = &m_live->health();
            nowNs = LivePipeline::healthNowNs();
        }
    } else {
        analyser = recordedHealth(&source);
        nowNs = analyser ? analyser->lastTimeNs() : 0;
    }
    const Health::Analyser none;
    m_health.figures = (analyser ? *analyser : none).universes(nowNs, patched);
    // Without figures (a GPS set, no recording) the monitor keeps the DMX colours
    // rather than calling every fixture unfed; the hint line says why.
    m_health.available = analyser != nullptr;
    m_health.unavailableReason = analyser ? QString() : source;
    if (m_bar.health->isChecked()) {
        Health::paintStates(m_layout, m_health.figures, healthPalette(), &m_health.colours);
        m_view2d->setColours(&shownColours());
        pushMonitor();
        if (m_view2d->hoveredPixel() >= 0)
            onCellHovered(m_view2d->hoveredPixel());
    }
    if (windowShown)
        m_health.window->showHealth(m_health.figures, analyser ? analyser->sync() : Health::SyncHealth(), source, live);
}

QString MainWindow::healthHoverText(int pixelNumber) const
{
    if (!m_health.available)
        return m_health.unavailableReason;
    const quint16 portAddress = m_layout.pixels.at(pixelNumber).portAddress;
    const Health::UniverseHealth *universe = Health::findUniverse(m_health.figures, portAddress);
    return universe ? Health::figuresText(*universe) : Health::stateDisplayName(QStringLiteral("never"));
}

void MainWindow::exportHealth()
{
    const QString path = QFileDialog::getSaveFileName(
        m_health.window, tr("Export Universe Health"),
        QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath(QStringLiteral("health.csv")),
        tr("CSV table (*.csv)"));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const QByteArray csv = UniverseHealthModel::csv(m_health.figures);
    if (!file.open(QIODevice::WriteOnly) || file.write(csv) != csv.size() || !file.commit()) {
        QMessageBox::warning(m_health.window, tr("Export Universe Health"),
                             tr("Could not write %1: %2").arg(QDir::toNativeSeparators(path), file.errorString()));
        return;
    }
    const QString shown = QDir::toNativeSeparators(path);
    showStatus([shown] { return tr("Universe health exported to %1.").arg(shown); }, 5000);
}
