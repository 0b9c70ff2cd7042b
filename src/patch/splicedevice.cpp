#include "patch/splicedevice.h"

#include <algorithm>
#include <cstring>

namespace TPatch {

SpliceDevice::SpliceDevice(const QByteArray &bytes, Range first, Range second)
    : m_bytes(bytes), m_ranges{first, second}
{
    for (Range &r : m_ranges) {
        r.first = std::clamp<qsizetype>(r.first, 0, bytes.size());
        r.second = std::clamp<qsizetype>(r.second, r.first, bytes.size());
    }
    m_position = m_ranges[0].first;
    open(QIODevice::ReadOnly);
}

qint64 SpliceDevice::bytesAvailable() const
{
    qint64 left = 0;
    for (int i = m_current; i < 2; ++i)
        left += m_ranges[i].second - (i == m_current ? m_position : m_ranges[i].first);
    return left + QIODevice::bytesAvailable();
}

qint64 SpliceDevice::readData(char *data, qint64 maxSize)
{
    qint64 copied = 0;
    while (copied < maxSize && m_current < 2) {
        const qsizetype end = m_ranges[m_current].second;
        const qint64 n = std::min<qint64>(maxSize - copied, end - m_position);
        if (n > 0) {
            std::memcpy(data + copied, m_bytes.constData() + m_position, size_t(n));
            copied += n;
            m_position += n;
        }
        if (m_position >= end && ++m_current < 2)
            m_position = m_ranges[m_current].first;
    }
    return copied;
}

} // namespace TPatch
