#pragma once

#include "artnet/datagramsocket.h"
#include "artnet/monotonicclock.h"
#include "artnet/packetjournal.h"

#include <QByteArray>
#include <QHostAddress>
#include <QVector>

#include <deque>

// The node's seams for tests: a socket fed by hand that records sends, a stepped clock, a recording journal.

struct FakeDatagram
{
    QByteArray bytes;
    QHostAddress host;
    quint16 port = 0;
};

class FakeSocket final : public DatagramSocket
{
public:
    bool bindResult = true;
    QHostAddress boundAddress;
    quint16 boundPort = 0;
    int receiveBufferBytes = 0;
    QVector<FakeDatagram> sent;
    std::deque<FakeDatagram> pending;
    bool *destroyed = nullptr;
    int notifications = 0;
    std::function<void()> readyRead;

    ~FakeSocket() override
    {
        if (destroyed)
            *destroyed = true;
    }

    bool bind(const QHostAddress &address, quint16 port, int bufferBytes) override
    {
        boundAddress = address;
        boundPort = port;
        receiveBufferBytes = bufferBytes;
        return bindResult;
    }
    QString errorString() const override { return QStringLiteral("The address is not available"); }
    void setReadyReadHandler(std::function<void()> handler) override { readyRead = std::move(handler); }
    bool hasPendingDatagrams() const override { return !pending.empty(); }
    qint64 readDatagram(char *buffer, qint64 maxSize, QHostAddress *sender, quint16 *senderPort) override
    {
        const FakeDatagram d = pending.front();
        pending.pop_front();
        const qint64 n = std::min<qint64>(maxSize, d.bytes.size());
        std::memcpy(buffer, d.bytes.constData(), size_t(n));
        *sender = d.host;
        *senderPort = d.port;
        return n;
    }
    qint64 writeDatagram(QByteArrayView bytes, const QHostAddress &host, quint16 port) override
    {
        sent.append({bytes.toByteArray(), host, port});
        return bytes.size();
    }

    // Queues datagrams and raises one readyRead for the whole batch.
    void deliver(const QVector<QByteArray> &datagrams, const QHostAddress &from, quint16 fromPort = 6454)
    {
        for (const QByteArray &d : datagrams)
            pending.push_back({d, from, fromPort});
        if (readyRead)
            readyRead();
        ++notifications; // touches the socket after the handler, as Qt does
    }
};

class FakeClock final : public MonotonicClock
{
public:
    qint64 now = 1'000'000'000'000;
    qint64 nowNs() const override { return now; }
    void advanceMs(qint64 ms) { now += ms * 1'000'000; }
};

class RecordingJournal final : public PacketJournal
{
public:
    struct Entry
    {
        Direction direction;
        QHostAddress peer;
        quint16 port;
        QByteArray bytes;
        qint64 writeResult;
    };
    bool enabled = true;
    QVector<Entry> entries;

    bool isEnabled() const override { return enabled; }
    void journalDatagram(Direction direction, const QHostAddress &peer, quint16 peerPort, QByteArrayView bytes,
                         qint64 writeResult) override
    {
        entries.append({direction, peer, peerPort, bytes.toByteArray(), writeResult});
    }
};
