#pragma once

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

constexpr int kArtNetHeaderSize = 18;
constexpr int kKelHeaderSize = 30;
constexpr int kKelPrefixSize = 12; // two bytes we do not interpret, then the 10-byte device name
constexpr int kKelNameSize = 10;
constexpr int kTimestampSize = 2;     // every record ends with a little-endian frame-clock stamp
constexpr quint16 kOpArtDmx = 0x5000; // ArtDmx OpCode
constexpr quint16 kOpKelDmx = 0x5300; // the KEL variant's OpCode
constexpr int kGpsBlockSize = 143;    // GPS-Sync recordings carry this block before the first record
constexpr int kMaxDmxLength = 512;    // a DMX universe has 512 slots

constexpr int headerSize(RecordFlavour flavour)
{
    return flavour == RecordFlavour::Kel ? kKelHeaderSize : kArtNetHeaderSize;
}

} // namespace RecordLayout
