#include "packetlog/tlogfile.h"

#include "packetlog/byteio.h"

namespace PacketLog {

using namespace ByteIo;

QByteArray tlogHeader(qint64 createdNs)
{
    QByteArray header(kTlogHeaderSize, '\0');
    auto *p = reinterpret_cast<unsigned char *>(header.data());
    std::memcpy(p, kTlogMagic, 8);
    putLe16(p + 8, kTlogVersion);
    putLe16(p + 10, kTlogHeaderSize);
    putLe16(p + 12, kTlogRecordSize);
    putLe64(p + 16, quint64(createdNs));
    return header;
}

void encodeTlogRecord(const PacketRecord &r, unsigned char *p)
{
    putLe64(p, quint64(r.timeNs));
    putLe32(p + 8, r.srcIp);
    putLe32(p + 12, r.dstIp);
    putLe16(p + 16, r.srcPort);
    putLe16(p + 18, r.dstPort);
    putLe32(p + 20, r.length);
    putLe16(p + 24, r.opcode);
    putLe16(p + 26, r.portAddress);
    p[28] = r.sequence;
    p[29] = quint8(r.direction);
    p[30] = quint8(r.outcome);
    p[31] = r.reason;
    putLe32(p + 32, quint32(r.error));
    p[36] = quint8(r.source);
    p[37] = r.flags;
    putLe16(p + 38, r.headLength);
    std::memcpy(p + 40, r.head, r.headLength);
    std::memset(p + 40 + r.headLength, 0, size_t(PacketRecord::kHeadBytes - r.headLength));
}

bool decodeTlogRecord(const unsigned char *p, PacketRecord *r)
{
    const quint16 kept = le16(p + 38);
    if (p[29] > 1 || p[30] > 3 || p[36] > 1 || kept > PacketRecord::kHeadBytes || kept > le32(p + 20))
        return false;
    r->timeNs = qint64(le64(p));
    r->srcIp = le32(p + 8);
    r->dstIp = le32(p + 12);
    r->srcPort = le16(p + 16);
    r->dstPort = le16(p + 18);
    r->length = le32(p + 20);
    r->opcode = le16(p + 24);
    r->portAddress = le16(p + 26);
    r->sequence = p[28];
    r->direction = Direction(p[29]);
    r->outcome = Outcome(p[30]);
    r->reason = p[31];
    r->error = qint32(le32(p + 32));
    r->source = RecordSource(p[36]);
    r->flags = p[37];
    r->headLength = kept;
    std::memcpy(r->head, p + 40, kept);
    std::memset(r->head + kept, 0, size_t(PacketRecord::kHeadBytes - kept));
    return true;
}

LogLoadResult readTlog(QByteArrayView bytes, const LogReadProgress &progress)
{
    LogLoadResult result;
    result.format = QStringLiteral("tlog");
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.data());
    if (bytes.size() < kTlogHeaderSize || std::memcmp(p, kTlogMagic, 8) != 0) {
        result.error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "This is not a packet log file (.tlog)."));
        return result;
    }
    const quint16 version = le16(p + 8);
    const quint16 headerSize = le16(p + 10);
    const quint16 recordSize = le16(p + 12);
    if (version != kTlogVersion || recordSize != kTlogRecordSize || headerSize < kTlogHeaderSize) {
        result.error = LogMessage(
            QT_TRANSLATE_NOOP("PacketLog", "The packet log is version %1 with %2-byte records; this program reads "
                                           "version 1 with 296-byte records."),
            {QString::number(version), QString::number(recordSize)});
        return result;
    }
    result.ok = true;
    if (bytes.size() < headerSize) {
        result.warnings.append(LogMessage(QT_TRANSLATE_NOOP("PacketLog", "The packet log's header is cut short.")));
        return result;
    }
    const qsizetype count = (bytes.size() - headerSize) / kTlogRecordSize;
    result.records.reserve(progress ? kProgressRecords : size_t(count));
    for (qsizetype i = 0; i < count; ++i) {
        PacketRecord record;
        if (!decodeTlogRecord(p + headerSize + i * kTlogRecordSize, &record)) {
            result.warnings.append(LogMessage(
                QT_TRANSLATE_NOOP("PacketLog", "Record %1 (at byte %2) is damaged; the %3 records before it were read."),
                {QString::number(i + 1), QString::number(headerSize + i * kTlogRecordSize), QString::number(i)}));
            return result;
        }
        result.records.push_back(record);
        if (progress && result.records.size() >= kProgressRecords
            && !progress(result, headerSize + (i + 1) * kTlogRecordSize))
            return result;
    }
    const qsizetype tail = (bytes.size() - headerSize) % kTlogRecordSize;
    if (tail != 0) {
        result.warnings.append(LogMessage(
            QT_TRANSLATE_NOOP("PacketLog", "The packet log is cut short in record %1 (at byte %2); the %3 records "
                                           "before it were read."),
            {QString::number(count + 1), QString::number(headerSize + count * kTlogRecordSize),
             QString::number(count)}));
    }
    return result;
}

QByteArray writeTlog(const std::vector<PacketRecord> &records, qint64 createdNs)
{
    QByteArray bytes = tlogHeader(createdNs);
    const qsizetype start = bytes.size();
    bytes.resize(start + qsizetype(records.size()) * kTlogRecordSize);
    auto *p = reinterpret_cast<unsigned char *>(bytes.data()) + start;
    for (const PacketRecord &r : records) {
        encodeTlogRecord(r, p);
        p += kTlogRecordSize;
    }
    return bytes;
}

} // namespace PacketLog
