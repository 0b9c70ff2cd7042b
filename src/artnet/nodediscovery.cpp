#include "artnet/nodediscovery.h"

#include "artnet/artnetpacket.h"
#include "artnet/nodeidentity.h"

#include <QElapsedTimer>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QUdpSocket>

#include <algorithm>

namespace ArtNet {

namespace {

constexpr int kLegacyReplySize = 207;
constexpr qsizetype kMaxPolls = 16;

quint32 be32(QByteArrayView d, int at) { return (quint32(be16At(d, at)) << 16) | be16At(d, at + 2); }

QString latin1(QByteArrayView d, int at, int size)
{
    const QByteArrayView field = d.sliced(at, size);
    const qsizetype end = field.indexOf('\0');
    return QString::fromLatin1(end < 0 ? field : field.first(end));
}

QString ipText(quint32 ip)
{
    return QHostAddress(ip).toString();
}

QElapsedTimer &monotonic()
{
    static QElapsedTimer timer = [] {
        QElapsedTimer t;
        t.start();
        return t;
    }();
    return timer;
}

} // namespace

bool parsePollReply(QByteArrayView d, PollReplyFields *out)
{
    if (d.size() < kLegacyReplySize || !hasIdAt(d, 0) || le16At(d, 8) != kOpPollReply)
        return false;
    PollReplyFields f;
    f.length = int(d.size());
    f.ip = be32(d, 10);
    f.port = le16At(d, 14);
    f.firmware = be16At(d, 16);
    f.net = quint8(d[18]) & 0x7F;
    f.subNet = quint8(d[19]) & 0x0F;
    f.oem = be16At(d, 20);
    f.status1 = quint8(d[23]);
    f.esta = le16At(d, 24);
    f.shortName = latin1(d, 26, 18);
    f.longName = latin1(d, 44, 64);
    f.report = latin1(d, 108, 64);
    f.numPorts = std::min<int>(be16At(d, 172), 4);
    for (int i = 0; i < 4; ++i) {
        f.portTypes[size_t(i)] = quint8(d[174 + i]);
        f.swIn[size_t(i)] = quint8(d[186 + i]) & 0x0F;
        f.swOut[size_t(i)] = quint8(d[190 + i]) & 0x0F;
    }
    for (int i = 0; i < 6; ++i)
        f.mac[size_t(i)] = quint8(d[201 + i]);
    if (d.size() >= 212) {
        f.bindIp = be32(d, 207);
        f.bindIndex = quint8(d[211]);
    }
    *out = f;
    return true;
}

QString macText(const std::array<quint8, 6> &mac)
{
    QStringList parts;
    for (const quint8 b : mac)
        parts << QStringLiteral("%1").arg(b, 2, 16, QLatin1Char('0'));
    return parts.join(QLatin1Char(':'));
}

QString portsText(const QVector<DiscoveredPort> &ports)
{
    QStringList texts;
    for (const DiscoveredPort &p : ports)
        texts << QStringLiteral("0x%1 %2")
                     .arg(p.portAddress, 4, 16, QLatin1Char('0'))
                     .arg(p.output ? QStringLiteral("out") : QStringLiteral("in"));
    return texts.join(QStringLiteral(", "));
}

QByteArray devicesCsv(const QVector<DiscoveredDevice> &devices)
{
    const auto field = [](QString text) {
        if (text.contains(QLatin1Char(',')) || text.contains(QLatin1Char('"')) || text.contains(QLatin1Char('\n')))
            text = QLatin1Char('"') + text.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
        return text;
    };
    QString csv = QStringLiteral("address,short name,long name,oem,esta,firmware,status,mac,bind indexes,ports,"
                                 "reply ms,online,this program,report,findings\n");
    for (const DiscoveredDevice &d : devices) {
        QStringList bind;
        for (const quint8 b : d.bindIndexes)
            bind << QString::number(b);
        const QStringList row{ipText(d.address),
                              d.first.shortName,
                              d.first.longName,
                              QStringLiteral("0x%1").arg(d.first.oem, 4, 16, QLatin1Char('0')),
                              QStringLiteral("0x%1").arg(d.first.esta, 4, 16, QLatin1Char('0')),
                              QString::number(d.first.firmware),
                              QStringLiteral("0x%1").arg(d.first.status1, 2, 16, QLatin1Char('0')),
                              macText(d.first.mac),
                              bind.join(QLatin1Char(' ')),
                              portsText(d.ports),
                              QString::number(d.replyMs),
                              d.online ? QStringLiteral("yes") : QStringLiteral("no"),
                              d.self ? QStringLiteral("yes") : QStringLiteral("no"),
                              d.first.report,
                              d.findings.join(QStringLiteral(" | "))};
        QStringList fields;
        for (const QString &f : row)
            fields << field(f);
        csv += fields.join(QLatin1Char(',')) + QLatin1Char('\n');
    }
    return csv.toUtf8();
}

void DiscoveryTable::pollSent(qint64 nowMs)
{
    m_polls.append(nowMs);
    if (m_polls.size() > kMaxPolls)
        m_polls.removeFirst();
}

bool DiscoveryTable::replyReceived(quint32 sender, QByteArrayView datagram, qint64 nowMs)
{
    PollReplyFields fields;
    if (!parsePollReply(datagram, &fields))
        return false;
    Device &device = m_devices[sender];
    device.pages.insert(fields.bindIndex, fields);
    device.lastSeenMs = nowMs;
    if (!device.lengths.contains(fields.length))
        device.lengths.append(fields.length);
    // A reply answers the oldest poll of the last 5 s that the device has not
    // answered yet: one more than 3 s late still counts against its own poll,
    // though the next poll has gone out meanwhile. Later pages and the node's
    // own announcements answer nothing.
    for (const qint64 poll : m_polls) {
        if (poll > nowMs || poll <= device.answeredPollMs || nowMs - poll > kForgetPollMs)
            continue;
        device.answeredPollMs = poll;
        device.slowestMs = std::max(device.slowestMs, nowMs - poll);
        break;
    }
    return true;
}

void DiscoveryTable::clear()
{
    m_devices.clear();
    m_polls.clear();
}

QVector<DiscoveredDevice> DiscoveryTable::devices(qint64 nowMs) const
{
    // The latest poll old enough that every device should have answered it.
    qint64 answerable = -1;
    for (const qint64 poll : m_polls) {
        if (nowMs - poll >= kAnswerWithinMs)
            answerable = poll;
    }
    const NodeIdentity ours;
    QVector<DiscoveredDevice> list;
    for (auto it = m_devices.cbegin(); it != m_devices.cend(); ++it) {
        const Device &d = it.value();
        DiscoveredDevice out;
        out.address = it.key();
        out.first = d.pages.first();
        out.replyMs = d.slowestMs;
        out.lastSeenMs = d.lastSeenMs;
        out.online = answerable < 0 || d.lastSeenMs >= answerable;
        out.self = m_local.contains(out.address) && out.first.esta == ours.estaCode
                   && std::equal(ours.mac.begin(), ours.mac.begin() + 3, out.first.mac.begin());
        QStringList bindIps;
        for (const PollReplyFields &page : d.pages) {
            out.bindIndexes.append(page.bindIndex);
            for (int i = 0; i < page.numPorts; ++i) {
                const quint8 type = page.portTypes[size_t(i)];
                const quint16 base = quint16((page.net << 8) | (page.subNet << 4));
                if (type & 0x80)
                    out.ports.append({quint16(base | page.swOut[size_t(i)]), true});
                if (type & 0x40)
                    out.ports.append({quint16(base | page.swIn[size_t(i)]), false});
            }
            if (page.bindIp != 0 && !bindIps.contains(ipText(page.bindIp)))
                bindIps.append(ipText(page.bindIp));
            if (page.numPorts > 1 && !out.findings.join(QString()).contains(QStringLiteral("Art-Net 3")))
                out.findings.append(
                    QStringLiteral("It answers %1 ports in one reply, as Art-Net 3 did; Art-Net 4 controllers "
                                   "expect one port per BindIndex page.")
                        .arg(page.numPorts));
        }
        if (d.slowestMs > kAnswerWithinMs)
            out.findings.append(
                QStringLiteral("It answered %1 ms after the poll; controllers wait 3 s.").arg(d.slowestMs));
        for (const int length : d.lengths) {
            if (length == kPollReplySize)
                continue;
            out.findings.append(length < kPollReplySize
                                    ? QStringLiteral("Its replies are %1 bytes long: legal, but the legacy "
                                                     "layout (239 bytes is current).")
                                          .arg(length)
                                    : QStringLiteral("Its replies are %1 bytes long (239 expected).").arg(length));
        }
        if (out.first.ip != out.address)
            out.findings.append(QStringLiteral("Its IP field says %1, but the replies come from %2.")
                                    .arg(ipText(out.first.ip), ipText(out.address)));
        if (bindIps.size() > 1)
            out.findings.append(QStringLiteral("Its pages name different BindIp addresses (%1).")
                                    .arg(bindIps.join(QStringLiteral(", "))));
        list.append(out);
    }
    // Two devices outputting one Port-Address: a controller cannot tell which shows what.
    // A node of this program only watches its universes, so it claims none.
    for (DiscoveredDevice &device : list) {
        for (const DiscoveredPort &port : std::as_const(device.ports)) {
            if (!port.output || device.self)
                continue;
            for (const DiscoveredDevice &other : std::as_const(list)) {
                if (other.self)
                    continue;
                const bool claims = std::any_of(other.ports.cbegin(), other.ports.cend(), [&](const DiscoveredPort &p) {
                    return p.output && p.portAddress == port.portAddress;
                });
                if (other.address != device.address && claims)
                    device.findings.append(QStringLiteral("Output 0x%1 is also claimed by %2.")
                                               .arg(port.portAddress, 4, 16, QLatin1Char('0'))
                                               .arg(ipText(other.address)));
            }
        }
    }
    return list;
}

QVector<quint16> DiscoveryTable::universesWithoutNode(const QVector<quint16> &patchUniverses) const
{
    const QVector<DiscoveredDevice> all = devices(0);
    QVector<quint16> missing;
    for (const quint16 universe : patchUniverses) {
        const bool fed = std::any_of(all.cbegin(), all.cend(), [universe](const DiscoveredDevice &d) {
            return !d.self && std::any_of(d.ports.cbegin(), d.ports.cend(), [universe](const DiscoveredPort &p) {
                return p.output && p.portAddress == universe;
            });
        });
        if (!fed && !missing.contains(universe))
            missing.append(universe);
    }
    return missing;
}

NodeDiscovery::NodeDiscovery(QObject *parent) : QObject(parent)
{
    m_pollTimer.setInterval(kPollIntervalMs);
    connect(&m_pollTimer, &QTimer::timeout, this, &NodeDiscovery::pollNow);
    m_updateTimer.setSingleShot(true);
    m_updateTimer.setInterval(250);
    connect(&m_updateTimer, &QTimer::timeout, this, &NodeDiscovery::updated);
}

void NodeDiscovery::changed()
{
    if (!m_updateTimer.isActive())
        m_updateTimer.start();
}

void NodeDiscovery::takeReply(quint32 sender, QByteArrayView datagram)
{
    if (m_socket && m_table.replyReceived(sender, datagram, nowMs()))
        changed();
}

NodeDiscovery::~NodeDiscovery() = default;

qint64 NodeDiscovery::nowMs() const
{
    return monotonic().elapsed();
}

bool NodeDiscovery::start(const QHostAddress &target, bool nodeListens, QString *error)
{
    stop();
    auto socket = std::make_unique<QUdpSocket>();
    // Our node answers a poll at its sender's port too, so it reaches a socket of our own either way.
    const bool bound = nodeListens ? socket->bind(QHostAddress::AnyIPv4, 0)
                                   : socket->bind(QHostAddress::AnyIPv4, kDefaultPort,
                                                  QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
    if (!bound) {
        if (error)
            *error = socket->errorString();
        return false;
    }
    // This machine's addresses: a node of ours among the replies is marked as such.
    QVector<quint32> local;
    for (const QHostAddress &a : QNetworkInterface::allAddresses()) {
        if (a.protocol() == QAbstractSocket::IPv4Protocol)
            local.append(a.toIPv4Address());
    }
    m_table.setLocalAddresses(local);
    m_target = target;
    m_socket = std::move(socket);
    connect(m_socket.get(), &QUdpSocket::readyRead, this, &NodeDiscovery::readReplies);
    m_table.clear();
    pollNow();
    m_pollTimer.start();
    return true;
}

void NodeDiscovery::stop()
{
    m_pollTimer.stop();
    m_socket.reset();
}

bool NodeDiscovery::isRunning() const
{
    return m_socket != nullptr;
}

void NodeDiscovery::pollNow()
{
    if (!m_socket)
        return;
    m_table.pollSent(nowMs());
    m_socket->writeDatagram(buildPoll(), m_target, kDefaultPort);
    changed(); // offline devices show at the next poll
}

void NodeDiscovery::readReplies()
{
    bool changed = false;
    while (m_socket && m_socket->hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket->receiveDatagram();
        changed |= m_table.replyReceived(datagram.senderAddress().toIPv4Address(), datagram.data(), nowMs());
    }
    if (changed)
        this->changed();
}

} // namespace ArtNet
