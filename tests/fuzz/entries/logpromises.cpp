#include "logpromises.h"

#include "../fuzzentries.h"

#include "packetlog/tlogfile.h"

void checkLogPromises(const char *target, const PacketLog::LogLoadResult &r, std::size_t inputSize)
{
    FUZZ_PROMISE(target, r.ok == r.error.isEmpty());
    if (!r.ok)
        FUZZ_PROMISE(target, r.records.empty());
    // A record costs at least a 16-byte packet header in any of the formats.
    FUZZ_PROMISE(target, r.records.size() <= inputSize / 16);
    for (const auto &w : r.warnings)
        (void)w.untranslatedText();
    unsigned char encoded[PacketLog::kTlogRecordSize];
    for (const PacketLog::PacketRecord &record : r.records) {
        FUZZ_PROMISE(target, record.headLength <= PacketLog::PacketRecord::kHeadBytes);
        PacketLog::encodeTlogRecord(record, encoded);
        PacketLog::PacketRecord back;
        FUZZ_PROMISE(target, PacketLog::decodeTlogRecord(encoded, &back));
        FUZZ_PROMISE(target, back == record);
        (void)record.info();
    }
}
