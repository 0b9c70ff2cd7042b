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
                                        << QStringLiteral("talu-cli capture: the output must end in .tlog, .pcapng, "
                                                          ".csv or .txt.\n");
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
