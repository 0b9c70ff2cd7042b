#include "cli/samplelog.h"
#include "packetlog/logfiles.h"
#include "packetlog/tlogfile.h"

#include <QtTest>

using namespace PacketLog;

class TestTlogFile : public QObject
{
    Q_OBJECT

private slots:
    void headerBytes()
    {
        const QByteArray header = tlogHeader(0x0102030405060708LL);
        const QByteArray expected = QByteArray("TALUTLOG", 8)          // magic
                                  + QByteArray("\x01\x00", 2)          // version 1
                                  + QByteArray("\x20\x00", 2)          // header size 32
                                  + QByteArray("\x28\x01", 2)          // record size 296
                                  + QByteArray(2, '\0')                // zero
                                  + QByteArray("\x08\x07\x06\x05\x04\x03\x02\x01", 8) // created, LE
                                  + QByteArray(8, '\0');
        QCOMPARE(header, expected);
    }

    void recordBytes()
    {
        PacketRecord r;
        r.timeNs = 1;
        r.srcIp = 0x0A000001;
        r.dstIp = 0xC0A80132;
        r.srcPort = 6454;
        r.dstPort = 0x1234;
        r.setDatagram(makeArtDmx(0x0102, 9, 2, 0xAA));
        r.direction = Direction::Out;
        r.outcome = Outcome::Failed;
        r.reason = 7;
        r.error = 10055;
        unsigned char out[kTlogRecordSize];
        encodeTlogRecord(r, out);
        const QByteArray expected = QByteArray("\x01\0\0\0\0\0\0\0", 8) // time
                                  + QByteArray("\x01\x00\x00\x0A", 4)   // 10.0.0.1
                                  + QByteArray("\x32\x01\xA8\xC0", 4)   // 192.168.1.50
                                  + QByteArray("\x36\x19", 2)           // 6454
                                  + QByteArray("\x34\x12", 2)
                                  + QByteArray("\x14\0\0\0", 4)         // 20 bytes
                                  + QByteArray("\x00\x50", 2)           // ArtDmx
                                  + QByteArray("\x02\x01", 2)           // Port-Address 0x0102
                                  + QByteArray("\x09\x01\x01\x07", 4)   // sequence, out, failed, reason 7
                                  + QByteArray("\x47\x27\0\0", 4)       // 10055
                                  + QByteArray("\x00\x03", 2)           // mox, Art-Net|DMX
                                  + QByteArray("\x14\x00", 2)           // 20 bytes kept
                                  + makeArtDmx(0x0102, 9, 2, 0xAA)      // the kept bytes
                                  + QByteArray(236, '\0');              // zeros to the record's end
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(out), kTlogRecordSize), expected);
    }

    void roundTrip()
    {
        std::vector<PacketRecord> records = makeSampleLog();
        PacketRecord odd;
        odd.timeNs = -5; // before 1970
        odd.reason = 200; // a code this build does not know survives
        odd.error = -1;
        odd.source = RecordSource::Capture;
        odd.setDatagram(QByteArray(1000, 'x')); // longer than the kept head
        records.push_back(odd);
        const LogLoadResult r = readTlog(writeTlog(records, 42));
        QVERIFY(r.ok);
        QVERIFY(r.warnings.isEmpty());
        QCOMPARE(r.format, QStringLiteral("tlog"));
        QCOMPARE(r.records.size(), records.size());
        for (size_t i = 0; i < records.size(); ++i)
            QVERIFY2(r.records[i] == records[i], qPrintable(QString::number(i)));
        QCOMPARE(r.records.back().length, 1000u);
        QCOMPARE(r.records.back().headLength, 256);
    }

    void damaged_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<int>("records");
        QTest::addColumn<QString>("message");
        const QByteArray whole = writeTlog(makeSampleLog(), 0);
        const QString neither = QStringLiteral("This is neither a packet log (.tlog) nor a pcapng or pcap capture.");
        QTest::newRow("empty") << QByteArray() << false << 0 << neither;
        QTest::newRow("magic only") << QByteArray("TALUTLOG") << false << 0 << "This is not a packet log file (.tlog).";
        QTest::newRow("other magic") << QByteArray(64, 'x') << false << 0 << neither;
        const auto patched = [&whole](int offset, char value, int count = 1) {
            return QByteArray(whole).replace(offset, count, QByteArray(count, value));
        };
        QTest::newRow("version 2") << patched(8, 2) << false << 0
                                   << "The packet log is version 2 with 296-byte records; this program reads version 1 "
                                      "with 296-byte records.";
        QTest::newRow("cut in record 3") << whole.left(32 + 2 * 296 + 100) << true << 2
                                         << "The packet log is cut short in record 3 (at byte 624); the 2 records before it were read.";
        QTest::newRow("damaged record 2") << patched(32 + 296 + 29, 9) << true << 1 // record 2's direction
                                          << "Record 2 (at byte 328) is damaged; the 1 records before it were read.";
        QTest::newRow("kept length too large") << patched(32 + 38, char(0xFF), 2) << true << 0 // record 1's kept length
                                               << "Record 1 (at byte 32) is damaged; the 0 records before it were read.";
        QTest::newRow("header only") << whole.left(32) << true << 0 << "";
    }
    void damaged()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, ok);
        QFETCH(int, records);
        QFETCH(QString, message);
        const LogLoadResult r = readPacketLog(bytes);
        QCOMPARE(r.ok, ok);
        QCOMPARE(int(r.records.size()), records);
        const QString got = ok ? (r.warnings.isEmpty() ? QString() : r.warnings.constFirst().untranslatedText())
                               : r.error.untranslatedText();
        QCOMPARE(got, message);
    }
};

QTEST_GUILESS_MAIN(TestTlogFile)
#include "tst_tlogfile.moc"
