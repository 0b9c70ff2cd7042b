#include "panels/playbacktransport.h"

#include "style/moxstyle.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>
#include <climits>

namespace {

// Below this share of the target rate the line turns to a warning: a few
// percent is timer jitter, more means frames are being dropped for real.
constexpr double kSustainedShare = 0.92;

int sliderValue(qint64 frame)
{
    return int(std::clamp<qint64>(frame, 0, INT_MAX));
}

} // namespace

PlaybackTransport::PerformanceLine PlaybackTransport::performanceLine(double measuredFps, qint64 droppedFrames,
                                                                      double msPerFrame, int targetFps)
{
    PerformanceLine line;
    if (!(measuredFps > 0))
        return line;
    QStringList parts{tr("Measured %1 fps").arg(measuredFps, 0, 'f', 1)};
    if (droppedFrames > 0)
        parts << tr("%1 frame(s) dropped").arg(droppedFrames);
    if (msPerFrame >= 0) {
        if (msPerFrame > 0.01)
            parts << tr("%1 ms/frame (max %2 fps)").arg(msPerFrame, 0, 'f', 2).arg(1000.0 / msPerFrame, 0, 'f', 0);
        else
            parts << tr("%1 ms/frame").arg(msPerFrame, 0, 'f', 2);
    }
    // The dot reads as a separator at a glance and never as part of a number.
    line.text = parts.join(QStringLiteral(" · "));
    line.warning = targetFps * kSustainedShare > measuredFps;
    return line;
}

PlaybackTransport::PlaybackTransport(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    m_playPause = new QPushButton(this);
    m_playPause->setObjectName(QStringLiteral("playPauseButton"));
    m_rewind = new QPushButton(this);
    m_rewind->setObjectName(QStringLiteral("rewindButton"));
    buttons->addWidget(m_playPause, 1);
    buttons->addWidget(m_rewind, 1);
    layout->addLayout(buttons);

    auto *rateRow = new QHBoxLayout;
    rateRow->setSpacing(6);
    m_fpsLabel = new QLabel(this);
    m_fps = new QSpinBox(this);
    m_fps->setObjectName(QStringLiteral("fpsBox"));
    m_fps->setRange(kMinFps, kMaxFps);
    m_fps->setValue(kDefaultFps);
    m_fpsLabel->setBuddy(m_fps);
    m_loop = new QCheckBox(this);
    m_loop->setObjectName(QStringLiteral("loopBox"));
    rateRow->addWidget(m_fpsLabel);
    rateRow->addWidget(m_fps);
    rateRow->addWidget(m_loop, 1);
    layout->addLayout(rateRow);

    m_slider = new QSlider(Qt::Horizontal, this);
    m_slider->setObjectName(QStringLiteral("positionSlider"));
    m_slider->setRange(0, 0);
    layout->addWidget(m_slider);
    m_frameLabel = new QLabel(this);
    m_frameLabel->setObjectName(QStringLiteral("frameLabel"));
    layout->addWidget(m_frameLabel);
    m_performance = new QLabel(this);
    m_performance->setObjectName(QStringLiteral("performanceLabel"));
    m_performance->setWordWrap(true);
    layout->addWidget(m_performance);
    MoxStyle::setLabelRole(m_performance, MoxStyle::Normal);

    connect(m_playPause, &QPushButton::clicked, this, &PlaybackTransport::playPauseRequested);
    connect(m_rewind, &QPushButton::clicked, this, &PlaybackTransport::stopRequested);
    connect(m_fps, &QSpinBox::valueChanged, this, [this](int fps) {
        showPerformance(); // the warning threshold follows the target
        emit fpsChanged(fps);
    });
    connect(m_loop, &QCheckBox::toggled, this, &PlaybackTransport::loopChanged);
    // Programmatic moves block the slider's signals, so every value change
    // that arrives here is the user's: a drag, a click on the groove or a key.
    connect(m_slider, &QSlider::valueChanged, this, [this](int value) {
        m_frame = value;
        emit seekRequested(value);
        emit frameShown();
    });
    connect(m_slider, &QSlider::sliderPressed, this, [this] { m_sliderHeld = true; });
    connect(m_slider, &QSlider::sliderReleased, this, [this] { m_sliderHeld = false; });
    retranslateUi();
}

void PlaybackTransport::setTexts(const QString &rewindTip, const QString &fpsTip, const QString &loopText,
                                 const QString &loopTip)
{
    m_rewind->setToolTip(rewindTip);
    m_fps->setToolTip(fpsTip);
    m_loop->setText(loopText);
    m_loop->setToolTip(loopTip);
}

void PlaybackTransport::retranslateUi()
{
    m_playPause->setText(m_playing ? tr("Pause") : tr("Play"));
    m_rewind->setText(tr("Rewind"));
    m_fpsLabel->setText(tr("Frame rate"));
    m_fps->setSuffix(tr(" fps"));
    m_fps->setAccessibleName(tr("Frame rate"));
    m_slider->setAccessibleName(tr("Playback position"));
    showPerformance();
}

void PlaybackTransport::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void PlaybackTransport::setPlaying(bool playing)
{
    m_playing = playing;
    m_playPause->setText(playing ? tr("Pause") : tr("Play"));
}

int PlaybackTransport::fps() const
{
    return m_fps->value();
}

void PlaybackTransport::setFps(int fps)
{
    m_fps->setValue(fps);
}

bool PlaybackTransport::loop() const
{
    return m_loop->isChecked();
}

void PlaybackTransport::setLoop(bool loop)
{
    const QSignalBlocker block(m_loop);
    m_loop->setChecked(loop);
}

void PlaybackTransport::setFrameCount(qint64 frameCount)
{
    m_frameCount = std::max<qint64>(0, frameCount);
    {
        const QSignalBlocker block(m_slider);
        m_slider->setRange(0, sliderValue(m_frameCount - 1));
        m_slider->setPageStep(std::max(1, sliderValue(m_frameCount / 20)));
    }
    m_frame = std::clamp<qint64>(m_frame, 0, std::max<qint64>(0, m_frameCount - 1));
    setFrame(m_frame);
}

void PlaybackTransport::setFrame(qint64 frame)
{
    // While the user drags, the slider stays under the mouse; the label still
    // tells where playback is.
    m_frame = frame;
    if (!m_sliderHeld) {
        const QSignalBlocker block(m_slider);
        m_slider->setValue(sliderValue(frame));
    }
    emit frameShown();
}

void PlaybackTransport::setPerformance(double measuredFps, qint64 droppedFrames, double msPerFrame)
{
    m_measuredFps = measuredFps;
    m_droppedFrames = droppedFrames;
    m_msPerFrame = msPerFrame;
    showPerformance();
}

void PlaybackTransport::showPerformance()
{
    const PerformanceLine line = performanceLine(m_measuredFps, m_droppedFrames, m_msPerFrame, m_fps->value());
    m_performance->setText(line.text);
    MoxStyle::setLabelRole(m_performance, line.warning ? MoxStyle::WarningRole : MoxStyle::Normal);
}
