#include "cli/samplelog.h"
#include "packetlog/capturereader.h"
#include "packetlog/capturesession.h"
#include "packetlog/pcapngwriter.h"
#include "capturebuilder.h"
#include "logtestdata.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace PacketLog;
using namespace TestCapture;

class TestCaptureReader : public QObject
{
    Q_OBJECT

private slots:
    // Every link type and both byte orders: the same one ArtDmx.
    void linkTypes_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<qint64>("timeNs");
        const QByteArray ip = ipUdp(makeArtDmx(0x0203, 4, 16, 1));
        const qint64 first = 1767225600LL * 1000000000LL + 250000; // the builder's first packet time
        QTest::newRow("ethernet") << pcap(1, {ethernet(ip)}) << first;
        QTest::newRow("ethernet vlan") << pcap(1, {ethernet(ip, true)}) << first;
        QTest::newRow("raw") << pcap(101, {ip}) << first;
        QTest::newRow("ipv4") << pcap(228, {ip}) << first;
        QTest::newRow("loopback") << pcap(0, {le32(2) + ip}) << first;
        QTest::newRow("linux cooked") << pcap(113, {QByteArray(14, '\0') + be16(0x0800) + ip}) << first;
        QTest::newRow("linux cooked v2") << pcap(276, {be16(0x0800) + QByteArray(18, '\0') + ip}) << first;
        // Big-endian nanosecond magic, version 2.4, snap length, raw IPv4; a packet at 10 s + 123456789 ns.
        const QByteArray size = be32(quint32(ip.size()));
        QTest::newRow("big-endian nanoseconds")
            << be32(0xA1B23C4D) + QByteArray("\x00\x02\x00\x04", 4) + QByteArray(8, '\0') + be32(65535) + be32(101)
                   + be32(10) + be32(123456789) + size + size + ip
            << qint64(10123456789LL);
    }
    void linkTypes()
    {
        QFETCH(QByteArray, file);
        QFETCH(qint64, timeNs);
        const LogLoadResult r = readPcap(file);
        QVERIFY(r.ok);
        QCOMPARE(r.format, QStringLiteral("pcap"));
        QCOMPARE(int(r.records.size()), 1);
        const PacketRecord &rec = r.records.front();
        QCOMPARE(rec.srcIp, 0xC0000202u);
        QCOMPARE(rec.dstIp, 0xC0000201u);
        QCOMPARE(rec.srcPort, 6454);
        QCOMPARE(rec.dstPort, 6455);
        QCOMPARE(rec.opcode, kOpDmx);
        QCOMPARE(rec.portAddress, 0x0203);
        QCOMPARE(rec.sequence, 4);
        QCOMPARE(rec.length, 34u);
        QCOMPARE(rec.source, RecordSource::Capture);
        QCOMPARE(rec.timeNs, timeNs);
    }

    void skipsWhatIsNotUdpOverIpv4()
    {
        const QByteArray udp = ipUdp("abc");
        const QList<QByteArray> frames{ethernet(ipUdp("abc", 6)),              // TCP
                                       ethernet(udp).replace(12, 2, "\x86\xDD"), // IPv6 ethertype
                                       ethernet(ipUdp("abc", 17, 0x0010)),    // later fragment
                                       ethernet(udp).left(20),                // cut inside IPv4
                                       ethernet(udp)};
        const LogLoadResult r = readPcap(pcap(1, frames));
        QVERIFY(r.ok);
        QCOMPARE(int(r.records.size()), 1);
        QCOMPARE(r.skipped, 4);
        QCOMPARE(r.warnings.constFirst().untranslatedText(),
                 QStringLiteral("4 packets were not UDP over IPv4 and were left out."));
    }

    void damagedPcap_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("records");
        QTest::addColumn<QString>("warning");
        const QByteArray one = ethernet(ipUdp(makeArtPoll()));
        const QByteArray whole = pcap(1, {one, one, one});
        const int packetSize = 16 + int(one.size());
        QTest::newRow("cut in a packet's data") << whole.left(24 + 2 * packetSize + 20) << 2
            << QStringLiteral("The capture is cut short in packet 3 (at byte %1); the 2 packets before it were read.").arg(24 + 2 * packetSize);
        QTest::newRow("cut in a packet header") << whole.left(24 + packetSize + 5) << 1
            << QStringLiteral("The capture is cut short in packet 2 (at byte %1); the 1 packets before it were read.").arg(24 + packetSize);
        QByteArray huge = whole;
        huge.replace(24 + packetSize + 8, 4, le32(0x7FFFFFFF));
        QTest::newRow("absurd length") << huge << 1
            << QStringLiteral("The capture is damaged at packet 2 (at byte %1); the 1 packets before it were read.").arg(24 + packetSize);
    }
    void damagedPcap()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, records);
        QFETCH(QString, warning);
        const LogLoadResult r = readPcap(bytes);
        QVERIFY(r.ok);
        QCOMPARE(int(r.records.size()), records);
        QCOMPARE(r.warnings.constFirst().untranslatedText(), warning);
        // The capture helper's stream arrives in pieces of any size: the same records, the same message.
        PcapStreamReader stream;
        std::vector<PacketRecord> streamed;
        for (qsizetype i = 0; i < bytes.size(); i += 7)
            stream.feed(QByteArrayView(bytes).sliced(i, std::min<qsizetype>(7, bytes.size() - i)), &streamed);
        stream.finish();
        QCOMPARE(int(streamed.size()), records);
        QCOMPARE(stream.warnings().constFirst().untranslatedText(), warning);
    }

    // The capture session with stand-in helpers: what each way of ending says, and what is kept.
    void captureSession_data()
    {
        QTest::addColumn<QString>("script"); // the helper's body; $PCAP is a capture of three packets
        QTest::addColumn<int>("records");
        QTest::addColumn<QString>("error");
        QTest::newRow("stopped as asked") << QStringLiteral("cat \"$PCAP\"") << 3 << QString();
        QTest::newRow("killed") << QStringLiteral("cat \"$PCAP\"; kill -9 $$") << 3
            << QStringLiteral("The capture helper stopped unexpectedly; the 3 packets captured until then are kept.");
        QTest::newRow("not permitted")
            << QStringLiteral("echo 'talu-capture: cannot capture: no permission' >&2; exit 3") << 0
            << QStringLiteral("Capturing on talu1 is not permitted (cannot capture: no permission). Only the capture "
                              "helper may capture: join the group \"talu-capture\" (sudo usermod -aG talu-capture "
                              "$USER, then log in again), or give a helper you built yourself the right with: sudo "
                              "setcap cap_net_raw,cap_net_admin=eip HELPER");
        QTest::newRow("no adapter") << QStringLiteral("exit 4") << 0
                                    << QStringLiteral("There is no adapter talu1 to capture on.");
        QTest::newRow("other failure") << QStringLiteral("echo 'talu-capture: capture stopped: gone' >&2; exit 1") << 0
                                       << QStringLiteral("Capture on talu1 failed: capture stopped: gone");
        QTest::newRow("damaged stream") << QStringLiteral("head -c 24 \"$PCAP\"; printf '\\377\\377\\377\\377"
                                                          "\\0\\0\\0\\0\\377\\377\\377\\177xxxx'; sleep 5")
                                        << 0
                                        << QStringLiteral("The capture helper's output is damaged: The capture is "
                                                          "damaged at packet 1 (at byte 24); the 0 packets before it "
                                                          "were read.");
        QTest::newRow("no helper") << QString() << 0
                                   << QStringLiteral("The capture helper (talu-capture) is not installed beside the "
                                                     "program, so adapter capture is not available.");
    }
    void captureSession()
    {
        QFETCH(QString, script);
        QFETCH(int, records);
        QFETCH(QString, error);
        QTemporaryDir dir;
        const QByteArray frame = ethernet(ipUdp(makeArtDmx(0x0001, 1, 8, 0)));
        QString helper = standInHelper(dir.path(), pcap(1, {frame, frame, frame}), script);
        QVERIFY(!helper.isEmpty());
        if (script.isNull())
            QFile::remove(helper);
        qputenv("TALU_CAPTURE_HELPER", helper.toUtf8());
        CaptureSession session;
        QSignalSpy stopped(&session, &CaptureSession::stopped);
        session.start(CaptureAdapter{QStringLiteral("talu1"), QString(), {QStringLiteral("192.0.2.2")}});
        QVERIFY(stopped.count() == 1 || stopped.wait(10000));
        const std::vector<PacketRecord> taken = session.takeRecords();
        QCOMPARE(int(taken.size()), records);
        QCOMPARE(session.recordCount(), qint64(records));
        for (const PacketRecord &r : taken) {
            QCOMPARE(r.source, RecordSource::Capture);
            QCOMPARE(r.direction, Direction::Out); // sent from the adapter's own address
        }
        QCOMPARE(stopped.constFirst().constFirst().value<LogMessage>().untranslatedText(),
                 QString(error).replace(QStringLiteral("HELPER"), helper));
    }

    void notACapture()
    {
        QVERIFY(!readPcap(QByteArray(10, 'x')).ok);
        QVERIFY(!readPcapng(QByteArray(10, 'x')).ok);
        QCOMPARE(readPcap("abc").error.untranslatedText(), QStringLiteral("This is not a pcap capture file."));
    }

    // record -> pcapng -> record keeps every field the file can carry.
    void pcapngRoundTrip()
    {
        std::vector<PacketRecord> records = makeSampleLog();
        records[5].source = RecordSource::Capture;
        records[6].outcome = Outcome::Partial;
        records[6].error = 10040;
        const LogLoadResult r = readPcapng(LogTestData::pcapngOf(records));
        QVERIFY(r.ok);
        QVERIFY(r.warnings.isEmpty());
        QCOMPARE(r.records.size(), records.size());
        for (size_t i = 0; i < records.size(); ++i)
            QVERIFY2(r.records[i] == records[i],
                     qPrintable(QStringLiteral("record %1: %2").arg(i).arg(r.records[i].info())));
    }

    // A big-endian section from another writer: microsecond times (the default), a time offset, raw IPv4,
    // an enhanced and a simple packet block, and a block type we do not know in between.
    void bigEndianPcapng()
    {
        const QByteArray ip = ipUdp(makeArtDmx(0x0011, 2, 8, 0));
        const auto block = [](quint32 type, const QByteArray &body) {
            const quint32 total = quint32(12 + body.size());
            return be32(type) + be32(total) + body + be32(total);
        };
        const QByteArray padded = ip + QByteArray((4 - ip.size() % 4) % 4, '\0');
        const QByteArray file =
            block(0x0A0D0D0A, be32(0x1A2B3C4D) + be16(1) + be16(0) + QByteArray(8, char(0xFF)))
            + block(1, be16(101) + be16(0) + be32(0) + be16(14) + be16(8) + be32(0) + be32(100) + be32(0)) // if_tsoffset 100 s
            + block(0x0BAD, QByteArray(8, 'x'))
            + block(6, be32(0) + be32(0) + be32(3000001) + be32(quint32(ip.size())) + be32(quint32(ip.size())) + padded)
            + block(3, be32(quint32(ip.size())) + padded);
        const LogLoadResult r = readPcapng(file);
        QVERIFY(r.ok);
        QVERIFY(r.warnings.isEmpty());
        QCOMPARE(int(r.records.size()), 2);
        QCOMPARE(r.records[0].timeNs, 103000001000LL); // 3.000001 s + 100 s
        QCOMPARE(r.records[0].portAddress, 0x0011);
        QCOMPARE(r.records[0].source, RecordSource::Capture);
        QCOMPARE(r.records[1].length, 26u);
        QCOMPARE(r.records[1].timeNs, 100000000000LL); // simple packets carry no time
    }

    void damagedPcapng()
    {
        const QByteArray whole = LogTestData::pcapngOf(makeSampleLog());
        QVERIFY(!whole.isEmpty());
        const qsizetype total = qsizetype(makeSampleLog().size());
        for (qsizetype cut = 0; cut < whole.size(); cut += 37) { // a cut file reads short, and says so
            const LogLoadResult r = readPcapng(whole.left(cut));
            QVERIFY(qsizetype(r.records.size()) < total);
            QVERIFY2(!r.ok || cut == 0 || !r.warnings.isEmpty(), qPrintable(QString::number(cut)));
        }
        QByteArray corrupt = whole;
        corrupt[whole.size() - 1] = 0x7F; // the last block's trailing length no longer matches
        const LogLoadResult r = readPcapng(corrupt);
        QCOMPARE(qsizetype(r.records.size()), total - 1);
        QVERIFY(r.warnings.constFirst().untranslatedText().startsWith(
            QStringLiteral("The capture is damaged at packet %1").arg(total)));
        // Every byte flipped in turn: never a crash, never more records than the file has.
        for (qsizetype i = 0; i < whole.size(); i += 3) {
            QByteArray flipped = whole;
            flipped[i] = char(flipped[i] ^ 0xA5);
            QVERIFY(qsizetype(readPcapng(flipped).records.size()) <= total);
        }
    }
};

QTEST_GUILESS_MAIN(TestCaptureReader)
#include "tst_capturereader.moc"
