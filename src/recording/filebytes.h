#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>

#include <memory>

// The whole content of one file, held once and read-only.
//
// The file is mapped rather than read. A mapped file costs no copy (loading a
// file that is already in the page cache touches only the record headers),
// and its pages are backed by the file itself: the kernel can drop and re-read
// them under memory pressure, so opening a recording larger than half the
// machine's memory slows playback down instead of pushing everything else
// into swap or the OOM killer. Where mapping is not possible (a pipe, a
// file system without mmap, an empty file) the content is read instead.
//
// The one price: on Linux and macOS, another program truncating the file
// while it is mapped makes reads past the new end fault. Windows refuses to
// truncate a mapped file, and our own writer only ever appends.
class FileBytes
{
public:
    FileBytes() = default;
    FileBytes(const FileBytes &) = delete;
    FileBytes &operator=(const FileBytes &) = delete;

    // Opens and maps (or reads) the file. On failure returns false and sets
    // errorString() to the device's error text; the object is then empty.
    bool load(const QString &path);
    // Holds bytes already in memory instead (shared, not copied).
    void setBytes(const QByteArray &bytes);
    void clear();

    const char *data() const { return m_data; }
    qint64 size() const { return m_size; }
    QByteArrayView view() const { return QByteArrayView(m_data, m_size); }
    bool isMapped() const { return m_mapped; }
    QString errorString() const { return m_error; }

private:
    std::unique_ptr<QFile> m_file; // kept after closing: the mapping lives as long as the QFile object
    QByteArray m_read;             // the content when it had to be read
    const char *m_data = nullptr;
    qint64 m_size = 0;
    bool m_mapped = false;
    QString m_error;
};
