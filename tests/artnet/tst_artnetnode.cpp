#include "artnet/artnetnode.h"
#include "artnet/linuxudpdatagramsocket.h"

#include "fakenodeseams.h"

#include <QSignalSpy>
#include <QtTest>

using namespace ArtNet;

namespace {

const QHostAddress kController(QStringLiteral("192.168.1.20"));
const QHostAddress kBroadcast(QHostAddress::Broadcast);

QByteArray dmx(quint16 portAddress, quint8 sequence, int length = 512)
{
    return buildDmx(portAddress, sequence, QByteArray(length, char(0x5A)));
}

using Destinations = QVector<QPair<QString, int>>;

Destinations destinationsOf(const QVector<FakeDatagram> &sent)
{
    Destinations out;
    for (const FakeDatagram &d : sent)
        out.append({d.host.toString(), d.port});
    return out;
}

} // namespace

class TestArtNetNode : public QObject
{
    Q_OBJECT

private slots:
#ifdef Q_OS_LINUX
    void broadcastReceiverAddress_data();
    void broadcastReceiverAddress();
#endif
    void init();
    void cleanup();

    void startBindsAndAnnounces();
    void bindFailureKeepsNodeStopped();
    void replyDestinations_data();
    void replyDestinations();
    void replyCarriesBindAddressAndCount();
    void changesWhileRunningAreAnnounced();
    void dmxDeliveryKeepsTheDataLengthRule();
    void sequenceErrors_data();
    void sequenceErrors();
    void ignoredCounting();
    void universesSeenAscending();
    void sourceFollowsTheLatestFlavour();
    void rateWindowAndAges();
    void stopKeepsStatisticsStartClearsThem();
    void journalSeesEveryDatagram();
    void stopFromASlotMidBatch();
    void pollFloodIsAnsweredEveryTime();

private:
    bool start(const QHostAddress &address = QHostAddress(), quint16 port = kDefaultPort);

    FakeClock m_clock;
    FakeSocket *m_socket = nullptr; // owned by the node while it runs
    std::unique_ptr<ArtNetNode> m_node;
    bool m_nextBindResult = true;
};

void TestArtNetNode::init()
{
    m_nextBindResult = true;
    m_node = std::make_unique<ArtNetNode>(
        [this] {
            auto socket = std::make_unique<FakeSocket>();
            socket->bindResult = m_nextBindResult;
            m_socket = socket.get();
            return socket;
        },
        &m_clock);
}

void TestArtNetNode::cleanup()
{
    m_node.reset();
    m_socket = nullptr;
}

bool TestArtNetNode::start(const QHostAddress &address, quint16 port)
{
    const bool ok = m_node->start(address, port);
    if (ok)
        m_socket->sent.clear(); // the start-up announcement is checked on its own
    return ok;
}

void TestArtNetNode::startBindsAndAnnounces()
{
    QSignalSpy status(m_node.get(), &ArtNetNode::statusChanged);
    m_node->setUniverses({1, 2});
    QVERIFY(m_node->start(QHostAddress()));
    QVERIFY(m_node->isRunning());
    QCOMPARE(m_socket->boundAddress, QHostAddress(QHostAddress::AnyIPv4));
    QCOMPARE(m_socket->boundPort, quint16(6454));
    QVERIFY(m_socket->receiveBufferBytes >= 6 << 20); // 30 ms of paint at 100,000 packets/s
    QCOMPARE(destinationsOf(m_socket->sent), (Destinations{{kBroadcast.toString(), 6454}, {kBroadcast.toString(), 6454}}));
    QVERIFY(status.count() >= 1);

    m_socket->sent.clear();
    m_node->onAnnounceTimer();
    QCOMPARE(m_socket->sent.size(), 2);
    QCOMPARE(int(quint8(m_socket->sent.at(1).bytes.at(211))), 3); // BindIndex of universe 2
}

void TestArtNetNode::bindFailureKeepsNodeStopped()
{
    m_nextBindResult = false;
    QVERIFY(!m_node->start(QHostAddress(QStringLiteral("192.0.2.99")), 6454));
    QVERIFY(!m_node->isRunning());
    QCOMPARE(m_node->lastError(), QStringLiteral("The address is not available"));
    m_node->onAnnounceTimer(); // stopped: sends nothing and does not crash

    m_nextBindResult = true;
    QVERIFY(m_node->start(QHostAddress()));
    QVERIFY(m_node->lastError().isEmpty());
}

void TestArtNetNode::replyDestinations_data()
{
    QTest::addColumn<QVector<quint16>>("universes");
    QTest::addColumn<QString>("asker");
    QTest::addColumn<int>("askerPort");
    QTest::addColumn<Destinations>("expected");
    const QString c = kController.toString();
    const QString b = kBroadcast.toString();
    QTest::newRow("from 6454") << QVector<quint16>{} << c << 6454 << Destinations{{c, 6454}, {b, 6454}};
    QTest::newRow("from 50000") << QVector<quint16>{} << c << 50000 << Destinations{{c, 6454}, {c, 50000}, {b, 6454}};
    QTest::newRow("broadcast poll") << QVector<quint16>{} << b << 50000 << Destinations{{b, 6454}, {b, 50000}};
    QTest::newRow("three pages") << QVector<quint16>{0x0001, 0x0012, 0x0123} << c << 6454
                                 << Destinations{{c, 6454}, {b, 6454}, {c, 6454}, {b, 6454}, {c, 6454}, {b, 6454}};
}

void TestArtNetNode::replyDestinations()
{
    QFETCH(QVector<quint16>, universes);
    QFETCH(QString, asker);
    QFETCH(int, askerPort);
    m_node->setUniverses(universes);
    QVERIFY(start());
    QSignalSpy answered(m_node.get(), &ArtNetNode::pollAnswered);
    QCOMPARE(m_node->msSinceLastPoll(), qint64(-1));

    m_socket->deliver({buildPoll()}, QHostAddress(asker), quint16(askerPort));
    QTEST(destinationsOf(m_socket->sent), "expected");
    for (const FakeDatagram &d : m_socket->sent)
        QCOMPARE(d.bytes.size(), kPollReplySize);
    QCOMPARE(answered.count(), 1);
    QCOMPARE(answered.at(0).at(0).value<QHostAddress>(), QHostAddress(asker));
    QCOMPARE(m_node->stats().artPolls, quint64(1));
    m_clock.advanceMs(1500);
    QCOMPARE(m_node->msSinceLastPoll(), qint64(1500));
}

void TestArtNetNode::replyCarriesBindAddressAndCount()
{
    QVERIFY(start(QHostAddress(QStringLiteral("192.0.2.1")), 7000));
    m_socket->deliver({dmx(1, 0), dmx(1, 0), dmx(1, 0), buildPoll()}, kController);
    const QByteArray reply = m_socket->sent.value(0).bytes;
    QCOMPARE(reply.mid(10, 6), QByteArray("\xC0\x00\x02\x01\x58\x1B", 6)); // 192.0.2.1, port 7000 LE
    QCOMPARE(reply.mid(207, 4), QByteArray("\xC0\x00\x02\x01", 4));
    QVERIFY(reply.mid(108, 64).startsWith("#0001 [3] Torvane"));
    QCOMPARE(m_socket->sent.value(0).port, quint16(7000));
}

void TestArtNetNode::changesWhileRunningAreAnnounced()
{
    m_node->setUniverses({1, 2, 3}); // stopped: nothing to send through
    QVERIFY(start());
    m_node->setUniverses({4, 5});
    QCOMPARE(destinationsOf(m_socket->sent),
             (Destinations{{kBroadcast.toString(), 6454}, {kBroadcast.toString(), 6454}}));
    NodeIdentity id;
    id.shortName = QStringLiteral("TOVA");
    m_node->setIdentity(id);
    QCOMPARE(m_socket->sent.size(), 4);
    QCOMPARE(m_socket->sent.at(3).bytes.mid(26, 5), QByteArray("TOVA\0", 5));
}

void TestArtNetNode::dmxDeliveryKeepsTheDataLengthRule()
{
    QVERIFY(start());
    QSignalSpy received(m_node.get(), &ArtNetNode::dmxReceived);
    const QByteArray payload = QByteArray(100, char(0x11));
    QByteArray lying = buildDmx(0x0042, 0, payload);
    lying[16] = 0x02; // length field says 512, the datagram carries 100
    lying[17] = 0x00;
    QByteArray shortField = buildDmx(0x0043, 0, QByteArray(512, char(0x22)));
    shortField[16] = 0x00; // says 24 of 512
    shortField[17] = 24;
    m_socket->deliver({lying, shortField, buildDmx(7, 0, {})}, kController);

    QCOMPARE(received.count(), 2);
    QCOMPARE(received.at(0).at(0).value<quint16>(), quint16(0x0042));
    QCOMPARE(received.at(0).at(1).toByteArray(), payload);
    QCOMPARE(received.at(0).at(2).value<QHostAddress>(), kController);
    QCOMPARE(received.at(1).at(1).toByteArray(), QByteArray(24, char(0x22)));
    QCOMPARE(m_node->stats().dmxPackets, quint64(2));
    QCOMPARE(m_node->stats().ignored, quint64(1)); // the 18-byte packet with length 0
}

void TestArtNetNode::sequenceErrors_data()
{
    QTest::addColumn<QVector<int>>("sequences"); // on universe 1; negative: on universe 2
    QTest::addColumn<int>("errors");
    // The comparison itself is tabled in the packet test; these rows check what the node keeps.
    QTest::newRow("5 after 5") << QVector<int>{5, 5} << 1;
    QTest::newRow("0 never counts") << QVector<int>{5, 0, 0} << 0;
    QTest::newRow("0 keeps the stored value") << QVector<int>{5, 0, 5} << 1;
    QTest::newRow("first packet") << QVector<int>{200} << 0;
    QTest::newRow("error stores the new value") << QVector<int>{9, 3, 4} << 1;
    QTest::newRow("universes apart") << QVector<int>{5, -5, 6, -6} << 0;
}

void TestArtNetNode::sequenceErrors()
{
    QFETCH(QVector<int>, sequences);
    QVERIFY(start());
    QVector<QByteArray> datagrams;
    for (int s : sequences)
        datagrams.append(dmx(s < 0 ? 2 : 1, quint8(std::abs(s)), 4));
    m_socket->deliver(datagrams, kController);
    QFETCH(int, errors);
    QCOMPARE(int(m_node->stats().sequenceErrors), errors);
}

void TestArtNetNode::ignoredCounting()
{
    QVERIFY(start());
    QSignalSpy received(m_node.get(), &ArtNetNode::dmxReceived);
    const QVector<QByteArray> junk{
        QByteArray(),
        QByteArray(9, 'A'),
        QByteArray(17, 'A'),
        QByteArray(600, 'A'),
        QByteArray("Art-Net\0\0\x50", 10),                 // ArtDmx OpCode, header cut short
        buildKelDmx("KEL", 1, 0, QByteArray(4, 'k')).left(30), // KEL without data
        QByteArray("Art-Net\0\0\x97\0\x0e", 12),           // an OpCode this node does not handle
    };
    m_socket->deliver(junk, kController);
    m_socket->deliver({buildPollReply({}, 0)}, kController); // other nodes' replies are not counted
    QCOMPARE(m_node->stats().ignored, quint64(junk.size()));
    QCOMPARE(m_node->stats().dmxPackets, quint64(0));
    QCOMPARE(m_node->stats().artPolls, quint64(0));
    QCOMPARE(received.count(), 0);
    QVERIFY(m_socket->sent.isEmpty());
}

void TestArtNetNode::universesSeenAscending()
{
    QVERIFY(start());
    QSignalSpy changed(m_node.get(), &ArtNetNode::universesChanged);
    m_socket->deliver({dmx(0x0105, 0), dmx(0x0001, 0), dmx(0x0030, 0), dmx(0x0001, 0),
                       buildKelDmx("K", 0x0002, 0, "x")},
                      kController);
    QCOMPARE(m_node->universes(), (QVector<quint16>{0x0001, 0x0002, 0x0030, 0x0105}));
    QCOMPARE(changed.count(), 4);
}

void TestArtNetNode::sourceFollowsTheLatestFlavour()
{
    QVERIFY(start());
    QCOMPARE(m_node->sourceFlavour(), DmxFlavour::ArtNet);
    m_socket->deliver({buildKelDmx("KEL6S-A", 1, 0, "x")}, kController);
    QCOMPARE(m_node->sourceFlavour(), DmxFlavour::Kel);
    QCOMPARE(m_node->kelDeviceName(), QStringLiteral("KEL6S-A"));
    // A nameless KEL packet leaves the name empty, so the next named one fills it in.
    m_socket->deliver({buildKelDmx({}, 1, 0, "x")}, kController);
    QCOMPARE(m_node->kelDeviceName(), QStringLiteral("KEL6S-A"));
    m_socket->deliver({dmx(1, 0)}, kController);
    QCOMPARE(m_node->sourceFlavour(), DmxFlavour::ArtNet);
    QVERIFY(m_node->kelDeviceName().isEmpty());
}

void TestArtNetNode::rateWindowAndAges()
{
    QVERIFY(start());
    QCOMPARE(m_node->stats().msSinceLastDmx, qint64(-1));
    QSignalSpy status(m_node.get(), &ArtNetNode::statusChanged);
    m_socket->deliver(QVector<QByteArray>(100, dmx(1, 0)), kController);
    m_clock.advanceMs(999); // 999 ms is not yet a second
    m_socket->deliver(QVector<QByteArray>(50, dmx(1, 0)), kController);
    QCOMPARE(m_node->stats().packetsPerSecond, 0.0);
    QCOMPARE(status.count(), 0);
    m_clock.advanceMs(251);
    m_socket->deliver({dmx(1, 0)}, kController);
    QCOMPARE(m_node->stats().packetsPerSecond, 151 / 1.25);
    QCOMPARE(status.count(), 1);
    m_clock.advanceMs(40);
    QCOMPARE(m_node->stats().msSinceLastDmx, qint64(40));
    QCOMPARE(m_node->stats().dmxPackets, quint64(151));
}

void TestArtNetNode::stopKeepsStatisticsStartClearsThem()
{
    QVERIFY(start());
    m_socket->deliver({dmx(1, 5), dmx(1, 5), buildPoll(), QByteArray(3, 'x'), buildKelDmx("K", 9, 0, "x")},
                      kController);
    bool socketGone = false;
    m_socket->destroyed = &socketGone;
    QSignalSpy status(m_node.get(), &ArtNetNode::statusChanged);
    m_node->stop();
    QVERIFY(socketGone);
    QVERIFY(!m_node->isRunning());
    QVERIFY(m_node->bindAddress().isNull());
    QCOMPARE(status.count(), 1);
    const NodeStats kept = m_node->stats();
    QCOMPARE(kept.dmxPackets, quint64(3));
    QCOMPARE(kept.artPolls, quint64(1));
    QCOMPARE(kept.ignored, quint64(1));
    QCOMPARE(kept.sequenceErrors, quint64(1));
    QCOMPARE(m_node->universes().size(), 2);

    QVERIFY(start());
    const NodeStats fresh = m_node->stats();
    QCOMPARE(fresh.dmxPackets + fresh.artPolls + fresh.ignored + fresh.sequenceErrors, quint64(0));
    QCOMPARE(fresh.msSinceLastDmx, qint64(-1));
    QCOMPARE(m_node->msSinceLastPoll(), qint64(-1));
    QVERIFY(m_node->universes().isEmpty());
    QCOMPARE(m_node->sourceFlavour(), DmxFlavour::ArtNet);
    QVERIFY(m_node->kelDeviceName().isEmpty());
    // The stored sequence went too: 5 again is no repeat.
    m_socket->deliver({dmx(1, 5)}, kController);
    QCOMPARE(m_node->stats().sequenceErrors, quint64(0));
}

void TestArtNetNode::journalSeesEveryDatagram()
{
    RecordingJournal journal;
    m_node->setPacketJournal(&journal);
    QVERIFY(m_node->start(QHostAddress()));
    QCOMPARE(journal.entries.size(), 1); // the start-up announcement
    journal.entries.clear();

    const QByteArray junk(5, 'x');
    m_socket->deliver({junk, buildPoll()}, kController, 50000);
    QCOMPARE(journal.entries.size(), 2 + 3);
    QCOMPARE(journal.entries.at(0).direction, PacketJournal::Direction::Received);
    QCOMPARE(journal.entries.at(0).bytes, junk); // offered before any check
    QCOMPARE(journal.entries.at(0).peer, kController);
    QCOMPARE(journal.entries.at(0).port, quint16(50000));
    QCOMPARE(journal.entries.at(1).bytes, buildPoll());
    for (int i = 2; i < 5; ++i) {
        QCOMPARE(journal.entries.at(i).direction, PacketJournal::Direction::Sent);
        QCOMPARE(journal.entries.at(i).bytes, m_socket->sent.at(i - 2).bytes);
        QCOMPARE(journal.entries.at(i).writeResult, qint64(kPollReplySize));
    }
    QCOMPARE(journal.entries.at(3).port, quint16(50000));

    journal.enabled = false;
    journal.entries.clear();
    m_socket->deliver({buildPoll()}, kController);
    QVERIFY(journal.entries.isEmpty());
}

void TestArtNetNode::stopFromASlotMidBatch()
{
    QVERIFY(start());
    bool socketGone = false;
    m_socket->destroyed = &socketGone;
    QSignalSpy received(m_node.get(), &ArtNetNode::dmxReceived);
    connect(m_node.get(), &ArtNetNode::dmxReceived, m_node.get(), [this] { m_node->stop(); });
    // The fake keeps using itself after the handler returns, as a real
    // socket's notification does; the sanitizers catch a premature delete.
    m_socket->deliver({dmx(1, 0), dmx(2, 0), dmx(3, 0)}, kController);
    QCOMPARE(received.count(), 1);
    QVERIFY(!m_node->isRunning());
    QVERIFY(!socketGone);
    QTRY_VERIFY(socketGone);
}

void TestArtNetNode::pollFloodIsAnsweredEveryTime()
{
    m_node->setUniverses({1, 2, 3});
    QVERIFY(start());
    QSignalSpy answered(m_node.get(), &ArtNetNode::pollAnswered);
    m_socket->deliver(QVector<QByteArray>(5000, buildPoll()), kController);
    // Read over as many passes of the event loop as the drain's time budget needs.
    QTRY_COMPARE(m_node->stats().artPolls, quint64(5000));
    QCOMPARE(answered.count(), 5000);
    QCOMPARE(m_socket->sent.size(), 5000 * 3 * 2);
    QCOMPARE(m_node->stats().ignored, quint64(0));
}

#ifdef Q_OS_LINUX
void TestArtNetNode::broadcastReceiverAddress_data()
{
    QTest::addColumn<QString>("ip");
    QTest::addColumn<int>("prefix");
    QTest::addColumn<QString>("reported"); // "" when the interface reports none
    QTest::addColumn<QString>("expected"); // "" for no receiver of its own
    QTest::newRow("/24 as reported") << "192.0.2.1" << 24 << "192.0.2.255" << "192.0.2.255";
    QTest::newRow("/24 without brd") << "192.0.2.1" << 24 << "" << "192.0.2.255";
    QTest::newRow("/8, Art-Net's 2.x.x.x") << "2.0.0.11" << 8 << "" << "2.255.255.255";
    QTest::newRow("brd 255.255.255.255") << "192.0.2.1" << 24 << "255.255.255.255" << "";
    QTest::newRow("/31 has none") << "192.0.2.0" << 31 << "" << "";
    QTest::newRow("/32 has none") << "192.0.2.7" << 32 << "" << "";
}

void TestArtNetNode::broadcastReceiverAddress()
{
    QFETCH(QString, ip);
    QFETCH(int, prefix);
    QFETCH(QString, reported);
    QFETCH(QString, expected);
    const quint32 netmask = prefix == 0 ? 0 : ~quint32(0) << (32 - prefix);
    const quint32 got = LinuxUdpDatagramSocket::subnetBroadcast(QHostAddress(ip).toIPv4Address(), netmask,
                                                                reported.isEmpty() ? 0 : QHostAddress(reported).toIPv4Address());
    QCOMPARE(got == 0 ? QString() : QHostAddress(got).toString(), expected);
}
#endif

QTEST_GUILESS_MAIN(TestArtNetNode)
#include "tst_artnetnode.moc"
