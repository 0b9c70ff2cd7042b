#pragma once

#include "artnet/nodediscovery.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;

// "Node Discovery": the devices that answer ArtPoll on the chosen interface,
// one row per device (its ports, report and findings as child rows), offline
// devices kept and marked, ours marked "this program"; the patched universes
// no device outputs; CSV export. Thin: it shows what it is given and asks for
// scans; MainWindow runs the scan. GUI thread only.
class NodeDiscoveryWindow : public QWidget
{
    Q_OBJECT
public:
    enum Column
    {
        AddressColumn,
        ShortNameColumn,
        LongNameColumn,
        StateColumn,
        ReplyColumn,
        OemColumn,
        EstaColumn,
        FirmwareColumn,
        StatusColumn,
        MacColumn,
        PortsColumn, // last: a node of many universes lists them all
        ColumnCount
    };

    explicit NodeDiscoveryWindow(QWidget *parent = nullptr);

    // The poll targets offered: text shown, address polled.
    void setTargets(const QVector<QPair<QString, QString>> &targets);
    QString target() const;
    void setScanning(bool scanning, const QString &state);
    void showDevices(const QVector<ArtNet::DiscoveredDevice> &devices, const QVector<quint16> &withoutNode,
                     bool patchLoaded);
    QTreeWidget *table() const { return m_table; }

signals:
    void scanRequested(const QString &target);
    void stopRequested();
    void exportRequested();

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void retranslateUi();

    QLabel *m_targetLabel = nullptr;
    QComboBox *m_target = nullptr;
    QPushButton *m_scanButton = nullptr;
    QPushButton *m_exportButton = nullptr;
    QLabel *m_state = nullptr;
    QTreeWidget *m_table = nullptr;
    QLabel *m_missing = nullptr;
    bool m_scanning = false;
    QVector<ArtNet::DiscoveredDevice> m_devices;
    QVector<quint16> m_withoutNode;
    bool m_patchLoaded = false;
};
