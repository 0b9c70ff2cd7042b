#include "cli/samplelog.h"
#include "packetlog/logfiles.h"
#include "packetlog/pcapngwriter.h"
#include "logtestdata.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace PacketLog;

class TestPcapngWriter : public QObject
{
    Q_OBJECT

private slots:
    // The first packet of a one-record file, block by block.
    void goldenBytes()
    {
        PacketRecord r;
        r.timeNs = 0x0000000100000002LL;
        r.srcIp = 0xC0000202;
        r.dstIp = 0xFFFFFFFF;
        r.srcPort = 6454;
        r.dstPort = 6454;
        r.setDatagram(makeArtPoll());
        const QByteArray file = LogTestData::pcapngOf({r});
        const QByteArray shb = QByteArray("\x0A\x0D\x0D\x0A", 4) + QByteArray("\x30\0\0\0", 4) // type, length 48
                             + QByteArray("\x4D\x3C\x2B\x1A", 4)                                // byte-order magic
                             + QByteArray("\x01\x00\x00\x00", 4)                                // version 1.0
                             + QByteArray(8, char(0xFF))                                        // length unknown
                             + QByteArray("\x04\x00\x0C\x00", 4) + QByteArray("Torvane TALU")   // shb_userappl
                             + QByteArray(4, '\0') + QByteArray("\x30\0\0\0", 4);
        QCOMPARE(file.left(48), shb);
        const QByteArray idb = QByteArray("\x01\0\0\0", 4) + QByteArray("\x28\0\0\0", 4)      // type, length 40
                             + QByteArray("\x01\x00\x00\x00", 4) + QByteArray("\xFF\xFF\0\0", 4) // Ethernet, snap 65535
                             + QByteArray("\x02\x00\x04\x00", 4) + QByteArray("talu")            // if_name
                             + QByteArray("\x09\x00\x01\x00\x09\0\0\0", 8)                       // if_tsresol 10^-9
                             + QByteArray(4, '\0') + QByteArray("\x28\0\0\0", 4);
        QCOMPARE(file.mid(48, 40), idb);
        const qsizetype epb = 48 + 40 + 44; // after the second ("capture") interface
        const QByteArray frame = QByteArray(6, char(0xFF))                       // broadcast MAC
                               + QByteArray("\x02\x00\xC0\x00\x02\x02", 6)       // MAC made from 192.0.2.2
                               + QByteArray("\x08\x00", 2)                       // IPv4
                               + QByteArray("\x45\x00\x00\x2A\x00\x00\x00\x00\x40\x11", 10) // length 42, TTL 64, UDP
                               + QByteArray("\xB8\xC1", 2)                       // header checksum
                               + QByteArray("\xC0\x00\x02\x02\xFF\xFF\xFF\xFF", 8)
                               + QByteArray("\x19\x36\x19\x36\x00\x16\x00\x00", 8) // ports, UDP length 22, no checksum
                               + makeArtPoll();
        const QByteArray expected = QByteArray("\x06\0\0\0", 4) + QByteArray("\x64\0\0\0", 4) // EPB, 100 bytes
                                  + QByteArray(4, '\0')                                    // interface 0 ("talu")
                                  + QByteArray("\x01\0\0\0\x02\0\0\0", 8)                  // time high, low
                                  + QByteArray("\x38\0\0\0\x38\0\0\0", 8)                  // 56 captured of 56
                                  + frame
                                  + QByteArray("\x02\x00\x04\x00\x01\0\0\0", 8)            // epb_flags: inbound
                                  + QByteArray(4, '\0') + QByteArray("\x64\0\0\0", 4);
        QCOMPARE(file.mid(epb), expected);
    }

    // Wireshark's own reader must take the file and decode Art-Net in it.
    void tsharkReadsIt()
    {
        const QString tshark = QStandardPaths::findExecutable(QStringLiteral("tshark"));
        if (tshark.isEmpty())
            QSKIP("tshark is not installed (scripts/test installs it); Wireshark interoperability not checked");
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("sample.pcapng"));
        LogMessage error;
        QVERIFY(savePacketLog(path, LogFormat::Pcapng, makeSampleLog(), &error));
        QStringList arguments{"-n", "-r", path, "-T", "fields", "-E", "separator=,"};
        for (const char *field : {"ip.src", "udp.dstport", "artnet.header.opcode", "artnet.output.universe",
                                  "artnet.output.sequence", "artnet.poll_reply.short_name"})
            arguments << QStringLiteral("-e") << QString::fromLatin1(field);
        QProcess p;
        p.start(tshark, arguments);
        QVERIFY(p.waitForFinished(60000));
        QCOMPARE(p.exitCode(), 0);
        const QStringList lines = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), int(makeSampleLog().size()));
        QCOMPARE(lines.at(0), QStringLiteral("192.0.2.2,6454,0x2000,,,"));
        QCOMPARE(lines.at(1), QStringLiteral("192.0.2.1,6454,0x2100,,,TorvaneTester"));
        QCOMPARE(lines.at(6), QStringLiteral("192.0.2.2,6454,0x5000,2,1,"));
        QCOMPARE(lines.at(15), QStringLiteral("192.0.2.2,6454,0x5000,3,3,"));
    }

    void writeFailureIsReported()
    {
        QBuffer readOnly;
        readOnly.open(QIODevice::ReadOnly);
        QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): ReadOnly device");
        LogMessage error;
        QVERIFY(!writePcapng(makeSampleLog(), &readOnly, &error));
        QVERIFY(error.untranslatedText().startsWith(QStringLiteral("Cannot write the capture file: ")));
    }
};

QTEST_GUILESS_MAIN(TestPcapngWriter)
#include "tst_pcapngwriter.moc"
