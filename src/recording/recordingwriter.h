#pragma once

#include "recording/recordflavour.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <bitset>
#include <limits>

// Appends the live ArtDmx stream to a .tpx recording, one record per
// received packet, grouping the records into frames as they arrive so that
// each can carry its frame's timestamp. It never truncates: opening an
// existing file continues it.
//
// Frame boundaries: with a records-per-frame count (the patch's), every that
// many records; without one, when a universe repeats within the frame or
// after a pause of more than 7 ms (a controller sends a frame's universes in
// one burst).
//
// Write failures: a short write, a failed flush or the file vanishing from
// its folder sets failed() with failureReason() and emits writeFailed once;
// the owner then stops and reports "Recording stopped: %1". Records are flushed at every frame
// boundary, so a failure surfaces within a frame.
//
// Threads: GUI thread only.
class RecordingWriter : public QFile
{
    Q_OBJECT

public:
    explicit RecordingWriter(QObject *parent = nullptr);
    ~RecordingWriter() override;

    // Closes any open file, then opens path for appending. frameRate is
    // clamped to 1 .. 240, recordsPerFrame below 0 becomes 0 (frames by
    // timing and repetition). On failure returns false and sets lastError().
    bool open(const QString &path, int frameRate, int recordsPerFrame);
    // Flavour and KEL device name of the records written from now on.
    void setSource(RecordFlavour flavour, const QString &kelDeviceName);
    // Appends one record (at most 512 data bytes). Nothing happens when the
    // file is not open or data is empty. Returns false once writing failed.
    bool write(quint16 portAddress, QByteArrayView data);
    // The same with the packet's own arrival time (nanoseconds, any epoch) in
    // place of the clock: a capture converted afterwards is framed as the live
    // stream was.
    bool writeAt(quint16 portAddress, QByteArrayView data, qint64 timeNs);
    // Counts the last, possibly partial frame, flushes and closes.
    void close() override;

    QString path() const { return m_path; }
    QString lastError() const { return m_lastError; }
    qint64 recordsWritten() const { return m_recordsWritten; }
    qint64 framesWritten() const { return m_framesWritten; }
    qint64 bytesAppended() const { return m_bytesWritten; }
    qint64 fileSize() const { return m_fileSize; }
    qint64 sizeAtOpen() const { return m_sizeAtOpen; }
    int expectedRecordsPerFrame() const { return m_expectedRecordsPerFrame; }
    int frameRate() const { return m_frameRate; }
    int recordsPerFrame() const { return m_recordsPerFrame; }
    RecordFlavour flavour() const { return m_flavour; }
    QString kelDeviceName() const { return m_kelDeviceName; }

    bool failed() const { return !m_failure.isEmpty(); }
    QString failureReason() const { return m_failure; }

    // The 18- or 30-byte record header for one packet, sequence always 0.
    static QByteArray header(RecordFlavour flavour, const QString &kelDeviceName, quint16 portAddress,
                             quint16 length);

signals:
    // The first failure of this session; later records are refused.
    void writeFailed(const QString &reason);

private:
    bool open(OpenMode mode) override; // use open(path, frameRate, recordsPerFrame)
    static void fillHeader(char *out, RecordFlavour flavour, const QByteArray &kelName, quint16 portAddress,
                           quint16 length);
    void beginFrame();
    // paused(): more than the frame gap since the previous record (asked only when it decides).
    template <typename Paused>
    bool append(quint16 portAddress, QByteArrayView data, Paused paused);
    void setFailure(const QString &reason);

    QString m_path;
    QString m_lastError;
    qint64 m_recordsWritten = 0;
    qint64 m_framesWritten = 0;
    qint64 m_bytesWritten = 0;
    qint64 m_fileSize = 0;
    qint64 m_sizeAtOpen = 0;
    int m_expectedRecordsPerFrame = 0;
    qint32 m_frameRate = 1;
    qint32 m_recordsPerFrame = 0;
    qint32 m_recordsInFrame = 0;
    std::bitset<65536> m_universesInFrame;
    QElapsedTimer m_recordTimer;
    static constexpr qint64 kNoTime = std::numeric_limits<qint64>::min();
    qint64 m_lastRecordNs = kNoTime; // writeAt's previous record
    qint64 m_frameClock = 0;
    RecordFlavour m_flavour = RecordFlavour::ArtNet;
    QString m_kelDeviceName;
    QByteArray m_kelName; // the device name as written: Latin-1, cut and zero-padded to 10 bytes

    QByteArray m_record; // reused for every record: one write call per record
    QString m_failure;
    QElapsedTimer m_existenceCheck;
};
