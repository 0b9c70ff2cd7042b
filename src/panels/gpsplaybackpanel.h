#pragma once

#include "patch/patchmessage.h"
#include "recording/gpsverification.h"

#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

struct GpsPatchExpectation;
class MoxStyle;
class PlaybackTransport;
class QLabel;
class QPushButton;
class QScrollArea;
class QTextBrowser;
class QVBoxLayout;
class StatusLabel;
struct GpsSetMember;
class GpsGroupRow;

// What a group row needs to know of its group: its caption and what the
// patch expects of its file.
struct GpsPanelGroup
{
    QString caption;          // the group's name, or "Group %1"
    int expectedUniverses = 0; // records per frame the group's file must carry
    bool hasDrawablePixels = false;

    static QVector<GpsPanelGroup> fromExpectation(const GpsPatchExpectation &expectation);
};

// What a group row shows of its file after a verification.
struct GpsRowInfo
{
    enum State { NotLoaded, Usable, Unusable };
    State state = NotLoaded;
    QString fileName;
    qint64 frames = 0;
    int universesPerFrame = 0;
    qint64 bytesPerFrame = 0;
    TPatch::PatchMessage error; // why an unusable file cannot be played

    static GpsRowInfo fromMember(const GpsSetMember &member);
};

// The "GPS Mirra" tab: one row per patch group for choosing its GPS-Sync
// recording, auto-fill and "Load set", the structure and sync report of the
// last verification, and the same transport controls as the playback panel.
// It holds nothing but what the main window pushes in.
//
// Choices left open: the report lists each finding's verdict word, title and
// detail (detail on its own indented line) and ends with the summary; the
// row's dot is muted before a verification, then success, warning or error;
// the timestamp spread is the set's whole seconds at the frame being shown.
// Rows are rebuilt as one new container, so 60 groups cost one layout pass.
// GUI thread only.
class GpsPlaybackPanel : public QWidget
{
    Q_OBJECT
public:
    // style: the theme engine (not owned); it outlives the panel.
    explicit GpsPlaybackPanel(const MoxStyle &style, QWidget *parent = nullptr);
    ~GpsPlaybackPanel() override;

    // Modest: the rows and the report scroll, and the side tabs below need room too.
    QSize sizeHint() const override;

    // Rebuilds the rows (empty paths, no information).
    void setGroups(const QVector<GpsPanelGroup> &groups);
    int groupCount() const { return int(m_rows.size()); }
    // One path per group in group order; missing entries are empty. Emits
    // pathsChanged once when any path differs from what the row held.
    void setPaths(const QStringList &paths);
    QStringList paths() const;
    void setRowInfo(int group, const GpsRowInfo &info);
    void clearRowInfo();

    void setReport(const GpsVerification &verification);
    void clearReport();
    void setSetInformation(bool loaded, qint64 frameCount, int groupCount);

    int fps() const;
    void setFps(int fps);
    bool loop() const;
    void setLoop(bool loop);
    void setPlaying(bool playing);
    bool isPlaying() const;
    // The frame shown and the spread of the files' timestamps there, in whole seconds.
    void setFrame(qint64 frame, int timestampDifferenceSeconds);
    void setMessage(std::function<QString()> producer, int level);
    void setPerformance(double measuredFps, qint64 droppedFrames, double msPerFrame);

    StatusLabel *messageLabel() const { return m_message; }
    PlaybackTransport *transport() const { return m_transport; }
    QLabel *setInformationLabel() const { return m_setInformation; }
    QTextBrowser *reportView() const { return m_report; }
    GpsGroupRow *row(int group) const { return m_rows.value(group); }
    void retranslateUi();

signals:
    void autoFillRequested(const QString &directory);
    void loadAllRequested();
    void pathsChanged();
    void playPauseRequested();
    void stopRequested();
    void seekRequested(qint64 frame);
    void fpsChanged(int fps);
    void loopChanged(bool loop);

public slots:
    void onAutoFill();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showReport();
    void showSetInformation();
    void showFrameLine();

    const MoxStyle *m_style = nullptr;
    QLabel *m_header = nullptr;
    QLabel *m_emptyState = nullptr;
    QScrollArea *m_rowArea = nullptr;
    QVector<GpsGroupRow *> m_rows;
    QPushButton *m_autoFill = nullptr;
    QPushButton *m_loadSet = nullptr;
    StatusLabel *m_message = nullptr;
    QLabel *m_setInformation = nullptr;
    QLabel *m_reportTitle = nullptr;
    QTextBrowser *m_report = nullptr;
    PlaybackTransport *m_transport = nullptr;

    bool m_setLoaded = false;
    qint64 m_setFrames = 0;
    int m_setGroups = 0;
    int m_timestampDifference = 0;
    bool m_hasReport = false;
    GpsVerification m_verification;
};
