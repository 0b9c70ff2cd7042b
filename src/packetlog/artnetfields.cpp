#include "packetlog/artnetfields.h"

#include "packetlog/packetrecord.h"

#include <QStringList>

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
    enum class Order { Byte, Little, Big };
    // The number in the field's bytes, when the bytes are there.
    void addNumber(const char *name, int offset, Order order)
    {
        if (has(offset, order == Order::Byte ? 1 : 2))
            add(name, offset, order == Order::Byte ? 1 : 2, QString::number(number(offset, order)));
    }
    void addHex(const char *name, int offset, Order order)
    {
        const int length = order == Order::Byte ? 1 : 2;
        if (has(offset, length))
            add(name, offset, length,
                QStringLiteral("0x")
                    + QStringLiteral("%1").arg(number(offset, order), 2 * length, 16, QLatin1Char('0')).toUpper());
    }
    // Four bytes as "a.b.c.d" (addresses) or "a b c d" (port lists).
    void addQuad(const char *name, int offset, QChar separator)
    {
        if (!has(offset, 4))
            return;
        QStringList parts;
        for (int i = 0; i < 4; ++i)
            parts << QString::number(u8(offset + i));
        add(name, offset, 4, parts.join(separator));
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
    quint32 number(int offset, Order order) const
    {
        return order == Order::Byte ? u8(offset) : order == Order::Little ? le16(offset) : be16(offset);
    }

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

using Order = Decoder::Order;

void decodeDmx(Decoder &d, int at)
{
    d.addNumber("Sequence", at + 12, Order::Byte);
    d.addNumber("Physical", at + 13, Order::Byte);
    if (d.has(at + 14, 2))
        d.add("Port-Address", at + 14, 2,
              portAddressText(quint16(d.u8(at + 14) | ((d.u8(at + 15) & 0x7F) << 8))));
    d.addNumber("Length", at + 16, Order::Big);
}

void decodePoll(Decoder &d)
{
    d.addFlags("Flags", 12);
    d.addNumber("DiagPriority", 13, Order::Byte);
}

void decodePollReply(Decoder &d)
{
    d.addQuad("IP address", 10, QLatin1Char('.'));
    d.addNumber("Port", 14, Order::Little);
    d.addHex("VersInfo", 16, Order::Big);
    d.addNumber("NetSwitch", 18, Order::Byte);
    d.addNumber("SubSwitch", 19, Order::Byte);
    d.addHex("Oem", 20, Order::Big);
    d.addFlags("Status1", 23);
    d.addHex("EstaMan", 24, Order::Little);
    d.addText("ShortName", 26, 18);
    d.addText("LongName", 44, 64);
    d.addText("NodeReport", 108, 64);
    d.addNumber("NumPorts", 172, Order::Big);
    d.addQuad("SwIn", 186, QLatin1Char(' '));
    d.addQuad("SwOut", 190, QLatin1Char(' '));
    d.addQuad("BindIp", 207, QLatin1Char('.'));
    d.addNumber("BindIndex", 211, Order::Byte);
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
    d.addNumber("ProtVer", at + 10, Order::Big);
    if (opcode == kOpDmx || opcode == kOpKel)
        decodeDmx(d, at);
    else if (opcode == kOpPoll && at == 0)
        decodePoll(d);
    return std::move(d.fields);
}

} // namespace PacketLog
