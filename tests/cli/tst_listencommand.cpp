#include "artnet/artnetpacket.h"
#include "clirunner.h"
#include "packetlog/logfiles.h"
#include "recording/recording.h"

#include "netnsguard.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QUdpSocket>

#include <algorithm>
#include "packetlog/logfiles.h"

#include <QtTest>

// talu-cli listen as a show machine runs it: a process, polled and fed by a
// controller on loopback. Network label: runs inside the private namespace.

using namespace ArtNet;

namespace {

const QHostAddress kLoopback(QHostAddress::LocalHost);

bool waitForListening(QProcess &process, QByteArray *stderrText)
{
    process.setReadChannel(QProcess::StandardError);
    QElapsedTimer t;
    t.start();
    while (!stderrText->contains("Listening on") && t.elapsed() < 10000) {
        process.waitForReadyRead(200);
        *stderrText += process.readAllStandardError();
        if (process.state() == QProcess::NotRunning)
            return false;
    }
    return stderrText->contains("Listening on");
}

} // namespace

class TestListenCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TALU_REQUIRE_PRIVATE_NAMESPACE(); }
    void answersPollAndReportsJson();
    void advertisesThePatchUniverses();
    void recordsEveryDmxPacket();
    void refusals_data();
    void refusals();
};

void TestListenCommand::answersPollAndReportsJson()
{
    QProcess listen;
    listen.start(QStringLiteral(TALU_CLI_PATH),
                 {QStringLiteral("listen"), QStringLiteral("--seconds"), QStringLiteral("3"), QStringLiteral("--json"),
                  QStringLiteral("--universes"), QStringLiteral("1,0x12"), QStringLiteral("--short-name"),
                  QStringLiteral("TOVA")});
    QByteArray err;
    QVERIFY2(waitForListening(listen, &err), err.constData());
    QVERIFY(err.contains("Listening on 0.0.0.0:6454, advertising 2 universe(s)."));
    // The same stream captured beside the node, for the health figures from a file.
    QTemporaryDir dir;
    const QString captured = dir.filePath(QStringLiteral("stream.pcap"));
    QProcess capture;
    capture.start(QStringLiteral(TALU_CLI_PATH), {QStringLiteral("capture"), QStringLiteral("-i"), QStringLiteral("lo"),
                                                  QStringLiteral("-o"), captured, QStringLiteral("--seconds"),
                                                  QStringLiteral("2.5")});
    capture.setReadChannel(QProcess::StandardError);
    QByteArray captureSaid;
    while (!captureSaid.contains("Capturing on lo") && capture.waitForReadyRead(5000))
        captureSaid += capture.readAllStandardError();

    QUdpSocket controller;
    QVERIFY(controller.bind(kLoopback, 0));
    controller.writeDatagram(buildPoll(), kLoopback, kDefaultPort);
    QVector<int> swOut;
    while (swOut.size() < 2 && controller.waitForReadyRead(3000)) {
        QByteArray reply(int(controller.pendingDatagramSize()), '\0');
        controller.readDatagram(reply.data(), reply.size());
        QCOMPARE(classifyDatagram(reply).kind, DatagramKind::PollReply);
        QCOMPARE(reply.size(), kPollReplySize);
        QCOMPARE(reply.mid(26, 5), QByteArray("TOVA\0", 5));
        swOut.append(reply.at(190));
    }
    QCOMPARE(swOut, (QVector<int>{1, 2}));

    for (int i = 1; i <= 10; ++i)
        controller.writeDatagram(buildDmx(i % 2 ? 0x0012 : 0x0003, quint8(i), QByteArray(512, 'd')), kLoopback,
                                 kDefaultPort);
    controller.writeDatagram(buildDmx(0x0012, 1, QByteArray(512, 'd')), kLoopback, kDefaultPort); // 9 then 1
    controller.writeDatagram(QByteArray(5, 'x'), kLoopback, kDefaultPort);

    QVERIFY(listen.waitForFinished(10000));
    QCOMPARE(listen.exitCode(), 0);
    QJsonParseError parseError;
    const QJsonObject report = QJsonDocument::fromJson(listen.readAllStandardOutput(), &parseError).object();
    QCOMPARE(parseError.error, QJsonParseError::NoError);
    QCOMPARE(report.value(QStringLiteral("artPolls")).toInt(), 1);
    QCOMPARE(report.value(QStringLiteral("dmxPackets")).toInt(), 11);
    QCOMPARE(report.value(QStringLiteral("sequenceErrors")).toInt(), 1);
    QCOMPARE(report.value(QStringLiteral("ignored")).toInt(), 1);
    QCOMPARE(report.value(QStringLiteral("universes")).toArray(), (QJsonArray{3, 0x12}));
    QCOMPARE(report.value(QStringLiteral("source")).toString(), QStringLiteral("Art-Net"));
    QVERIFY(report.contains(QStringLiteral("packetsPerSecond")));
    QVERIFY(report.value(QStringLiteral("seconds")).toDouble() >= 2.9);

    // Health: universe 3 got 2, 4, ... 10 (four numbers lost); 0x12 got 1, 3, ... 9 and then 1 again (late).
    const QJsonArray health = report.value(QStringLiteral("universeHealth")).toArray();
    QCOMPARE(health.size(), 2);
    const auto figures = [](const QJsonValue &u) {
        return QList<qint64>{u[QStringLiteral("portAddress")].toInteger(), u[QStringLiteral("packets")].toInteger(),
                             u[QStringLiteral("lost")].toInteger(), u[QStringLiteral("outOfOrder")].toInteger(),
                             u[QStringLiteral("duplicates")].toInteger()};
    };
    QCOMPARE(figures(health[0]), (QList<qint64>{3, 5, 4, 0, 0}));
    QCOMPARE(figures(health[1]), (QList<qint64>{0x12, 6, 4, 1, 0}));
    QCOMPARE(health[1][QStringLiteral("sources")][0][QStringLiteral("address")].toString(), QStringLiteral("127.0.0.1"));
    QCOMPARE(report.value(QStringLiteral("artSync"))[QStringLiteral("seen")].toBool(), false);
    // The capture of the same stream gives the same figures.
    QVERIFY(capture.waitForFinished(10000));
    const TestCli::Run fromFile = TestCli::run({QStringLiteral("health"), captured, QStringLiteral("--json")});
    QCOMPARE(fromFile.exitCode, 0);
    const QJsonArray fileHealth = fromFile.json().value(QStringLiteral("universeHealth")).toArray();
    QCOMPARE(fileHealth.size(), 2);
    QCOMPARE(figures(fileHealth[0]), figures(health[0]));
    QCOMPARE(figures(fileHealth[1]), figures(health[1]));
}

void TestListenCommand::advertisesThePatchUniverses()
{
    QTemporaryDir dir;
    const QString patch = dir.filePath(QStringLiteral("demo.tpatch"));
    QCOMPARE(TestCli::run({"generate", "demo-patch", patch}).exitCode, 0);
    const TestCli::Run listen = TestCli::run({"listen", "--seconds", "0", "--patch", patch, "--port", "6460"});
    QCOMPARE(listen.exitCode, 0);
    const QString err = QString::fromUtf8(listen.err);
    const QRegularExpression count(QStringLiteral("advertising (\\d+) universe"));
    const QRegularExpressionMatch m = count.match(err);
    QVERIFY2(m.hasMatch(), qPrintable(err));
    QVERIFY(m.captured(1).toInt() > 0);
}

void TestListenCommand::recordsEveryDmxPacket()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("take.tpx"));
    const QString logPath = dir.filePath(QStringLiteral("take.tlog"));
    QProcess listen;
    listen.start(QStringLiteral(TALU_CLI_PATH),
                 {QStringLiteral("listen"), QStringLiteral("--seconds"), QStringLiteral("3"), QStringLiteral("--json"),
                  QStringLiteral("--port"), QStringLiteral("6461"), QStringLiteral("--record"), path,
                  QStringLiteral("--fps"), QStringLiteral("25"), QStringLiteral("--log"), logPath});
    QByteArray err;
    QVERIFY2(waitForListening(listen, &err), err.constData());

    // Eight frames of three universes; a repeated universe starts the next frame.
    QUdpSocket controller;
    QVERIFY(controller.bind(kLoopback, 0));
    for (int frame = 0; frame < 8; ++frame) {
        for (quint16 universe : {1, 2, 3})
            controller.writeDatagram(buildDmx(universe, quint8(frame + 1), QByteArray(512, char(frame * 16 + universe))),
                                     kLoopback, 6461);
        QTest::qWait(20);
    }
    QVERIFY(listen.waitForFinished(10000));
    QCOMPARE(listen.exitCode(), 0);
    const QJsonObject report = QJsonDocument::fromJson(listen.readAllStandardOutput()).object();
    QCOMPARE(report.value(QStringLiteral("dmxPackets")).toInt(), 24);
    QCOMPARE(report.value(QStringLiteral("records")).toInt(), 24);
    QCOMPARE(report.value(QStringLiteral("frames")).toInt(), 8);
    QCOMPARE(report.value(QStringLiteral("bytes")).toInt(), 24 * (18 + 512 + 2));
    QCOMPARE(report.value(QStringLiteral("path")).toString(), path);
    QVERIFY(report.value(QStringLiteral("recordError")).isNull());

    // What was recorded reads back frame by frame, with the bytes that were sent.
    Recording recording;
    const RecordingLoadResult loaded = recording.load(path);
    QVERIFY(loaded.ok);
    QCOMPARE(recording.records().size(), 24);
    QCOMPARE(recording.recordsPerFrame(), 3);
    QCOMPARE(recording.frameCount(), 8);
    const RecordRef last = recording.recordAt(7, 2);
    QCOMPARE(last.universe, quint16(3));
    QCOMPARE(recording.bytes().at(last.dataOffset), char(7 * 16 + 3));

    // The packet log has every one of them too, beside the node's own replies.
    const PacketLog::LogLoadResult log = PacketLog::loadPacketLog(logPath);
    QVERIFY(log.ok);
    const auto dmxIn = std::count_if(log.records.cbegin(), log.records.cend(), [](const PacketLog::PacketRecord &r) {
        return r.direction == PacketLog::Direction::In && r.isDmx();
    });
    QCOMPARE(dmxIn, 24);
    QCOMPARE(report.value(QStringLiteral("logRecords")).toInt(), int(log.records.size()));
    QCOMPARE(report.value(QStringLiteral("logDropped")).toInt(), 0);
    QCOMPARE(report.value(QStringLiteral("logCollapsed")).toInt(), 0); // every frame differs
    QVERIFY(report.value(QStringLiteral("logError")).isNull());
    QCOMPARE(report.value(QStringLiteral("logPath")).toString(), logPath);
}

void TestListenCommand::refusals_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    QTest::newRow("bad universe") << QStringList{"--universes", "1,0x8000"} << 2
                                  << QStringLiteral("\"0x8000\" is not a Port-Address");
    QTest::newRow("both sources") << QStringList{"--universes", "1", "--patch", "x"} << 2
                                  << QStringLiteral("not both");
    QTest::newRow("bad port") << QStringList{"--port", "70000"} << 2 << QStringLiteral("not a port number");
    QTest::newRow("missing patch") << QStringList{"--patch", "/nonexistent/x.tpatch"} << 1 << QString();
    QTest::newRow("log not writable") << QStringList{"--log", "/nonexistent/x.tlog", "--seconds", "1"} << 1
                                      << QStringLiteral("talu-cli listen: Cannot write the packet log /nonexistent/x.tlog: ");
    QTest::newRow("address not local") << QStringList{"--address", "192.0.2.99", "--seconds", "1"} << 1
                                       << QStringLiteral("cannot listen on 192.0.2.99:6454 - ");
}

void TestListenCommand::refusals()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const TestCli::Run listen = TestCli::run(QStringList{"listen"} + arguments, 10000);
    QCOMPARE(listen.exitCode, exitCode);
    const QString err = QString::fromUtf8(listen.err);
    QVERIFY2(err.contains(message), qPrintable(err));
}

QTEST_GUILESS_MAIN(TestListenCommand)
#include "tst_listencommand.moc"
