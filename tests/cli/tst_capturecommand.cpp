#include "artnet/artnetpacket.h"
#include "clirunner.h"
#include "cliprocess.h"
#include "netnsguard.h"
#include "packetlog/logfiles.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUdpSocket>
#include <QtTest>

// talu-cli capture on the private namespace's veth beside tshark: both must hold the same packets.

using namespace PacketLog;
using TestCli::waitForText;

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
        wireshark.start(tshark, {"-i", "talu1", "-f", "udp port 6454", "-w", theirs});
        QByteArray wiresharkSaid, captureSaid;
        QVERIFY2(waitForText(wireshark, "Capturing on", &wiresharkSaid), wiresharkSaid.constData());
        QProcess capture;
        const QString count = QString::number(kPackets);
        TestCli::start(capture, {"capture", "-i", "talu1", "-o", ours, "--count", count, "--json"});
        QVERIFY2(waitForText(capture, "Capturing on talu1 (UDP port 6454)...", &captureSaid),
                 captureSaid.constData());

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
        QCOMPARE(report.value("records").toInteger(), kPackets);
        QCOMPARE(report.value("saved").toInteger(), kPackets);
        QCOMPARE(report.value("dropped").toInteger(), 0);
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
            const qint64 apartNs = x.timeNs - y.timeNs;
            QVERIFY2(std::abs(apartNs) < 5'000'000, qPrintable(QString::number(apartNs)));
        }
    }

    // Recorded live and captured then converted, one stream gives one recording; diff finds a changed byte.
    void captureConvertsToWhatTheLiveRecorderWrote()
    {
        QTemporaryDir dir;
        const QString live = dir.filePath(QStringLiteral("live.tpx"));
        const QString captured = dir.filePath(QStringLiteral("site.pcap")); // whole packets
        const QString converted = dir.filePath(QStringLiteral("converted.tpx"));
        QProcess listen, capture;
        TestCli::start(listen, {"listen", "--address", "192.0.2.2", "--record", live, "--seconds", "4"});
        TestCli::start(capture, {"capture", "-i", "talu1", "-o", captured, "--seconds", "4"});
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

        const TestCli::Run convert = TestCli::run({"convert", captured, "-o", converted, "--json"});
        QCOMPARE(convert.exitCode, 0);
        QCOMPARE(convert.json().value("dmxPackets").toInteger(), 120);
        QCOMPARE(convert.json().value("frames").toInteger(), 30);
        const TestCli::Run same = TestCli::run({"diff", live, converted, "--json"});
        QVERIFY2(same.exitCode == 0, same.out.constData());
        QCOMPARE(same.json().value("framesA").toInteger(), 30);
        QCOMPARE(same.json().value("framesB").toInteger(), 30);
        // The capture itself compares too (converted on the way).
        QCOMPARE(TestCli::run({"diff", live, captured}).exitCode, 0);

        // One byte changed: frame 17, universe 2, channel 100 (records of 18 + 512 + 2 bytes).
        QFile file(converted);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const qint64 at = (17 * 4 + 2) * (18 + 512 + 2) + 18 + 99;
        file.seek(at);
        const char old = file.read(1).at(0);
        file.seek(at);
        file.write(QByteArray(1, char(old ^ 0x5A)));
        file.close();
        const TestCli::Run changed = TestCli::run({"diff", live, converted, "--json"});
        QCOMPARE(changed.exitCode, 1);
        const QJsonObject first = changed.json().value("firstDifference").toObject();
        QCOMPARE(changed.json().value("differingFrames").toInteger(), 1);
        QCOMPARE(first.value("frame").toInteger(), 17);
        QCOMPARE(first.value("portAddress").toInteger(), 2);
        QCOMPARE(first.value("channel").toInteger(), 100);
        QCOMPARE(first.value("a").toInteger(), quint8(old));
        QCOMPARE(first.value("b").toInteger(), quint8(old ^ 0x5A));
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        QTest::newRow("no such adapter") << QStringList{"-i", "nosuch0", "-o", "x.tlog"} << 1
                                         << "error: There is no adapter nosuch0 to capture on.\n";
        QTest::newRow("unknown suffix")
            << QStringList{"-i", "talu1", "-o", "x.bin"} << 2
            << "talu-cli capture: the output must end in .pcap, .tlog, .pcapng, .csv or .txt.\n";
    }
    void refusals()
    {
        QFETCH(QStringList, arguments);
        QTemporaryDir dir;
        QDir::setCurrent(dir.path());
        const TestCli::Run run = TestCli::run(QStringList{"capture"} + arguments);
        QTEST(run.exitCode, "exitCode");
        QTEST(QString::fromUtf8(run.err), "message");
        QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("x.tlog"))));
    }
};

QTEST_GUILESS_MAIN(TestCaptureCommand)
#include "tst_capturecommand.moc"
