#pragma once

#include "artnet/artnetwire.h"

#include <QtGlobal>

// The two record shapes a .tpx file can hold. Plain ArtDmx is what every
// Art-Net controller sends; the KEL variant is an ArtDmx-shaped packet behind
// a 12-byte device prefix, with its own OpCode, sent by KEL devices.
enum class RecordFlavour : quint8
{
    ArtNet = 0,
    Kel = 1
};

namespace RecordLayout {

// A record is the ArtDmx (or KEL) packet as it came off the wire.
constexpr int kArtNetHeaderSize = ArtNet::kDmxHeaderSize;
constexpr int kKelHeaderSize = ArtNet::kKelHeaderSize;
constexpr int kKelPrefixSize = ArtNet::kKelPrefixSize; // two bytes we do not interpret, then the device name
constexpr int kKelNameSize = ArtNet::kKelNameSize;
constexpr int kTimestampSize = 2; // every record ends with a little-endian frame-clock stamp
constexpr quint16 kOpArtDmx = ArtNet::kOpDmx;
constexpr quint16 kOpKelDmx = ArtNet::kOpKelDmx;
constexpr int kGpsBlockSize = 143;    // GPS-Sync recordings carry this block before the first record
constexpr int kMaxDmxLength = 512;    // a DMX universe has 512 slots

constexpr int headerSize(RecordFlavour flavour)
{
    return flavour == RecordFlavour::Kel ? kKelHeaderSize : kArtNetHeaderSize;
}

} // namespace RecordLayout
