#include "../fuzzentries.h"

#include "artnet/artnetnode.h"
#include "artnet/artnetpacket.h"
#include "packetlog/packetrecord.h"

#include <QByteArrayView>

#include <deque>

namespace {

// The node's socket seam with datagrams queued by the entry; sends are counted, never made.
class QueueSocket final : public DatagramSocket
{
public:
    std::deque<QByteArrayView> pending;
    int sent = 0;

    bool bind(const QHostAddress &, quint16, int) override { return true; }
    QString errorString() const override { return {}; }
    void setReadyReadHandler(std::function<void()>) override {}
    bool hasPendingDatagrams() const override { return !pending.empty(); }
    qint64 readDatagram(char *buffer, qint64 maxSize, QHostAddress *sender, quint16 *senderPort) override
    {
        const QByteArrayView d = pending.front();
        pending.pop_front();
        const qint64 n = std::min<qint64>(maxSize, d.size());
        std::memcpy(buffer, d.data(), size_t(n));
        *sender = QHostAddress(QStringLiteral("192.0.2.2"));
        *senderPort = ArtNet::kDefaultPort;
        return d.size(); // a real socket reports the datagram's size even when it cuts it
    }
    qint64 writeDatagram(QByteArrayView bytes, const QHostAddress &, quint16) override
    {
        ++sent;
        return bytes.size();
    }
};

class StillClock final : public MonotonicClock
{
public:
    qint64 now = 1'000'000'000'000;
    qint64 nowNs() const override { return now; }
};

// What classification promises for one datagram: DMX offsets inside the bytes.
void checkClassification(QByteArrayView d)
{
    const ArtNet::ClassifiedDatagram c = ArtNet::classifyDatagram(d);
    if (c.kind == ArtNet::DatagramKind::Dmx) {
        FUZZ_PROMISE("artnet", c.dataLength >= 1);
        FUZZ_PROMISE("artnet", c.dataLength <= 0xFFFF);
        FUZZ_PROMISE("artnet", c.dataOffset == (c.flavour == ArtNet::DmxFlavour::Kel ? ArtNet::kKelHeaderSize
                                                                                      : ArtNet::kDmxHeaderSize));
        FUZZ_PROMISE("artnet", qsizetype(c.dataOffset) + c.dataLength <= d.size());
        if (c.flavour == ArtNet::DmxFlavour::Kel)
            FUZZ_PROMISE("artnet", ArtNet::kelDeviceName(d).size() <= ArtNet::kKelNameSize);
    } else {
        FUZZ_PROMISE("artnet", c.dataLength == 0);
    }
    // The packet log classifies the same bytes for its own records.
    PacketLog::PacketRecord record;
    record.setDatagram(d);
    FUZZ_PROMISE("artnet", record.headLength <= PacketLog::PacketRecord::kHeadBytes);
    FUZZ_PROMISE("artnet", record.length == quint32(d.size()));
    (void)record.info();
}

} // namespace

// The input is a run of datagrams, each behind a two-byte big-endian length
// (a length past the end takes what is left). Each is classified on its own,
// then all of them reach a node through its socket seam, in order, so the
// sequence check, the universes seen and the poll replies see them as a
// console on the network would send them.
int fuzzArtNet(const std::uint8_t *data, std::size_t size)
{
    ensureFuzzApplication();
    std::vector<QByteArrayView> datagrams;
    std::size_t pos = 0;
    while (pos + 2 <= size) {
        const std::size_t length = std::min<std::size_t>((std::size_t(data[pos]) << 8) | data[pos + 1], size - pos - 2);
        datagrams.emplace_back(reinterpret_cast<const char *>(data + pos + 2), qsizetype(length));
        pos += 2 + length;
    }
    for (const QByteArrayView d : datagrams)
        checkClassification(d);

    StillClock clock;
    QueueSocket *socket = nullptr;
    ArtNetNode node(
        [&socket]() {
            auto s = std::make_unique<QueueSocket>();
            socket = s.get();
            return s;
        },
        &clock);
    quint64 dmxSeen = 0;
    QObject::connect(&node, &ArtNetNode::dmxReceived, [&dmxSeen](quint16 portAddress, const QByteArray &dmx) {
        FUZZ_PROMISE("artnet", !dmx.isEmpty());
        (void)portAddress;
        ++dmxSeen;
    });
    FUZZ_PROMISE("artnet", node.start(QHostAddress(QStringLiteral("192.0.2.1"))));
    for (const QByteArrayView d : datagrams)
        socket->pending.push_back(d);
    node.onReadyRead();
    const NodeStats stats = node.stats();
    FUZZ_PROMISE("artnet", stats.dmxPackets == dmxSeen);
    FUZZ_PROMISE("artnet", stats.dmxPackets + stats.artPolls + stats.ignored <= datagrams.size());
    FUZZ_PROMISE("artnet", quint64(node.universes().size()) <= dmxSeen);
    node.stop();
    return 0;
}
