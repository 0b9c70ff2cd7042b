#include "recording/filebytes.h"

#include <QFileInfo>

#ifdef Q_OS_LINUX
#include <sys/mman.h>
#endif

bool FileBytes::load(const QString &path)
{
    clear();
    if (QFileInfo(path).isDir()) {
        // QFile opens a directory on some platforms and then reads nothing;
        // say what is wrong instead of "too small".
        m_error = QFile::tr("Is a directory");
        return false;
    }
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly)) {
        m_error = file->errorString();
        return false;
    }
    const qint64 size = file->size();
    if (size > 0 && !file->isSequential()) {
        if (uchar *mapped = file->map(0, size)) {
            m_data = reinterpret_cast<const char *>(mapped);
            m_size = size;
            m_mapped = true;
#if defined(Q_OS_LINUX) && defined(MADV_POPULATE_READ)
            // Enter the cached pages into the mapping in one call instead of
            // one fault per page during the record walk (Linux 5.14 and later;
            // older kernels refuse and the walk faults the pages in itself).
            madvise(mapped, size_t(size), MADV_POPULATE_READ);
#endif
            file->close(); // the mapping outlives the descriptor, not the QFile object
            m_file = std::move(file);
            return true;
        }
    }
    m_read = file->readAll();
    if (file->error() != QFileDevice::NoError && m_read.isEmpty()) {
        m_error = file->errorString();
        return false;
    }
    file->close();
    m_data = m_read.constData();
    m_size = m_read.size();
    return true;
}

void FileBytes::setBytes(const QByteArray &bytes)
{
    clear();
    m_read = bytes;
    m_data = m_read.constData();
    m_size = m_read.size();
}

void FileBytes::clear()
{
    m_file.reset(); // unmaps
    m_read = QByteArray();
    m_data = nullptr;
    m_size = 0;
    m_mapped = false;
    m_error.clear();
}
