#include "recording/gpsmetadatablock.h"

#include <QtEndian>

namespace {
constexpr int kFrameCountOffset = 8;
constexpr int kUniverseCountOffset = 12;
constexpr int kLengthsOffset = 13;
} // namespace

bool GpsMetadataBlock::parse(QByteArrayView bytes, GpsMetadataBlock *out)
{
    *out = GpsMetadataBlock{};
    if (bytes.size() < kSize)
        return false;
    const char *p = bytes.data();
    out->frameByteSize = qFromLittleEndian<quint64>(p);
    out->frameCount = qFromLittleEndian<quint32>(p + kFrameCountOffset);
    out->universeCount = quint8(p[kUniverseCountOffset]);
    for (int i = 0; i < kMaxUniverses; ++i)
        out->universeByteLength[size_t(i)] = qFromLittleEndian<quint16>(p + kLengthsOffset + 2 * i);
    return true;
}

QByteArray GpsMetadataBlock::toBytes() const
{
    QByteArray out(kSize, '\0');
    char *p = out.data();
    qToLittleEndian<quint64>(frameByteSize, p);
    qToLittleEndian<quint32>(frameCount, p + kFrameCountOffset);
    p[kUniverseCountOffset] = char(universeCount);
    for (int i = 0; i < kMaxUniverses; ++i)
        qToLittleEndian<quint16>(universeByteLength[size_t(i)], p + kLengthsOffset + 2 * i);
    return out;
}
