#pragma once

#include <QWidget>

#include <functional>

class PlaybackTransport;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class StatusLabel;

// The "Standard Art-Net" tab: chooses one .tpx recording and carries the
// transport controls. It holds no recording and no clock: it emits requests
// the main window carries out and shows what the main window pushes back.
//
// Choices left open: choosing a file with "..." only fills the path field
// (the user may still want to change the frame rate before loading), and the
// measured-rate line joins its parts with " · ". GUI thread only.
class PlaybackPanel : public QWidget
{
    Q_OBJECT
public:
    explicit PlaybackPanel(QWidget *parent = nullptr);

    QString path() const;
    void setPath(const QString &path);
    int fps() const;
    void setFps(int fps); // emits fpsChanged when the value changes
    bool loop() const;
    void setLoop(bool loop);
    void setPlaying(bool playing);
    bool isPlaying() const;
    void setFrameCount(qint64 frameCount);
    void setCurrentFrame(qint64 frame);
    void setMessage(std::function<QString()> producer, int level);
    // measuredFps not above 0 clears the line; msPerFrame below 0 is unknown.
    void setPerformance(double measuredFps, qint64 droppedFrames, double msPerFrame);
    // The recording's summary; kept as a producer so a language change re-renders it.
    void setInformation(std::function<QString()> producer);

    StatusLabel *messageLabel() const { return m_message; }
    PlaybackTransport *transport() const { return m_transport; }
    void retranslateUi();

signals:
    void loadRequested(const QString &path);
    void playPauseRequested();
    void stopRequested();
    void seekRequested(qint64 frame);
    void fpsChanged(int fps);
    void loopChanged(bool loop);

public slots:
    void onBrowse();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showFrameLabel();

    QLineEdit *m_pathEdit = nullptr;
    QToolButton *m_browse = nullptr;
    QPushButton *m_load = nullptr;
    QLabel *m_information = nullptr;
    PlaybackTransport *m_transport = nullptr;
    StatusLabel *m_message = nullptr;
    std::function<QString()> m_informationProducer;
};
