#include "../fuzzentries.h"

#include "packetlog/displayfilter.h"
#include "packetlog/tlogfile.h"

#include <QString>

#include <cstdint>
#include <cstring>

namespace {

// Records the filter is tried on: an ArtDmx in, an ArtPoll, a failed send, a plain UDP packet from a capture.
std::vector<PacketLog::PacketRecord> fixedRecords()
{
    using namespace PacketLog;
    std::vector<PacketRecord> records(4);
    QByteArray dmx("Art-Net\0\0\x50\0\x0e\x05\0\x01\0\0\x02\xff\x80", 20);
    records[0].setDatagram(dmx);
    records[0].srcIp = 0xC0000202;
    records[0].dstIp = 0xC0000201;
    records[0].srcPort = records[0].dstPort = 6454;
    records[1].setDatagram(QByteArrayView("Art-Net\0\0\x20\0\x0e\0\0", 14));
    records[1].direction = Direction::Out;
    records[2] = records[0];
    records[2].direction = Direction::Out;
    records[2].outcome = Outcome::Failed;
    records[2].error = 10055;
    records[3].setDatagram(QByteArrayView("hello"));
    records[3].source = RecordSource::Capture;
    records[3].timeNs = -1;
    return records;
}

} // namespace

// The input is the filter's text in UTF-8, up to a zero byte; what follows
// the zero is one more record in the .tlog's layout (zero-filled to its size,
// or taken as a datagram when those bytes are no record we would write).
// A filter that compiles is evaluated against every record.
int fuzzFilter(const std::uint8_t *data, std::size_t size)
{
    using namespace PacketLog;
    static const std::vector<PacketRecord> kRecords = fixedRecords();
    const char *text = reinterpret_cast<const char *>(data);
    const auto *zero = static_cast<const std::uint8_t *>(std::memchr(data, 0, size));
    const std::size_t textSize = zero ? std::size_t(zero - data) : size;
    const FilterCompileResult compiled = compileFilter(QString::fromUtf8(text, qsizetype(textSize)));
    FUZZ_PROMISE("filter", compiled.ok() || !compiled.root);
    if (!compiled.ok()) {
        (void)compiled.error.untranslatedText();
        return 0;
    }
    if (!compiled.root)
        return 0;
    (void)describeFilter(compiled.root.get());
    for (const PacketRecord &r : kRecords)
        (void)compiled.root->match(r);
    if (zero) {
        unsigned char raw[kTlogRecordSize] = {};
        const std::size_t rest = std::min<std::size_t>(size - textSize - 1, sizeof raw);
        std::memcpy(raw, zero + 1, rest);
        PacketRecord extra;
        if (!decodeTlogRecord(raw, &extra))
            extra.setDatagram(QByteArrayView(reinterpret_cast<const char *>(zero + 1), qsizetype(size - textSize - 1)));
        (void)compiled.root->match(extra);
    }
    return 0;
}
