#pragma once

#include "artnet/nodeidentity.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QVector>

// The Art-Net wire format as this node speaks it: pure functions over bytes,
// no sockets, so every rule can be checked against golden byte arrays.
namespace ArtNet {

constexpr quint16 kDefaultPort = 6454;
constexpr quint16 kOpPoll = 0x2000;
constexpr quint16 kOpPollReply = 0x2100;
constexpr quint16 kOpDmx = 0x5000;
// KEL devices send ArtDmx behind a 12-byte device prefix with their own OpCode.
constexpr quint16 kOpKelDmx = 0x5300;
constexpr int kPollReplySize = 239;
constexpr int kDmxHeaderSize = 18;
constexpr int kKelPrefixSize = 12;
constexpr int kKelHeaderSize = kKelPrefixSize + kDmxHeaderSize;
constexpr int kKelNameSize = 10;
// The largest UDP payload over IPv4.
constexpr int kMaxDatagramSize = 65507;

// The two shapes a DMX packet (and a recorded record) comes in; the values
// are those the recording format stores.
enum class DmxFlavour : quint8 { ArtNet = 0, Kel = 1 };

enum class DatagramKind {
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

// The device name in a KEL datagram's prefix: up to 10 Latin-1 bytes from
// offset 2, ending at the first zero. Empty when the datagram is too short.
QString kelDeviceName(QByteArrayView datagram);

// True when `sequence` (non-zero) after `last` (non-zero) is out of order:
// a repeat or a step of up to 127 back. Gaps forward are lost packets, not
// disorder, and do not count.
bool isSequenceError(quint8 last, quint8 sequence);

// Everything that goes into one ArtPollReply page.
struct PollReplyInput
{
    NodeIdentity identity;
    quint32 bindIPv4 = 0; // host order; 0 when bound to any address
    quint16 port = kDefaultPort;
    QVector<quint16> universes; // advertised Port-Addresses, one page each
    quint64 dmxPackets = 0;     // shown in the node report
};

// Pages in the reply set: one per advertised universe, at least one.
int pollReplyPageCount(const QVector<quint16> &universes);

// BindIndex of a page. Controllers that group pages by BindIndex see the
// Port-Address + 1 when every universe fits into a byte; past 254 that would
// collide, so the page number + 1 is used instead.
quint8 pollReplyBindIndex(const QVector<quint16> &universes, int page);

// The 239-byte ArtPollReply for one page of the reply set.
QByteArray buildPollReply(const PollReplyInput &input, int page);

// Builders for the packets our tests and load generator send.
QByteArray buildPoll();
QByteArray buildDmx(quint16 portAddress, quint8 sequence, QByteArrayView data);
QByteArray buildKelDmx(const QByteArray &deviceNameLatin1, quint16 portAddress, quint8 sequence,
                       QByteArrayView data);

} // namespace ArtNet
