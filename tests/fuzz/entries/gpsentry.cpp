#include "../fuzzentries.h"

#include "recording/gpsmetadatablock.h"

#include <QByteArray>

#include <cstdint>

// The GPS-Sync block: parsing takes any bytes; what it read writes back as
// the same 141 bytes of numbers (the two reserved bytes come back zero).
int fuzzGps(const std::uint8_t *data, std::size_t size)
{
    const auto bytes = QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size));
    GpsMetadataBlock block;
    const bool parsed = GpsMetadataBlock::parse(bytes, &block);
    FUZZ_PROMISE("gps", parsed == (size >= std::size_t(GpsMetadataBlock::kSize)));
    const QByteArray written = block.toBytes();
    FUZZ_PROMISE("gps", written.size() == GpsMetadataBlock::kSize);
    if (parsed) {
        FUZZ_PROMISE("gps", QByteArrayView(written).first(141) == bytes.first(141));
        FUZZ_PROMISE("gps", written.endsWith(QByteArrayView("\0\0", 2)));
    } else {
        FUZZ_PROMISE("gps", written == QByteArray(GpsMetadataBlock::kSize, '\0'));
    }
    (void)block.universeCountUsable();
    return 0;
}
