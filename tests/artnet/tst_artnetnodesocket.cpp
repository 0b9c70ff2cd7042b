#include "artnet/artnetnode.h"
#include "artnet/linuxudpdatagramsocket.h"
#include "artnet/udpdatagramsocket.h"

#include "netnsguard.h"

#include <QSignalSpy>
#include <QUdpSocket>
#include <QtTest>

// The node on real UDP sockets, only inside the private network namespace (label "network"): it broadcasts.

using namespace ArtNet;

namespace {

const QHostAddress kLoopback(QHostAddress::LocalHost);
constexpr quint16 kNodePort = 16454;

QByteArray readOne(QUdpSocket &socket, QHostAddress *from = nullptr)
{
    if (!socket.hasPendingDatagrams() && !socket.waitForReadyRead(3000))
        return {};
    QByteArray bytes(int(socket.pendingDatagramSize()), '\0');
    socket.readDatagram(bytes.data(), bytes.size(), from);
    return bytes;
}

using Factory = ArtNetNode::SocketFactory;

} // namespace

// Before its first use in QFETCH_GLOBAL (a Release build instantiates the type id there).
Q_DECLARE_METATYPE(Factory)

namespace {

// Every test runs once per socket implementation the platform has.
std::unique_ptr<ArtNetNode> makeNode()
{
    QFETCH_GLOBAL(Factory, factory);
    return std::make_unique<ArtNetNode>(factory, nullptr);
}

} // namespace

class TestArtNetNodeSocket : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TALU_REQUIRE_PRIVATE_NAMESPACE(); }

    void initTestCase_data()
    {
        QTest::addColumn<Factory>("factory");
        QTest::newRow("QUdpSocket") << Factory([] { return std::make_unique<UdpDatagramSocket>(); });
#ifdef Q_OS_LINUX
        QTest::newRow("recvmmsg") << Factory([] { return std::make_unique<LinuxUdpDatagramSocket>(); });
#endif
    }

    void answersPollAndReceivesDmx()
    {
        const auto node = makeNode();
        node->setUniverses({0x0001, 0x0012});
        QVERIFY2(node->start(kLoopback, kNodePort), qPrintable(node->lastError()));
        QUdpSocket controller;
        QVERIFY(controller.bind(kLoopback, 0));

        QSignalSpy answered(node.get(), &ArtNetNode::pollAnswered);
        controller.writeDatagram(buildPoll(), kLoopback, kNodePort);
        QVERIFY(answered.wait(3000));
        // Two pages, answered to the controller's own port.
        for (int page = 0; page < 2; ++page) {
            const QByteArray reply = readOne(controller);
            QCOMPARE(reply.size(), kPollReplySize);
            QCOMPARE(reply.mid(8, 2), QByteArray("\x00\x21", 2));
            QCOMPARE(reply.mid(10, 4), QByteArray("\x7F\x00\x00\x01", 4));
            QCOMPARE(int(reply.at(190)), page == 0 ? 1 : 2);
        }

        QSignalSpy received(node.get(), &ArtNetNode::dmxReceived);
        constexpr int kPackets = 300; // many batches
        for (int i = 0; i < kPackets; ++i)
            controller.writeDatagram(buildDmx(quint16(i % 3), quint8(i % 255 + 1), QByteArray(512, char(i))),
                                     kLoopback, kNodePort);
        QTRY_COMPARE_WITH_TIMEOUT(received.count(), kPackets, 5000);
        QCOMPARE(received.last().at(1).toByteArray(), QByteArray(512, char(kPackets - 1)));
        const NodeStats s = node->stats();
        QCOMPARE(s.dmxPackets, quint64(kPackets));
        QCOMPARE(s.sequenceErrors, quint64(0));
        QCOMPARE(s.artPolls, quint64(1));
        QCOMPARE(node->universes(), (QVector<quint16>{0, 1, 2}));

        // The largest datagram arrives whole; its length field (0xFFFF) lies.
        QByteArray huge = buildDmx(9, 0, QByteArray(kMaxDatagramSize - kDmxHeaderSize, 'h'));
        huge[16] = char(0xFF);
        huge[17] = char(0xFF);
        QCOMPARE(controller.writeDatagram(huge, kLoopback, kNodePort), qint64(kMaxDatagramSize));
        QTRY_COMPARE_WITH_TIMEOUT(received.count(), kPackets + 1, 5000);
        QCOMPARE(received.last().at(1).toByteArray().size(), kMaxDatagramSize - kDmxHeaderSize);
    }

    void broadcastsReachTheSegment()
    {
        // Another node on the segment listens on any address at the same port.
        QUdpSocket neighbour;
        QVERIFY(neighbour.bind(QHostAddress::AnyIPv4, kNodePort + 1, QAbstractSocket::ShareAddress));
        const auto node = makeNode();
        QVERIFY2(node->start(QHostAddress(), kNodePort + 1), qPrintable(node->lastError()));
        const QByteArray announce = readOne(neighbour);
        QCOMPARE(announce.size(), kPollReplySize);
        QCOMPARE(announce.mid(10, 4), QByteArray(4, '\0')); // bound to any
        QCOMPARE(classifyDatagram(announce).kind, DatagramKind::PollReply);
    }

    void boundToAnAddressHearsItsSegmentsBroadcasts()
    {
#ifdef Q_OS_LINUX
        QFETCH_GLOBAL(Factory, factory);
        if (dynamic_cast<LinuxUdpDatagramSocket *>(factory().get()) == nullptr)
            QSKIP("Only the Linux socket adds broadcast receivers; the node uses it on Linux.");
        // The node listens on talu0's address, the controller sends from talu1 (same segment).
        const QHostAddress nodeAddress(QStringLiteral("192.0.2.1"));
        const auto node = makeNode();
        node->setUniverses({0x0003});
        QVERIFY2(node->start(nodeAddress, kNodePort + 2), qPrintable(node->lastError()));
        QUdpSocket controller;
        QVERIFY(controller.bind(QHostAddress(QStringLiteral("192.0.2.2")), 0));
        QSignalSpy answered(node.get(), &ArtNetNode::pollAnswered);
        QSignalSpy received(node.get(), &ArtNetNode::dmxReceived);
        for (const char *to : {"192.0.2.255", "255.255.255.255", "192.0.2.1"})
            controller.writeDatagram(buildPoll(), QHostAddress(QLatin1String(to)), kNodePort + 2);
        QTRY_COMPARE(answered.count(), 3);
        QTest::qWait(200);
        QCOMPARE(answered.count(), 3); // each poll heard once, not by two receivers
        controller.writeDatagram(buildDmx(0x0003, 1, QByteArray(512, '\x7f')),
                                 QHostAddress(QStringLiteral("192.0.2.255")), kNodePort + 2);
        QTRY_COMPARE(received.count(), 1);
        // Replies are sourced from, and name, the chosen address.
        QHostAddress from;
        QByteArray reply;
        while (reply.isEmpty() || classifyDatagram(reply).kind != DatagramKind::PollReply) {
            reply = readOne(controller, &from);
            QVERIFY(!reply.isEmpty());
        }
        QCOMPARE(from, nodeAddress);
        QCOMPARE(reply.mid(10, 4), QByteArray("\xC0\x00\x02\x01", 4));
#else
        QSKIP("Linux only.");
#endif
    }

    void bindFailuresCarryTheSocketText()
    {
        const auto node = makeNode();
        QVERIFY(!node->start(QHostAddress(QStringLiteral("192.0.2.99")), kNodePort));
        QVERIFY(!node->lastError().isEmpty());
        QVERIFY(!node->isRunning());

        // A socket that does not share its port keeps others out.
        QUdpSocket owner;
        QVERIFY(owner.bind(kLoopback, kNodePort + 2, QAbstractSocket::DontShareAddress));
        QVERIFY(!node->start(kLoopback, kNodePort + 2));
        QVERIFY(!node->lastError().isEmpty());
        qInfo("port taken: %s", qPrintable(node->lastError()));
    }
};

QTEST_GUILESS_MAIN(TestArtNetNodeSocket)
#include "tst_artnetnodesocket.moc"
