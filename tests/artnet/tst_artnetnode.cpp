#include "artnet/artnetnode.h"
#include "artnet/linuxudpdatagramsocket.h"

#include "fakenodeseams.h"

#include <QSignalSpy>
#include <QtTest>

using namespace ArtNet;

namespace {

const QHostAddress kController(QStringLiteral("192.168.1.20"));
const QString kBroadcast = QStringLiteral("255.255.255.255");

QByteArray dmx(quint16 portAddress, quint8 sequence, int length = 512)
{
    return buildDmx(portAddress, sequence, QByteArray(length, char(0x5A)));
}

using Batch = QVector<QByteArray>;

// Four-byte DMX numbered as given on universe 1; a negative number goes to universe 2.
Batch numbered(const QVector<int> &sequences)
{
    Batch out;
    for (int s : sequences)
        out.append(dmx(s < 0 ? 2 : 1, quint8(std::abs(s)), 4));
    return out;
}

using Destinations = QVector<QPair<QString, int>>;

Destinations destinationsOf(const QVector<FakeDatagram> &sent)
{
    Destinations out;
    for (const FakeDatagram &d : sent)
        out.append({d.host.toString(), d.port});
    return out;
}

// The node's non-zero counters, the universes it saw and its source, as one line to compare.
QString summary(const ArtNetNode &node)
{
    const NodeStats s = node.stats();
    const std::pair<const char *, quint64> figures[] = {
        {"dmx", s.dmxPackets}, {"polls", s.artPolls}, {"ignored", s.ignored}, {"seq", s.sequenceErrors}};
    QStringList counters, seen;
    for (const auto &[name, n] : figures)
        if (n != 0)
            counters << QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(n);
    for (quint16 u : node.universes())
        seen << QStringLiteral("0x%1").arg(u, 4, 16, QLatin1Char('0'));
    QString source = QLatin1String(node.sourceFlavour() == DmxFlavour::Kel ? "KEL" : "Art-Net");
    if (!node.kelDeviceName().isEmpty())
        source += QLatin1Char(' ') + node.kelDeviceName();
    const auto part = [](const QStringList &l, const char *sep) {
        return l.isEmpty() ? QStringLiteral("-") : l.join(QLatin1String(sep));
    };
    return part(counters, ", ") + QStringLiteral("; ") + part(seen, ",") + QStringLiteral("; ") + source;
}

} // namespace

class TestArtNetNode : public QObject
{
    Q_OBJECT

    FakeClock m_clock;
    FakeSocket *m_socket = nullptr; // owned by the node while it runs
    std::unique_ptr<ArtNetNode> m_node;
    bool m_nextBindResult = true;

    bool start(const QHostAddress &address = QHostAddress(), quint16 port = kDefaultPort)
    {
        const bool ok = m_node->start(address, port);
        if (ok)
            m_socket->sent.clear(); // the start-up announcement is checked on its own
        return ok;
    }

private slots:
    void init()
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

    void cleanup()
    {
        m_node.reset();
        m_socket = nullptr;
    }

    void startBindsAndAnnounces()
    {
        const Destinations twoBroadcasts{{kBroadcast, 6454}, {kBroadcast, 6454}};
        QSignalSpy status(m_node.get(), &ArtNetNode::statusChanged);
        m_node->setUniverses({1, 2}); // stopped: nothing to send through
        QVERIFY(m_node->start(QHostAddress()));
        QVERIFY(m_node->isRunning());
        QCOMPARE(m_socket->boundAddress, QHostAddress(QHostAddress::AnyIPv4));
        QCOMPARE(m_socket->boundPort, quint16(6454));
        QVERIFY(m_socket->receiveBufferBytes >= 6 << 20); // 30 ms of paint at 100,000 packets/s
        QCOMPARE(destinationsOf(m_socket->sent), twoBroadcasts);
        QVERIFY(status.count() >= 1);

        // The timer and every change while running announce the reply set again.
        m_socket->sent.clear();
        m_node->onAnnounceTimer();
        QCOMPARE(m_socket->sent.size(), 2);
        QCOMPARE(int(quint8(m_socket->sent.at(1).bytes.at(211))), 3); // BindIndex of universe 2
        m_socket->sent.clear();
        m_node->setUniverses({4, 5});
        QCOMPARE(destinationsOf(m_socket->sent), twoBroadcasts);
        NodeIdentity id;
        id.shortName = QStringLiteral("TOVA");
        m_node->setIdentity(id);
        QCOMPARE(m_socket->sent.size(), 4);
        QCOMPARE(m_socket->sent.at(3).bytes.mid(26, 5), QByteArray("TOVA\0", 5));
    }

    void bindFailureKeepsNodeStopped()
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

    void replyDestinations_data()
    {
        QTest::addColumn<QVector<quint16>>("universes");
        QTest::addColumn<QString>("asker");
        QTest::addColumn<int>("askerPort");
        QTest::addColumn<Destinations>("expected");
        const QString c = kController.toString();
        const QString b = kBroadcast;
        QTest::newRow("from 6454") << QVector<quint16>{} << c << 6454 << Destinations{{c, 6454}, {b, 6454}};
        QTest::newRow("from 50000") << QVector<quint16>{} << c << 50000
                                    << Destinations{{c, 6454}, {c, 50000}, {b, 6454}};
        QTest::newRow("broadcast poll") << QVector<quint16>{} << b << 50000
                                        << Destinations{{b, 6454}, {b, 50000}};
        QTest::newRow("three pages")
            << QVector<quint16>{0x0001, 0x0012, 0x0123} << c << 6454
            << Destinations{{c, 6454}, {b, 6454}, {c, 6454}, {b, 6454}, {c, 6454}, {b, 6454}};
    }
    void replyDestinations()
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

    void replyCarriesBindAddressAndCount()
    {
        QVERIFY(start(QHostAddress(QStringLiteral("192.0.2.1")), 7000));
        m_socket->deliver({dmx(1, 0), dmx(1, 0), dmx(1, 0), buildPoll()}, kController);
        const QByteArray reply = m_socket->sent.value(0).bytes;
        QCOMPARE(reply.mid(10, 6), QByteArray("\xC0\x00\x02\x01\x58\x1B", 6)); // 192.0.2.1, port 7000 LE
        QCOMPARE(reply.mid(207, 4), QByteArray("\xC0\x00\x02\x01", 4));
        QVERIFY(reply.mid(108, 64).startsWith("#0001 [3] Torvane"));
        QCOMPARE(m_socket->sent.value(0).port, quint16(7000));
    }

    void dmxDeliveryKeepsTheDataLengthRule()
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
        // The 18-byte packet with length 0 is ignored.
        QCOMPARE(summary(*m_node), QStringLiteral("dmx 2, ignored 1; 0x0042,0x0043; Art-Net"));
    }

    void countersUniversesAndSource_data()
    {
        QTest::addColumn<Batch>("datagrams");
        QTest::addColumn<QString>("summary");
        // The sequence comparison itself is tabled in the packet test; these rows check what the node keeps.
        QTest::newRow("5 after 5") << numbered({5, 5}) << "dmx 2, seq 1; 0x0001; Art-Net";
        QTest::newRow("0 never counts") << numbered({5, 0, 0}) << "dmx 3; 0x0001; Art-Net";
        QTest::newRow("0 keeps the stored value") << numbered({5, 0, 5}) << "dmx 3, seq 1; 0x0001; Art-Net";
        QTest::newRow("first packet") << numbered({200}) << "dmx 1; 0x0001; Art-Net";
        QTest::newRow("error stores the new value") << numbered({9, 3, 4}) << "dmx 3, seq 1; 0x0001; Art-Net";
        QTest::newRow("universes apart") << numbered({5, -5, 6, -6}) << "dmx 4; 0x0001,0x0002; Art-Net";
        // Other nodes' replies are not counted at all.
        QTest::newRow("junk is ignored")
            << Batch{QByteArray(), QByteArray(9, 'A'), QByteArray(17, 'A'), QByteArray(600, 'A'),
                     QByteArray("Art-Net\0\0\x50", 10),                     // ArtDmx OpCode, header cut short
                     buildKelDmx("KEL", 1, 0, QByteArray(4, 'k')).left(30), // KEL without data
                     QByteArray("Art-Net\0\0\x97\0\x0e", 12),           // an OpCode this node does not handle
                     buildPollReply({}, 0)}
            << "ignored 7; -; Art-Net";
        QTest::newRow("universes seen ascending")
            << Batch{dmx(0x0105, 0), dmx(0x0001, 0), dmx(0x0030, 0), dmx(0x0001, 0),
                     buildKelDmx("K", 0x0002, 0, "x")}
            << "dmx 5; 0x0001,0x0002,0x0030,0x0105; KEL K";
        // The source follows the latest packet's flavour; a KEL name stays until a named packet replaces it.
        const QByteArray named = buildKelDmx("KEL6S-A", 1, 0, "x");
        const QByteArray nameless = buildKelDmx({}, 1, 0, "x");
        QTest::newRow("KEL named") << Batch{named} << "dmx 1; 0x0001; KEL KEL6S-A";
        QTest::newRow("nameless KEL keeps it") << Batch{named, nameless} << "dmx 2; 0x0001; KEL KEL6S-A";
        QTest::newRow("named after nameless") << Batch{nameless, named} << "dmx 2; 0x0001; KEL KEL6S-A";
        QTest::newRow("Art-Net after KEL") << Batch{named, nameless, dmx(1, 0)} << "dmx 3; 0x0001; Art-Net";
    }
    void countersUniversesAndSource()
    {
        QFETCH(Batch, datagrams);
        QVERIFY(start());
        QCOMPARE(m_node->sourceFlavour(), DmxFlavour::ArtNet);
        QSignalSpy received(m_node.get(), &ArtNetNode::dmxReceived);
        QSignalSpy changed(m_node.get(), &ArtNetNode::universesChanged);
        m_socket->deliver(datagrams, kController);
        QTEST(summary(*m_node), "summary");
        QCOMPARE(received.count(), qsizetype(m_node->stats().dmxPackets));
        QCOMPARE(changed.count(), m_node->universes().size()); // once per new universe
        QVERIFY(m_socket->sent.isEmpty());
    }

    void rateWindowAndAges()
    {
        QVERIFY(start());
        QCOMPARE(m_node->stats().msSinceLastDmx, qint64(-1));
        QSignalSpy status(m_node.get(), &ArtNetNode::statusChanged);
        m_socket->deliver(Batch(100, dmx(1, 0)), kController);
        m_clock.advanceMs(999); // 999 ms is not yet a second
        m_socket->deliver(Batch(50, dmx(1, 0)), kController);
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

    void stopKeepsStatisticsStartClearsThem()
    {
        QVERIFY(start());
        const Batch batch{dmx(1, 5), dmx(1, 5), buildPoll(), QByteArray(3, 'x'), buildKelDmx("K", 9, 0, "x")};
        m_socket->deliver(batch, kController);
        bool socketGone = false;
        m_socket->destroyed = &socketGone;
        QSignalSpy status(m_node.get(), &ArtNetNode::statusChanged);
        m_node->stop();
        QVERIFY(socketGone);
        QVERIFY(!m_node->isRunning());
        QVERIFY(m_node->bindAddress().isNull());
        QCOMPARE(status.count(), 1);
        QCOMPARE(summary(*m_node), QStringLiteral("dmx 3, polls 1, ignored 1, seq 1; 0x0001,0x0009; KEL K"));

        QVERIFY(start());
        QCOMPARE(summary(*m_node), QStringLiteral("-; -; Art-Net"));
        QCOMPARE(m_node->stats().msSinceLastDmx, qint64(-1));
        QCOMPARE(m_node->msSinceLastPoll(), qint64(-1));
        m_socket->deliver({dmx(1, 5)}, kController); // the stored sequence went too: 5 again is no repeat
        QCOMPARE(m_node->stats().sequenceErrors, quint64(0));
    }

    void journalSeesEveryDatagram()
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

    void stopFromASlotMidBatch()
    {
        QVERIFY(start());
        bool socketGone = false;
        m_socket->destroyed = &socketGone;
        QSignalSpy received(m_node.get(), &ArtNetNode::dmxReceived);
        connect(m_node.get(), &ArtNetNode::dmxReceived, m_node.get(), [this] { m_node->stop(); });
        // The fake touches itself after the handler, as Qt does; the sanitizers catch a premature delete.
        m_socket->deliver({dmx(1, 0), dmx(2, 0), dmx(3, 0)}, kController);
        QCOMPARE(received.count(), 1);
        QVERIFY(!m_node->isRunning());
        QVERIFY(!socketGone);
        QTRY_VERIFY(socketGone);
    }

    void pollFloodIsAnsweredEveryTime()
    {
        m_node->setUniverses({1, 2, 3});
        QVERIFY(start());
        QSignalSpy answered(m_node.get(), &ArtNetNode::pollAnswered);
        m_socket->deliver(Batch(5000, buildPoll()), kController);
        // Read over as many passes of the event loop as the drain's time budget needs.
        QTRY_COMPARE(m_node->stats().artPolls, quint64(5000));
        QCOMPARE(answered.count(), 5000);
        QCOMPARE(m_socket->sent.size(), 5000 * 3 * 2);
        QCOMPARE(m_node->stats().ignored, quint64(0));
    }

#ifdef Q_OS_LINUX
    void broadcastReceiverAddress_data()
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
    void broadcastReceiverAddress()
    {
        QFETCH(QString, ip);
        QFETCH(int, prefix);
        QFETCH(QString, reported);
        const quint32 netmask = prefix == 0 ? 0 : ~quint32(0) << (32 - prefix);
        const quint32 brd = reported.isEmpty() ? 0 : QHostAddress(reported).toIPv4Address();
        const quint32 got = LinuxUdpDatagramSocket::subnetBroadcast(QHostAddress(ip).toIPv4Address(), netmask,
                                                                    brd);
        QTEST(got == 0 ? QString() : QHostAddress(got).toString(), "expected");
    }
#endif
};

QTEST_GUILESS_MAIN(TestArtNetNode)
#include "tst_artnetnode.moc"
