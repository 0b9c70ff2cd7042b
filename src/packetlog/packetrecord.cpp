#include "packetlog/packetrecord.h"

#include <algorithm>
#include <cstring>

namespace PacketLog {

namespace {

quint16 le16(const unsigned char *p) { return quint16(p[0] | (p[1] << 8)); }
quint16 be16(const unsigned char *p) { return quint16((p[0] << 8) | p[1]); }

// A zero-terminated Latin-1 name inside the head, cut at the head's end.
QString latin1Field(const PacketRecord &r, int offset, int size)
{
    if (r.headLength <= offset)
        return {};
    const int available = std::min<int>(size, r.headLength - offset);
    const auto *begin = reinterpret_cast<const char *>(r.head + offset);
    const void *zero = std::memchr(begin, 0, size_t(available));
    const int n = zero ? int(static_cast<const char *>(zero) - begin) : available;
    return QString::fromLatin1(begin, n);
}

} // namespace

void PacketRecord::setDatagram(QByteArrayView bytes)
{
    length = quint32(bytes.size());
    headLength = quint16(std::min<qsizetype>(bytes.size(), kHeadBytes));
    if (headLength > 0)
        std::memcpy(head, bytes.data(), headLength);
    if (headLength < kHeadBytes)
        std::memset(head + headLength, 0, size_t(kHeadBytes - headLength));
    flags = 0;
    opcode = 0;
    portAddress = 0;
    sequence = 0;
    // The node's own classification: DMX is what the node would take as DMX
    // (an ArtDmx without data bytes is not); any other datagram that opens
    // with the ID is Art-Net with the OpCode at 8.
    const ArtNet::ClassifiedDatagram c = ArtNet::classifyDatagram(bytes);
    if (c.kind == ArtNet::DatagramKind::Dmx) {
        flags |= kFlagArtNet | kFlagDmx;
        opcode = c.flavour == ArtNet::DmxFlavour::Kel ? kOpKel : kOpDmx;
        sequence = c.sequence;
        portAddress = c.portAddress;
    } else if (bytes.size() >= 10 && ArtNet::hasIdAt(bytes, 0)) {
        flags |= kFlagArtNet;
        opcode = le16(head + 8);
    } else if (bytes.size() >= ArtNet::kKelHeaderSize && ArtNet::hasIdAt(bytes, ArtNet::kKelPrefixSize)
               && le16(head + ArtNet::kKelPrefixSize + 8) == kOpKel) {
        flags |= kFlagArtNet; // KEL framing without data bytes: Art-Net, not DMX
        opcode = kOpKel;
    }
}

QString PacketRecord::info() const
{
    QString text;
    if (!isArtNet()) {
        text = QStringLiteral("UDP, %1 bytes").arg(length);
    } else if (isDmx()) {
        const int header = opcode == kOpKel ? ArtNet::kKelHeaderSize : ArtNet::kDmxHeaderSize;
        const int lengthField = headLength >= header ? be16(head + header - 2) : 0;
        const qint64 channels = std::min<qint64>(lengthField, qint64(length) - header);
        text = QStringLiteral("%1 0x%2 seq %3, %4 channels")
                   .arg(opcodeName(opcode), QStringLiteral("%1").arg(portAddress, 4, 16, QLatin1Char('0')).toUpper())
                   .arg(sequence)
                   .arg(std::max<qint64>(channels, 0));
        if (opcode == kOpKel) {
            const QString device = latin1Field(*this, 2, 10);
            if (!device.isEmpty())
                text += QStringLiteral(" from %1").arg(device);
        }
    } else if (opcode == kOpPollReply) {
        text = opcodeName(opcode);
        const QString shortName = latin1Field(*this, 26, 18);
        if (!shortName.isEmpty())
            text += QStringLiteral(" \"%1\"").arg(shortName);
    } else {
        text = opcodeName(opcode);
    }
    if (outcome == Outcome::Failed || outcome == Outcome::Partial)
        text += QStringLiteral(" [%1: %2]").arg(outcomeLabel(outcome, false), errorName(error, false));
    else if (outcome == Outcome::NotSent)
        text += QStringLiteral(" [%1: %2]").arg(outcomeLabel(outcome, false), reasonText(reason, false));
    else if (outcome != Outcome::Ok)
        text += QStringLiteral(" [%1]").arg(outcomeLabel(outcome, false));
    return text;
}

bool PacketRecord::operator==(const PacketRecord &o) const
{
    return timeNs == o.timeNs && srcIp == o.srcIp && dstIp == o.dstIp && srcPort == o.srcPort
        && dstPort == o.dstPort && length == o.length && opcode == o.opcode && portAddress == o.portAddress
        && sequence == o.sequence && direction == o.direction && outcome == o.outcome && reason == o.reason
        && error == o.error && source == o.source && flags == o.flags && headLength == o.headLength
        && std::memcmp(head, o.head, headLength) == 0;
}

QString opcodeName(quint16 opcode)
{
    switch (opcode) {
    case kOpDmx: return QStringLiteral("ArtDmx");
    case kOpPoll: return QStringLiteral("ArtPoll");
    case kOpPollReply: return QStringLiteral("ArtPollReply");
    case kOpKel: return QStringLiteral("ArtDmx (KEL)");
    default: return QStringLiteral("OpCode 0x%1").arg(opcode, 4, 16, QLatin1Char('0'));
    }
}

bool opcodeFromName(const QString &lowerName, quint16 *opcode)
{
    static const struct { const char *name; quint16 code; } kNames[] = {
        {"artdmx", kOpDmx}, {"artpoll", kOpPoll}, {"artpollreply", kOpPollReply},
        {"kel", kOpKel}, {"artdmxkel", kOpKel},
    };
    for (const auto &n : kNames) {
        if (lowerName == QLatin1StringView(n.name)) {
            *opcode = n.code;
            return true;
        }
    }
    return false;
}

QString ipv4Text(quint32 ip)
{
    return QStringLiteral("%1.%2.%3.%4").arg(ip >> 24).arg((ip >> 16) & 0xFF).arg((ip >> 8) & 0xFF).arg(ip & 0xFF);
}

bool parseIpv4(QStringView text, quint32 *ip)
{
    quint32 value = 0;
    int parts = 0;
    qsizetype i = 0;
    while (parts < 4) {
        const qsizetype start = i;
        quint32 part = 0;
        while (i < text.size() && text[i] >= u'0' && text[i] <= u'9' && i - start < 3)
            part = part * 10 + quint32(text[i++].unicode() - u'0');
        const qsizetype digits = i - start;
        if (digits == 0 || part > 255 || (digits > 1 && text[start] == u'0'))
            return false;
        value = (value << 8) | part;
        ++parts;
        if (parts < 4) {
            if (i >= text.size() || text[i] != u'.')
                return false;
            ++i;
        }
    }
    if (i != text.size())
        return false;
    *ip = value;
    return true;
}

} // namespace PacketLog
