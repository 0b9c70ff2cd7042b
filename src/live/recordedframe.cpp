#include "live/recordedframe.h"

void applyRecordedFrame(PixelColourBuffer &buffer, const TPatch::PixelLayout &layout, const Recording &recording,
                        qint64 frame)
{
    const int slotCount = recording.recordsPerFrame();
    for (int slot = 0; slot < slotCount; ++slot) {
        const RecordRef record = recording.recordAt(frame, slot);
        const QByteArrayView data = recording.dataOf(record);
        if (data.isEmpty())
            continue;
        const auto *bytes = reinterpret_cast<const quint8 *>(data.data());
        buffer.applyUniverse(layout.pixelsForPortAddress(record.universe), bytes, int(data.size()));
        buffer.storeUniverse(record.universe, bytes, int(data.size()));
    }
}
