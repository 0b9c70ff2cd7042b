#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <array>

// The 143-byte block a GPS-Sync recording carries in front of its first
// record (all numbers little-endian). A GPS device seeks through the file by
// frameByteSize, so the block has to agree with the records behind it.
struct GpsMetadataBlock
{
    static constexpr int kSize = 143;
    static constexpr int kMaxUniverses = 64;

    quint64 frameByteSize = 0; // bytes of one frame on disk, headers and timestamps included
    quint32 frameCount = 0; // written when the sibling controller stops recording; 0 or stale if never closed
    quint8 universeCount = 0;                                // records per frame, meaningful from 1 to 64
    std::array<quint16, kMaxUniverses> universeByteLength{}; // on-disk size of each record of a frame

    bool universeCountUsable() const { return universeCount >= 1 && universeCount <= kMaxUniverses; }

    // Reads the block from the first 143 bytes; false (and a zero block) when fewer are given.
    static bool parse(QByteArrayView bytes, GpsMetadataBlock *out);
    // The 143 bytes of this block, the two reserved bytes zero.
    QByteArray toBytes() const;
};
