// Packet log hot paths, each against its target:
//   filter evaluation       >= 20 million records/s on one core
//   journal append (spool)  >= 5 million records/s on the calling thread
//   pcapng export           1 million records in under 1 s
#include "cli/samplelog.h"
#include "packetlog/displayfilter.h"
#include "packetlog/packetjournal.h"
#include "packetlog/pcapngwriter.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace PacketLog;

namespace {

// A mixed session: ArtDmx from a few consoles on several universes, polls and replies.
std::vector<PacketRecord> mixedRecords(size_t count)
{
    std::vector<PacketRecord> records;
    records.reserve(count);
    const QByteArray poll = makeArtPoll();
    const QByteArray reply = makeArtPollReply("TorvaneTester");
    for (size_t i = 0; i < count; ++i) {
        PacketRecord r;
        r.timeNs = 1767225600LL * 1000000000LL + qint64(i) * 25000;
        r.srcIp = 0x0A000001 + quint32(i % 4);
        r.dstIp = 0x0A0000FE;
        r.srcPort = (i % 3) ? 6454 : 50000;
        r.dstPort = 6454;
        if (i % 16 == 0)
            r.setDatagram(poll);
        else if (i % 16 == 1)
            r.setDatagram(reply);
        else
            r.setDatagram(makeArtDmx(quint16(i % 40), quint8(i), 512, quint8(i)));
        records.push_back(r);
    }
    return records;
}

void BM_FilterEvaluation(benchmark::State &state)
{
    const FilterCompileResult filter =
        compileFilter(QStringLiteral("artnet.opcode == artdmx && udp.port == 6454 && !(ip.src == 10.0.0.1)"));
    const std::vector<PacketRecord> records = mixedRecords(4096);
    qint64 matched = 0;
    for (auto _ : state) {
        for (const PacketRecord &r : records)
            matched += filter.root->match(r);
        benchmark::DoNotOptimize(matched);
    }
    state.SetItemsProcessed(state.iterations() * qint64(records.size()));
    state.SetLabel("target >= 20M records/s");
}
BENCHMARK(BM_FilterEvaluation);

void BM_JournalAppendSpooling(benchmark::State &state)
{
    QTemporaryDir dir;
    PacketJournal journal;
    journal.startSpool(dir.filePath(QStringLiteral("bench.tlog")), nullptr);
    // 64 different frames on one stream: consecutive ones differ, so none is collapsed.
    std::vector<QByteArray> frames;
    for (int i = 0; i < 64; ++i)
        frames.push_back(makeArtDmx(1, quint8(i), 512, quint8(i)));
    PacketEvent e;
    e.localIp = 0x0A0000FE;
    e.localPort = 6454;
    e.peerIp = 0x0A000001;
    e.peerPort = 6454;
    size_t i = 0;
    for (auto _ : state) {
        e.bytes = frames[i++ & 63];
        benchmark::DoNotOptimize(journal.append(e));
    }
    journal.stopSpool();
    const JournalCounters c = journal.counters();
    state.SetItemsProcessed(state.iterations());
    state.counters["spooled"] = double(c.spooled);
    state.counters["notSpooled"] = double(c.spoolDropped);
    state.SetLabel("target >= 5M records/s");
}
BENCHMARK(BM_JournalAppendSpooling);

void BM_JournalAppendCollapsed(benchmark::State &state)
{
    PacketJournal journal;
    const QByteArray frame = makeArtDmx(1, 1, 512, 0);
    PacketEvent e;
    e.bytes = frame;
    for (auto _ : state)
        benchmark::DoNotOptimize(journal.append(e));
    state.SetItemsProcessed(state.iterations());
    state.SetLabel("repeated frame, collapsed; target >= 5M records/s");
}
BENCHMARK(BM_JournalAppendCollapsed);

void BM_PcapngExport1M(benchmark::State &state)
{
    const std::vector<PacketRecord> records = mixedRecords(1000000);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bench.pcapng"));
    for (auto _ : state) {
        QFile file(path);
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        benchmark::DoNotOptimize(writePcapng(records, &file, nullptr));
        file.close();
    }
    state.SetItemsProcessed(state.iterations() * qint64(records.size()));
    state.SetBytesProcessed(state.iterations() * QFile(path).size());
    state.SetLabel("target: 1M records < 1 s (to a file)");
}
BENCHMARK(BM_PcapngExport1M)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

BENCHMARK_MAIN();
