#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstring>

// The Art-Net wire vocabulary, one place for the node, the recording reader
// and writer, and the packet log: the ID, the OpCodes, the header sizes and
// what a datagram is. Qt Core only; pure functions, any thread.
namespace ArtNet {

// "Art-Net" and its terminating zero open every Art-Net packet.
inline constexpr char kId[8] = {'A', 'r', 't', '-', 'N', 'e', 't', '\0'};
// Art-Net 4 is protocol revision 14.
constexpr quint8 kProtocolVersion = 14;
constexpr quint16 kDefaultPort = 6454;
constexpr quint16 kOpPoll = 0x2000;
constexpr quint16 kOpPollReply = 0x2100;
constexpr quint16 kOpDmx = 0x5000;
// KEL devices send ArtDmx behind a 12-byte device prefix with their own OpCode.
constexpr quint16 kOpKelDmx = 0x5300;
// ArtSync: the sender's "show the frames sent so far now".
constexpr quint16 kOpSync = 0x5200;
constexpr int kPollReplySize = 239;
constexpr int kDmxHeaderSize = 18;
constexpr int kKelPrefixSize = 12;
constexpr int kKelHeaderSize = kKelPrefixSize + kDmxHeaderSize;
constexpr int kKelNameSize = 10;
// The largest UDP payload over IPv4.
constexpr int kMaxDatagramSize = 65507;

// The two shapes a DMX packet (and a recorded record) comes in; the values
// are those the recording format stores.
enum class DmxFlavour : quint8
{
    ArtNet = 0,
    Kel = 1
};

enum class DatagramKind
{
    Ignored,   // too short, foreign, malformed or an OpCode this node does not handle
    Poll,      // ArtPoll: answer with the reply set
    PollReply, // another node's ArtPollReply: dropped without counting
    Dmx,       // ArtDmx or KEL DMX with at least one data byte
};

// What a datagram is, with offsets into the caller's bytes: classifying
// copies nothing, so it stays cheap at a hundred thousand packets a second.
struct ClassifiedDatagram
{
    DatagramKind kind = DatagramKind::Ignored;
    DmxFlavour flavour = DmxFlavour::ArtNet;
    quint8 sequence = 0; // 0: the sender does not number its packets
    quint16 portAddress = 0;
    int dataOffset = 0; // header size: 18, or 30 for KEL
    int dataLength = 0; // min(bytes after the header, length field), at least 1 for Dmx
};

ClassifiedDatagram classifyDatagram(QByteArrayView datagram);

// An ArtSync datagram (the node itself takes no notice of it).
bool isArtSync(QByteArrayView datagram);

// The device name in a KEL datagram's prefix: up to 10 Latin-1 bytes from
// offset 2, ending at the first zero. Empty when the datagram is too short.
QString kelDeviceName(QByteArrayView datagram);

// True when `sequence` (non-zero) after `last` (non-zero) is out of order:
// a repeat or a step of up to 127 back. Gaps forward are lost packets, not
// disorder, and do not count.
bool isSequenceError(quint8 last, quint8 sequence);

// The 16-bit field at offset, as Art-Net writes most (little-endian) or the
// lengths and versions (big-endian). The caller has checked offset + 2 <= size.
quint16 le16At(QByteArrayView d, int offset);
quint16 be16At(QByteArrayView d, int offset);

// True when the Art-Net ID starts at offset (false when the bytes end first).
inline bool hasIdAt(QByteArrayView bytes, qsizetype offset)
{
    return offset >= 0 && bytes.size() >= offset + qsizetype(sizeof kId) &&
           std::memcmp(bytes.data() + offset, kId, sizeof kId) == 0;
}

} // namespace ArtNet
