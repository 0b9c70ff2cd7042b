#include "packetlog/pcapngwriter.h"

#include "packetlog/byteio.h"

namespace PacketLog {

using namespace ByteIo;

namespace {

constexpr quint32 kShbType = 0x0A0D0D0A;
constexpr quint32 kIdbType = 0x00000001;
constexpr quint32 kEpbType = 0x00000006;
constexpr quint16 kLinkEthernet = 1;
constexpr int kFrameHeader = 14 + 20 + 8; // Ethernet, IPv4 without options, UDP
constexpr qsizetype kChunkBytes = 4 << 20;

int padded(int n) { return (n + 3) & ~3; }

void appendOption(QByteArray &block, quint16 code, QByteArrayView value)
{
    unsigned char head[4];
    putLe16(head, code);
    putLe16(head + 2, quint16(value.size()));
    block.append(reinterpret_cast<const char *>(head), 4);
    block.append(value);
    block.append(padded(int(value.size())) - int(value.size()), '\0');
}

void appendEndOfOptions(QByteArray &block) { block.append(4, '\0'); }

// Closes a block whose first 8 bytes are reserved: type, and total length at both ends.
void finishBlock(QByteArray &block, quint32 type)
{
    const quint32 total = quint32(block.size() + 4);
    auto *p = reinterpret_cast<unsigned char *>(block.data());
    putLe32(p, type);
    putLe32(p + 4, total);
    unsigned char tail[4];
    putLe32(tail, total);
    block.append(reinterpret_cast<const char *>(tail), 4);
}

QByteArray sectionHeader()
{
    QByteArray block(8, '\0');
    unsigned char body[16];
    putLe32(body, 0x1A2B3C4D); // byte-order magic: little-endian section
    putLe16(body + 4, 1);      // version 1.0
    putLe16(body + 6, 0);
    putLe64(body + 8, ~quint64(0)); // section length not given
    block.append(reinterpret_cast<const char *>(body), 16);
    appendOption(block, 4, "Torvane TALU"); // shb_userappl
    appendEndOfOptions(block);
    finishBlock(block, kShbType);
    return block;
}

QByteArray interfaceDescription(QByteArrayView name)
{
    QByteArray block(8, '\0');
    unsigned char body[8];
    putLe16(body, kLinkEthernet);
    putLe16(body + 2, 0);
    putLe32(body + 4, 65535); // snap length
    block.append(reinterpret_cast<const char *>(body), 8);
    appendOption(block, 2, name);               // if_name
    appendOption(block, 9, QByteArrayView("\x09", 1)); // if_tsresol: 10^-9 s
    appendEndOfOptions(block);
    finishBlock(block, kIdbType);
    return block;
}

// Locally administered MACs made from the IPv4 address, so each host keeps one.
void putMac(unsigned char *p, quint32 ip)
{
    if (ip == 0xFFFFFFFFu || (ip & 0xFF) == 0xFF) {
        std::memset(p, 0xFF, 6);
        return;
    }
    p[0] = 0x02;
    p[1] = 0x00;
    putBe32(p + 2, ip);
}

quint16 ipChecksum(const unsigned char *header)
{
    quint32 sum = 0;
    for (int i = 0; i < 20; i += 2)
        sum += be16(header + i);
    while (sum >> 16)
        sum = (sum & 0xFFFF) + (sum >> 16);
    return quint16(~sum);
}

QByteArray commentFor(const PacketRecord &r)
{
    const QString label = outcomeLabel(r.outcome, false);
    QString human = label;
    if (r.outcome == Outcome::NotSent)
        human += QLatin1Char(' ') + reasonText(r.reason, false);
    else if (r.error != 0)
        human += QLatin1Char(' ') + errorName(r.error, false);
    return QStringLiteral("%1; %2%3 reason=%4 error=%5")
        .arg(human.trimmed(), QLatin1StringView(kPcapngCommentTag), outcomeWord(r.outcome))
        .arg(r.reason)
        .arg(r.error)
        .toUtf8();
}

void appendPacket(QByteArray &out, const PacketRecord &r)
{
    const bool annotated = r.outcome != Outcome::Ok || r.reason != 0 || r.error != 0;
    const QByteArray comment = annotated ? commentFor(r) : QByteArray();
    const int captured = kFrameHeader + r.headLength;
    const quint64 original = quint64(kFrameHeader) + r.length;
    const int optionsBytes = 8 /* epb_flags */ + (annotated ? 4 + padded(int(comment.size())) : 0) + 4;
    const int total = 28 + padded(captured) + optionsBytes + 4;

    const qsizetype start = out.size();
    out.resize(start + total);
    auto *p = reinterpret_cast<unsigned char *>(out.data()) + start;
    std::memset(p, 0, size_t(total));
    putLe32(p, kEpbType);
    putLe32(p + 4, quint32(total));
    putLe32(p + 8, r.source == RecordSource::Capture ? 1 : 0);
    const quint64 ts = quint64(r.timeNs);
    putLe32(p + 12, quint32(ts >> 32));
    putLe32(p + 16, quint32(ts));
    putLe32(p + 20, quint32(captured));
    putLe32(p + 24, quint32(std::min<quint64>(original, 0xFFFFFFFFu)));

    unsigned char *frame = p + 28;
    putMac(frame, r.dstIp);
    putMac(frame + 6, r.srcIp);
    putBe16(frame + 12, 0x0800);
    unsigned char *ip = frame + 14;
    ip[0] = 0x45;
    putBe16(ip + 2, quint16(std::min<quint64>(20 + 8 + quint64(r.length), 0xFFFF)));
    ip[8] = 64; // TTL
    ip[9] = 17; // UDP
    putBe32(ip + 12, r.srcIp);
    putBe32(ip + 16, r.dstIp);
    putBe16(ip + 10, ipChecksum(ip));
    unsigned char *udp = ip + 20;
    putBe16(udp, r.srcPort);
    putBe16(udp + 2, r.dstPort);
    putBe16(udp + 4, quint16(std::min<quint64>(8 + quint64(r.length), 0xFFFF)));
    // UDP checksum 0: "not computed", valid for IPv4 and right for a truncated payload.
    std::memcpy(udp + 8, r.head, r.headLength);

    unsigned char *opt = p + 28 + padded(captured);
    putLe16(opt, 2); // epb_flags: direction in bits 0-1
    putLe16(opt + 2, 4);
    putLe32(opt + 4, r.direction == Direction::Out ? 2 : 1);
    opt += 8;
    if (annotated) {
        putLe16(opt, 1); // opt_comment
        putLe16(opt + 2, quint16(comment.size()));
        std::memcpy(opt + 4, comment.constData(), size_t(comment.size()));
        opt += 4 + padded(int(comment.size()));
    }
    opt += 4; // opt_endofopt, already zero
    putLe32(opt, quint32(total));
}

} // namespace

bool writePcapng(const std::vector<PacketRecord> &records, QIODevice *out, LogMessage *error)
{
    QByteArray chunk;
    chunk.reserve(kChunkBytes + 4096);
    chunk += sectionHeader();
    chunk += interfaceDescription("talu");
    chunk += interfaceDescription("capture");
    const auto flush = [&] {
        if (out->write(chunk) != chunk.size()) {
            if (error)
                *error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Cannot write the capture file: %1"),
                                    {out->errorString()});
            return false;
        }
        chunk.resize(0);
        return true;
    };
    for (const PacketRecord &r : records) {
        appendPacket(chunk, r);
        if (chunk.size() >= kChunkBytes && !flush())
            return false;
    }
    return flush();
}

} // namespace PacketLog
