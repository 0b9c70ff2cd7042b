#include "artnet/artnetpacket.h"
#include "artnet/nodediscovery.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace ArtNet;

namespace {

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray out;
    for (int v : values)
        out.append(char(v));
    return out;
}

QByteArray zeros(int n)
{
    return QByteArray(n, '\0');
}

// What classifyDatagram made of a datagram, as one line to compare; the DMX fields only for DMX.
QString describe(const ClassifiedDatagram &c)
{
    if (c.kind != DatagramKind::Dmx) // in the enum's order
        return QStringList{"ignored", "poll", "poll reply"}.value(int(c.kind));
    return QStringLiteral("%1 0x%2 seq %3, %4 bytes at %5")
        .arg(QLatin1String(c.flavour == DmxFlavour::Kel ? "KEL" : "Art-Net"))
        .arg(c.portAddress, 4, 16, QLatin1Char('0'))
        .arg(int(c.sequence))
        .arg(c.dataLength)
        .arg(c.dataOffset);
}

} // namespace

class TestArtNetPacket : public QObject
{
    Q_OBJECT

private slots:
    void pollReplyNoUniverses()
    {
        PollReplyInput in;
        in.identity.net = 0x12;
        in.identity.subNet = 0x0A;
        in.identity.oemCode = 0xABCD;
        in.bindIPv4 = 0xC0000201; // 192.0.2.1
        in.dmxPackets = 42;
        const QByteArray r = buildPollReply(in, 0);

        QByteArray expected;
        expected += QByteArray("Art-Net", 8);              // 0 ID
        expected += bytes({0x00, 0x21});                   // 8 OpCode 0x2100 LE
        expected += bytes({192, 0, 2, 1});                 // 10 IP, network order
        expected += bytes({0x36, 0x19});                   // 14 port 6454 LE
        expected += bytes({0, 14});                        // 16 VersInfo
        expected += bytes({0x12, 0x0A});                   // 18 NetSwitch, SubSwitch from the identity
        expected += bytes({0xAB, 0xCD});                   // 20 OEM hi, lo
        expected += bytes({0, 0xD0});                      // 22 UBEA, Status1
        expected += bytes({0x76, 0x74});                   // 24 ESTA lo, hi
        expected += QByteArray("TorvaneTester").leftJustified(18, '\0');          // 26 short name
        expected += QByteArray("Torvane Art-Net Tester").leftJustified(64, '\0'); // 44 long name
        expected += QByteArray("#0001 [42] Torvane Art-Net Tester").leftJustified(64, '\0'); // 108 report
        expected += bytes({0, 1});                         // 172 NumPorts
        expected += bytes({0x80, 0, 0, 0});                // 174 PortTypes
        expected += zeros(4);                              // 178 GoodInput
        expected += bytes({0x80, 0, 0, 0});                // 182 GoodOutputA
        expected += zeros(4);                              // 186 SwIn
        expected += zeros(4);                              // 190 SwOut: no universe
        expected += zeros(6);                              // 194 priority, macro, remote, spare
        expected += bytes({0});                            // 200 Style StNode
        expected += bytes({0x02, 0x54, 0x56, 0, 0, 0x01}); // 201 MAC
        expected += bytes({192, 0, 2, 1});                 // 207 BindIp
        expected += bytes({1});                            // 211 BindIndex
        expected += zeros(27);                             // 212 filler
        QCOMPARE(expected.size(), kPollReplySize);
        QCOMPARE(r, expected);
        QCOMPARE(pollReplyPageCount({}), 1);
    }

    void pollReplyPages_data()
    {
        QTest::addColumn<QVector<quint16>>("universes");
        QTest::addColumn<int>("page");
        QTest::addColumn<QByteArray>("switches"); // NetSwitch, SubSwitch
        QTest::addColumn<int>("swOut");
        QTest::addColumn<int>("bindIndex");

        const QVector<quint16> three{0x0001, 0x0012, 0x0123};
        QTest::newRow("0x0001 of three") << three << 0 << bytes({0, 0}) << 1 << 1;
        QTest::newRow("0x0012 of three") << three << 1 << bytes({0, 1}) << 2 << 2;
        QTest::newRow("0x0123 of three") << three << 2 << bytes({1, 2}) << 3 << 3;
        QTest::newRow("0x0001 of two") << QVector<quint16>{0x0001, 0x0012} << 0 << bytes({0, 0}) << 1 << 2;
        QTest::newRow("0x0012 of two") << QVector<quint16>{0x0001, 0x0012} << 1 << bytes({0, 1}) << 2 << 19;
        // Bit 15 is not part of a Port-Address; the Net keeps seven bits.
        QTest::newRow("top bit") << QVector<quint16>{0xFFFF} << 0 << bytes({0x7F, 0x0F}) << 0x0F << 1;
    }
    void pollReplyPages()
    {
        QFETCH(QVector<quint16>, universes);
        QFETCH(int, page);
        QFETCH(int, swOut);
        PollReplyInput in;
        in.identity.net = 0x55; // must not show: the page has a universe
        in.universes = universes;
        const QByteArray r = buildPollReply(in, page);
        QCOMPARE(r.size(), kPollReplySize);
        QTEST(r.mid(18, 2), "switches");
        QCOMPARE(r.mid(190, 4), bytes({swOut, 0, 0, 0}));
        QTEST(int(quint8(r.at(211))), "bindIndex");
        QCOMPARE(r.mid(10, 4), zeros(4)); // bound to any
        QCOMPARE(pollReplyPageCount(universes), universes.size());
    }

    void pollReplyNamesAreCut()
    {
        PollReplyInput in;
        in.identity.shortName = QString(40, QLatin1Char('S'));
        in.identity.longName = QString(200, QChar(0x00E9)); // é, one Latin-1 byte
        in.dmxPackets = std::numeric_limits<quint64>::max();
        const QByteArray r = buildPollReply(in, 0);
        QCOMPARE(r.size(), kPollReplySize);
        QCOMPARE(r.mid(26, 18), QByteArray(17, 'S') + zeros(1));
        QCOMPARE(r.mid(44, 64), QByteArray(63, char(0xE9)) + zeros(1));
        QCOMPARE(r.mid(108, 64),
                 QByteArray("#0001 [18446744073709551615] Torvane Art-Net Tester").leftJustified(64, '\0'));
        QCOMPARE(r.mid(172, 2), bytes({0, 1}));
    }

    void bindIndex_data()
    {
        QTest::addColumn<QVector<quint16>>("universes");
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("expected");
        QTest::newRow("none") << QVector<quint16>{} << 0 << 1;
        QTest::newRow("universe 0") << QVector<quint16>{0} << 0 << 1;
        QTest::newRow("universe 254") << QVector<quint16>{254} << 0 << 255;
        QTest::newRow("255 switches to pages") << QVector<quint16>{7, 255} << 0 << 1;
        QTest::newRow("page past the list") << QVector<quint16>{5} << 3 << 4;
        QTest::newRow("page 300 clamps") << QVector<quint16>{} << 300 << 255;
        QTest::newRow("negative page clamps") << QVector<quint16>{} << -5 << 1;
    }
    void bindIndex()
    {
        QFETCH(QVector<quint16>, universes);
        QFETCH(int, page);
        QTEST(int(pollReplyBindIndex(universes, page)), "expected");
    }

    void classify_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        QTest::addColumn<QString>("expected");
        const QByteArray dmx512 = buildDmx(0x0123, 7, QByteArray(512, 'x'));
        QTest::newRow("empty") << QByteArray() << "ignored";
        QTest::newRow("9 bytes of poll") << buildPoll().left(9) << "ignored";
        QTest::newRow("poll header only") << buildPoll().left(10) << "poll";
        QTest::newRow("poll") << buildPoll() << "poll";
        QTest::newRow("poll, 40 bytes") << buildPoll().leftJustified(40, '\0') << "poll";
        QTest::newRow("short, no ID") << QByteArray(14, 'A') << "ignored";
        QTest::newRow("long, no ID") << QByteArray(600, 'A') << "ignored";
        QTest::newRow("lower-case ID") << QByteArray("art-net\0\0\x20", 10) << "ignored";
        QTest::newRow("poll reply") << buildPollReply({}, 0) << "poll reply";
        QTest::newRow("other opcode") << QByteArray("Art-Net\0\0\x97\0\x0e", 12) << "ignored";
        QTest::newRow("dmx 512") << dmx512 << "Art-Net 0x0123 seq 7, 512 bytes at 18";
        QTest::newRow("dmx length lies high")
            << buildDmx(1, 0, QByteArray(512, 'x')).left(118) << "Art-Net 0x0001 seq 0, 100 bytes at 18";
        QByteArray lowLength = dmx512;
        lowLength[16] = 0;
        lowLength[17] = 3;
        QTest::newRow("dmx length lies low") << lowLength << "Art-Net 0x0123 seq 7, 3 bytes at 18";
        QTest::newRow("dmx length 0") << buildDmx(1, 1, {}) << "ignored";
        QTest::newRow("dmx header cut at 17") << dmx512.left(17) << "ignored";
        QTest::newRow("dmx header only, length 512") << dmx512.left(18) << "ignored";
        QTest::newRow("dmx one byte") << dmx512.left(19) << "Art-Net 0x0123 seq 7, 1 bytes at 18";

        const QByteArray kel = buildKelDmx("KEL6S-01", 0x0042, 200, QByteArray(170, 'k'));
        QTest::newRow("kel") << kel << "KEL 0x0042 seq 200, 170 bytes at 30";
        QTest::newRow("kel cut to header") << kel.left(30) << "ignored";
        QTest::newRow("kel 29 bytes") << kel.left(29) << "ignored";
        QTest::newRow("kel without name")
            << buildKelDmx({}, 5, 0, QByteArray(2, 'k')) << "KEL 0x0005 seq 0, 2 bytes at 30";
        QByteArray kelWrongOp = kel;
        kelWrongOp[21] = 0x50; // an ArtDmx OpCode behind a prefix is not KEL
        QTest::newRow("kel prefix, ArtDmx opcode") << kelWrongOp << "ignored";
        // An Art-Net ID at 0 whose OpCode is not ArtDmx, carrying a KEL header at 12.
        QByteArray kelAfterId = kel;
        kelAfterId.replace(0, 8, QByteArray("Art-Net", 8));
        QTest::newRow("kel after an ID") << kelAfterId << "KEL 0x0042 seq 200, 170 bytes at 30";
    }
    void classify()
    {
        QFETCH(QByteArray, datagram);
        const ClassifiedDatagram c = classifyDatagram(datagram);
        QTEST(describe(c), "expected");
        QVERIFY(c.dataOffset + c.dataLength <= datagram.size());
    }

    void kelName_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        QTest::addColumn<QString>("name");
        QTest::newRow("short name") << buildKelDmx("KEL6S", 1, 0, "x") << "KEL6S";
        QTest::newRow("ten bytes, no zero") << buildKelDmx("ABCDEFGHIJKL", 1, 0, "x") << "ABCDEFGHIJ";
        QTest::newRow("no name") << buildKelDmx({}, 1, 0, "x") << QString();
        QTest::newRow("Latin-1") << buildKelDmx("N\xE4me", 1, 0, "x") << QStringLiteral(u"N\u00E4me");
        QTest::newRow("too short") << QByteArray(11, 'A') << QString();
    }
    void kelName()
    {
        QFETCH(QByteArray, datagram);
        QTEST(kelDeviceName(datagram), "name");
    }

    void sequence_data()
    {
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("sequence");
        QTest::addColumn<bool>("error");
        QTest::newRow("next") << 5 << 6 << false;
        QTest::newRow("repeat") << 5 << 5 << true;
        QTest::newRow("gap forward") << 5 << 7 << false;
        QTest::newRow("wrap") << 255 << 1 << false;
        QTest::newRow("one back") << 5 << 4 << true;
        QTest::newRow("127 back") << 200 << 73 << true;
        QTest::newRow("128 back is forward") << 200 << 72 << false;
        QTest::newRow("back across the wrap") << 2 << 250 << true;
    }
    void sequence()
    {
        QFETCH(int, last);
        QFETCH(int, sequence);
        QTEST(isSequenceError(quint8(last), quint8(sequence)), "error");
    }

    void anyLengthAnyBytesStaysInside()
    {
        // Every UDP length, random bytes, bare and behind planted Art-Net and KEL headers; each datagram
        // ends at the end of a heap block, so under the sanitizers any read past it fails the test.
        QRandomGenerator rng(5);
        std::unique_ptr<char[]> block(new char[size_t(kMaxDatagramSize)]);
        for (int i = 0; i < kMaxDatagramSize; ++i)
            block[size_t(i)] = char(rng.bounded(256));
        const char *end = block.get() + kMaxDatagramSize;
        QByteArray dmxHead = buildDmx(1, 1, QByteArray(1, 'x')).left(kDmxHeaderSize);
        QByteArray kelHead = buildKelDmx("K", 1, 1, QByteArray(1, 'x')).left(kKelHeaderSize);
        int dmx = 0;
        for (int size = 0; size <= kMaxDatagramSize; ++size) {
            char *start = block.get() + (kMaxDatagramSize - size);
            // A length field that may lie either way.
            const quint32 lengthField = rng.bounded(0x10000u);
            dmxHead[16] = kelHead[28] = char(lengthField >> 8);
            dmxHead[17] = kelHead[29] = char(lengthField & 0xFF);
            for (const QByteArray &head : {QByteArray(), dmxHead, kelHead}) {
                std::memcpy(start, head.constData(), size_t(std::min<qsizetype>(head.size(), size)));
                const QByteArrayView view(start, end - start);
                const ClassifiedDatagram c = classifyDatagram(view);
                kelDeviceName(view);
                if (c.kind == DatagramKind::Dmx) {
                    ++dmx;
                    QVERIFY(c.dataLength >= 1);
                    QVERIFY(c.dataOffset + c.dataLength <= size);
                }
            }
        }
        QVERIFY2(dmx > 100000, qPrintable(QString::number(dmx))); // the planted headers reached the DMX path
    }

    // Our own replies read back and judged on time and pages (lengths and IP fields: tst_discovercommand).
    void discoveryJudgesTimeAndPages_data()
    {
        QTest::addColumn<qint64>("replyAt");      // the first page, after the poll at 0
        QTest::addColumn<quint32>("secondBindIp"); // the second page's BindIp and IP field, and the sender
        QTest::addColumn<qint64>("lookAt");
        QTest::addColumn<bool>("online");
        QTest::addColumn<QStringList>("findings");
        QTest::newRow("prompt") << qint64(20) << 0xC0000201u << qint64(100) << true << QStringList();
        QTest::newRow("slow") << qint64(3500) << 0xC0000201u << qint64(3600) << true
                              << QStringList{"It answered 3500 ms after the poll; controllers wait 3 s."};
        QTest::newRow("silent since the second poll") << qint64(20) << 0xC0000201u << qint64(5600) << false
                                                      << QStringList();
        QTest::newRow("pages disagree")
            << qint64(20) << 0xC0000209u << qint64(100) << true
            << QStringList{"Its IP field says 192.0.2.1, but the replies come from 192.0.2.9.",
                           "Its pages name different BindIp addresses (192.0.2.1, 192.0.2.9)."};
    }
    void discoveryJudgesTimeAndPages()
    {
        QFETCH(qint64, replyAt);
        QFETCH(quint32, secondBindIp);
        QFETCH(qint64, lookAt);
        PollReplyInput in;
        in.bindIPv4 = 0xC0000201;
        in.universes = {0x0012, 0x0013};
        const QByteArray first = buildPollReply(in, 0);
        in.bindIPv4 = secondBindIp;
        const QByteArray second = buildPollReply(in, 1);
        PollReplyFields fields;
        QVERIFY(parsePollReply(first, &fields));
        QCOMPARE(fields.shortName, in.identity.shortName);
        QCOMPARE(fields.bindIndex, pollReplyBindIndex(in.universes, 0));

        // Pages sent from the second page's address: the first page's IP field then disagrees with it.
        const quint32 sender = secondBindIp;
        DiscoveryTable judged;
        judged.pollSent(0);
        QVERIFY(judged.replyReceived(sender, first, replyAt));
        QVERIFY(judged.replyReceived(sender, second, replyAt + 1));
        if (replyAt < 2500)
            judged.pollSent(2500); // polled again; answered by nobody
        QVERIFY(!judged.replyReceived(sender, buildPoll(), replyAt)); // not a reply
        const QVector<DiscoveredDevice> devices = judged.devices(lookAt);
        QCOMPARE(devices.size(), 1);
        QTEST(devices[0].online, "online");
        QTEST(devices[0].findings, "findings");
        QCOMPARE(devices[0].ports.size(), 2);
        QCOMPARE(devices[0].ports[1].portAddress, quint16(0x0013));
    }
};

QTEST_GUILESS_MAIN(TestArtNetPacket)
#include "tst_artnetpacket.moc"
