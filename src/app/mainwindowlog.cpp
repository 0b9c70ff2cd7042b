// MainWindow: the network log. The live window follows the node's packet
// journal and, on request, an adapter capture; log files open in windows of
// their own, read-only, read in the background; saving writes what a window
// holds, or only what its filter shows.
#include "app/mainwindow.h"

#include "live/livepipeline.h"
#include "packetlog/logfileloader.h"
#include "packetlog/logfiles.h"
#include "packetlog/widgets/filterbar.h"
#include "packetlog/widgets/packetlistmodel.h"
#include "packetlog/widgets/packetlogwindow.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>

namespace {

const QString kRecentFiltersKey = QStringLiteral("packetlog/recentFilters");

// The save dialog's file types, by the name logFormatFromName knows.
struct SaveType
{
    const char *filter;
    const char *format;
    const char *suffix;
};
const SaveType kSaveTypes[] = {
    {QT_TRANSLATE_NOOP("MainWindow", "Network log (*.tlog)"), "tlog", "tlog"},
    {QT_TRANSLATE_NOOP("MainWindow", "Wireshark capture (*.pcapng)"), "pcapng", "pcapng"},
    {QT_TRANSLATE_NOOP("MainWindow", "CSV table (*.csv)"), "csv", "csv"},
    {QT_TRANSLATE_NOOP("MainWindow", "Text (*.txt)"), "text", "txt"},
};

} // namespace

void MainWindow::showNetworkLog()
{
    if (!m_log.window) {
        auto *window = new PacketLogWindow(*m_style, this);
        window->setJournal(&ensureLive().journal());
        adoptLogWindow(window);
        m_log.window = window;
        if (!m_log.capture) {
            m_log.capture = new PacketLog::CaptureSession(this);
            connect(m_log.capture, &PacketLog::CaptureSession::started, this, [this] {
                if (m_log.window)
                    m_log.window->setCaptureState(true, tr("Capturing on %1.").arg(m_log.capture->adapterName()));
            });
            connect(m_log.capture, &PacketLog::CaptureSession::stopped, this, &MainWindow::onCaptureStopped);
        }
        window->setCaptureSession(m_log.capture);
        connect(window, &PacketLogWindow::captureRequested, this, &MainWindow::startCapture);
        connect(window, &PacketLogWindow::captureStopRequested, m_log.capture, &PacketLog::CaptureSession::stop);
    }
    // Asked again at every opening: an adapter plugged in meanwhile is offered.
    if (!m_log.capture->isRunning()) {
        PacketLog::LogMessage error;
        if (!PacketLog::listCaptureAdapters(&m_log.adapters, &error))
            m_log.adapters.clear();
        m_log.window->setCaptureAdapters(m_log.adapters, error.text());
    }
    m_log.window->show();
    m_log.window->raise();
    m_log.window->activateWindow();
}

void MainWindow::openNetworkLog()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open Network Log"), QFileInfo(m_log.path).absolutePath(),
                                     tr("Network logs and captures (*.tlog *.pcapng *.pcap);;All files (*)"));
    if (!path.isEmpty())
        openNetworkLogFile(path);
}

void MainWindow::startCapture(const QString &adapterName)
{
    auto adapter = std::find_if(m_log.adapters.cbegin(), m_log.adapters.cend(),
                                [&adapterName](const auto &a) { return a.name == adapterName; });
    if (adapter == m_log.adapters.cend() || !m_log.window)
        return;
    m_log.window->setCaptureState(true, tr("Starting the capture on %1...").arg(adapterName));
    m_log.capture->start(*adapter);
}

void MainWindow::onCaptureStopped(const PacketLog::LogMessage &error)
{
    const QString name = m_log.capture->adapterName();
    const qint64 count = m_log.capture->recordCount();
    const qint64 dropped = m_log.capture->dropped();
    if (m_log.window) {
        m_log.window->poll(); // the last packets before the list stops taking them
        m_log.window->setCaptureState(
            false, error.isEmpty() ? tr("Capture on %1 stopped: %2 packets, %3 dropped by the system.")
                                         .arg(name)
                                         .arg(count)
                                         .arg(dropped)
                                   : error.text());
    }
    if (!error.isEmpty()) {
        // Not modal: the list keeps what was captured and the user reads on.
        auto *box = new QMessageBox(QMessageBox::Warning, tr("Network Log"), error.text(), QMessageBox::Ok,
                                    m_log.window ? static_cast<QWidget *>(m_log.window) : this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    }
}

void MainWindow::openNetworkLogFile(const QString &path)
{
    // Read in the background: the first rows show at once, and Cancel keeps what was read.
    auto *window = new PacketLogWindow(*m_style, this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    adoptLogWindow(window);
    window->beginFile(path);
    auto *loader = new PacketLog::LogFileLoader(window);
    connect(loader, &PacketLog::LogFileLoader::recordsRead, window,
            [window](const auto &records, qint64 bytesRead, qint64 bytesTotal) {
                // Shown with its first rows, so a file that is no log never flashes a window.
                window->show();
                window->addFileRecords(records, bytesRead, bytesTotal);
            });
    connect(window, &PacketLogWindow::loadCancelRequested, loader, &PacketLog::LogFileLoader::cancel);
    const QString name = QFileInfo(path).fileName();
    connect(loader, &PacketLog::LogFileLoader::finished, this,
            [this, window, loader, name](const PacketLog::LogLoadResult &result, bool cancelled) {
                loader->deleteLater();
                if (!result.ok) {
                    window->close();
                    const QString reason = result.error.text();
                    showStatus([reason] { return tr("Network log not opened: %1").arg(reason); }, 0);
                    QMessageBox::warning(this, tr("Network Log"), reason);
                    return;
                }
                // A damaged file opens as far as it is whole; the warnings say where it stopped.
                QStringList warnings;
                for (const PacketLog::LogMessage &w : result.warnings)
                    warnings << w.text();
                window->endFile(warnings, cancelled);
                window->show();
                const qint64 count = window->model()->recordCount();
                showStatus([name, count] { return tr("Opened %1: %2 records.").arg(name).arg(count); }, 5000);
            });
    loader->start(path);
}

PacketLogWindow *MainWindow::logWindowToSave() const
{
    if (auto *active = qobject_cast<PacketLogWindow *>(QApplication::activeWindow()))
        return active;
    // Chosen from the main window's menu: the log window the user was in last.
    return m_log.lastWindow ? m_log.lastWindow.data() : m_log.window.data();
}

void MainWindow::adoptLogWindow(PacketLogWindow *window)
{
    window->filterBar()->setRecentFilters(openSettings()->value(kRecentFiltersKey).toStringList());
    connect(window->filterBar(), &FilterBar::recentFiltersChanged, this, [this](const QStringList &filters) {
        openSettings()->setValue(kRecentFiltersKey, filters);
        // Every open log window offers the same recent filters.
        for (PacketLogWindow *other : findChildren<PacketLogWindow *>())
            other->filterBar()->setRecentFilters(filters);
    });
    connect(window, &PacketLogWindow::activated, this, [this, window] { m_log.lastWindow = window; });
    // Ctrl+S and Ctrl+Shift+S work in the log window too, and save that window.
    window->addAction(menuAction("Save Network Log"));
    window->addAction(menuAction("Save Network Log As..."));
    m_log.lastWindow = window;
}

void MainWindow::saveNetworkLog()
{
    // The live log goes on to the file it was saved to; anything else asks where.
    if (m_log.path.isEmpty() || !m_log.window || logWindowToSave() != m_log.window) {
        saveNetworkLogAs();
        return;
    }
    saveLog(m_log.window, m_log.path, QStringLiteral("tlog"));
}

void MainWindow::saveNetworkLogAs()
{
    PacketLogWindow *window = logWindowToSave();
    if (!window) {
        // The live log holds what the node saw since the program started listening.
        showNetworkLog();
        window = m_log.window;
    }
    QStringList filters;
    for (const SaveType &type : kSaveTypes)
        filters << tr(type.filter);
    const QString start = m_log.path.isEmpty()
                              ? QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                                    .filePath(QStringLiteral("network.tlog"))
                              : m_log.path;
    QString chosenFilter = filters.first();
    QString path = QFileDialog::getSaveFileName(this, tr("Save Network Log As"), start,
                                                filters.join(QStringLiteral(";;")), &chosenFilter);
    if (path.isEmpty())
        return;
    const SaveType *type = &kSaveTypes[std::max<qsizetype>(0, filters.indexOf(chosenFilter))];
    // A name typed with a known suffix says the format, whatever the list shows.
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const SaveType &known : kSaveTypes)
        if (suffix == QLatin1String(known.suffix))
            type = &known;
    if (suffix.isEmpty())
        path += QLatin1Char('.') + QLatin1String(type->suffix);
    if (saveLog(window, path, QString::fromLatin1(type->format)) && type->format == QLatin1String("tlog") &&
        window == m_log.window)
        m_log.path = path;
}

bool MainWindow::saveLog(PacketLogWindow *window, const QString &path, const QString &formatName)
{
    PacketLog::LogFormat format;
    if (!PacketLog::logFormatFromName(formatName, &format))
        return false;
    const PacketListModel *model = window->model();
    bool onlyShown = false;
    if (model->rowCount() < model->recordCount()) {
        const auto answer =
            QMessageBox::question(this, tr("Save Network Log"),
                                  tr("The filter shows %1 of %2 records. Save only the records it shows?")
                                      .arg(model->rowCount())
                                      .arg(model->recordCount()),
                                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
        if (answer == QMessageBox::Cancel)
            return false;
        onlyShown = answer == QMessageBox::Yes;
    }
    PacketLog::LogMessage error;
    const bool saved =
        PacketLog::savePacketLog(path, format, onlyShown ? model->shownRecords() : model->records(), &error);
    if (!saved) {
        QMessageBox::warning(this, tr("Save Network Log"),
                             tr("Could not write %1: %2").arg(path, error.text()));
        return false;
    }
    const qint64 count = onlyShown ? model->rowCount() : model->recordCount();
    showStatus([path, count] { return tr("Network log saved to %1 (%2 records).").arg(path).arg(count); }, 0);
    return true;
}
