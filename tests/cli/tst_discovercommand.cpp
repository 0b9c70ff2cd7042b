// talu-cli discover in the private namespace: a correct node, a legacy one (207-byte replies, wrong IP
// field) and one of ours, all found and judged.
#include "artnet/artnetpacket.h"
#include "clirunner.h"
#include "cliprocess.h"
#include "netnsguard.h"

#include <QJsonArray>
#include <QNetworkDatagram>
#include <QProcess>
#include <QUdpSocket>
#include <QtTest>

namespace {

// Another maker's node: answers every ArtPoll with its pages, broadcast from its own address.
class TestNode : public QObject
{
public:
    TestNode(const QString &address, QVector<QByteArray> pages) : m_pages(std::move(pages))
    {
        m_listen.bind(QHostAddress::AnyIPv4, 6454, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
        m_send.bind(QHostAddress(address), 0);
        connect(&m_listen, &QUdpSocket::readyRead, this, [this] {
            while (m_listen.hasPendingDatagrams()) {
                const QByteArray d = m_listen.receiveDatagram().data();
                if (d.size() >= 10 && d.startsWith(QByteArray("Art-Net\0", 8)) && quint8(d[9]) == 0x20)
                    for (const QByteArray &page : std::as_const(m_pages))
                        m_send.writeDatagram(page, QHostAddress(QStringLiteral("192.0.2.255")), 6454);
            }
        });
    }

private:
    QVector<QByteArray> m_pages;
    QUdpSocket m_listen, m_send;
};

// An ArtPollReply page: IP field, ESTA, names, the output ports' universes (one Net/Sub-Net).
QByteArray reply(quint32 ipField, quint16 esta, const char *name, QVector<quint8> outputs, quint8 bindIndex,
                 int length)
{
    QByteArray r(239, '\0');
    r.replace(0, 8, QByteArray("Art-Net\0", 8));
    r[9] = 0x21;
    for (int i = 0; i < 4; ++i)
        r[10 + i] = char(ipField >> (24 - 8 * i));
    r[14] = char(0x36);
    r[15] = char(0x19);
    r[24] = char(esta & 0xFF);
    r[25] = char(esta >> 8);
    r.replace(26, int(qstrlen(name)), name);
    r.replace(44, int(qstrlen(name)), name);
    r[173] = char(outputs.size());
    for (int i = 0; i < outputs.size(); ++i) {
        r[174 + i] = char(0x80);
        r[190 + i] = char(outputs[i]);
    }
    r[211] = char(bindIndex);
    return r.left(length);
}

} // namespace

class TestDiscoverCommand : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { TALU_REQUIRE_PRIVATE_NAMESPACE(); }

    void findsAndJudgesTheNodes()
    {
        // A third address on the segment for the second maker's node.
        QProcess::execute(QStringLiteral("ip"), {"addr", "add", "192.0.2.3/24", "dev", "talu1"});
        TestNode good(QStringLiteral("192.0.2.2"), {reply(0xC0000202, 0x1234, "GoodNode", {1}, 1, 239),
                                                    reply(0xC0000202, 0x1234, "GoodNode", {2}, 2, 239)});
        TestNode legacy(QStringLiteral("192.0.2.3"), {reply(0x0A090807, 0x4321, "OldNode", {2, 3}, 0, 207)});
        QProcess ours, discover;
        TestCli::start(ours, {"listen", "--address", "192.0.2.1", "--universes", "4", "--seconds", "8"});
        QVERIFY(ours.waitForStarted());
        QTest::qWait(700);
        TestCli::start(discover, {"discover", "--address", "192.0.2.2", "--seconds", "2", "--patch",
                                  TestCli::example(QStringLiteral("demo.tpatch")), "--json"});
        // The nodes made here answer from this event loop.
        QTRY_VERIFY_WITH_TIMEOUT(discover.state() == QProcess::NotRunning, 15000);
        QCOMPARE(discover.exitCode(), 0);
        const QJsonObject report = QJsonDocument::fromJson(discover.readAllStandardOutput()).object();
        QMap<QString, QJsonObject> nodes;
        for (const QJsonValue &n : report.value("nodes").toArray())
            nodes.insert(n["address"].toString(), n.toObject());
        QCOMPARE(nodes.keys(), (QStringList{"192.0.2.1", "192.0.2.2", "192.0.2.3"}));

        const QJsonObject goodNode = nodes.value(QStringLiteral("192.0.2.2"));
        QCOMPARE(goodNode.value("shortName").toString(), QStringLiteral("GoodNode"));
        QCOMPARE(goodNode.value("bindIndexes").toArray(), (QJsonArray{1, 2}));
        QCOMPARE(goodNode.value("ports").toArray(),
                 (QJsonArray{QJsonObject{{"portAddress", 1}, {"direction", "output"}},
                             QJsonObject{{"portAddress", 2}, {"direction", "output"}}}));
        QCOMPARE(goodNode.value("findings").toArray(),
                 QJsonArray{QStringLiteral("Output 0x0002 is also claimed by 192.0.2.3.")});
        QCOMPARE(goodNode.value("self").toBool(), false);

        QCOMPARE(nodes.value(QStringLiteral("192.0.2.3")).value("findings").toArray(),
                 (QJsonArray{QStringLiteral("It answers 2 ports in one reply, as Art-Net 3 did; Art-Net 4 "
                                            "controllers expect one port per BindIndex page."),
                             QStringLiteral("Its replies are 207 bytes long: legal, but the legacy layout (239 "
                                            "bytes is current)."),
                             QStringLiteral("Its IP field says 10.9.8.7, but the replies come from 192.0.2.3."),
                             QStringLiteral("Output 0x0002 is also claimed by 192.0.2.2.")}));

        const QJsonObject self = nodes.value(QStringLiteral("192.0.2.1"));
        QCOMPARE(self.value("self").toBool(), true);
        QCOMPARE(self.value("shortName").toString(), QStringLiteral("TorvaneTester"));
        QCOMPARE(self.value("findings").toArray(), QJsonArray());
        // The demo patches 0x0000-0x000E; the two makers' nodes output 1, 2 and 3 (ours does not count).
        QCOMPARE(report.value("patchUniversesWithoutNode").toArray(),
                 (QJsonArray{0, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}));
        ours.kill();
        ours.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(TestDiscoverCommand)
#include "tst_discovercommand.moc"
