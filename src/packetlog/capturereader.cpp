#include "packetlog/capturereader.h"

#include "packetlog/byteio.h"
#include "packetlog/pcapngwriter.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace PacketLog {

using namespace ByteIo;

namespace {

// Link-layer header types (tcpdump.org LINKTYPE_ values).
constexpr quint32 kLinkNull = 0;
constexpr quint32 kLinkEthernet = 1;
constexpr quint32 kLinkRawOpenBsd = 12;
constexpr quint32 kLinkRaw = 101;
constexpr quint32 kLinkLinuxSll = 113;
constexpr quint32 kLinkIpv4 = 228;
constexpr quint32 kLinkLinuxSll2 = 276;

// Largest packet a sane capture holds; a length above it means the file is damaged.
constexpr quint32 kMaxPacketBytes = 262144;

struct Frame
{
    const unsigned char *data;
    quint32 captured;
    quint32 original;
};

// Finds the IPv4 header inside a link-layer frame; nullptr when it is not IPv4.
const unsigned char *ipv4Start(quint32 linkType, const Frame &f, quint32 *remaining)
{
    quint32 offset = 0;
    switch (linkType) {
    case kLinkEthernet: {
        if (f.captured < 14)
            return nullptr;
        quint16 type = be16(f.data + 12);
        offset = 14;
        for (int tags = 0; tags < 2 && (type == 0x8100 || type == 0x88A8); ++tags) {
            if (f.captured < offset + 4)
                return nullptr;
            type = be16(f.data + offset + 2);
            offset += 4;
        }
        if (type != 0x0800)
            return nullptr;
        break;
    }
    case kLinkNull:
        // The address family in the capturing host's byte order; AF_INET is 2 everywhere.
        if (f.captured < 4 || (le32(f.data) != 2 && be32(f.data) != 2))
            return nullptr;
        offset = 4;
        break;
    case kLinkRaw:
    case kLinkRawOpenBsd:
    case kLinkIpv4:
        break;
    case kLinkLinuxSll:
        if (f.captured < 16 || be16(f.data + 14) != 0x0800)
            return nullptr;
        offset = 16;
        break;
    case kLinkLinuxSll2:
        if (f.captured < 20 || be16(f.data) != 0x0800)
            return nullptr;
        offset = 20;
        break;
    default:
        return nullptr;
    }
    if (f.captured < offset)
        return nullptr;
    *remaining = f.captured - offset;
    return f.data + offset;
}

// Fills a record from the frame's IPv4/UDP headers; false when it is not UDP over IPv4.
bool decodeFrame(quint32 linkType, const Frame &f, PacketRecord *r, QByteArrayView *payloadOut = nullptr)
{
    quint32 size = 0;
    const unsigned char *ip = ipv4Start(linkType, f, &size);
    if (!ip || size < 20 || (ip[0] >> 4) != 4 || ip[9] != 17)
        return false;
    const quint32 ihl = quint32(ip[0] & 0x0F) * 4;
    const quint16 fragmentOffset = be16(ip + 6) & 0x1FFF;
    if (ihl < 20 || fragmentOffset != 0 || size < ihl + 8)
        return false; // later fragments carry no UDP header
    const unsigned char *udp = ip + ihl;
    const quint32 available = size - ihl - 8;
    const quint16 udpLength = be16(udp + 4);
    const quint32 payload = udpLength >= 8 ? std::min<quint32>(available, udpLength - 8u) : available;
    r->srcIp = be32(ip + 12);
    r->dstIp = be32(ip + 16);
    r->srcPort = be16(udp);
    r->dstPort = be16(udp + 2);
    r->setDatagram(QByteArrayView(udp + 8, payload));
    if (payloadOut)
        *payloadOut = QByteArrayView(udp + 8, payload);
    if (udpLength >= 8)
        r->length = udpLength - 8u; // the full datagram, even when the capture kept less
    r->source = RecordSource::Capture;
    r->direction = Direction::In;
    return true;
}

LogMessage cutShort(qint64 packet, qint64 offset, qint64 read)
{
    return LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The capture is cut short in packet %1 (at byte %2); the %3 "
                                                     "packets before it were read."),
                      {QString::number(packet), QString::number(offset), QString::number(read)});
}

LogMessage damaged(qint64 packet, qint64 offset, qint64 read)
{
    return LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The capture is damaged at packet %1 (at byte %2); the %3 "
                                                     "packets before it were read."),
                      {QString::number(packet), QString::number(offset), QString::number(read)});
}

void noteSkipped(LogLoadResult &result)
{
    if (result.skipped > 0) {
        result.warnings.append(LogMessage(
            QT_TRANSLATE_NOOP("PacketLog", "%1 packets were not UDP over IPv4 and were left out."),
            {QString::number(result.skipped)}));
    }
}

qint64 toNs(quint64 ticks, quint64 unitsPerSecond, qint64 offsetSeconds)
{
    if (unitsPerSecond == 0)
        return 0;
    // Damaged files can claim any time; keep the sum inside what 64-bit nanoseconds hold (years 1678 to 2262).
    // Half of that, so that the difference of any two times still fits.
    constexpr qint64 kMaxSeconds = 4'500'000'000LL;
    const quint64 seconds = std::min<quint64>(ticks / unitsPerSecond, quint64(kMaxSeconds));
    const quint64 fraction = ticks % unitsPerSecond;
    const qint64 ns = qint64(double(fraction) * 1e9 / double(unitsPerSecond));
    const qint64 total = std::clamp<qint64>(qint64(seconds) + std::clamp<qint64>(offsetSeconds, -kMaxSeconds, kMaxSeconds),
                                            -kMaxSeconds, kMaxSeconds);
    return total * 1000000000LL + ns;
}

} // namespace

bool isPcap(QByteArrayView bytes)
{
    if (bytes.size() < 4)
        return false;
    const quint32 magic = le32(reinterpret_cast<const unsigned char *>(bytes.data()));
    return magic == 0xA1B2C3D4 || magic == 0xD4C3B2A1 || magic == 0xA1B23C4D || magic == 0x4D3CB2A1;
}

bool isCaptureFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(4);
    return isPcap(head) || isPcapng(head);
}

bool isPcapng(QByteArrayView bytes)
{
    return bytes.size() >= 4 && le32(reinterpret_cast<const unsigned char *>(bytes.data())) == 0x0A0D0D0A;
}

PcapStreamReader::PcapStreamReader() = default;

bool PcapStreamReader::feed(QByteArrayView bytes, std::vector<PacketRecord> *out)
{
    if (m_failed)
        return false;
    if (m_pending.isEmpty()) {
        // Most of a whole file is read straight from the caller's bytes; only
        // a packet cut by the end of this piece waits for the next one.
        const qint64 used = consume(bytes, out);
        if (!m_failed)
            m_pending = bytes.sliced(used).toByteArray();
    } else {
        m_pending.append(bytes.data(), bytes.size());
        const qint64 used = consume(m_pending, out);
        if (!m_failed)
            m_pending.remove(0, used);
    }
    return !m_failed;
}

qint64 PcapStreamReader::consume(QByteArrayView bytes, std::vector<PacketRecord> *out)
{
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.data());
    qint64 offset = 0;
    if (!m_started) {
        if (bytes.size() < 4)
            return 0;
        if (!isPcap(bytes)) {
            m_failed = true;
            m_error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "This is not a pcap capture file."));
            return 0;
        }
        if (bytes.size() < 24)
            return 0;
        const quint32 magic = le32(p);
        m_reader.bigEndian = magic == 0xD4C3B2A1 || magic == 0x4D3CB2A1;
        m_nanoseconds = magic == 0xA1B23C4D || magic == 0x4D3CB2A1;
        // The low 28 bits are the link type; the upper bits carry FCS information.
        m_linkType = m_reader.u32(p + 20) & 0x0FFFFFFF;
        m_started = true;
        m_position = 24;
        offset = 24;
    }
    while (bytes.size() - offset >= 16) {
        const unsigned char *h = p + offset;
        const quint32 seconds = m_reader.u32(h);
        const quint32 fraction = m_reader.u32(h + 4);
        const quint32 captured = m_reader.u32(h + 8);
        const quint32 original = m_reader.u32(h + 12);
        if (captured > kMaxPacketBytes || (!m_nanoseconds && fraction >= 1000000) || fraction >= 1000000000) {
            m_warnings.append(damaged(m_packets + 1, m_position, m_packets));
            m_failed = true;
            return offset;
        }
        if (bytes.size() - offset - 16 < qint64(captured))
            break;
        ++m_packets;
        PacketRecord record;
        QByteArrayView payload;
        if (decodeFrame(m_linkType, Frame{h + 16, captured, original}, &record, &payload)) {
            record.timeNs = qint64(seconds) * 1000000000LL + qint64(fraction) * (m_nanoseconds ? 1 : 1000);
            if (m_visit)
                m_visit(record, payload);
            else
                out->push_back(record);
        } else {
            ++m_skipped;
        }
        offset += 16 + captured;
        m_position += 16 + captured;
    }
    return offset;
}

void PcapStreamReader::finish()
{
    if (!m_failed && !m_pending.isEmpty() && m_started)
        m_warnings.append(cutShort(m_packets + 1, m_position, m_packets));
    m_pending.clear();
}

LogLoadResult readPcap(QByteArrayView bytes, const LogReadProgress &progress, const DatagramVisitor &visit)
{
    LogLoadResult result;
    result.format = QStringLiteral("pcap");
    if (bytes.size() < 24 || !isPcap(bytes)) {
        result.error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "This is not a pcap capture file."));
        return result;
    }
    result.ok = true;
    PcapStreamReader reader;
    reader.setVisitor(visit);
    // In slices, so that a watcher sees the records come and can stop the read.
    constexpr qsizetype kSlice = 4 * 1024 * 1024;
    bool stopped = false;
    for (qsizetype at = 0; at < bytes.size() && !stopped; at += kSlice) {
        stopped = !reader.feed(bytes.sliced(at, std::min(kSlice, bytes.size() - at)), &result.records)
            || (progress && !progress(result, std::min(at + kSlice, bytes.size())));
    }
    if (!stopped)
        reader.finish();
    result.warnings = reader.warnings();
    result.skipped = reader.skipped();
    noteSkipped(result);
    return result;
}

namespace {

struct Interface
{
    quint32 linkType = 0;
    quint64 unitsPerSecond = 1000000; // microseconds unless if_tsresol says otherwise
    qint64 offsetSeconds = 0;
    bool ours = false; // our export's "talu" interface
};

void readInterface(const Reader &rd, const unsigned char *body, quint32 size, Interface *iface)
{
    iface->linkType = rd.u16(body);
    quint32 pos = 8;
    while (pos + 4 <= size) {
        const quint16 code = rd.u16(body + pos);
        const quint16 length = rd.u16(body + pos + 2);
        if (code == 0 || pos + 4 + length > size)
            break;
        const unsigned char *value = body + pos + 4;
        if (code == 9 && length >= 1) {
            const quint8 v = value[0];
            const int exponent = v & 0x7F;
            if (v & 0x80)
                iface->unitsPerSecond = exponent < 64 ? (quint64(1) << exponent) : 0;
            else {
                quint64 units = 1;
                for (int i = 0; i < exponent && units <= 1000000000000000000ULL; ++i)
                    units *= 10;
                iface->unitsPerSecond = exponent <= 18 ? units : 0;
            }
        } else if (code == 14 && length >= 8) {
            iface->offsetSeconds = qint64(rd.bigEndian ? be64(value) : le64(value));
        } else if (code == 2) {
            iface->ours = QByteArrayView(value, length) == QByteArrayView("talu");
        }
        pos += 4 + ((length + 3u) & ~3u);
    }
}

// Applies the packet options: direction from epb_flags, our outcome comment.
void readPacketOptions(const Reader &rd, const unsigned char *opts, quint32 size, PacketRecord *r)
{
    static const QRegularExpression kOurs(QStringLiteral("talu outcome=(\\w+) reason=(\\d+) error=(-?\\d+)"));
    quint32 pos = 0;
    while (pos + 4 <= size) {
        const quint16 code = rd.u16(opts + pos);
        const quint16 length = rd.u16(opts + pos + 2);
        if (code == 0 || pos + 4 + length > size)
            break;
        const unsigned char *value = opts + pos + 4;
        if (code == 2 && length >= 4) {
            const quint32 dir = rd.u32(value) & 0x3;
            if (dir == 2)
                r->direction = Direction::Out;
        } else if (code == 1) {
            const auto m = kOurs.match(QString::fromUtf8(reinterpret_cast<const char *>(value), length));
            Outcome outcome;
            if (m.hasMatch() && outcomeFromWord(m.captured(1), &outcome)) {
                r->outcome = outcome;
                r->reason = quint8(std::min(m.captured(2).toUInt(), 255u));
                r->error = m.captured(3).toInt();
            }
        }
        pos += 4 + ((length + 3u) & ~3u);
    }
}

} // namespace

LogLoadResult readPcapng(QByteArrayView bytes, const LogReadProgress &progress, const DatagramVisitor &visit)
{
    LogLoadResult result;
    result.format = QStringLiteral("pcapng");
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.data());
    if (bytes.size() < 28 || !isPcapng(bytes)) {
        result.error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "This is not a pcapng capture file."));
        return result;
    }
    Reader rd;
    std::vector<Interface> interfaces;
    qint64 offset = 0;
    qint64 packet = 0;
    qint64 blocks = 0;
    bool sawSection = false;
    while (offset < bytes.size()) {
        const qint64 left = bytes.size() - offset;
        const unsigned char *b = p + offset;
        if (left < 12) {
            result.warnings.append(cutShort(packet + 1, offset, packet));
            break;
        }
        const quint32 rawType = le32(b);
        if (rawType == 0x0A0D0D0A) {
            // A section header fixes the byte order of everything up to the next one.
            const quint32 magic = le32(b + 8);
            if (magic != 0x1A2B3C4D && magic != 0x4D3C2B1A) {
                result.warnings.append(damaged(packet + 1, offset, packet));
                break;
            }
            rd.bigEndian = magic == 0x4D3C2B1A;
            interfaces.clear();
            sawSection = true;
        }
        const quint32 type = rd.u32(b);
        const quint32 total = rd.u32(b + 4);
        if (total < 12 || total % 4 != 0) {
            result.warnings.append(damaged(packet + 1, offset, packet));
            break;
        }
        if (qint64(total) > left) {
            result.warnings.append(cutShort(packet + 1, offset, packet));
            break;
        }
        if (rd.u32(b + total - 4) != total) {
            result.warnings.append(damaged(packet + 1, offset, packet));
            break;
        }
        const unsigned char *body = b + 8;
        const quint32 bodySize = total - 12;
        if (type == 0x00000001 && bodySize >= 8) {
            Interface iface;
            readInterface(rd, body, bodySize, &iface);
            interfaces.push_back(iface);
        } else if (type == 0x00000006 || type == 0x00000003 || type == 0x00000002) {
            ++packet;
            PacketRecord record;
            Frame frame{};
            quint32 ifaceId = 0;
            quint64 ticks = 0;
            quint32 headerSize = 0;
            bool valid = true;
            if (type == 0x00000003) { // simple packet: interface 0, no time, data to the block's end
                valid = bodySize >= 4;
                if (valid) {
                    frame.original = rd.u32(body);
                    frame.captured = std::min(frame.original, bodySize - 4);
                    headerSize = 4;
                }
            } else {
                valid = bodySize >= 20;
                if (valid) {
                    ifaceId = type == 0x00000002 ? rd.u16(body) : rd.u32(body);
                    ticks = (quint64(rd.u32(body + 4)) << 32) | rd.u32(body + 8);
                    frame.captured = rd.u32(body + 12);
                    frame.original = rd.u32(body + 16);
                    headerSize = 20;
                    valid = frame.captured <= bodySize - 20;
                }
            }
            if (!valid || ifaceId >= interfaces.size()) {
                result.warnings.append(damaged(packet, offset, packet - 1));
                break;
            }
            frame.data = body + headerSize;
            const Interface &iface = interfaces[ifaceId];
            QByteArrayView payload;
            if (decodeFrame(iface.linkType, frame, &record, &payload)) {
                record.timeNs = toNs(ticks, iface.unitsPerSecond, iface.offsetSeconds);
                if (iface.ours)
                    record.source = RecordSource::Mox;
                const quint32 dataEnd = headerSize + ((frame.captured + 3u) & ~3u);
                if (type != 0x00000003 && dataEnd < bodySize)
                    readPacketOptions(rd, body + dataEnd, bodySize - dataEnd, &record);
                if (visit)
                    visit(record, payload);
                else
                    result.records.push_back(record);
            } else {
                ++result.skipped;
            }
        }
        offset += total;
        // Also every 64k blocks, so that a capture of little UDP can be stopped.
        ++blocks;
        if (progress && (result.records.size() >= kProgressRecords || blocks % 65536 == 0) && !progress(result, offset))
            break;
    }
    result.ok = sawSection;
    if (!sawSection)
        result.error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "This is not a pcapng capture file."));
    noteSkipped(result);
    return result;
}

} // namespace PacketLog

namespace PacketLog {

LogLoadResult visitCapture(QByteArrayView bytes, const DatagramVisitor &visit)
{
    if (isPcapng(bytes))
        return readPcapng(bytes, {}, visit);
    if (isPcap(bytes))
        return readPcap(bytes, {}, visit);
    LogLoadResult result;
    result.error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "This is neither a pcapng nor a pcap capture."));
    return result;
}

} // namespace PacketLog
