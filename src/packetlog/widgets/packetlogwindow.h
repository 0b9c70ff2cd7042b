#pragma once

#include "packetlog/capturesession.h"
#include "packetlog/packetrecord.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class FilterBar;
class MoxStyle;
class PacketListModel;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTableView;
class QTreeWidget;
namespace PacketLog {
class PacketJournal;
}

// The "Network Log" window: the packet list (live from the node's journal, or
// a log file opened read-only), the display filter bar, the detail pane of the
// selected record (decoded Art-Net fields over a hex dump that marks the
// selected field) and a status line (records, shown, dropped).
//
// Live: every 100 ms the records the journal took since the last look are
// added in one batch, with those an adapter capture took meanwhile (the
// capture bar asks for one; "talu.source == capture" tells them apart).
// Records the journal's ring had already overwritten by then are counted as
// dropped, as are captured ones while paused or closed. Pause stops taking
// them (the journal keeps its ring); the list follows the newest record
// until the user scrolls up.
//
// A file is read in the background: its records arrive in batches under a
// progress bar with Cancel, which keeps what was read.
// GUI thread only.
class PacketLogWindow : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kPollMs = 100;

    explicit PacketLogWindow(const MoxStyle &style, QWidget *parent = nullptr);
    ~PacketLogWindow() override;

    // Follows a journal (not owned; null detaches), starting with the records it holds.
    void setJournal(PacketLog::PacketJournal *journal);
    // Shows the records of a file, read-only; warnings are shown on the status line.
    void showFile(const QString &path, std::vector<PacketLog::PacketRecord> records,
                  const QStringList &warnings);
    // A file read in the background: begin, batches as they come, the end.
    void beginFile(const QString &path);
    void addFileRecords(const std::vector<PacketLog::PacketRecord> &records, qint64 bytesRead, qint64 bytesTotal);
    void endFile(const QStringList &warnings, bool cancelled);
    bool isLoading() const;

    // The adapters the capture bar offers; an empty list with a reason disables it.
    void setCaptureAdapters(const QVector<PacketLog::CaptureAdapter> &adapters, const QString &unavailable);
    // The capture whose records the list takes (not owned; null: none).
    void setCaptureSession(PacketLog::CaptureSession *session);
    // What the capture bar says and whether its button reads "Stop Capture".
    void setCaptureState(bool capturing, const QString &text);
    QString selectedAdapter() const;
    bool isReadOnly() const { return m_journal == nullptr && !m_fileName.isEmpty(); }
    QString fileName() const { return m_fileName; }

    FilterBar *filterBar() const { return m_filterBar; }
    PacketListModel *model() const { return m_model; }
    QTableView *view() const { return m_view; }
    qint64 droppedCount() const { return m_dropped; }
    QString statusText() const;
    // Takes what the journal has now (the poll timer does this on its own while shown).
    void poll();

signals:
    // The window became the active one (a save then means this window).
    void activated();
    void captureRequested(const QString &adapterName);
    void captureStopRequested();
    void loadCancelRequested();

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void retranslateUi();
    void applyTheme();
    void showSelected();
    void updateStatus();
    void appendBatch(const std::vector<PacketLog::PacketRecord> &batch);

    const MoxStyle &m_style;
    PacketListModel *m_model = nullptr;
    FilterBar *m_filterBar = nullptr;
    QPushButton *m_pauseButton = nullptr;
    QPushButton *m_clearButton = nullptr;
    QTableView *m_view = nullptr;
    QTreeWidget *m_fields = nullptr;
    QPlainTextEdit *m_hex = nullptr;
    QLabel *m_status = nullptr;
    QWidget *m_captureBar = nullptr;
    QLabel *m_adapterLabel = nullptr;
    QComboBox *m_adapterBox = nullptr;
    QPushButton *m_captureButton = nullptr;
    QLabel *m_captureStatus = nullptr;
    QProgressBar *m_loadProgress = nullptr;
    QPushButton *m_cancelLoadButton = nullptr;
    PacketLog::CaptureSession *m_capture = nullptr;
    bool m_capturing = false;
    QString m_captureUnavailable;
    QTimer m_pollTimer;
    PacketLog::PacketJournal *m_journal = nullptr;
    qint64 m_seenAppended = 0; // the journal's counter at the last look
    qint64 m_dropped = 0;
    QString m_fileName;
    QStringList m_warnings;
};
