// MainWindow: live broadcast (the node) and recording the live stream.
#include "app/mainwindow.h"

#include "artnet/widgets/broadcastpanel.h"
#include "live/livepipeline.h"
#include "monitor/widgets/dmxinspector.h"
#include "monitor/widgets/ledmonitorview.h"
#include "patch/frameorder.h"
#include "panels/statuslabel.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QHostAddress>

#include <algorithm>

QVector<quint16> MainWindow::advertisedUniverses() const
{
    return m_patchLoaded ? LivePipeline::advertisedUniverses(m_patch) : QVector<quint16>();
}

LivePipeline &MainWindow::ensureLive()
{
    if (!m_live) {
        m_live = std::make_unique<LivePipeline>();
        connect(&m_live->node(), &ArtNetNode::statusChanged, this, &MainWindow::refreshBroadcastStatus);
        connect(m_live.get(), &LivePipeline::recordingFailed, this, &MainWindow::onRecordingFailed);
    }
    return *m_live;
}

void MainWindow::onBroadcastStart()
{
    ArtNetNode &node = ensureLive().node();
    node.setIdentity(m_broadcastPanel->identity());
    const QVector<quint16> universes = advertisedUniverses();
    node.setUniverses(universes);
    m_live->setColourTarget(&m_colours, &m_layout);

    const QString address = m_broadcastPanel->address();
    const quint16 port = m_broadcastPanel->port();
    const QHostAddress bind = address == QLatin1String("0.0.0.0") ? QHostAddress() : QHostAddress(address);
    if (!node.start(bind, port)) {
        const QString reason = node.lastError();
        m_broadcastPanel->setListenMessage(
            [address, port, reason] { return tr("Could not listen on %1:%2 - %3").arg(address).arg(port).arg(reason); },
            2);
        m_broadcastPanel->setListening(false);
        return;
    }
    m_broadcastPanel->setListening(true);
    showListeningStatus(address, port, int(universes.size()));
    m_dmxInspector->setUniverses(universes);
    clearLiveState();
    m_view2d->setColours(&shownColours());
    m_live->takeDirty();
    m_liveRepaintTimer.start();
    m_broadcastStatusTimer.start();
    refreshBroadcastStatus();
    showStatus([address] { return tr("Art-Net node active on %1.").arg(address); }, 0);
    saveSettings();
}

void MainWindow::onIdentityChanged()
{
    // A running node answers the next poll, and announces, with the new names.
    if (m_live && m_live->node().isRunning())
        m_live->node().setIdentity(m_broadcastPanel->identity());
}

void MainWindow::showListeningStatus(const QString &address, quint16 port, int universeCount)
{
    const auto listening = [address, port, universeCount] {
        return tr("Listening on %1:%2, advertising %3 universe(s).").arg(address).arg(port).arg(universeCount);
    };
    // Without the privilege to raise it, Linux caps the queue at net.core.rmem_max
    // (often 208 KB: a few milliseconds of a large show): say so while it matters.
    const int grantedKb = m_live ? m_live->node().receiveBufferBytes() / 1024 : -1;
    if (grantedKb < 0 || grantedKb >= ArtNetNode::kReceiveBufferBytes / 1024) {
        m_broadcastPanel->setListenMessage(listening, 0);
        return;
    }
    m_broadcastPanel->setListenMessage(
        [listening, grantedKb] {
            return listening() + QLatin1Char('\n')
                   + tr("The system gives this node a receive queue of only %1 KB (%2 KB asked for): a burst "
                        "the program cannot read at once is lost. Raise the limit (net.core.rmem_max on Linux).")
                         .arg(grantedKb)
                         .arg(ArtNetNode::kReceiveBufferBytes / 1024);
        },
        1);
}

void MainWindow::onLiveRepaint()
{
    if (!m_live || !m_live->takeDirty())
        return;
    // Under the health overlay the views change with the health figures
    // (refreshHealth, twice a second), not with every frame.
    if (m_bar.health->isChecked()) {
        pushInspector();
        return;
    }
    pushMonitor();
    ++m_liveRepaints;
}

void MainWindow::refreshBroadcastStatus()
{
    if (!m_live || !m_live->node().isRunning())
        return;
    m_broadcastPanel->refreshStatus(m_live->node().stats(), m_live->node().msSinceLastPoll());
}

void MainWindow::onBroadcastStop()
{
    if (m_live && m_live->isRecording())
        onRecordStop();
    m_liveRepaintTimer.stop();
    m_broadcastStatusTimer.stop();
    if (m_live)
        m_live->node().stop();
    m_broadcastPanel->setListening(false);
    m_broadcastPanel->setListenMessage([] { return tr("Not listening."); }, 0);
}

void MainWindow::onBroadcastRefresh()
{
    refreshInterfaces();
}

void MainWindow::announceNow()
{
    if (!m_live || !m_live->node().isRunning()) {
        showStatus([] { return tr("Start listening first - there is no node to announce."); }, 5000);
        return;
    }
    m_live->node().onAnnounceTimer();
    showStatus([] { return tr("ArtPollReply broadcast."); }, 3000);
}

void MainWindow::refreshInterfaces()
{
    if (m_live && m_live->node().isRunning()) {
        showStatus([] { return tr("Stop listening first - the address cannot change while the node is running."); },
                   5000);
        return;
    }
    m_broadcastPanel->refreshInterfaces();
    showStatus([] { return tr("Network interfaces refreshed."); }, 3000);
}

void MainWindow::onRecordStart()
{
    if (!m_live || !m_live->node().isRunning()) {
        m_broadcastPanel->setRecordMessage([] { return tr("Start listening first - there is nothing to record yet."); },
                                           2);
        m_broadcastPanel->setRecording(false);
        return;
    }
    const QString folder = m_broadcastPanel->recordFolder();
    QString name = m_broadcastPanel->recordName();
    if (folder.isEmpty() || name.isEmpty()) {
        m_broadcastPanel->setRecordMessage([] { return tr("Pick a folder and a file name first."); }, 2);
        m_broadcastPanel->setRecording(false);
        return;
    }
    if (!name.endsWith(QLatin1String(".tpx"), Qt::CaseInsensitive))
        name += QStringLiteral(".tpx");
    const QString path = QDir(folder).filePath(name);
    // Frames are cut by the patch's record count when there is one.
    const int recordsPerFrame = m_patchLoaded ? TPatch::expectedFrameOrder(m_patch).recordsPerFrame() : 0;
    QString reason;
    if (!m_live->startRecording(path, m_broadcastPanel->recordFps(), recordsPerFrame, &reason)) {
        m_broadcastPanel->setRecordMessage([path, reason] { return tr("Could not write %1 - %2").arg(path, reason); },
                                           2);
        m_broadcastPanel->setRecording(false);
        return;
    }
    m_broadcastPanel->setRecording(true);
    const qint64 existing = m_live->writer()->sizeAtOpen();
    if (existing >= 1024) {
        const qint64 kb = existing / 1024;
        m_broadcastPanel->setRecordMessage(
            [path, kb] { return tr("Appending to %1 (%2 KB already in the file).").arg(path).arg(kb); }, 1);
    } else {
        m_broadcastPanel->setRecordMessage([path] { return tr("Recording to %1").arg(path); }, 0);
    }
    showStatus([path] { return tr("Recording to %1").arg(path); }, 0);
    saveSettings();
}

void MainWindow::onRecordStop()
{
    if (!m_live || !m_live->writer())
        return;
    const bool wasOpen = m_live->isRecording();
    m_live->stopRecording();
    m_broadcastPanel->setRecording(false);
    if (!wasOpen)
        return;
    const RecordingWriter *writer = m_live->writer();
    const qint64 frames = writer->framesWritten();
    const qint64 records = writer->recordsWritten();
    const qint64 kb = writer->fileSize() / 1024;
    const QString path = writer->path();
    addRecentPath(path, SettingsKey::recentRecordings);
    m_broadcastPanel->setRecordMessage(
        [frames, records, kb, path] {
            return tr("Saved %1 frame(s), %2 record(s), %3 KB to %4").arg(frames).arg(records).arg(kb).arg(path);
        },
        0);
    showStatus([path] { return tr("Recording stopped: %1").arg(path); }, 0);
}

void MainWindow::onRecordingFailed(const QString &reason)
{
    // The pipeline has closed the file: everything written so far is kept.
    m_broadcastPanel->setRecording(false);
    m_broadcastPanel->setRecordMessage([reason] { return tr("Recording stopped: %1").arg(reason); }, 2);
    showStatus([reason] { return tr("Recording stopped: %1").arg(reason); }, 0);
}
