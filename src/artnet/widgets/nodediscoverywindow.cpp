#include "artnet/widgets/nodediscoverywindow.h"

#include <QComboBox>
#include <QEvent>
#include <QHideEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHostAddress>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

NodeDiscoveryWindow::NodeDiscoveryWindow(QWidget *parent) : QWidget(parent, Qt::Window)
{
    setObjectName(QStringLiteral("NodeDiscoveryWindow"));
    resize(1000, 520);
    m_targetLabel = new QLabel(this);
    m_target = new QComboBox(this);
    m_target->setObjectName(QStringLiteral("discoveryTarget"));
    m_target->setEditable(true); // or one address typed in
    m_target->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_targetLabel->setBuddy(m_target);
    m_scanButton = new QPushButton(this);
    m_scanButton->setObjectName(QStringLiteral("scanButton"));
    m_exportButton = new QPushButton(this);
    m_state = new QLabel(this);
    m_state->setObjectName(QStringLiteral("discoveryState"));
    m_table = new QTreeWidget(this);
    m_table->setObjectName(QStringLiteral("discoveryTable"));
    m_table->setColumnCount(ColumnCount);
    m_table->setRootIsDecorated(true);
    m_table->setAlternatingRowColors(true);
    m_missing = new QLabel(this);
    m_missing->setObjectName(QStringLiteral("universesWithoutNode"));
    m_missing->setWordWrap(true);

    auto *top = new QHBoxLayout;
    top->addWidget(m_targetLabel);
    top->addWidget(m_target);
    top->addWidget(m_scanButton);
    top->addWidget(m_state, 1);
    top->addWidget(m_exportButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_missing);

    connect(m_scanButton, &QPushButton::clicked, this, [this] {
        if (m_scanning)
            emit stopRequested();
        else
            emit scanRequested(target());
    });
    connect(m_exportButton, &QPushButton::clicked, this, &NodeDiscoveryWindow::exportRequested);
    retranslateUi();
}

void NodeDiscoveryWindow::setTargets(const QVector<QPair<QString, QString>> &targets)
{
    m_target->clear();
    for (const auto &[text, address] : targets)
        m_target->addItem(text, address);
}

QString NodeDiscoveryWindow::target() const
{
    // A listed target gives its address; a typed one is the address itself.
    const int i = m_target->findText(m_target->currentText());
    return i >= 0 ? m_target->itemData(i).toString() : m_target->currentText().trimmed();
}

void NodeDiscoveryWindow::setScanning(bool scanning, const QString &state)
{
    m_scanning = scanning;
    m_state->setText(state);
    retranslateUi();
}

void NodeDiscoveryWindow::showDevices(const QVector<ArtNet::DiscoveredDevice> &devices,
                                      const QVector<quint16> &withoutNode, bool patchLoaded)
{
    m_devices = devices;
    m_withoutNode = withoutNode;
    m_patchLoaded = patchLoaded;
    // Rebuilt whole: a handful of devices, every 2.5 s; expanded rows stay expanded.
    QSet<QString> expanded;
    for (int i = 0; i < m_table->topLevelItemCount(); ++i)
        if (m_table->topLevelItem(i)->isExpanded())
            expanded.insert(m_table->topLevelItem(i)->text(AddressColumn));
    m_table->clear();
    const auto hex = [](int value, int digits) { return QStringLiteral("0x%1").arg(value, digits, 16, QLatin1Char('0')); };
    QVector<QTreeWidgetItem *> items;
    for (const ArtNet::DiscoveredDevice &d : devices) {
        auto *item = new QTreeWidgetItem(m_table);
        item->setText(AddressColumn, QHostAddress(d.address).toString());
        item->setText(ShortNameColumn, d.first.shortName);
        item->setText(LongNameColumn, d.first.longName);
        item->setText(PortsColumn, ArtNet::portsText(d.ports));
        item->setText(ReplyColumn, d.replyMs >= 0 ? tr("%1 ms").arg(d.replyMs) : QString());
        QString state = d.self ? tr("this program") : (d.online ? tr("online") : tr("offline"));
        if (!d.findings.isEmpty())
            state += QStringLiteral(" · ") + tr("%n finding(s)", nullptr, int(d.findings.size()));
        item->setText(StateColumn, state);
        item->setText(OemColumn, hex(d.first.oem, 4));
        item->setText(EstaColumn, hex(d.first.esta, 4));
        item->setText(FirmwareColumn, QString::number(d.first.firmware));
        item->setText(StatusColumn, hex(d.first.status1, 2));
        item->setText(MacColumn, ArtNet::macText(d.first.mac));
        if (!d.online)
            item->setForeground(StateColumn, palette().color(QPalette::Disabled, QPalette::Text));
        items.append(item);
    }
    // The columns fit the device rows; the report and findings below each span the row.
    for (int c = 0; c < ColumnCount; ++c)
        m_table->resizeColumnToContents(c);
    for (qsizetype i = 0; i < items.size(); ++i) {
        const ArtNet::DiscoveredDevice &d = devices[i];
        QStringList lines;
        if (!d.first.report.isEmpty())
            lines << tr("Report: %1").arg(d.first.report);
        for (const QString &finding : d.findings)
            lines << tr("Finding: %1").arg(finding);
        for (const QString &line : std::as_const(lines))
            new QTreeWidgetItem(items[i], {line});
        for (int c = 0; c < items[i]->childCount(); ++c)
            items[i]->child(c)->setFirstColumnSpanned(true);
        items[i]->setExpanded(expanded.contains(items[i]->text(AddressColumn)) || !d.findings.isEmpty());
    }
    retranslateUi();
}

void NodeDiscoveryWindow::hideEvent(QHideEvent *event)
{
    // Polling goes on only while the table is open (minimising is not closing).
    if (m_scanning && !event->spontaneous())
        emit stopRequested();
    QWidget::hideEvent(event);
}

void NodeDiscoveryWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void NodeDiscoveryWindow::retranslateUi()
{
    setWindowTitle(tr("Node Discovery"));
    m_targetLabel->setText(tr("Poll:"));
    m_target->setAccessibleName(tr("Poll target"));
    m_target->setToolTip(tr("Where ArtPoll goes: an interface's subnet broadcast, the limited broadcast, or one "
                            "address typed in."));
    m_target->setEnabled(!m_scanning);
    m_scanButton->setText(m_scanning ? tr("Stop") : tr("Scan"));
    m_scanButton->setToolTip(tr("Send ArtPoll now and every 2.5 s while this window is open."));
    m_exportButton->setText(tr("Export CSV..."));
    m_exportButton->setEnabled(!m_devices.isEmpty());
    m_state->setAccessibleName(tr("Scan state"));
    m_table->setAccessibleName(tr("Devices"));
    m_table->setHeaderLabels({tr("Address"), tr("Short name"), tr("Long name"), tr("State"), tr("Reply"),
                              tr("OEM"), tr("ESTA"), tr("Firmware"), tr("Status"), tr("MAC"), tr("Ports")});
    m_missing->setAccessibleName(tr("Patched universes without a device"));
    if (!m_patchLoaded) {
        m_missing->setText(tr("Load a patch to see which of its universes no device outputs."));
    } else if (m_withoutNode.isEmpty()) {
        m_missing->setText(m_devices.isEmpty() ? QString() : tr("Every patched universe has a device that outputs it."));
    } else {
        QStringList universes;
        for (const quint16 u : m_withoutNode)
            universes << QStringLiteral("0x%1").arg(u, 4, 16, QLatin1Char('0'));
        m_missing->setText(tr("Patched universes no device outputs: %1").arg(universes.join(QStringLiteral(", "))));
    }
}
