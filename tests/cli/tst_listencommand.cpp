#include "artnet/artnetpacket.h"
#include "clirunner.h"
#include "cliprocess.h"
#include "packetlog/logfiles.h"
#include "recording/recording.h"

#include "netnsguard.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QUdpSocket>
#include <QtTest>

#include <algorithm>

// talu-cli listen as a show machine runs it, fed by a controller on loopback in the private namespace.

using namespace ArtNet;
using TestCli::waitForText;

namespace {

const QHostAddress kLoopback(QHostAddress::LocalHost);

// A universe's health figures: Port-Address, packets, lost, out of order, duplicates.
QList<qint64> figures(const QJsonValue &u)
{
    return {u["portAddress"].toInteger(), u["packets"].toInteger(), u["lost"].toInteger(),
            u["outOfOrder"].toInteger(), u["duplicates"].toInteger()};
}

} // namespace

class TestListenCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TALU_REQUIRE_PRIVATE_NAMESPACE(); }

    void answersPollAndReportsJson()
    {
        QProcess listen;
        TestCli::start(listen, {"listen", "--seconds", "3", "--json", "--universes", "1,0x12", "--short-name",
                                "TOVA"});
        QByteArray err, captureSaid;
        QVERIFY2(waitForText(listen, "Listening on", &err), err.constData());
        QVERIFY(err.contains("Listening on 0.0.0.0:6454, advertising 2 universe(s)."));
        // The same stream captured beside the node, for the health figures from a file.
        QTemporaryDir dir;
        const QString captured = dir.filePath(QStringLiteral("stream.pcap"));
        QProcess capture;
        TestCli::start(capture, {"capture", "-i", "lo", "-o", captured, "--seconds", "2.5"});
        waitForText(capture, "Capturing on lo", &captureSaid);

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

        const QByteArray data(512, 'd');
        for (int i = 1; i <= 10; ++i)
            controller.writeDatagram(buildDmx(i % 2 ? 0x12 : 0x03, quint8(i), data), kLoopback, kDefaultPort);
        controller.writeDatagram(buildDmx(0x0012, 1, data), kLoopback, kDefaultPort); // 9 then 1
        controller.writeDatagram(QByteArray(5, 'x'), kLoopback, kDefaultPort);

        QVERIFY(listen.waitForFinished(10000));
        QCOMPARE(listen.exitCode(), 0);
        QJsonParseError parseError;
        const QJsonDocument json = QJsonDocument::fromJson(listen.readAllStandardOutput(), &parseError);
        const QJsonObject report = json.object();
        QCOMPARE(parseError.error, QJsonParseError::NoError);
        QCOMPARE(report.value("artPolls").toInt(), 1);
        QCOMPARE(report.value("dmxPackets").toInt(), 11);
        QCOMPARE(report.value("sequenceErrors").toInt(), 1);
        QCOMPARE(report.value("ignored").toInt(), 1);
        QCOMPARE(report.value("universes").toArray(), (QJsonArray{3, 0x12}));
        QCOMPARE(report.value("source").toString(), QStringLiteral("Art-Net"));
        QVERIFY(report.contains(QStringLiteral("packetsPerSecond")));
        QVERIFY(report.value("seconds").toDouble() >= 2.9);

        // Health: universe 3 got 2, 4, ... 10 (four lost); 0x12 got 1, 3, ... 9 and then 1 again (late).
        const QJsonArray health = report.value("universeHealth").toArray();
        QCOMPARE(health.size(), 2);
        QCOMPARE(figures(health[0]), (QList<qint64>{3, 5, 4, 0, 0}));
        QCOMPARE(figures(health[1]), (QList<qint64>{0x12, 6, 4, 1, 0}));
        QCOMPARE(health[1]["sources"][0]["address"].toString(), QStringLiteral("127.0.0.1"));
        QCOMPARE(report.value("artSync")["seen"].toBool(), false);
        // The capture of the same stream gives the same figures.
        QVERIFY(capture.waitForFinished(10000));
        const TestCli::Run fromFile = TestCli::run({"health", captured, "--json"});
        QCOMPARE(fromFile.exitCode, 0);
        const QJsonArray fileHealth = fromFile.json().value("universeHealth").toArray();
        QCOMPARE(fileHealth.size(), 2);
        QCOMPARE(figures(fileHealth[0]), figures(health[0]));
        QCOMPARE(figures(fileHealth[1]), figures(health[1]));
    }

    void advertisesThePatchUniverses()
    {
        // The bundled demo patch is what the generator writes (tst_talucli checks that).
        const TestCli::Run listen = TestCli::run(
            {"listen", "--seconds", "0", "--patch", TestCli::example("demo.tpatch"), "--port", "6460"});
        QCOMPARE(listen.exitCode, 0);
        const QString err = QString::fromUtf8(listen.err);
        const QRegularExpression count(QStringLiteral("advertising (\\d+) universe"));
        const QRegularExpressionMatch m = count.match(err);
        QVERIFY2(m.hasMatch(), qPrintable(err));
        QVERIFY(m.captured(1).toInt() > 0);
    }

    void recordsEveryDmxPacket()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("take.tpx"));
        const QString logPath = dir.filePath(QStringLiteral("take.tlog"));
        QProcess listen;
        TestCli::start(listen, {"listen", "--seconds", "3", "--json", "--port", "6461", "--record", path,
                                "--fps", "25", "--log", logPath});
        QByteArray err;
        QVERIFY2(waitForText(listen, "Listening on", &err), err.constData());

        // Eight frames of three universes; a repeated universe starts the next frame.
        QUdpSocket controller;
        QVERIFY(controller.bind(kLoopback, 0));
        for (int frame = 0; frame < 8; ++frame) {
            for (quint16 universe : {1, 2, 3}) {
                const QByteArray data(512, char(frame * 16 + universe));
                controller.writeDatagram(buildDmx(universe, quint8(frame + 1), data), kLoopback, 6461);
            }
            QTest::qWait(20);
        }
        QVERIFY(listen.waitForFinished(10000));
        QCOMPARE(listen.exitCode(), 0);
        const QJsonObject report = QJsonDocument::fromJson(listen.readAllStandardOutput()).object();
        QCOMPARE(report.value("dmxPackets").toInt(), 24);
        QCOMPARE(report.value("records").toInt(), 24);
        QCOMPARE(report.value("frames").toInt(), 8);
        QCOMPARE(report.value("bytes").toInt(), 24 * (18 + 512 + 2));
        QCOMPARE(report.value("path").toString(), path);
        QVERIFY(report.value("recordError").isNull());

        // What was recorded reads back frame by frame, with the bytes that were sent.
        Recording recording;
        QVERIFY(recording.load(path).ok);
        QCOMPARE(recording.records().size(), 24);
        QCOMPARE(recording.recordsPerFrame(), 3);
        QCOMPARE(recording.frameCount(), 8);
        const RecordRef last = recording.recordAt(7, 2);
        QCOMPARE(last.universe, quint16(3));
        QCOMPARE(recording.bytes().at(last.dataOffset), char(7 * 16 + 3));

        // The packet log has every one of them too, beside the node's own replies.
        const PacketLog::LogLoadResult log = PacketLog::loadPacketLog(logPath);
        QVERIFY(log.ok);
        const auto isDmxIn = [](const PacketLog::PacketRecord &r) {
            return r.direction == PacketLog::Direction::In && r.isDmx();
        };
        const auto dmxIn = std::count_if(log.records.cbegin(), log.records.cend(), isDmxIn);
        QCOMPARE(dmxIn, 24);
        QCOMPARE(report.value("logRecords").toInt(), int(log.records.size()));
        QCOMPARE(report.value("logDropped").toInt(), 0);
        QCOMPARE(report.value("logCollapsed").toInt(), 0); // every frame differs
        QVERIFY(report.value("logError").isNull());
        QCOMPARE(report.value("logPath").toString(), logPath);
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        QTest::newRow("bad universe") << QStringList{"--universes", "1,0x8000"} << 2
                                      << "\"0x8000\" is not a Port-Address";
        QTest::newRow("both sources") << QStringList{"--universes", "1", "--patch", "x"} << 2 << "not both";
        QTest::newRow("bad port") << QStringList{"--port", "70000"} << 2 << "not a port number";
        QTest::newRow("missing patch") << QStringList{"--patch", "/nonexistent/x.tpatch"} << 1 << QString();
        QTest::newRow("log not writable")
            << QStringList{"--log", "/nonexistent/x.tlog", "--seconds", "1"} << 1
            << "talu-cli listen: Cannot write the packet log /nonexistent/x.tlog: ";
        QTest::newRow("address not local") << QStringList{"--address", "192.0.2.99", "--seconds", "1"} << 1
                                           << "cannot listen on 192.0.2.99:6454 - ";
    }
    void refusals()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const TestCli::Run listen = TestCli::run(QStringList{"listen"} + arguments, 10000);
        QTEST(listen.exitCode, "exitCode");
        const QString err = QString::fromUtf8(listen.err);
        QVERIFY2(err.contains(message), qPrintable(err));
    }
};

QTEST_GUILESS_MAIN(TestListenCommand)
#include "tst_listencommand.moc"
