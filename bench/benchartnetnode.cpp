// The node's own cost per received ArtDmx, without the kernel: datagrams are
// handed in through a socket stub in batches the way readyRead drains them.
#include "artnet/artnetnode.h"

#include <benchmark/benchmark.h>

#include <deque>

namespace {

class StubSocket final : public DatagramSocket
{
public:
    QVector<QByteArray> batch;
    int next = 0;
    std::function<void()> readyRead;

    bool bind(const QHostAddress &, quint16, int) override { return true; }
    QString errorString() const override { return {}; }
    void setReadyReadHandler(std::function<void()> handler) override { readyRead = std::move(handler); }
    bool hasPendingDatagrams() const override { return next < batch.size(); }
    qint64 readDatagram(char *buffer, qint64, QHostAddress *sender, quint16 *port) override
    {
        const QByteArray &d = batch.at(next++);
        std::memcpy(buffer, d.constData(), size_t(d.size()));
        *sender = QHostAddress(QStringLiteral("192.0.2.2"));
        *port = 6454;
        return d.size();
    }
    qint64 writeDatagram(QByteArrayView bytes, const QHostAddress &, quint16) override { return bytes.size(); }
};

void BM_NodeReceivesArtDmx(benchmark::State &state)
{
    StubSocket *socket = nullptr;
    ArtNetNode node([&socket] {
        auto s = std::make_unique<StubSocket>();
        socket = s.get();
        return s;
    }, nullptr);
    node.start(QHostAddress());
    quint64 delivered = 0;
    QObject::connect(&node, &ArtNetNode::dmxReceived, [&delivered](quint16, const QByteArray &data, const QHostAddress &) {
        delivered += quint64(data.size());
    });
    // 2048 universes in turn, sequence numbers on: the benchmark's load.
    for (int u = 0; u < 2048; ++u)
        socket->batch.append(ArtNet::buildDmx(quint16(u), quint8(u % 255 + 1), QByteArray(512, char(u))));
    for (auto _ : state) {
        socket->next = 0;
        node.onReadyRead();
    }
    benchmark::DoNotOptimize(delivered);
    state.SetItemsProcessed(state.iterations() * 2048);
    state.counters["ns_per_packet"] =
        benchmark::Counter(double(state.iterations() * 2048), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.SetLabel("node work per ArtDmx; target: well under 3 us with the kernel and the writer on top");
}
BENCHMARK(BM_NodeReceivesArtDmx)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
