// MainWindow: recorded playback (the "Standard Art-Net" tab and the transport
// both playback tabs share), showing a frame, and the monitor bar's options.
#include "app/mainwindow.h"

#include "live/captureconversion.h"
#include "live/recordedframe.h"
#include "monitor/widgets/dmxinspector.h"
#include "monitor/widgets/led3dview.h"
#include "packetlog/capturereader.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/playbackpanel.h"
#include "patch/frameorder.h"
#include "recording/playbackclock.h"
#include "recording/recording.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QRadioButton>
#include <QTabWidget>

#include <algorithm>

namespace {

enum PlaybackTab { StandardTab = 0, GpsTab = 1 };

QString durationText(qint64 frames, int fps)
{
    return QString::number(double(frames) / std::max(1, fps), 'f', 1);
}

} // namespace

bool MainWindow::isGpsTab() const
{
    return m_playbackTabs->currentIndex() == GpsTab;
}

qint64 MainWindow::currentSourceFrames() const
{
    return isGpsTab() ? m_gpsSet.frameCount() : m_recording->frameCount();
}

int MainWindow::currentTabFps() const
{
    return isGpsTab() ? m_gpsPanel->fps() : m_playbackPanel->fps();
}

bool MainWindow::refuseWithoutSource()
{
    if (isGpsTab()) {
        if (m_gpsSet.isLoaded())
            return false;
        m_gpsPanel->setMessage(
            [] { return tr("There is no set to play. Fill in the group recordings and press Load set first."); }, 2);
    } else {
        if (m_recording->frameCount() >= 1)
            return false;
        m_playbackPanel->setMessage([] { return tr("There is no recording to play. Load a .tpx file first."); }, 2);
    }
    showStatus([] { return tr("Nothing to play - no recording is loaded."); }, 5000);
    return true;
}

void MainWindow::stopClock()
{
    m_run.ticksWanted = false;
    if (m_clock->isPlaying()) {
        ++m_run.stopsPending; // its finished signal is ours, not the end of the recording
        m_clock->stop();
    }
    m_run.performanceTimer.stop();
    m_playbackPanel->setPlaying(false);
    m_gpsPanel->setPlaying(false);
}

void MainWindow::onPlayPause()
{
    if (!m_recordedRadio->isChecked()) {
        showStatus([] { return tr("Playback controls work in Recorded playback mode."); }, 5000);
        return;
    }
    if (refuseWithoutSource())
        return;
    if (m_clock->isPlaying()) {
        stopClock();
        showStatus([] { return tr("Playback paused."); }, 0);
        return;
    }
    const bool gps = isGpsTab();
    m_clock->setFps(currentTabFps());
    m_clock->setLoop(gps ? m_gpsPanel->loop() : m_playbackPanel->loop());
    m_clock->setFrameCount(currentSourceFrames());
    m_clock->seek(m_currentFrame);
    m_run.lastTickFrame = -1;
    m_run.droppedFrames = 0;
    m_run.ticksWanted = true;
    m_clock->play();
    m_run.performanceTimer.start();
    if (gps) {
        m_gpsPanel->setPlaying(true);
        const int recordings = m_gpsSet.groupCount();
        showStatus([recordings] { return tr("Playing %1 recording(s) in step.").arg(recordings); }, 0);
    } else {
        m_playbackPanel->setPlaying(true);
        showStatus([] { return tr("Playing."); }, 0);
    }
}

void MainWindow::onPlaybackFinished()
{
    if (m_run.stopsPending > 0) {
        --m_run.stopsPending; // a run we stopped ourselves
        return;
    }
    if (m_clock->isPlaying())
        return; // the end of an earlier run, arriving after a new one began
    stopClock();
    showStatus([] { return tr("Reached the end of the recording."); }, 0);
}

void MainWindow::onStopPlayback()
{
    if (refuseWithoutSource())
        return;
    stopClock();
    showFrame(0);
    showStatus([] { return tr("Rewound to the first frame."); }, 0);
}

void MainWindow::onSeekRequested(qint64 frame)
{
    if (currentSourceFrames() < 1)
        return;
    const qint64 to = std::clamp<qint64>(frame, 0, currentSourceFrames() - 1);
    if (m_clock->isPlaying())
        m_clock->seek(to);
    showFrame(to);
}

void MainWindow::onFpsChanged(int fps)
{
    // Each tab has its own box; a change on the hidden tab does nothing.
    if (fps != currentTabFps())
        return;
    m_clock->setFps(fps);
    const qint64 frames = currentSourceFrames();
    if (frames < 1)
        return;
    showStatus(
        [frames, fps] {
            return tr("%1 frames at %2 fps = %3 s").arg(frames).arg(fps).arg(durationText(frames, fps));
        },
        0);
}

void MainWindow::onPerformanceWarning(double measuredFps)
{
    const qint64 measured = std::max<qint64>(1, qRound64(measuredFps));
    const int target = currentTabFps();
    const auto message = [target, measured] {
        return tr("This machine is not sustaining %1 fps (about %2 fps measured). Playback continues and drops "
                  "frames to stay in real time; lower the fps yourself if you want every frame shown.")
            .arg(target)
            .arg(measured);
    };
    if (isGpsTab())
        m_gpsPanel->setMessage(message, 1);
    else
        m_playbackPanel->setMessage(message, 1);
    showStatus([measured] { return tr("Sustaining about %1 fps.").arg(measured); }, 8000);
}

void MainWindow::onPlaybackTabChanged(int index)
{
    stopClock();
    clearLiveState();
    m_currentFrame = 0;
    if (m_recordedRadio->isChecked()) {
        m_clock->setFps(currentTabFps());
        m_clock->setFrameCount(currentSourceFrames());
        if (currentSourceFrames() > 0) {
            m_dmxInspector->setUniverses(isGpsTab() ? m_gpsSet.universes() : m_recording->universes());
            showFrame(0);
        }
    }
    if (index == GpsTab)
        showStatus([] { return tr("GPS Mirra: one recording per group, all driven from one clock."); }, 0);
    else
        showStatus([] { return tr("Standard Art-Net: a single recording drives the whole patch."); }, 0);
    saveSettings();
}

void MainWindow::onRecordingLoadRequested(const QString &path)
{
    if (path.trimmed().isEmpty()) {
        m_playbackPanel->setMessage([] { return tr("Enter a .tpx path or pick one with the ... button."); }, 2);
        return;
    }
    if (!QFileInfo::exists(path)) {
        m_playbackPanel->setMessage([path] { return tr("File not found: %1").arg(path); }, 2);
        return;
    }
    stopClock();
    m_currentFrame = 0;
    // A capture plays as the recording the live recorder would have made of it.
    QString loadPath = path;
    qint64 capturePackets = -1;
    if (PacketLog::isCaptureFile(path)) {
        m_convertedCapture = std::make_unique<QTemporaryDir>();
        loadPath = m_convertedCapture->filePath(QStringLiteral("capture.tpx"));
        const int recordsPerFrame = m_patchLoaded ? TPatch::expectedFrameOrder(m_patch).recordsPerFrame() : 0;
        const CaptureConversion converted =
            convertCapture(path, loadPath, m_playbackPanel->fps(), recordsPerFrame);
        if (!converted.ok) {
            const QString reason = converted.error;
            m_playbackPanel->setMessage([reason] { return tr("The capture could not be read: %1").arg(reason); },
                                        2);
            return;
        }
        capturePackets = converted.dmxPackets;
    }
    const RecordingLoadResult result = m_recording->load(loadPath, m_patchLoaded ? &m_patch : nullptr);
    m_health.recorded.reset();
    m_recordingSourcePath = path;
    refreshHealth();
    m_playbackPanel->setFrameCount(m_recording->frameCount());
    if (!result.ok) {
        // The reader keeps nothing of a file it refused: there is no recording now.
        const TPatch::PatchMessage error = result.error;
        m_playbackPanel->setMessage([error] { return error.text(); }, 2);
        m_playbackPanel->setInformation({});
        m_clock->setFrameCount(0);
        clearLiveState();
        return;
    }
    m_clock->setFrameCount(m_recording->frameCount());
    m_clock->setFps(m_playbackPanel->fps());

    // The inspector offers every universe the patch or the recording carries.
    QVector<quint16> universes = advertisedUniverses() + m_recording->universes();
    std::sort(universes.begin(), universes.end());
    universes.erase(std::unique(universes.begin(), universes.end()), universes.end());
    m_dmxInspector->setUniverses(universes);
    if (!isGpsTab()) {
        m_colours.clear();
        showFrame(0);
    }

    const QString fileName = QFileInfo(path).fileName();
    const QString format = m_recording->formatLabel();
    const qint64 frames = m_recording->frameCount();
    const bool patchLoaded = m_patchLoaded;
    const PlaybackPanel *panel = m_playbackPanel;
    const auto information = [fileName, format, frames, patchLoaded, panel, capturePackets] {
        const int fps = panel->fps();
        const QString kind =
            capturePackets < 0 ? format : tr("capture of %1 ArtDmx packets, as %2").arg(capturePackets).arg(format);
        QString line = tr("%1 · %2 · %3 frames · %4 s at %5 fps")
                           .arg(fileName, kind)
                           .arg(frames)
                           .arg(durationText(frames, fps))
                           .arg(fps);
        if (!patchLoaded)
            line += QStringLiteral("  |  ")
                    + tr("No patch loaded - the monitor stays dark; the DMX tab shows every recorded universe.");
        return line;
    };
    m_playbackPanel->setInformation(information);
    const QVector<TPatch::PatchMessage> warnings = result.warnings;
    m_playbackPanel->setMessage(
        [warnings] {
            QStringList texts;
            for (const TPatch::PatchMessage &w : warnings)
                texts << w.text();
            return texts.join(QLatin1Char('\n'));
        },
        warnings.isEmpty() ? 0 : 1);
    showStatus([information] { return information() + QStringLiteral("  |  ") + tr("Space plays and pauses."); }, 0);
    addRecentPath(path, SettingsKey::recentRecordings);
    saveSettings();
}

void MainWindow::onFrameTick(qint64 frame)
{
    if (!m_run.ticksWanted) {
        m_clock->acknowledge(); // queued before a stop: the frame shown stays
        return;
    }
    // A jump forward of more than one frame means the clock dropped frames
    // while this thread was busy; a jump back is a loop or a seek.
    if (m_run.lastTickFrame >= 0 && frame > m_run.lastTickFrame + 1)
        m_run.droppedFrames += frame - m_run.lastTickFrame - 1;
    m_run.lastTickFrame = frame;
    QElapsedTimer took;
    took.start();
    showFrame(frame);
    const double ms = double(took.nsecsElapsed()) / 1e6;
    // Smoothed, so the line reads steadily at a glance.
    m_run.msPerFrame = m_run.msPerFrame < 0 ? ms : 0.9 * m_run.msPerFrame + 0.1 * ms;
    m_clock->acknowledge();
}

void MainWindow::showFrame(qint64 frame)
{
    m_currentFrame = frame;
    if (isGpsTab()) {
        for (const GpsFrameRecord &record : m_gpsSet.frame(frame)) {
            const auto *bytes = reinterpret_cast<const quint8 *>(record.data.data());
            const int length = int(record.data.size());
            m_colours.applyUniverse(m_layout.pixelsForPortAddress(record.portAddress), bytes, length);
            m_colours.storeUniverse(record.portAddress, bytes, length);
        }
        m_gpsPanel->setFrame(frame, m_gpsSet.timestampDifferenceAt(frame));
    } else {
        applyRecordedFrame(m_colours, m_layout, *m_recording, frame);
        m_playbackPanel->setCurrentFrame(frame);
    }
    pushMonitor();
}

void MainWindow::showPerformance()
{
    const double measured = m_clock->measuredFps();
    if (isGpsTab())
        m_gpsPanel->setPerformance(measured, m_run.droppedFrames, m_run.msPerFrame);
    else
        m_playbackPanel->setPerformance(measured, m_run.droppedFrames, m_run.msPerFrame);
}

void MainWindow::onWhiteChannelsToggled(bool on)
{
    m_colours.setWhiteEnabled(on);
    // Show the picture again at once instead of waiting for the next frame or packet.
    if (m_recordedRadio->isChecked()) {
        if (currentSourceFrames() > 0)
            showFrame(m_currentFrame);
    } else {
        for (auto it = m_layout.portAddressPixels.cbegin(); it != m_layout.portAddressPixels.cend(); ++it) {
            const QByteArray data = m_colours.universeData(it.key());
            if (!data.isEmpty())
                m_colours.applyUniverse(it.value(), reinterpret_cast<const quint8 *>(data.constData()),
                                        int(data.size()));
        }
        pushMonitor();
    }
    reportWhiteChannelState(on);
    saveSettings();
}

void MainWindow::reportWhiteChannelState(bool on)
{
    if (!on) {
        showStatus([] { return tr("White channel contribution off."); }, 4000);
        return;
    }
    const int pixels = m_colours.pixelsWithWhite();
    if (pixels == 0) {
        showStatus([] { return tr("This patch has no W / CW / WW channels - white contribution has nothing to add."); },
                   8000);
        return;
    }
    const int w = m_colours.whiteSlotCount(TPatch::RoleWhite);
    const int cw = m_colours.whiteSlotCount(TPatch::RoleCoolWhite);
    const int ww = m_colours.whiteSlotCount(TPatch::RoleWarmWhite);
    const int peak = m_colours.peakWhite();
    const auto counts = [pixels, w, cw, ww] {
        return tr("%1 px with white (W %2 · CW %3 · WW %4)").arg(pixels).arg(w).arg(cw).arg(ww);
    };
    if (peak > 0)
        showStatus([counts, peak] {
            return counts() + QStringLiteral(" · ") + tr("peak white value %1 - contribution applied.").arg(peak);
        }, 8000);
    else
        showStatus([counts] {
            return counts() + QStringLiteral(" · ")
                   + tr("but every white value received so far is 0. MOX writes 0 to these channels unless White "
                        "Channel is configured in the project.");
        }, 12000);
}

void MainWindow::onFastDrawToggled(bool on)
{
    m_view3d->setFastDraw(on);
    saveSettings();
}
