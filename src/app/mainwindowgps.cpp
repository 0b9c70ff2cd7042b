// MainWindow: GPS-Sync sets (the "GPS Mirra" tab): auto-fill, the file list,
// loading and verifying, arming playback.
#include "app/mainwindow.h"

#include "monitor/widgets/dmxinspector.h"
#include "panels/gpsplaybackpanel.h"
#include "recording/playbackclock.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QTabWidget>

void MainWindow::openGpsFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder holding the GPS-Sync recordings"), QString());
    if (!folder.isEmpty())
        onGpsAutoFill(folder);
}

void MainWindow::onGpsAutoFill(const QString &folder)
{
    if (!m_patchLoaded || m_patch.groups.isEmpty()) {
        m_gpsPanel->setMessage([] { return tr("Load a patch first - the group list comes from it."); }, 2);
        return;
    }
    if (m_gpsSet.isLoaded()) {
        // New paths unload the set: playback of it ends here.
        stopClock();
        m_gpsPanel->setSetInformation(false, 0, 0);
        m_gpsPanel->clearReport();
        m_gpsPanel->clearRowInfo();
    }
    m_gpsSet.setPaths(m_gpsPanel->paths());
    const int matched = m_gpsSet.autoFill(folder);
    m_gpsPanel->setPaths(m_gpsSet.paths());
    const int groups = m_gpsSet.groupCount();
    if (matched == 0) {
        const QString name = QFileInfo(QDir::cleanPath(folder)).fileName();
        m_gpsPanel->setMessage(
            [name] {
                return tr("No file in \"%1\" matches a group name. GPS-Sync recordings are named <name>_<Group>.tpx.")
                    .arg(name);
            },
            1);
    } else if (matched == groups) {
        m_gpsPanel->setMessage(
            [matched] { return tr("Matched all %1 group(s). Press Load set to verify them.").arg(matched); }, 0);
    } else {
        m_gpsPanel->setMessage(
            [matched, groups] {
                return tr("Matched %1 of %2 group(s). Fill the rest by hand, then press Load set.")
                    .arg(matched)
                    .arg(groups);
            },
            1);
    }
    saveSettings();
}

void MainWindow::onGpsPathsChanged()
{
    if (!m_gpsSet.isLoaded())
        return;
    stopClock();
    m_gpsSet.unload();
    m_gpsPanel->setSetInformation(false, 0, 0);
    m_gpsPanel->clearReport();
    m_gpsPanel->clearRowInfo();
    m_gpsPanel->setMessage([] { return tr("The file list changed - press Load set to verify it again."); }, 1);
}

void MainWindow::onGpsLoadAll()
{
    if (!m_patchLoaded) {
        m_gpsPanel->setMessage(
            [] {
                return tr("Load a patch first - a GPS-Sync set is one recording per group, and the group list comes "
                          "from the patch.");
            },
            2);
        return;
    }
    stopClock();
    m_gpsSet.setPaths(m_gpsPanel->paths());
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const GpsVerification &verification = m_gpsSet.load(&m_patch);
    QApplication::restoreOverrideCursor();
    m_gpsPanel->setReport(verification);
    for (int g = 0; g < m_gpsSet.groupCount(); ++g)
        m_gpsPanel->setRowInfo(g, GpsRowInfo::fromMember(m_gpsSet.member(g)));

    const TPatch::PatchMessage summary = verification.summary;
    if (!m_gpsSet.isLoaded()) {
        m_gpsPanel->setSetInformation(false, 0, 0);
        m_gpsPanel->setMessage([summary] { return summary.text(); }, 2);
        saveSettings();
        return;
    }
    // Armed even with failed checks, so the failure can be seen on the monitor.
    m_gpsPanel->setMessage([summary] { return summary.text(); }, int(verification.worst()));
    const qint64 frames = m_gpsSet.frameCount();
    const int groups = m_gpsSet.groupCount();
    m_gpsPanel->setSetInformation(true, frames, groups);
    m_clock->setFps(m_gpsPanel->fps());
    m_clock->setFrameCount(frames);
    if (isGpsTab()) {
        m_dmxInspector->setUniverses(m_gpsSet.universes());
        m_colours.clear();
        showFrame(0);
        showStatus(
            [groups, frames] {
                return tr("GPS Mirra set: %1 recording(s), %2 frames each.").arg(groups).arg(frames);
            },
            0);
    }
    saveSettings();
}
