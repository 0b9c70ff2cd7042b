#pragma once

#include "patch/patchdata.h"
#include "recording/filebytes.h"
#include "recording/recordflavour.h"
#include "recording/recordingloadresult.h"
#include "recording/recordref.h"

#include <QByteArray>
#include <QString>
#include <QVector>

// One loaded .tpx recording: the file's bytes held once (see FileBytes), an
// index of its records in file order, and how they group into frames.
//
// A .tpx file is a run of recorded DMX packets, each followed by a 2-byte
// little-endian timestamp, optionally behind the 143-byte GPS-Sync block.
// The records are indexed at load and served by frame to the playback clock's
// consumer, the playback panels and the GPS-Sync verifier.
//
// Threads: load and reset on the GUI thread; the const accessors from any
// thread while no load or reset runs.
class Recording
{
public:
    Recording() = default;
    Recording(const Recording &) = delete;
    Recording &operator=(const Recording &) = delete;

    // Loads and indexes a file. patch may be null; quiet drops the
    // one-group GPS-Sync warning (set when the file is one member of a set).
    RecordingLoadResult load(const QString &path, const TPatch::PatchData *patch = nullptr,
                             bool quiet = false);
    // The same on bytes already in memory (kept, not copied); fileName names
    // the file in messages and becomes path().
    RecordingLoadResult loadData(const QByteArray &bytes, const QString &fileName,
                                 const TPatch::PatchData *patch = nullptr, bool quiet = false);
    void reset();

    // The record of a frame's slot, or an all-zero reference when out of range.
    RecordRef recordAt(qint64 frame, int slot) const;
    // The frame's records for slots 0 .. recordsPerFrame() - 1; empty when out of range.
    QVector<RecordRef> frameRecords(qint64 frame) const;
    // The two bytes after the record's data; 0 when they lie past the end of the file.
    quint16 timestampOf(const RecordRef &record) const;
    // The record's DMX slots (its length bytes at its data offset); empty when out of the file.
    QByteArrayView dataOf(const RecordRef &record) const;
    // "Art-Net", "KEL (name)" or "KEL", followed by " GPS-Sync" for GPS-Sync files; translated.
    QString formatLabel() const;

    bool isLoaded() const { return !m_path.isEmpty(); }
    QString path() const { return m_path; }
    QByteArrayView bytes() const { return m_bytes.view(); }
    const QVector<RecordRef> &records() const { return m_records; }
    const QVector<quint16> &universes() const { return m_universes; } // distinct, ascending
    int recordsPerFrame() const { return m_recordsPerFrame; }
    bool matchesPatch() const { return m_matchesPatch; }
    qint64 frameCount() const { return m_frameCount; }
    RecordFlavour flavour() const { return m_flavour; }
    bool isGpsSync() const { return m_gpsSync; }
    QString kelDeviceName() const { return m_kelDeviceName; }
    QByteArray gpsMetadataBlock() const { return m_gpsBlock; } // 143 raw bytes, or empty
    quint32 detectedPeriod() const { return m_detectedPeriod; }
    qint64 firstRecordOffset() const { return m_firstRecordOffset; }
    qint64 parsedBytes() const { return m_parsedBytes; }

    // The repetition period of a universe sequence: the smallest p <= 4096
    // that divides n and repeats the sequence, else n. Exposed for tests.
    static quint32 detectPeriod(const QVector<RecordRef> &records);

private:
    RecordingLoadResult fail(TPatch::PatchMessage error);
    // Indexes the bytes now held; path becomes path() on success.
    RecordingLoadResult index(const QString &path, const QString &fileName, const TPatch::PatchData *patch,
                              bool quiet);
    bool findFirstRecord();
    bool walkRecords(RecordingLoadResult *result, const QString &fileName);
    void matchPatch(const TPatch::PatchData &patch, RecordingLoadResult *result);

    QString m_path;
    FileBytes m_bytes;
    QVector<RecordRef> m_records;
    QVector<quint16> m_universes;
    qint32 m_recordsPerFrame = 0;
    bool m_matchesPatch = false;
    qint64 m_frameCount = 0;
    RecordFlavour m_flavour = RecordFlavour::ArtNet;
    bool m_gpsSync = false;
    QString m_kelDeviceName;
    QByteArray m_gpsBlock;
    quint32 m_detectedPeriod = 0;
    qint64 m_firstRecordOffset = 0;
    qint64 m_parsedBytes = 0;
};
