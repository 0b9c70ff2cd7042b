#include "artnet/artnetpacket.h"
#include "clirunner.h"
#include "netnsguard.h"
#include "packetlog/logfiles.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUdpSocket>
#include <QtTest>

// talu-cli capture on the veth inside the private namespace, with tshark
// capturing beside it: both must hold the same Art-Net packets.

using namespace PacketLog;

namespace {

bool waitForText(QProcess &process, const QByteArray &text, QByteArray *seen)
{
    QElapsedTimer t;
    t.start();
    while (!seen->contains(text) && t.elapsed() < 15000 && process.state() != QProcess::NotRunning) {
        process.waitForReadyRead(200);
        *seen += process.readAllStandardError();
    }
    return seen->contains(text);
}

} // namespace

class TestCaptureCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TALU_REQUIRE_PRIVATE_NAMESPACE(); }

    void capturesWhatTsharkCaptures()
    {
        const QString tshark = QStandardPaths::findExecutable(QStringLiteral("tshark"));
        if (tshark.isEmpty())
            QSKIP("tshark is not installed");
        QTemporaryDir dir;
        const QString theirs = dir.filePath(QStringLiteral("tshark.pcapng"));
        const QString ours = dir.filePath(QStringLiteral("ours.pcapng"));
        constexpr int kPackets = 300;

        QProcess wireshark;
        wireshark.start(tshark, {QStringLiteral("-i"), QStringLiteral("talu1"), QStringLiteral("-f"),
                                 QStringLiteral("udp port 6454"), QStringLiteral("-w"), theirs});
        QByteArray wiresharkSaid;
        QVERIFY2(waitForText(wireshark, "Capturing on", &wiresharkSaid), wiresharkSaid.constData());
        QProcess capture;
        capture.start(QStringLiteral(TALU_CLI_PATH),
                      {QStringLiteral("capture"), QStringLiteral("-i"), QStringLiteral("talu1"), QStringLiteral("-o"),
                       ours, QStringLiteral("--count"), QString::number(kPackets), QStringLiteral("--json")});
        QByteArray captureSaid;
        QVERIFY2(waitForText(capture, "Capturing on talu1 (UDP port 6454)...", &captureSaid), captureSaid.constData());

        // A controller on talu0 broadcasting to the segment: the packets cross the veth to talu1.
        QUdpSocket sender;
        QVERIFY(sender.bind(QHostAddress(QStringLiteral("192.0.2.1")), 0));
        const QHostAddress segment(QStringLiteral("192.0.2.255"));
        for (int i = 0; i < kPackets; ++i) {
            const QByteArray data(int(2 + i % 511), char(i));
            const QByteArray packet = i % 50 == 0 ? ArtNet::buildPoll()
                                                  : ArtNet::buildDmx(quint16(i % 7), quint8(i % 255 + 1), data);
            QCOMPARE(sender.writeDatagram(packet, segment, 6454), qint64(packet.size()));
            if (i % 20 == 0)
                QTest::qWait(2); // a pace the veth takes without dropping
        }
        QVERIFY(capture.waitForFinished(15000));
        QCOMPARE(capture.exitCode(), 0);
        const QJsonObject report = QJsonDocument::fromJson(capture.readAllStandardOutput()).object();
        QCOMPARE(report.value(QStringLiteral("records")).toInteger(), kPackets);
        QCOMPARE(report.value(QStringLiteral("saved")).toInteger(), kPackets);
        QCOMPARE(report.value(QStringLiteral("dropped")).toInteger(), 0);
        QTest::qWait(300);
        wireshark.terminate();
        QVERIFY(wireshark.waitForFinished(10000));

        const LogLoadResult a = loadPacketLog(ours);
        const LogLoadResult b = loadPacketLog(theirs);
        QVERIFY(a.ok && b.ok);
        QCOMPARE(int(a.records.size()), kPackets);
        QCOMPARE(a.records.size(), b.records.size());
        for (size_t i = 0; i < a.records.size(); ++i) {
            const PacketRecord &x = a.records[i];
            const PacketRecord &y = b.records[i];
            QCOMPARE(x.srcIp, y.srcIp);
            QCOMPARE(x.dstIp, y.dstIp);
            QCOMPARE(x.srcPort, y.srcPort);
            QCOMPARE(x.length, y.length);
            QCOMPARE(x.headBytes(), y.headBytes());
            QCOMPARE(x.source, RecordSource::Capture);
            // Both stamp the same frame on the same adapter.
            QVERIFY2(std::abs(x.timeNs - y.timeNs) < 5'000'000, qPrintable(QString::number(x.timeNs - y.timeNs)));
        }
    }

    // The live recorder and a capture of the same stream, converted, give the same recording; diff says so,
    // and finds a one-byte change where it is.
    void captureConvertsToWhatTheLiveRecorderWrote()
    {
        QTemporaryDir dir;
        const QString live = dir.filePath(QStringLiteral("live.tpx"));
        const QString captured = dir.filePath(QStringLiteral("site.pcap")); // whole packets
        const QString converted = dir.filePath(QStringLiteral("converted.tpx"));
        QProcess listen, capture;
        listen.start(QStringLiteral(TALU_CLI_PATH),
                     {QStringLiteral("listen"), QStringLiteral("--address"), QStringLiteral("192.0.2.2"),
                      QStringLiteral("--record"), live, QStringLiteral("--seconds"), QStringLiteral("4")});
        capture.start(QStringLiteral(TALU_CLI_PATH), {QStringLiteral("capture"), QStringLiteral("-i"),
                                                      QStringLiteral("talu1"), QStringLiteral("-o"), captured,
                                                      QStringLiteral("--seconds"), QStringLiteral("4")});
        QByteArray listenSaid, captureSaid;
        QVERIFY2(waitForText(listen, "Listening on", &listenSaid), listenSaid.constData());
        QVERIFY2(waitForText(capture, "Capturing on talu1", &captureSaid), captureSaid.constData());

        // 30 frames of four universes at 40 fps from a controller on talu0, broadcast to the segment.
        QUdpSocket controller;
        QVERIFY(controller.bind(QHostAddress(QStringLiteral("192.0.2.1")), 0));
        for (int frame = 0; frame < 30; ++frame) {
            for (quint16 universe = 0; universe < 4; ++universe) {
                QByteArray data(512, '\0');
                for (int c = 0; c < data.size(); ++c)
                    data[c] = char((frame * 7 + universe * 31 + c) & 0xFF);
                controller.writeDatagram(ArtNet::buildDmx(universe, quint8(frame % 255 + 1), data),
                                         QHostAddress(QStringLiteral("192.0.2.255")), 6454);
            }
            QTest::qWait(25);
        }
        QVERIFY(listen.waitForFinished(15000) && capture.waitForFinished(15000));
        QCOMPARE(capture.exitCode(), 0);

        const TestCli::Run convert = TestCli::run(
            {QStringLiteral("convert"), captured, QStringLiteral("-o"), converted, QStringLiteral("--json")});
        QCOMPARE(convert.exitCode, 0);
        QCOMPARE(convert.json().value(QStringLiteral("dmxPackets")).toInteger(), 120);
        QCOMPARE(convert.json().value(QStringLiteral("frames")).toInteger(), 30);
        const TestCli::Run same = TestCli::run({QStringLiteral("diff"), live, converted, QStringLiteral("--json")});
        QVERIFY2(same.exitCode == 0, same.out.constData());
        QCOMPARE(same.json().value(QStringLiteral("framesA")).toInteger(), 30);
        QCOMPARE(same.json().value(QStringLiteral("framesB")).toInteger(), 30);
        // The capture itself compares too (converted on the way).
        QCOMPARE(TestCli::run({QStringLiteral("diff"), live, captured}).exitCode, 0);

        // One byte changed: frame 17, universe 2, channel 100.
        QFile file(converted);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const qint64 recordBytes = 18 + 512 + 2;
        const qint64 at = (17 * 4 + 2) * recordBytes + 18 + 99;
        file.seek(at);
        const char old = file.read(1).at(0);
        file.seek(at);
        file.write(QByteArray(1, char(old ^ 0x5A)));
        file.close();
        const TestCli::Run changed = TestCli::run({QStringLiteral("diff"), live, converted, QStringLiteral("--json")});
        QCOMPARE(changed.exitCode, 1);
        const QJsonObject first = changed.json().value(QStringLiteral("firstDifference")).toObject();
        QCOMPARE(changed.json().value(QStringLiteral("differingFrames")).toInteger(), 1);
        QCOMPARE(first.value(QStringLiteral("frame")).toInteger(), 17);
        QCOMPARE(first.value(QStringLiteral("portAddress")).toInteger(), 2);
        QCOMPARE(first.value(QStringLiteral("channel")).toInteger(), 100);
        QCOMPARE(first.value(QStringLiteral("a")).toInteger(), quint8(old));
        QCOMPARE(first.value(QStringLiteral("b")).toInteger(), quint8(old ^ 0x5A));
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        QTest::newRow("no such adapter") << QStringList{QStringLiteral("-i"), QStringLiteral("nosuch0"),
                                                        QStringLiteral("-o"), QStringLiteral("x.tlog")}
                                         << 1 << QStringLiteral("error: There is no adapter nosuch0 to capture on.\n");
        QTest::newRow("unknown suffix") << QStringList{QStringLiteral("-i"), QStringLiteral("talu1"),
                                                       QStringLiteral("-o"), QStringLiteral("x.bin")}
                                        << 2
                                        << QStringLiteral("talu-cli capture: the output must end in .pcap, .tlog, "
                                                          ".pcapng, .csv or .txt.\n");
    }
    void refusals()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        QTemporaryDir dir;
        QDir::setCurrent(dir.path());
        const TestCli::Run run = TestCli::run(QStringList{QStringLiteral("capture")} + arguments);
        QCOMPARE(run.exitCode, exitCode);
        QCOMPARE(QString::fromUtf8(run.err), message);
        QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("x.tlog"))));
    }
};

QTEST_GUILESS_MAIN(TestCaptureCommand)
#include "tst_capturecommand.moc"
