#pragma once

#include <QHostAddress>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <array>
#include <memory>

class QUdpSocket;

// Node discovery: ArtPoll sent on one interface, the ArtPollReply packets
// collected into a table of devices (one per sender address, its BindIndex
// pages together), each judged against what controllers rely on.
namespace ArtNet {

// The fields of one ArtPollReply page. Replies shorter than the 207 bytes of
// the oldest legal layout are not read.
struct PollReplyFields
{
    int length = 0;
    quint32 ip = 0; // the IP field, host order
    quint16 port = 0;
    quint16 firmware = 0;
    quint8 net = 0;
    quint8 subNet = 0;
    quint16 oem = 0;
    quint16 esta = 0;
    quint8 status1 = 0;
    QString shortName, longName, report;
    int numPorts = 0;
    std::array<quint8, 4> portTypes{}, swIn{}, swOut{};
    std::array<quint8, 6> mac{};
    quint32 bindIp = 0; // 0 in a legacy reply without it
    quint8 bindIndex = 0;
};
bool parsePollReply(QByteArrayView datagram, PollReplyFields *out);

struct DiscoveredPort
{
    quint16 portAddress = 0;
    bool output = true; // else input
};

// One device as the table shows it.
struct DiscoveredDevice
{
    quint32 address = 0; // the sender
    PollReplyFields first; // the lowest BindIndex page (names, codes, status, MAC)
    QVector<quint8> bindIndexes;
    QVector<DiscoveredPort> ports;
    qint64 replyMs = -1;  // its slowest answer to a poll (the first page after it)
    qint64 lastSeenMs = 0;
    bool online = true;   // answered within 3 s of the last poll it should have answered
    bool self = false;    // a node of this program on this machine
    QStringList findings; // English; empty when nothing is wrong
};

// "ab:cd:..." and "0x0001 out, 0x0002 in": the texts the table, the export and talu-cli show.
QString macText(const std::array<quint8, 6> &mac);
QString portsText(const QVector<DiscoveredPort> &ports);
// The devices as CSV (a header line, then one line per device; findings joined by " | ").
QByteArray devicesCsv(const QVector<DiscoveredDevice> &devices);

// The table itself: pure logic over times in milliseconds (any epoch), so
// every finding can be tested without a network.
class DiscoveryTable
{
public:
    static constexpr qint64 kAnswerWithinMs = 3000;
    static constexpr qint64 kForgetPollMs = 5000;

    void setLocalAddresses(const QVector<quint32> &addresses) { m_local = addresses; }
    void pollSent(qint64 nowMs);
    // false when the datagram is no ArtPollReply this table can read.
    bool replyReceived(quint32 sender, QByteArrayView datagram, qint64 nowMs);
    void clear();

    // The devices by address, judged; patchUniverses (may be empty) are checked for a device that outputs them.
    QVector<DiscoveredDevice> devices(qint64 nowMs) const;
    QVector<quint16> universesWithoutNode(const QVector<quint16> &patchUniverses) const;

private:
    struct Device
    {
        QMap<quint8, PollReplyFields> pages; // by BindIndex
        qint64 answeredPollMs = -1; // the latest poll it answered
        qint64 slowestMs = -1;      // its slowest answer to a poll
        qint64 lastSeenMs = 0;
        QVector<int> lengths;
    };
    QMap<quint32, Device> m_devices;
    QVector<quint32> m_local;
    QVector<qint64> m_polls; // the latest polls, oldest first
};

// The scan on a socket: polls the target now and every 2.5 s, reads the
// replies into the table and says when it changed. GUI thread (or a
// QCoreApplication's), inside the program's network rules like the node.
class NodeDiscovery : public QObject
{
    Q_OBJECT
public:
    static constexpr int kPollIntervalMs = 2500;

    explicit NodeDiscovery(QObject *parent = nullptr);
    ~NodeDiscovery() override;

    // Polls target, which names the interface by its route (its subnet
    // broadcast, or one address), and reads the replies on port 6454 of every
    // address. With a node of ours listening on 6454, pass nodeListens: a
    // second socket on the port would take the unicast datagrams meant for
    // the node, so the polls leave from a port of their own and the node's
    // owner hands over the replies it receives (takeReply). False with a message.
    bool start(const QHostAddress &target, bool nodeListens, QString *error);
    // A reply that arrived elsewhere (the node's socket).
    void takeReply(quint32 sender, QByteArrayView datagram);
    void stop();
    bool isRunning() const;
    void pollNow();

    const DiscoveryTable &table() const { return m_table; }
    qint64 nowMs() const;

signals:
    void updated();

private:
    void readReplies();

    void changed();

    std::unique_ptr<QUdpSocket> m_socket;
    QHostAddress m_target;
    QTimer m_pollTimer;
    QTimer m_updateTimer; // updated() at most every 250 ms, however many replies come
    DiscoveryTable m_table;
};

} // namespace ArtNet
