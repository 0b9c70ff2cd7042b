#pragma once

#include "artnet/artnetwire.h"
#include "packetlog/packetvocabulary.h"

#include <QByteArrayView>
#include <QString>

#include <cstddef>

namespace PacketLog {

// Art-Net opcodes the log names (little-endian on the wire at offset 8).
constexpr quint16 kOpPoll = ArtNet::kOpPoll;
constexpr quint16 kOpPollReply = ArtNet::kOpPollReply;
constexpr quint16 kOpDmx = ArtNet::kOpDmx;
constexpr quint16 kOpKel = ArtNet::kOpKelDmx; // the KEL variant of ArtDmx: its Art-Net header sits 12 bytes in

// One logged datagram: what the filter and the packet list need, at a fixed
// 296 bytes so that the journal's ring and the .tlog file hold records back
// to back. Addresses are host-order IPv4 (10.0.0.1 is 0x0A000001). The first
// kHeadBytes bytes of the datagram are kept; length is the full datagram size.
// A plain value: copy it freely between threads.
struct PacketRecord
{
    static constexpr int kHeadBytes = 256;
    static constexpr quint8 kFlagArtNet = 0x01; // opcode is valid
    static constexpr quint8 kFlagDmx = 0x02;    // portAddress and sequence are valid

    qint64 timeNs = 0; // wall-clock time, nanoseconds since 1970-01-01 UTC
    quint32 srcIp = 0;
    quint32 dstIp = 0;
    quint16 srcPort = 0;
    quint16 dstPort = 0;
    quint32 length = 0; // UDP payload bytes
    quint16 opcode = 0;
    quint16 portAddress = 0;
    quint8 sequence = 0;
    Direction direction = Direction::In;
    Outcome outcome = Outcome::Ok;
    quint8 reason = ReasonNone;
    qint32 error = 0; // Windows Sockets error number of a failed send
    RecordSource source = RecordSource::Mox;
    quint8 flags = 0;
    quint16 headLength = 0; // bytes valid in head, at most kHeadBytes
    unsigned char head[kHeadBytes] = {};

    bool isArtNet() const { return flags & kFlagArtNet; }
    bool isDmx() const { return flags & kFlagDmx; }
    QByteArrayView headBytes() const { return QByteArrayView(head, headLength); }

    // Fills length, head, opcode, port address and sequence from the datagram.
    void setDatagram(QByteArrayView bytes);

    // The Info column: what the packet is ("ArtDmx 0x0001 seq 5, 512 channels")
    // and, for sends that did not end well, how they ended. English, built on demand.
    QString info() const;

    bool operator==(const PacketRecord &other) const;
    bool operator!=(const PacketRecord &other) const { return !(*this == other); }
};

static_assert(sizeof(PacketRecord) == 296, "the journal and .tlog files count on 296-byte records");
static_assert(offsetof(PacketRecord, head) == 40, "head follows the 40 bytes of fields");

// "ArtDmx", "ArtPoll", "ArtPollReply", "ArtDmx (KEL)", or "OpCode 0x1234".
QString opcodeName(quint16 opcode);
// Looks up "artdmx", "artpoll", "artpollreply", "kel", "artdmxkel" (lower case).
bool opcodeFromName(const QString &lowerName, quint16 *opcode);

// "%1.%2.%3.%4"
QString ipv4Text(quint32 ip);
// Parses a canonical dotted quad ("10.0.0.1", no leading zeros).
bool parseIpv4(QStringView text, quint32 *ip);

} // namespace PacketLog
