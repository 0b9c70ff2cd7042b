#include "artnet/artnetpacket.h"

#include <algorithm>
#include <cstring>

namespace ArtNet {

namespace {

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
