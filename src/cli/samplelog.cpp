#include "cli/samplelog.h"

#include "artnet/artnetwire.h"

#include <cstring>

using namespace PacketLog;

namespace {

constexpr quint32 kNode = 0xC0000201;    // 192.0.2.1
constexpr quint32 kConsole = 0xC0000202; // 192.0.2.2
constexpr qint64 kStartNs = 1767225600LL * 1000000000LL; // 2026-01-01 00:00:00 UTC

QByteArray artNetHeader(quint16 opcode, int size)
{
    QByteArray bytes(size, '\0');
    std::memcpy(bytes.data(), ArtNet::kId, sizeof ArtNet::kId);
    bytes[8] = char(opcode & 0xFF);
    bytes[9] = char(opcode >> 8);
    return bytes;
}

PacketRecord record(qint64 offsetUs, Direction dir, quint32 src, quint32 dst, const QByteArray &bytes)
{
    PacketRecord r;
    r.timeNs = kStartNs + offsetUs * 1000;
    r.direction = dir;
    r.srcIp = src;
    r.dstIp = dst;
    r.srcPort = 6454;
    r.dstPort = 6454;
    r.setDatagram(bytes);
    return r;
}

} // namespace

QByteArray makeArtDmx(quint16 portAddress, quint8 sequence, int channels, quint8 fill)
{
    QByteArray bytes = artNetHeader(ArtNet::kOpDmx, ArtNet::kDmxHeaderSize + channels);
    bytes[11] = 14; // protocol version
    bytes[12] = char(sequence);
    bytes[14] = char(portAddress & 0xFF);
    bytes[15] = char(portAddress >> 8);
    bytes[16] = char(channels >> 8);
    bytes[17] = char(channels & 0xFF);
    for (int i = 0; i < channels; ++i)
        bytes[18 + i] = char((fill + i) & 0xFF);
    return bytes;
}

QByteArray makeArtPoll()
{
    QByteArray bytes = artNetHeader(ArtNet::kOpPoll, 14);
    bytes[11] = 14;
    return bytes;
}

QByteArray makeArtPollReply(const char *shortName)
{
    QByteArray bytes = artNetHeader(ArtNet::kOpPollReply, ArtNet::kPollReplySize);
    std::strncpy(bytes.data() + 26, shortName, 17);
    return bytes;
}

std::vector<PacketRecord> makeSampleLog()
{
    std::vector<PacketRecord> log;
    log.push_back(record(0, Direction::In, kConsole, 0xFFFFFFFF, makeArtPoll()));
    log.push_back(record(150, Direction::Out, kNode, kConsole, makeArtPollReply("TorvaneTester")));
    PacketRecord failed = record(180, Direction::Out, kNode, 0xFFFFFFFF, makeArtPollReply("TorvaneTester"));
    failed.outcome = Outcome::Failed;
    failed.error = 10055;
    log.push_back(failed);
    PacketRecord notSent = record(200, Direction::Out, kNode, 0xC0000263, makeArtPollReply("TorvaneTester"));
    notSent.outcome = Outcome::NotSent;
    notSent.reason = ReasonOffline;
    log.push_back(notSent);
    quint8 sequence = 1;
    for (int frame = 0; frame < 3; ++frame) {
        for (quint16 universe = 0; universe < 4; ++universe) {
            log.push_back(record(25000 * (frame + 1) + universe * 100, Direction::In, kConsole, kNode,
                                 makeArtDmx(universe, sequence, 512, quint8(frame * 16 + universe))));
        }
        ++sequence;
    }
    return log;
}
