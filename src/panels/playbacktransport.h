#pragma once

#include <QString>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QSlider;
class QSpinBox;

// The transport controls the playback panel and the GPS playback panel share:
// "Play"/"Pause", "Rewind", the frame rate box (1-240, default 40), the loop
// box, the position slider, the frame label and the measured-rate line. It
// holds no recording and no clock; the owning panel sets the texts that differ
// between the two tabs (tooltips, the loop caption) and forwards the signals.
//
// The slider follows playback only while the user does not hold it, and a
// programmatic move never emits seekRequested. GUI thread only.
class PlaybackTransport : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kMinFps = 1;
    static constexpr int kMaxFps = 240;
    static constexpr int kDefaultFps = 40;

    // The measured-rate line: its text and whether it is shown as a warning.
    struct PerformanceLine
    {
        QString text;
        bool warning = false;
    };
    // measuredFps not above 0 means no measurement (an empty line);
    // msPerFrame below 0 means unknown. Warning below 92 % of targetFps.
    static PerformanceLine performanceLine(double measuredFps, qint64 droppedFrames, double msPerFrame,
                                           int targetFps);

    explicit PlaybackTransport(QWidget *parent = nullptr);

    void setTexts(const QString &rewindTip, const QString &fpsTip, const QString &loopText,
                  const QString &loopTip);
    void setPlaying(bool playing);
    bool isPlaying() const { return m_playing; }
    int fps() const;
    void setFps(int fps); // may emit fpsChanged
    bool loop() const;
    void setLoop(bool loop); // emits nothing
    // Range of the slider (0 .. frameCount - 1) and the position shown.
    void setFrameCount(qint64 frameCount);
    qint64 frameCount() const { return m_frameCount; }
    // Moves the slider unless the user holds it; never emits seekRequested.
    void setFrame(qint64 frame);
    qint64 frame() const { return m_frame; }
    bool isSliderHeld() const { return m_sliderHeld; }
    void setPerformance(double measuredFps, qint64 droppedFrames, double msPerFrame);

    QLabel *frameLabel() const { return m_frameLabel; }
    QLabel *performanceLabel() const { return m_performance; }
    void retranslateUi();

signals:
    void playPauseRequested();
    void stopRequested();
    void seekRequested(qint64 frame);
    void fpsChanged(int fps);
    void loopChanged(bool loop);
    // The frame or the count changed: the owner rewrites the frame label.
    void frameShown();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showPerformance();

    QPushButton *m_playPause = nullptr;
    QPushButton *m_rewind = nullptr;
    QLabel *m_fpsLabel = nullptr;
    QSpinBox *m_fps = nullptr;
    QCheckBox *m_loop = nullptr;
    QSlider *m_slider = nullptr;
    QLabel *m_frameLabel = nullptr;
    QLabel *m_performance = nullptr;

    bool m_playing = false;
    bool m_sliderHeld = false;
    qint64 m_frameCount = 0;
    qint64 m_frame = 0;
    double m_measuredFps = 0;
    qint64 m_droppedFrames = 0;
    double m_msPerFrame = -1;
};
