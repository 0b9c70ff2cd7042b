#include "cli/samplelog.h"
#include "packetlog/packetrecord.h"
#include "packetlog/textexport.h"

#include <QtTest>

using namespace PacketLog;

// KEL framing: two bytes and a device name, then an ArtDmx with OpCode 0x5300 (LE) 12 bytes in; 4 channels.
static QByteArray kel(quint16 portAddress, quint8 sequence)
{
    return QByteArray("\0\0KELDEV\0\0\0\0", 12)
         + makeArtDmx(portAddress, sequence, 4, 0).replace(8, 2, QByteArray("\x00\x53", 2));
}

class TestPacketRecord : public QObject
{
    Q_OBJECT

private slots:
    // Art-Net exactly when there is an OpCode; DMX only when the node would take it as DMX.
    void classification_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("dmx");
        QTest::addColumn<int>("opcode");
        QTest::addColumn<int>("portAddress");
        QTest::addColumn<QString>("info");
        QTest::newRow("ArtDmx") << makeArtDmx(0x0123, 9, 512, 0) << true << 0x5000 << 0x0123
                                << "ArtDmx 0x0123 seq 9, 512 channels";
        QTest::newRow("ArtDmx short data") << makeArtDmx(0x0001, 0, 512, 0).left(118) << true << 0x5000 << 1
                                           << "ArtDmx 0x0001 seq 0, 100 channels";
        // No data bytes: the node ignores it, so the log does not count it as DMX either.
        QTest::newRow("ArtDmx header only") << makeArtDmx(7, 1, 0, 0) << false << 0x5000 << 0 << "ArtDmx";
        QTest::newRow("ArtDmx cut in header") << makeArtDmx(7, 1, 0, 0).left(16) << false << 0x5000 << 0 << "ArtDmx";
        QTest::newRow("KEL") << kel(0x0042, 3) << true << 0x5300 << 0x42
                             << "ArtDmx (KEL) 0x0042 seq 3, 4 channels from KELDEV";
        QTest::newRow("KEL without data") << kel(0x0042, 3).left(30) << false << 0x5300 << 0 << "ArtDmx (KEL)";
        QTest::newRow("ArtPoll") << makeArtPoll() << false << 0x2000 << 0 << "ArtPoll";
        QTest::newRow("ArtPollReply") << makeArtPollReply("Node 1") << false << 0x2100 << 0
                                      << "ArtPollReply \"Node 1\"";
        QTest::newRow("ArtPollReply cut before name") << makeArtPollReply("x").left(20) << false << 0x2100 << 0
                                                      << "ArtPollReply";
        QTest::newRow("other opcode") << makeArtPoll().replace(8, 2, QByteArray("\x00\x97", 2)) << false << 0x9700 << 0
                                      << "OpCode 0x9700";
        QTest::newRow("9 bytes") << QByteArray("Art-Net\0\0", 9) << false << 0 << 0 << "UDP, 9 bytes";
        QTest::newRow("foreign") << QByteArray(600, 'z') << false << 0 << 0 << "UDP, 600 bytes";
        QTest::newRow("empty") << QByteArray() << false << 0 << 0 << "UDP, 0 bytes";
    }
    void classification()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, dmx);
        QFETCH(int, opcode);
        QFETCH(int, portAddress);
        QFETCH(QString, info);
        PacketRecord r;
        r.setDatagram(bytes);
        QCOMPARE(r.isArtNet(), opcode != 0);
        QCOMPARE(r.isDmx(), dmx);
        QCOMPARE(int(r.opcode), opcode);
        QCOMPARE(int(r.portAddress), portAddress);
        QCOMPARE(r.info(), info);
        QCOMPARE(qsizetype(r.length), bytes.size());
        QCOMPARE(qsizetype(r.headLength), std::min<qsizetype>(bytes.size(), 256));
    }

    void outcomeInInfo_data()
    {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<int>("reason");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("failed") << 1 << 0 << 10065 << "ArtPoll [SEND FAILED: WSAEHOSTUNREACH (10065)]";
        QTest::newRow("partial") << 3 << 0 << 0 << "ArtPoll [PARTIAL WRITE: none]";
        QTest::newRow("not sent") << 2 << 2 << 0 << "ArtPoll [NOT SENT: output is closed (udpTransferOpen = false)]";
        QTest::newRow("not sent, unknown reason") << 2 << 9 << 0 << "ArtPoll [NOT SENT: unknown]";
    }
    void outcomeInInfo()
    {
        QFETCH(int, outcome);
        QFETCH(int, reason);
        QFETCH(int, error);
        QFETCH(QString, suffix);
        PacketRecord r;
        r.setDatagram(makeArtPoll());
        r.outcome = Outcome(outcome);
        r.reason = quint8(reason);
        r.error = error;
        QCOMPARE(r.info(), suffix);
    }

    void addresses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("ip"); // -1: refused
        QTest::newRow("plain") << "192.168.1.50" << qint64(0xC0A80132);
        QTest::newRow("zeros") << "0.0.0.0" << qint64(0);
        QTest::newRow("broadcast") << "255.255.255.255" << qint64(0xFFFFFFFF);
        QTest::newRow("leading zero") << "10.0.0.01" << qint64(-1);
        QTest::newRow("too big") << "10.0.0.256" << qint64(-1);
        QTest::newRow("three parts") << "10.0.1" << qint64(-1);
        QTest::newRow("trailing dot") << "10.0.0.1." << qint64(-1);
        QTest::newRow("letters") << "ten.0.0.1" << qint64(-1);
    }
    void addresses()
    {
        QFETCH(QString, text);
        QFETCH(qint64, ip);
        quint32 parsed = 0;
        QCOMPARE(parseIpv4(text, &parsed), ip >= 0);
        if (ip >= 0) {
            QCOMPARE(qint64(parsed), ip);
            QCOMPARE(ipv4Text(parsed), text);
        }
    }

    void textAndCsv()
    {
        const std::vector<PacketRecord> log = makeSampleLog();
        QCOMPARE(recordLine(log[2]),
                 QStringLiteral("2026-01-01 00:00:00.000180  out  192.0.2.1:6454 -> 255.255.255.255:6454    239  "
                                "ArtPollReply \"TorvaneTester\" [SEND FAILED: WSAENOBUFS (10055)]"));
        const QList<QByteArray> csv = exportCsv(log).split('\n');
        QCOMPARE(csv.size(), int(log.size()) + 2); // header, rows, final newline
        QCOMPARE(csv[0], QByteArray("time,direction,source,source port,destination,destination port,length,opcode,"
                                    "universe,sequence,outcome,reason,error,origin,info"));
        QCOMPARE(csv[4], QByteArray("2026-01-01T00:00:00.000200Z,out,192.0.2.1,6454,192.0.2.99,6454,239,0x2100,,,"
                                    "notsent,offline,0,mox,ArtPollReply \"\"TorvaneTester\"\" [NOT SENT: device offline "
                                    "(no ArtPollReply within the liveness window)]").replace(",ArtPollReply", ",\"ArtPollReply")
                                    + "\"");
        QCOMPARE(csv[5], QByteArray("2026-01-01T00:00:00.025000Z,in,192.0.2.2,6454,192.0.2.1,6454,530,0x5000,0x0000,1,"
                                    "ok,none,0,mox,\"ArtDmx 0x0000 seq 1, 512 channels\""));
        QCOMPARE(formatRecordTime(-1), QStringLiteral("1969-12-31 23:59:59.999999"));
    }
};

QTEST_GUILESS_MAIN(TestPacketRecord)
#include "tst_packetrecord.moc"
