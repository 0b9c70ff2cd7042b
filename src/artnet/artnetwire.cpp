#include "artnet/artnetwire.h"

#include <algorithm>

namespace ArtNet {

namespace {

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

} // namespace

quint16 le16At(QByteArrayView d, int offset)
{
    const auto *p = reinterpret_cast<const uchar *>(d.data()) + offset;
    return quint16(p[0] | (p[1] << 8));
}

quint16 be16At(QByteArrayView d, int offset)
{
    const auto *p = reinterpret_cast<const uchar *>(d.data()) + offset;
    return quint16((p[0] << 8) | p[1]);
}

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

bool isArtSync(QByteArrayView d)
{
    return d.size() >= 10 && hasIdAt(d, 0) && le16At(d, 8) == kOpSync;
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

} // namespace ArtNet
