#include "packetlog/artnetfields.h"

#include "packetlog/packetrecord.h"

#include <algorithm>

namespace PacketLog {

namespace {

class Decoder
{
public:
    explicit Decoder(QByteArrayView bytes) : m_bytes(bytes) {}

    bool has(int offset, int length) const { return offset + length <= m_bytes.size(); }
    quint8 u8(int offset) const { return quint8(m_bytes[offset]); }
    quint16 le16(int offset) const { return quint16(u8(offset) | (u8(offset + 1) << 8)); }
    quint16 be16(int offset) const { return quint16((u8(offset) << 8) | u8(offset + 1)); }

    void add(const char *name, int offset, int length, const QString &value)
    {
        if (has(offset, length))
            fields.push_back({QString::fromLatin1(name), value, offset, length});
    }
    void addNumber(const char *name, int offset, int length, quint32 value)
    {
        add(name, offset, length, QString::number(value));
    }
    void addHex(const char *name, int offset, int length, quint32 value, int digits)
    {
        add(name, offset, length,
            QStringLiteral("0x") + QStringLiteral("%1").arg(value, digits, 16, QLatin1Char('0')).toUpper());
    }
    // A NUL-terminated text field of fixed size.
    void addText(const char *name, int offset, int length)
    {
        if (!has(offset, length))
            return;
        QByteArrayView text = m_bytes.sliced(offset, length);
        const qsizetype end = text.indexOf('\0');
        add(name, offset, length, QString::fromLatin1(end < 0 ? text : text.first(end)));
    }
    void addFlags(const char *name, int offset)
    {
        if (has(offset, 1))
            add(name, offset, 1,
                QStringLiteral("0x%1 (%2)")
                    .arg(u8(offset), 2, 16, QLatin1Char('0'))
                    .arg(u8(offset), 8, 2, QLatin1Char('0')));
    }

    std::vector<DecodedField> fields;

private:
    QByteArrayView m_bytes;
};

QString portAddressText(quint16 portAddress)
{
    return QStringLiteral("0x%1 (Net %2, Sub-Net %3, Universe %4)")
        .arg(portAddress, 4, 16, QLatin1Char('0'))
        .arg((portAddress >> 8) & 0x7F)
        .arg((portAddress >> 4) & 0x0F)
        .arg(portAddress & 0x0F);
}

void decodeDmx(Decoder &d, int at)
{
    d.addNumber("Sequence", at + 12, 1, d.has(at + 12, 1) ? d.u8(at + 12) : 0);
    d.addNumber("Physical", at + 13, 1, d.has(at + 13, 1) ? d.u8(at + 13) : 0);
    if (d.has(at + 14, 2))
        d.add("Port-Address", at + 14, 2,
              portAddressText(quint16(d.u8(at + 14) | ((d.u8(at + 15) & 0x7F) << 8))));
    if (d.has(at + 16, 2))
        d.addNumber("Length", at + 16, 2, d.be16(at + 16));
}

void decodePoll(Decoder &d)
{
    d.addFlags("Flags", 12);
    d.addNumber("DiagPriority", 13, 1, d.has(13, 1) ? d.u8(13) : 0);
}

void decodePollReply(Decoder &d)
{
    if (d.has(10, 4))
        d.add("IP address", 10, 4,
              QStringLiteral("%1.%2.%3.%4").arg(d.u8(10)).arg(d.u8(11)).arg(d.u8(12)).arg(d.u8(13)));
    d.addNumber("Port", 14, 2, d.has(14, 2) ? d.le16(14) : 0);
    d.addHex("VersInfo", 16, 2, d.has(16, 2) ? d.be16(16) : 0, 4);
    d.addNumber("NetSwitch", 18, 1, d.has(18, 1) ? d.u8(18) : 0);
    d.addNumber("SubSwitch", 19, 1, d.has(19, 1) ? d.u8(19) : 0);
    d.addHex("Oem", 20, 2, d.has(20, 2) ? d.be16(20) : 0, 4);
    d.addFlags("Status1", 23);
    d.addHex("EstaMan", 24, 2, d.has(24, 2) ? d.le16(24) : 0, 4);
    d.addText("ShortName", 26, 18);
    d.addText("LongName", 44, 64);
    d.addText("NodeReport", 108, 64);
    d.addNumber("NumPorts", 172, 2, d.has(172, 2) ? d.be16(172) : 0);
    if (d.has(186, 4))
        d.add("SwIn", 186, 4,
              QStringLiteral("%1 %2 %3 %4").arg(d.u8(186)).arg(d.u8(187)).arg(d.u8(188)).arg(d.u8(189)));
    if (d.has(190, 4))
        d.add("SwOut", 190, 4,
              QStringLiteral("%1 %2 %3 %4").arg(d.u8(190)).arg(d.u8(191)).arg(d.u8(192)).arg(d.u8(193)));
    if (d.has(207, 4))
        d.add("BindIp", 207, 4,
              QStringLiteral("%1.%2.%3.%4").arg(d.u8(207)).arg(d.u8(208)).arg(d.u8(209)).arg(d.u8(210)));
    d.addNumber("BindIndex", 211, 1, d.has(211, 1) ? d.u8(211) : 0);
    d.addFlags("Status2", 212);
}

} // namespace

std::vector<DecodedField> decodeArtNetFields(QByteArrayView bytes)
{
    // The KEL variant of ArtDmx carries its Art-Net header 12 bytes in.
    int at = 0;
    if (!ArtNet::hasIdAt(bytes, 0)) {
        if (!ArtNet::hasIdAt(bytes, ArtNet::kKelPrefixSize))
            return {};
        at = ArtNet::kKelPrefixSize;
    }
    Decoder d(bytes);
    if (at == ArtNet::kKelPrefixSize)
        d.addText("Device", 2, ArtNet::kKelNameSize);
    d.add("ID", at, 8, QStringLiteral("Art-Net"));
    if (!d.has(at + 8, 2))
        return std::move(d.fields);
    const quint16 opcode = d.le16(at + 8);
    const QString name = opcodeName(opcode);
    d.add("OpCode", at + 8, 2,
          QStringLiteral("0x") + QStringLiteral("%1").arg(opcode, 4, 16, QLatin1Char('0')).toUpper() +
              (name.startsWith(QLatin1String("OpCode")) ? QString() : QStringLiteral(" (%1)").arg(name)));
    if (opcode == kOpPollReply) { // no ProtVer: the address follows the OpCode
        decodePollReply(d);
        return std::move(d.fields);
    }
    if (d.has(at + 10, 2))
        d.addNumber("ProtVer", at + 10, 2, d.be16(at + 10));
    if (opcode == kOpDmx || opcode == kOpKel)
        decodeDmx(d, at);
    else if (opcode == kOpPoll && at == 0)
        decodePoll(d);
    return std::move(d.fields);
}

} // namespace PacketLog
