#include "artnet/widgets/broadcastpanel.h"

#include "panels/statuslabel.h"
#include "style/moxstyle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHostAddress>
#include <QLabel>
#include <QLineEdit>
#include <QNetworkInterface>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStringList>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr quint16 kArtNetPort = 6454;
constexpr int kDefaultRecordFps = 40;
// ArtPollReply carries the names in fixed fields of 18 and 64 bytes, each
// ending in a zero byte.
constexpr int kShortNameMax = 17;
constexpr int kLongNameMax = 63;
// A controller polls every 2.5 to 3 s; ten seconds of silence means it stopped.
constexpr qint64 kPollSilenceMs = 10000;
const QString kAnyAddress = QStringLiteral("0.0.0.0");
const QString kLoopback = QStringLiteral("127.0.0.1");

} // namespace

const QVector<BroadcastPanel::Profile> &BroadcastPanel::profiles()
{
    static const QVector<Profile> list{
        {QT_TR_NOOP("Torvane Tester"), "TorvaneTester", "Torvane Art-Net Tester"},
        {QT_TR_NOOP("TOVA"), "TOVA", "Torvane TOVA"},
        {QT_TR_NOOP("BRENO"), "BRENO", "Torvane BRENO"},
        {QT_TR_NOOP("KEL6S"), "KEL6S", "Torvane KEL6S"},
        {QT_TR_NOOP("MIRRA"), "MIRRA", "Torvane MIRRA"},
        {QT_TR_NOOP("Generic node"), "ArtNetNode", "Generic Art-Net Node"},
    };
    return list;
}

QVector<BroadcastPanel::InterfaceAddress> BroadcastPanel::localInterfaces()
{
    QVector<InterfaceAddress> out;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &ni : interfaces) {
        if (!(ni.flags() & QNetworkInterface::IsUp) || (ni.flags() & QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry &entry : ni.addressEntries()) {
            const QHostAddress ip = entry.ip();
            if (ip.protocol() == QAbstractSocket::IPv4Protocol && !ip.isLoopback())
                out.append({ip.toString(), ni.humanReadableName()});
        }
    }
    return out;
}

BroadcastPanel::BroadcastPanel(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("BroadcastPanel"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);

    m_address = new QComboBox(this);
    m_address->setObjectName(QStringLiteral("listenAddress"));
    m_refresh = new QToolButton(this);
    m_refresh->setObjectName(QStringLiteral("refreshInterfaces"));
    auto *addressRow = new QHBoxLayout;
    addressRow->setSpacing(6);
    addressRow->addWidget(m_address, 1);
    addressRow->addWidget(m_refresh);
    m_addressLabel = new QLabel(this);
    m_addressLabel->setBuddy(m_address);
    form->addRow(m_addressLabel, addressRow);

    m_port = new QSpinBox(this);
    m_port->setObjectName(QStringLiteral("listenPort"));
    m_port->setRange(1, 65535);
    m_port->setValue(kArtNetPort);
    m_portLabel = new QLabel(this);
    m_portLabel->setBuddy(m_port);
    form->addRow(m_portLabel, m_port);

    m_profile = new QComboBox(this);
    m_profile->setObjectName(QStringLiteral("identityProfile"));
    for (int i = 0; i < profiles().size(); ++i)
        m_profile->addItem(QString());
    m_profileLabel = new QLabel(this);
    m_profileLabel->setBuddy(m_profile);
    form->addRow(m_profileLabel, m_profile);

    const NodeIdentity defaults;
    m_shortName = new QLineEdit(defaults.shortName, this);
    m_shortName->setObjectName(QStringLiteral("shortName"));
    m_shortName->setMaxLength(kShortNameMax);
    m_shortLabel = new QLabel(this);
    m_shortLabel->setBuddy(m_shortName);
    form->addRow(m_shortLabel, m_shortName);
    m_longName = new QLineEdit(defaults.longName, this);
    m_longName->setObjectName(QStringLiteral("longName"));
    m_longName->setMaxLength(kLongNameMax);
    m_longLabel = new QLabel(this);
    m_longLabel->setBuddy(m_longName);
    form->addRow(m_longLabel, m_longName);

    // Net is 7 bits and Sub-Net 4 bits of the 15-bit Port-Address.
    m_net = new QSpinBox(this);
    m_net->setObjectName(QStringLiteral("netBox"));
    m_net->setRange(0, 127);
    m_sub = new QSpinBox(this);
    m_sub->setObjectName(QStringLiteral("subBox"));
    m_sub->setRange(0, 15);
    m_netLabel = new QLabel(this);
    m_subLabel = new QLabel(this);
    m_netLabel->setBuddy(m_net);
    m_subLabel->setBuddy(m_sub);
    auto *addressFields = new QHBoxLayout;
    addressFields->setSpacing(6);
    addressFields->addWidget(m_netLabel);
    addressFields->addWidget(m_net);
    addressFields->addWidget(m_subLabel);
    addressFields->addWidget(m_sub);
    addressFields->addStretch(1);
    m_addressCaption = new QLabel(this);
    form->addRow(m_addressCaption, addressFields);
    layout->addLayout(form);

    m_listen = new QPushButton(this);
    m_listen->setObjectName(QStringLiteral("listenButton"));
    layout->addWidget(m_listen);
    m_listenMessage = new StatusLabel(this);
    m_listenMessage->setObjectName(QStringLiteral("listenMessage"));
    layout->addWidget(m_listenMessage);
    m_liveness = new StatusLabel(this);
    m_liveness->setObjectName(QStringLiteral("livenessLine"));
    layout->addWidget(m_liveness);
    m_statistics = new QLabel(this);
    m_statistics->setObjectName(QStringLiteral("statisticsLine"));
    m_statistics->setWordWrap(true);
    MoxStyle::setLabelRole(m_statistics, MoxStyle::Muted);
    layout->addWidget(m_statistics);

    m_recordEnabled = new QCheckBox(this);
    m_recordEnabled->setObjectName(QStringLiteral("recordEnabled"));
    layout->addWidget(m_recordEnabled);
    auto *recordForm = new QFormLayout;
    recordForm->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_folder = new QLineEdit(this);
    m_folder->setObjectName(QStringLiteral("recordFolder"));
    m_browseFolder = new QToolButton(this);
    m_browseFolder->setObjectName(QStringLiteral("browseFolder"));
    auto *folderRow = new QHBoxLayout;
    folderRow->setSpacing(6);
    folderRow->addWidget(m_folder, 1);
    folderRow->addWidget(m_browseFolder);
    m_folderLabel = new QLabel(this);
    m_folderLabel->setBuddy(m_folder);
    recordForm->addRow(m_folderLabel, folderRow);
    m_fileName = new QLineEdit(QStringLiteral("artnet_capture"), this);
    m_fileName->setObjectName(QStringLiteral("recordName"));
    m_fileLabel = new QLabel(this);
    m_fileLabel->setBuddy(m_fileName);
    recordForm->addRow(m_fileLabel, m_fileName);
    m_recordFps = new QSpinBox(this);
    m_recordFps->setObjectName(QStringLiteral("recordFps"));
    m_recordFps->setRange(1, 240); // the writer's own bounds
    m_recordFps->setValue(kDefaultRecordFps);
    m_fpsLabel = new QLabel(this);
    m_fpsLabel->setBuddy(m_recordFps);
    recordForm->addRow(m_fpsLabel, m_recordFps);
    layout->addLayout(recordForm);
    m_record = new QPushButton(this);
    m_record->setObjectName(QStringLiteral("recordButton"));
    layout->addWidget(m_record);
    m_noPatchNote = new QLabel(this);
    m_noPatchNote->setObjectName(QStringLiteral("noPatchNote"));
    m_noPatchNote->setWordWrap(true);
    m_noPatchNote->hide();
    MoxStyle::setLabelRole(m_noPatchNote, MoxStyle::WarningRole);
    layout->addWidget(m_noPatchNote);
    m_recordMessage = new StatusLabel(this);
    m_recordMessage->setObjectName(QStringLiteral("recordMessage"));
    layout->addWidget(m_recordMessage);

    m_listenMessage->showMessage([] { return tr("Not listening."); }, 0);
    m_recordMessage->showMessage([] { return tr("Not recording."); }, 0);

    connect(m_listen, &QPushButton::clicked, this, &BroadcastPanel::onListenClicked);
    connect(m_record, &QPushButton::clicked, this, &BroadcastPanel::onRecordClicked);
    connect(m_refresh, &QToolButton::clicked, this, &BroadcastPanel::refreshInterfacesRequested);
    connect(m_browseFolder, &QToolButton::clicked, this, &BroadcastPanel::onBrowseFolder);
    connect(m_profile, &QComboBox::activated, this, &BroadcastPanel::onProfileChosen);
    connect(m_recordEnabled, &QCheckBox::toggled, this, &BroadcastPanel::updateRecordControls);
    const auto identityEdited = [this] { emit identityChanged(identity()); };
    connect(m_shortName, &QLineEdit::textEdited, this, identityEdited);
    connect(m_longName, &QLineEdit::textEdited, this, identityEdited);
    connect(m_net, &QSpinBox::valueChanged, this, identityEdited);
    connect(m_sub, &QSpinBox::valueChanged, this, identityEdited);

    setInterfaces({});
    updateRecordControls();
    retranslateUi();
}

void BroadcastPanel::retranslateUi()
{
    m_addressLabel->setText(tr("Listen on"));
    m_address->setToolTip(tr("The local address this node listens on.\n\nRunning alongside Torvane MOX on the same "
                             "machine? Pick a specific address, not Any: MOX binds to Any, and Windows delivers a "
                             "unicast packet to the more specific socket."));
    m_address->setAccessibleName(tr("Listen on"));
    if (m_address->count() >= 2) {
        m_address->setItemText(0, tr("Any (0.0.0.0)"));
        m_address->setItemText(1, tr("%1 (loopback)").arg(kLoopback));
    }
    m_refresh->setText(tr("Refresh"));
    m_refresh->setToolTip(tr("List the network interfaces again"));
    m_portLabel->setText(tr("Port"));
    m_port->setToolTip(tr("Art-Net uses 6454. Change only if you know why."));
    m_port->setAccessibleName(tr("Port"));
    m_profileLabel->setText(tr("Profile"));
    m_profile->setToolTip(tr("Preset identities. Pick one, then edit the fields below."));
    m_profile->setAccessibleName(tr("Profile"));
    for (int i = 0; i < profiles().size(); ++i)
        m_profile->setItemText(i, tr(profiles()[i].label));
    m_shortLabel->setText(tr("Short name"));
    m_shortName->setAccessibleName(tr("Short name"));
    m_longLabel->setText(tr("Long name"));
    m_longName->setAccessibleName(tr("Long name"));
    m_addressCaption->setText(tr("Address"));
    m_netLabel->setText(tr("Net"));
    m_net->setAccessibleName(tr("Net"));
    m_subLabel->setText(tr("Sub"));
    m_sub->setAccessibleName(tr("Sub"));
    m_listen->setText(m_listening ? tr("Stop listening") : tr("Start listening"));

    m_recordEnabled->setText(tr("Record incoming stream"));
    m_recordEnabled->setToolTip(tr("Write every incoming Art-Net DMX packet to a .tpx file,\nbyte compatible with "
                                   "Torvane MOX recordings.\n\nAn existing file is appended to, not overwritten - "
                                   "that is how several animations end up in one file."));
    m_folderLabel->setText(tr("Folder"));
    m_folder->setAccessibleName(tr("Folder"));
    m_browseFolder->setText(tr("..."));
    m_browseFolder->setToolTip(tr("Choose where the recording is written"));
    m_browseFolder->setAccessibleName(m_browseFolder->toolTip());
    m_fileLabel->setText(tr("File name (.tpx is added)"));
    m_fileName->setAccessibleName(tr("File name (.tpx is added)"));
    m_fpsLabel->setText(tr("Frame rate"));
    m_recordFps->setSuffix(tr(" fps"));
    m_recordFps->setAccessibleName(tr("Frame rate"));
    m_recordFps->setToolTip(tr("The frame rate of the source that is sending to us.\nIt only scales the 2-byte "
                               "timestamp written into each record - the DMX data itself is stored exactly as "
                               "received."));
    m_record->setText(m_recording ? tr("Stop recording") : tr("Record"));
    m_noPatchNote->setText(tr("No patch loaded - recording works, but the monitor stays dark."));
    showStatusLines();
}

void BroadcastPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void BroadcastPanel::setInterfaces(const QVector<InterfaceAddress> &interfaces)
{
    const QString chosen = m_address->count() > 0 ? address() : kAnyAddress;
    const QSignalBlocker block(m_address);
    m_address->clear();
    m_address->addItem(tr("Any (0.0.0.0)"), kAnyAddress);
    m_address->addItem(tr("%1 (loopback)").arg(kLoopback), kLoopback);
    for (const InterfaceAddress &ni : interfaces) {
        if (ni.address == kAnyAddress || ni.address == kLoopback)
            continue;
        m_address->addItem(ni.interfaceName.isEmpty() ? ni.address
                                                      : QStringLiteral("%1 (%2)").arg(ni.address, ni.interfaceName),
                           ni.address);
    }
    setAddress(chosen);
}

void BroadcastPanel::refreshInterfaces()
{
    setInterfaces(localInterfaces());
}

QString BroadcastPanel::address() const
{
    const QString data = m_address->currentData().toString();
    return data.isEmpty() ? kAnyAddress : data;
}

void BroadcastPanel::setAddress(const QString &address)
{
    const QString wanted = address.trimmed().isEmpty() ? kAnyAddress : address.trimmed();
    int index = m_address->findData(wanted);
    if (index < 0) {
        m_address->addItem(tr("%1 (not present)").arg(wanted), wanted);
        index = m_address->count() - 1;
    }
    m_address->setCurrentIndex(index);
}

quint16 BroadcastPanel::port() const
{
    return quint16(m_port->value());
}

NodeIdentity BroadcastPanel::identity() const
{
    NodeIdentity id;
    id.shortName = m_shortName->text();
    id.longName = m_longName->text();
    id.net = quint8(m_net->value());
    id.subNet = quint8(m_sub->value());
    return id;
}

void BroadcastPanel::setNames(const QString &shortName, const QString &longName)
{
    if (!shortName.isEmpty())
        m_shortName->setText(shortName);
    if (!longName.isEmpty())
        m_longName->setText(longName);
}

QString BroadcastPanel::recordFolder() const
{
    return m_folder->text().trimmed();
}

void BroadcastPanel::setRecordFolder(const QString &folder)
{
    m_folder->setText(folder);
}

QString BroadcastPanel::recordName() const
{
    return m_fileName->text().trimmed();
}

void BroadcastPanel::setRecordName(const QString &name)
{
    if (!name.isEmpty())
        m_fileName->setText(name);
}

int BroadcastPanel::recordFps() const
{
    return m_recordFps->value();
}

void BroadcastPanel::setRecordFps(int fps)
{
    m_recordFps->setValue(fps);
}

void BroadcastPanel::setListening(bool listening)
{
    m_listening = listening;
    m_listen->setText(listening ? tr("Stop listening") : tr("Start listening"));
    m_address->setEnabled(!listening);
    m_refresh->setEnabled(!listening);
    m_port->setEnabled(!listening);
    if (!listening) {
        m_hasStatus = false;
        showStatusLines();
    }
}

void BroadcastPanel::setRecording(bool recording)
{
    m_recording = recording;
    m_record->setText(recording ? tr("Stop recording") : tr("Record"));
    updateRecordControls();
}

void BroadcastPanel::setPatchLoaded(bool loaded)
{
    m_patchLoaded = loaded;
    if (loaded)
        m_noPatchNote->hide();
}

void BroadcastPanel::updateRecordControls()
{
    // The file cannot change under a running recording.
    const bool editable = m_recordEnabled->isChecked() && !m_recording;
    m_folder->setEnabled(editable);
    m_browseFolder->setEnabled(editable);
    m_fileName->setEnabled(editable);
    m_recordFps->setEnabled(editable);
    m_record->setEnabled(m_recordEnabled->isChecked() || m_recording);
    m_recordEnabled->setEnabled(!m_recording);
}

void BroadcastPanel::onListenClicked()
{
    if (m_listening)
        emit stopRequested();
    else
        emit startRequested(address(), port(), identity());
}

void BroadcastPanel::onRecordClicked()
{
    if (m_recording) {
        emit recordStopRequested();
        return;
    }
    m_noPatchNote->setVisible(!m_patchLoaded);
    emit recordStartRequested(recordFolder(), recordName(), recordFps());
}

void BroadcastPanel::onProfileChosen(int index)
{
    if (index < 0 || index >= profiles().size())
        return;
    const Profile &p = profiles()[index];
    m_shortName->setText(QString::fromLatin1(p.shortName));
    m_longName->setText(QString::fromLatin1(p.longName));
    emit identityChanged(identity());
}

void BroadcastPanel::onBrowseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Select Recording Folder"), recordFolder());
    if (!folder.isEmpty())
        m_folder->setText(folder);
}

void BroadcastPanel::refreshStatus(const NodeStats &stats, qint64 msSinceLastPoll)
{
    m_stats = stats;
    m_msSinceLastPoll = msSinceLastPoll;
    m_hasStatus = true;
    showStatusLines();
}

void BroadcastPanel::showStatusLines()
{
    if (!m_hasStatus) {
        m_liveness->showMessage({}, 0);
        m_statistics->clear();
        return;
    }
    const qint64 ms = m_msSinceLastPoll;
    const quint64 polls = m_stats.artPolls;
    if (ms < 0)
        m_liveness->showMessage([] { return tr("No ArtPoll seen yet - no controller is looking for nodes."); },
                                MoxStyle::Warning);
    else if (ms <= kPollSilenceMs)
        m_liveness->showMessage([polls] { return tr("Answering ArtPoll (%1 replies sent).").arg(polls); },
                                MoxStyle::Info);
    else
        m_liveness->showMessage(
            [ms] { return tr("Last ArtPoll %1 s ago - the controller may have stopped.").arg(ms / 1000); },
            MoxStyle::Warning);

    QStringList parts;
    parts << tr("%1 pkt/s").arg(m_stats.packetsPerSecond, 0, 'f', 0) << tr("%1 packets").arg(m_stats.dmxPackets)
          << (m_stats.msSinceLastDmx < 0 ? tr("no DMX yet") : tr("last %1 ms ago").arg(m_stats.msSinceLastDmx))
          << tr("%1 seq errors").arg(m_stats.sequenceErrors) << tr("%1 ignored").arg(m_stats.ignored);
    m_statistics->setText(parts.join(QStringLiteral(" · ")));
}

void BroadcastPanel::setListenMessage(std::function<QString()> producer, int level)
{
    m_listenMessage->showMessage(std::move(producer), level);
}

void BroadcastPanel::setRecordMessage(std::function<QString()> producer, int level)
{
    m_recordMessage->showMessage(std::move(producer), level);
}
