// MainWindow: loading a patch (patch bar, command line, recent list).
#include "app/mainwindow.h"

#include "artnet/widgets/broadcastpanel.h"
#include "live/livepipeline.h"
#include "monitor/widgets/dmxinspector.h"
#include "monitor/widgets/led3dview.h"
#include "monitor/widgets/ledmonitorview.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/groupfilterpanel.h"
#include "panels/patchbar.h"
#include "panels/patchsummarypanel.h"
#include "panels/playbackpanel.h"
#include "panels/statuslabel.h"
#include "patch/importreport.h"
#include "patch/patchloader.h"
#include "recording/gpspatchexpectation.h"
#include "recording/recording.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMessageBox>
#include <QTabWidget>

namespace {

enum SideTab { GroupsTab = 0, PatchTab = 1, DmxTab = 2 };

} // namespace

void MainWindow::openFiles(const QString &patchPath, const QString &recordingPath)
{
    if (!patchPath.isEmpty()) {
        m_patchBar->setPath(patchPath);
        onUploadRequested(patchPath);
    }
    if (!recordingPath.isEmpty()) {
        m_playbackPanel->setPath(recordingPath);
        onRecordingLoadRequested(recordingPath);
    }
}

QString MainWindow::writeImportReport(const TPatch::PatchLoadResult &result, const QString &path)
{
    const QString logs = m_importLogsFolder.isEmpty() ? TPatch::importLogsFolder() : m_importLogsFolder;
    const QString language = openSettings()->value(SettingsKey::language, QStringLiteral("en")).toString();
    const TPatch::ImportReportResult report = TPatch::writeImportReport(logs, path, result, language);
    if (!report.ok) {
        qWarning("Patch diagnostics could not be saved: %s",
                 qPrintable(logs.isEmpty() ? tr("no writable logs folder") : report.error));
        return QString();
    }
    return report.folder;
}

void MainWindow::reportFailedPatch(const TPatch::PatchLoadResult &result, const QString &path)
{
    const QString folder = writeImportReport(result, path);
    const TPatch::PatchMessage error = result.error;
    m_patchBar->statusLabel()->showMessage([error] { return error.text(); }, 2);
    showStatus([] { return tr("Patch could not be loaded."); }, 0);
    QString text = error.text();
    if (!folder.isEmpty())
        text += QStringLiteral("\n\n") + tr("A copy of the file and this message was saved to:\n%1")
                                             .arg(QDir::toNativeSeparators(folder));
    QMessageBox::warning(this, tr("Patch Error"), text);
}

void MainWindow::setPatchLoaded(bool loaded)
{
    m_patchLoaded = loaded;
    m_broadcastPanel->setPatchLoaded(loaded);
}

void MainWindow::onUploadRequested(const QString &path)
{
    stopClock();
    m_patchBar->setBusy(true);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QElapsedTimer elapsed;
    elapsed.start();
    TPatch::PatchLoadResult result = TPatch::loadPatch(path);
    TPatch::PixelLayout layout;
    if (result.ok) {
        // The layout's checks (overlaps) are warnings of the load like the reader's.
        layout = TPatch::buildPixelLayout(result.patch);
        result.warnings += layout.warnings;
    }
    const qint64 ms = elapsed.elapsed();
    QApplication::restoreOverrideCursor();
    m_patchBar->setBusy(false);

    if (!result.ok) {
        reportFailedPatch(result, path); // the previous patch stays on the monitor
        return;
    }

    // The views and the inspector point into m_layout: they get the new one before anything repaints.
    m_patch = std::move(result.patch);
    m_patchPath = path;
    m_layout = std::move(layout);
    setPatchLoaded(true);
    m_colours.setPatch(&m_layout.pixels);
    m_view2d->setPatch(&m_patch, &m_layout);
    m_view3d->setPatch(m_layout);
    m_dmxInspector->setPixelLayout(&m_layout);
    refreshHealth(); // the overlay's colours for the new pixels
    m_view2d->setColours(&shownColours());
    if (!m_recording->isLoaded())
        m_playbackPanel->setMessage([] { return tr("No recording loaded."); }, 0);

    m_dmxInspector->setUniverses(advertisedUniverses());
    // The paths of the set in hand stay remembered for the new patch's groups.
    if (m_gpsPanel->groupCount() > 0)
        m_rememberedGpsPaths = m_gpsPanel->paths();
    m_gpsSet.setGroups(m_patch);
    m_gpsPanel->setGroups(GpsPanelGroup::fromExpectation(GpsPatchExpectation::fromPatch(m_patch)));
    m_gpsPanel->setPaths(m_rememberedGpsPaths);
    m_gpsPanel->clearReport();
    m_gpsPanel->setSetInformation(false, 0, 0);
    if (m_patch.groups.isEmpty())
        m_gpsPanel->setMessage([] { return tr("This patch has no groups."); }, 0);
    else
        m_gpsPanel->setMessage([] { return tr("No set loaded. Give every group its own GPS-Sync recording."); }, 0);
    addRecentPath(path, SettingsKey::recentPatches);

    const qint64 drawn = m_layout.drawablePixelCount();
    if (drawn == 0) {
        m_patchBar->statusLabel()->showMessage(
            [] {
                return tr("Patch loaded but contains no drawable pixels. Check that the patch was saved from the "
                          "Patch Editor with its layout.");
            },
            2);
        m_groupPanel->clear();
    } else {
        m_groupPanel->setPatch(m_patch, m_layout);
        m_view2d->fitToView();
    }
    // The summary says what the patch holds even when nothing of it can be drawn.
    m_summaryPanel->setPatch(m_patch, m_layout, result.warnings);
    applySourceMode();
    pushMonitor();
    // The live path evaluates against the new pixel list from now on.
    if (m_live)
        m_live->node().setUniverses(advertisedUniverses());

    const QString fileName = QFileInfo(path).fileName();
    const qint64 warnings = result.warnings.size();
    if (drawn > 0) {
        if (warnings == 0)
            m_patchBar->statusLabel()->showMessage(
                [fileName, ms] { return tr("Loaded %1 in %2 ms.").arg(fileName).arg(ms); }, 0);
        else
            m_patchBar->statusLabel()->showMessage(
                [fileName, ms, warnings] {
                    return tr("Loaded %1 in %2 ms with %3 warning(s) - see the Patch tab.")
                        .arg(fileName)
                        .arg(ms)
                        .arg(warnings);
                },
                1);
    }
    m_sideTabs->setCurrentIndex(PatchTab);

    const QString folder = warnings > 0 ? writeImportReport(result, path) : QString();
    if (folder.isEmpty()) {
        showStatus([drawn] { return tr("%1 pixels drawn.").arg(drawn); }, 0);
    } else {
        const QString shown = QDir::toNativeSeparators(folder);
        showStatus(
            [shown, drawn] {
                return tr("A copy of the patch and its warnings is in %1").arg(shown) + QStringLiteral(" · ")
                       + tr("%1 pixels drawn.").arg(drawn);
            },
            0);
    }
    // A loaded recording is evaluated against the new patch.
    if (m_recording->isLoaded())
        onRecordingLoadRequested(m_recordingSourcePath.isEmpty() ? m_recording->path() : m_recordingSourcePath);
    saveSettings();
}
