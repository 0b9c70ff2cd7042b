#include "panels/playbackpanel.h"

#include "panels/clearbutton.h"
#include "panels/playbacktransport.h"
#include "panels/statuslabel.h"

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

PlaybackPanel::PlaybackPanel(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("PlaybackPanel"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    auto *pathRow = new QHBoxLayout;
    pathRow->setSpacing(6);
    m_pathEdit = new QLineEdit(this);
    m_pathEdit->setObjectName(QStringLiteral("recordingPath"));
    m_pathEdit->setClearButtonEnabled(true);
    m_browse = new QToolButton(this);
    m_browse->setObjectName(QStringLiteral("browseButton"));
    m_load = new QPushButton(this);
    m_load->setObjectName(QStringLiteral("loadButton"));
    pathRow->addWidget(m_pathEdit, 1);
    pathRow->addWidget(m_browse);
    pathRow->addWidget(m_load);
    layout->addLayout(pathRow);

    m_information = new QLabel(this);
    m_information->setObjectName(QStringLiteral("recordingInformation"));
    m_information->setWordWrap(true);
    m_information->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_information);

    m_transport = new PlaybackTransport(this);
    layout->addWidget(m_transport);
    m_message = new StatusLabel(this);
    m_message->setObjectName(QStringLiteral("playbackMessage"));
    layout->addWidget(m_message);

    connect(m_browse, &QToolButton::clicked, this, &PlaybackPanel::onBrowse);
    connect(m_load, &QPushButton::clicked, this, [this] { emit loadRequested(m_pathEdit->text().trimmed()); });
    connect(m_pathEdit, &QLineEdit::returnPressed, m_load, &QPushButton::click);
    connect(m_transport, &PlaybackTransport::playPauseRequested, this, &PlaybackPanel::playPauseRequested);
    connect(m_transport, &PlaybackTransport::stopRequested, this, &PlaybackPanel::stopRequested);
    connect(m_transport, &PlaybackTransport::seekRequested, this, &PlaybackPanel::seekRequested);
    connect(m_transport, &PlaybackTransport::fpsChanged, this, &PlaybackPanel::fpsChanged);
    connect(m_transport, &PlaybackTransport::loopChanged, this, &PlaybackPanel::loopChanged);
    connect(m_transport, &PlaybackTransport::frameShown, this, &PlaybackPanel::showFrameLabel);
    retranslateUi();
}

void PlaybackPanel::retranslateUi()
{
    m_pathEdit->setToolTip(tr("Path to a .tpx recording"));
    m_pathEdit->setAccessibleName(tr("Path to a .tpx recording"));
    nameClearButton(m_pathEdit, tr("Clear"));
    m_browse->setText(tr("..."));
    m_browse->setToolTip(tr("Browse for a .tpx recording"));
    m_browse->setAccessibleName(m_browse->toolTip());
    m_load->setText(tr("Load"));
    m_transport->setTexts(tr("Stop and return to the first frame"),
                          tr("Frames are presented at exactly this rate.\nThe timestamp stored in the file is "
                             "ignored - its scale is not reliable."),
                          tr("Loop playback"),
                          tr("Play the recording end to end, over and over.\nThis is how you check whether a "
                             "period-based recording loops seamlessly."));
    if (m_informationProducer)
        m_information->setText(m_informationProducer());
    showFrameLabel();
}

void PlaybackPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void PlaybackPanel::showFrameLabel()
{
    m_transport->frameLabel()->setText(tr("Frame %1 / %2").arg(m_transport->frame()).arg(m_transport->frameCount()));
}

QString PlaybackPanel::path() const
{
    return m_pathEdit->text();
}

void PlaybackPanel::setPath(const QString &path)
{
    m_pathEdit->setText(path);
}

int PlaybackPanel::fps() const
{
    return m_transport->fps();
}

void PlaybackPanel::setFps(int fps)
{
    m_transport->setFps(fps);
}

bool PlaybackPanel::loop() const
{
    return m_transport->loop();
}

void PlaybackPanel::setLoop(bool loop)
{
    m_transport->setLoop(loop);
}

void PlaybackPanel::setPlaying(bool playing)
{
    m_transport->setPlaying(playing);
}

bool PlaybackPanel::isPlaying() const
{
    return m_transport->isPlaying();
}

void PlaybackPanel::setFrameCount(qint64 frameCount)
{
    m_transport->setFrameCount(frameCount);
}

void PlaybackPanel::setCurrentFrame(qint64 frame)
{
    m_transport->setFrame(frame);
}

void PlaybackPanel::setMessage(std::function<QString()> producer, int level)
{
    m_message->showMessage(std::move(producer), level);
}

void PlaybackPanel::setPerformance(double measuredFps, qint64 droppedFrames, double msPerFrame)
{
    m_transport->setPerformance(measuredFps, droppedFrames, msPerFrame);
}

void PlaybackPanel::setInformation(std::function<QString()> producer)
{
    m_informationProducer = std::move(producer);
    m_information->setText(m_informationProducer ? m_informationProducer() : QString());
}

void PlaybackPanel::onBrowse()
{
    const QString current = m_pathEdit->text().trimmed();
    QString startFolder;
    if (!current.isEmpty()) {
        const QFileInfo info(current);
        if (info.absoluteDir().exists())
            startFolder = info.absolutePath();
    }
    const QString picked = QFileDialog::getOpenFileName(this, tr("Select Recording"), startFolder,
                                                        tr("Recordings and captures (*.tpx *.pcapng *.pcap);;All Files (*)"));
    if (!picked.isEmpty())
        m_pathEdit->setText(picked);
}
