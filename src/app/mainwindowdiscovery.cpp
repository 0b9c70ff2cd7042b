// MainWindow: node discovery. The window shows the devices that answer
// ArtPoll; the scan (NodeDiscovery, core) polls every 2.5 s while it is open,
// and the window's own node, when listening, answers like any other.
#include "app/mainwindow.h"

#include "artnet/nodediscovery.h"
#include "live/livepipeline.h"
#include "artnet/widgets/nodediscoverywindow.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QNetworkInterface>
#include <QSaveFile>
#include <QStandardPaths>

void MainWindow::showNodeDiscovery()
{
    if (!m_discovery.window) {
        m_discovery.window = new NodeDiscoveryWindow(this);
        m_discovery.scan = new ArtNet::NodeDiscovery(this);
        connect(m_discovery.window, &NodeDiscoveryWindow::scanRequested, this, &MainWindow::startDiscovery);
        connect(m_discovery.window, &NodeDiscoveryWindow::stopRequested, this, [this] {
            m_discovery.scan->stop();
            if (m_live)
                m_live->setPollReplyTap(nullptr);
            m_discovery.window->setScanning(false, tr("Stopped."));
        });
        connect(m_discovery.window, &NodeDiscoveryWindow::exportRequested, this, &MainWindow::exportDiscovery);
        connect(m_discovery.scan, &ArtNet::NodeDiscovery::updated, this, &MainWindow::refreshDiscovery);
    }
    // Each interface's subnet broadcast, then the limited broadcast (asked again at every opening).
    QVector<QPair<QString, QString>> targets;
    for (const QNetworkInterface &i : QNetworkInterface::allInterfaces()) {
        if (i.flags().testFlag(QNetworkInterface::IsLoopBack) || !i.flags().testFlag(QNetworkInterface::IsUp))
            continue;
        for (const QNetworkAddressEntry &e : i.addressEntries()) {
            if (e.ip().protocol() == QAbstractSocket::IPv4Protocol && !e.broadcast().isNull())
                targets.append({tr("%1 (subnet of %2, %3)").arg(e.broadcast().toString(), e.ip().toString(),
                                                                i.humanReadableName()),
                                e.broadcast().toString()});
        }
    }
    targets.append({tr("255.255.255.255 (limited broadcast)"), QStringLiteral("255.255.255.255")});
    if (!m_discovery.scan->isRunning()) {
        m_discovery.window->setTargets(targets);
        refreshDiscovery();
    }
    m_discovery.window->show();
    m_discovery.window->raise();
    m_discovery.window->activateWindow();
}

void MainWindow::startDiscovery(const QString &target)
{
    QHostAddress address;
    if (!address.setAddress(target) || address.protocol() != QAbstractSocket::IPv4Protocol) {
        m_discovery.window->setScanning(false, tr("\"%1\" is not an IPv4 address.").arg(target));
        return;
    }
    // With the window's node on 6454, the replies come through the node's socket.
    const bool nodeListens = m_live && m_live->node().isRunning() && m_live->node().port() == ArtNet::kDefaultPort;
    if (m_live) {
        m_live->setPollReplyTap(nodeListens ? std::function<void(quint32, QByteArrayView)>(
                                                  [this](quint32 sender, QByteArrayView datagram) {
                                                      m_discovery.scan->takeReply(sender, datagram);
                                                  })
                                            : nullptr);
    }
    QString error;
    if (!m_discovery.scan->start(address, nodeListens, &error)) {
        m_discovery.window->setScanning(false, tr("Cannot scan: %1").arg(error));
        return;
    }
    m_discovery.window->setScanning(true, tr("Polling %1 every 2.5 s...").arg(target));
    refreshDiscovery();
}

void MainWindow::refreshDiscovery()
{
    if (!m_discovery.window)
        return;
    const QVector<ArtNet::DiscoveredDevice> devices = m_discovery.scan->table().devices(m_discovery.scan->nowMs());
    const QVector<quint16> missing =
        m_patchLoaded ? m_discovery.scan->table().universesWithoutNode(advertisedUniverses()) : QVector<quint16>();
    m_discovery.window->showDevices(devices, missing, m_patchLoaded);
}

void MainWindow::exportDiscovery()
{
    const QString path = QFileDialog::getSaveFileName(
        m_discovery.window, tr("Export Devices"),
        QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath(QStringLiteral("nodes.csv")),
        tr("CSV table (*.csv)"));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const QByteArray csv = ArtNet::devicesCsv(m_discovery.scan->table().devices(m_discovery.scan->nowMs()));
    if (!file.open(QIODevice::WriteOnly) || file.write(csv) != csv.size() || !file.commit()) {
        QMessageBox::warning(m_discovery.window, tr("Export Devices"),
                             tr("Could not write %1: %2").arg(path, file.errorString()));
        return;
    }
    showStatus([path] { return tr("Devices exported to %1.").arg(path); }, 5000);
}
