#include "artnet/artnetpacket.h"

#include <algorithm>
#include <cstring>

namespace ArtNet {

namespace {

// "Art-Net" and its terminating zero open every Art-Net packet.
constexpr char kId[8] = {'A', 'r', 't', '-', 'N', 'e', 't', '\0'};
// Art-Net 4 is protocol revision 14.
constexpr quint8 kProtocolVersion = 14;

const uchar *bytesOf(QByteArrayView v)
{
    return reinterpret_cast<const uchar *>(v.data());
}

// Callers check the size first.
bool hasIdAt(QByteArrayView d, int offset)
{
    return std::memcmp(d.data() + offset, kId, sizeof kId) == 0;
}

quint16 le16At(QByteArrayView d, int offset)
{
    const uchar *p = bytesOf(d) + offset;
    return quint16(p[0] | (p[1] << 8));
}

quint16 be16At(QByteArrayView d, int offset)
{
    const uchar *p = bytesOf(d) + offset;
    return quint16((p[0] << 8) | p[1]);
}

ClassifiedDatagram dmxAt(QByteArrayView d, DmxFlavour flavour, int headerSize)
{
    // KEL carries the same 18-byte ArtDmx header behind its 12-byte prefix.
    const int base = headerSize - kDmxHeaderSize;
    ClassifiedDatagram c;
    const int available = int(d.size()) - headerSize;
    const int length = std::min(available, int(be16At(d, base + 16)));
    if (length < 1)
        return c;
    c.kind = DatagramKind::Dmx;
    c.flavour = flavour;
    c.sequence = quint8(d[base + 12]);
    c.portAddress = le16At(d, base + 14);
    c.dataOffset = headerSize;
    c.dataLength = length;
    return c;
}

bool isKel(QByteArrayView d)
{
    return d.size() >= kKelHeaderSize && hasIdAt(d, kKelPrefixSize) && le16At(d, 20) == kOpKelDmx;
}

void putLatin1(QByteArray &out, int offset, const QString &text, int maxChars)
{
    const QByteArray latin1 = text.left(maxChars).toLatin1();
    std::memcpy(out.data() + offset, latin1.constData(), size_t(latin1.size()));
}

void putLe16(QByteArray &out, int offset, quint16 v)
{
    out[offset] = char(v & 0xFF);
    out[offset + 1] = char(v >> 8);
}

void putIPv4(QByteArray &out, int offset, quint32 ip)
{
    out[offset] = char(ip >> 24);
    out[offset + 1] = char(ip >> 16);
    out[offset + 2] = char(ip >> 8);
    out[offset + 3] = char(ip);
}

QByteArray dmxHeader(quint16 opCode, quint16 portAddress, quint8 sequence, int length)
{
    QByteArray h(kDmxHeaderSize, '\0');
    std::memcpy(h.data(), kId, sizeof kId);
    putLe16(h, 8, opCode);
    h[11] = char(kProtocolVersion);
    h[12] = char(sequence);
    putLe16(h, 14, portAddress);
    h[16] = char(length >> 8);
    h[17] = char(length & 0xFF);
    return h;
}

} // namespace

ClassifiedDatagram classifyDatagram(QByteArrayView d)
{
    const qsizetype size = d.size();
    if (size <= 9)
        return {};
    if (size <= 17) {
        // Only an ArtPoll (14 bytes) is useful at this length.
        if (!hasIdAt(d, 0))
            return {};
    } else if (!hasIdAt(d, 0)) {
        return isKel(d) ? dmxAt(d, DmxFlavour::Kel, kKelHeaderSize) : ClassifiedDatagram{};
    } else if (le16At(d, 8) == kOpDmx) {
        return dmxAt(d, DmxFlavour::ArtNet, kDmxHeaderSize);
    } else if (isKel(d)) {
        return dmxAt(d, DmxFlavour::Kel, kKelHeaderSize);
    }
    ClassifiedDatagram c;
    const quint16 op = le16At(d, 8);
    if (op == kOpPoll)
        c.kind = DatagramKind::Poll;
    else if (op == kOpPollReply)
        c.kind = DatagramKind::PollReply;
    return c;
}

QString kelDeviceName(QByteArrayView d)
{
    if (d.size() < kKelPrefixSize)
        return {};
    const char *name = d.data() + 2;
    const char *end = std::find(name, name + kKelNameSize, '\0');
    return QString::fromLatin1(name, end - name);
}

bool isSequenceError(quint8 last, quint8 sequence)
{
    return qint8(quint8(sequence - 1 - last)) < 0;
}

int pollReplyPageCount(const QVector<quint16> &universes)
{
    return std::max(1, int(universes.size()));
}

quint8 pollReplyBindIndex(const QVector<quint16> &universes, int page)
{
    const auto pageNumber = [page] { return quint8(std::clamp(page + 1, 1, 255)); };
    if (!universes.isEmpty() && *std::max_element(universes.cbegin(), universes.cend()) > 254)
        return pageNumber();
    if (page >= 0 && page < universes.size())
        return quint8(universes.at(page) + 1);
    return pageNumber();
}

QByteArray buildPollReply(const PollReplyInput &in, int page)
{
    QByteArray r(kPollReplySize, '\0');
    const bool hasUniverse = page >= 0 && page < in.universes.size();
    const quint16 universe = hasUniverse ? in.universes.at(page) : 0;

    std::memcpy(r.data(), kId, sizeof kId);
    putLe16(r, 8, kOpPollReply);
    putIPv4(r, 10, in.bindIPv4);
    putLe16(r, 14, in.port);
    r[17] = char(kProtocolVersion);
    r[18] = char(hasUniverse ? (universe >> 8) & 0x7F : in.identity.net);
    r[19] = char(hasUniverse ? (universe & 0xFF) >> 4 : in.identity.subNet);
    r[20] = char(in.identity.oemCode >> 8);
    r[21] = char(in.identity.oemCode & 0xFF);
    r[23] = char(0xD0); // indicators normal, port-addresses set from the network
    putLe16(r, 24, in.identity.estaCode);
    putLatin1(r, 26, in.identity.shortName, 17);
    putLatin1(r, 44, in.identity.longName, 63);
    putLatin1(r, 108, QStringLiteral("#0001 [%1] Torvane Art-Net Tester").arg(in.dmxPackets), 63);
    r[173] = 1;           // NumPorts
    r[174] = char(0x80);  // port 1 outputs DMX taken from the network
    r[182] = char(0x80);  // GoodOutputA: data is being output
    r[190] = char(hasUniverse ? universe & 0x0F : 0);
    for (int i = 0; i < 6; ++i)
        r[201 + i] = char(in.identity.mac[size_t(i)]);
    putIPv4(r, 207, in.bindIPv4);
    r[211] = char(pollReplyBindIndex(in.universes, page));
    return r;
}

QByteArray buildPoll()
{
    QByteArray p(14, '\0');
    std::memcpy(p.data(), kId, sizeof kId);
    putLe16(p, 8, kOpPoll);
    p[11] = char(kProtocolVersion);
    return p;
}

QByteArray buildDmx(quint16 portAddress, quint8 sequence, QByteArrayView data)
{
    QByteArray p = dmxHeader(kOpDmx, portAddress, sequence, int(data.size()));
    p.append(data.data(), data.size());
    return p;
}

QByteArray buildKelDmx(const QByteArray &deviceNameLatin1, quint16 portAddress, quint8 sequence,
                       QByteArrayView data)
{
    QByteArray p(kKelPrefixSize, '\0');
    p[0] = 0x01;
    std::memcpy(p.data() + 2, deviceNameLatin1.constData(),
                size_t(std::min<qsizetype>(deviceNameLatin1.size(), kKelNameSize)));
    p += dmxHeader(kOpKelDmx, portAddress, sequence, int(data.size()));
    p.append(data.data(), data.size());
    return p;
}

} // namespace ArtNet
