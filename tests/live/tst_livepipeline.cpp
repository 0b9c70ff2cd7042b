// The live path the window and talu-cli listen share, on the node's fake
// socket: order (writer, colours, dirty flag, packet log) and a recording
// that fails.
#include "../artnet/fakenodeseams.h"
#include "../monitor/monitortestdata.h"
#include "artnet/artnetpacket.h"
#include "live/livepipeline.h"
#include "monitor/pixelcolourbuffer.h"
#include "recording/recording.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

namespace {

struct Rig
{
    FakeSocket *socket = nullptr; // owned by the node
    std::unique_ptr<LivePipeline> live;

    Rig()
    {
        auto node = std::make_unique<ArtNetNode>(
            [this] {
                auto s = std::make_unique<FakeSocket>();
                socket = s.get();
                return s;
            },
            nullptr);
        live = std::make_unique<LivePipeline>(std::move(node));
        live->node().start(QHostAddress(QStringLiteral("192.0.2.1")));
    }

    void send(quint16 portAddress, const QByteArray &data, quint8 sequence = 1)
    {
        socket->deliver({ArtNet::buildDmx(portAddress, sequence, data)}, QHostAddress(QStringLiteral("192.0.2.2")));
    }
};

} // namespace

class TestLivePipeline : public QObject
{
    Q_OBJECT
private slots:
    void packetReachesWriterColoursAndDirtyFlag();
    void failingRecordingClosesAndSaysSoOnce();
};

void TestLivePipeline::packetReachesWriterColoursAndDirtyFlag()
{
    Rig rig;
    // Pixel 0 on universe 2 (RGB at channel 1), pixel 1 on universe 3.
    const TPatch::PixelLayout layout = MonitorTestData::layoutOf(
        {MonitorTestData::square(0, 0, 4, 0, 0, 0, 2), MonitorTestData::square(5, 0, 4, 0, 1, 0, 3)});
    PixelColourBuffer colours;
    colours.setPatch(&layout.pixels);
    rig.live->setColourTarget(&colours, &layout);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("take.tpx"));
    QString error;
    QVERIFY(rig.live->startRecording(path, 40, 0, &error));
    QVERIFY(!rig.live->takeDirty());

    rig.send(2, QByteArray("\xff\x80\x00", 3));
    QVERIFY(rig.live->takeDirty());
    QVERIFY(!rig.live->takeDirty()); // taken
    QCOMPARE(colours.colours().at(0), qRgb(0xff, 0x80, 0x00));
    QCOMPARE(colours.colours().at(1), PixelColourBuffer::kDark);
    QCOMPARE(colours.universeData(2), QByteArray("\xff\x80\x00", 3));
    rig.send(9, QByteArray(512, '\x10'), 2); // not patched: recorded and kept, nothing lit
    QCOMPARE(colours.universeData(9), QByteArray(512, '\x10'));
    rig.live->stopRecording();
    QCOMPARE(rig.live->writer()->recordsWritten(), 2);

    Recording recorded;
    QVERIFY(recorded.load(path).ok);
    QCOMPARE(recorded.universes(), (QVector<quint16>{2, 9}));

    // Both datagrams are in the packet log, as the node received them.
    std::vector<PacketLog::PacketRecord> dmx;
    for (const PacketLog::PacketRecord &r : rig.live->journal().records())
        if (r.direction == PacketLog::Direction::In)
            dmx.push_back(r);
    QCOMPARE(int(dmx.size()), 2);
    QCOMPARE(dmx.at(1).portAddress, quint16(9));
    QCOMPARE(dmx.at(1).srcIp, QHostAddress(QStringLiteral("192.0.2.2")).toIPv4Address());
    QCOMPARE(dmx.at(1).dstIp, QHostAddress(QStringLiteral("192.0.2.1")).toIPv4Address());

    // A KEL controller's packets are recorded in its own flavour.
    QVERIFY(rig.live->startRecording(dir.filePath(QStringLiteral("kel.tpx")), 40, 0, &error));
    rig.socket->deliver({ArtNet::buildKelDmx("KEL6S", 9, 3, QByteArray(8, '\x20'))},
                        QHostAddress(QStringLiteral("192.0.2.2")));
    QCOMPARE(rig.live->writer()->flavour(), RecordFlavour::Kel);
}

void TestLivePipeline::failingRecordingClosesAndSaysSoOnce()
{
    Rig rig;
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("take.tpx"));
    QString error;
    QVERIFY(rig.live->startRecording(path, 40, 1, &error));
    QSignalSpy failed(rig.live.get(), &LivePipeline::recordingFailed);
    rig.send(1, QByteArray(512, '\x01'));
    QVERIFY(QFile::remove(path)); // the file vanishes under the recording
    QThread::msleep(1100);         // the writer looks for its file once a second
    for (quint8 seq = 2; seq < 6; ++seq)
        rig.send(1, QByteArray(512, char(seq)), seq);
    QCOMPARE(failed.count(), 1);
    QCOMPARE(failed.at(0).at(0).toString(), QStringLiteral("The file was removed or renamed while recording."));
    QVERIFY(!rig.live->isRecording());
    // Refused at once without a file to write, with the writer's reason.
    QVERIFY(!rig.live->startRecording(dir.filePath(QStringLiteral("no/such/folder/x.tpx")), 40, 0, &error));
    QVERIFY(!error.isEmpty());
}

QTEST_GUILESS_MAIN(TestLivePipeline)
#include "tst_livepipeline.moc"
