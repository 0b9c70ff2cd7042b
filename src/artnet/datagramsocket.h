#pragma once

#include <QByteArrayView>
#include <QHostAddress>
#include <QString>

#include <functional>

// The node's view of a UDP socket. UdpDatagramSocket is the real one; tests
// hand the node a fake through ArtNetNode's socket factory so they can inject
// datagrams and see every send without touching a network.
//
// Used on the thread that created it.
class DatagramSocket
{
public:
    virtual ~DatagramSocket() = default;

    // Binds with address sharing and reuse allowed, after asking for a receive
    // buffer of receiveBufferBytes. On failure errorString() says why.
    virtual bool bind(const QHostAddress &address, quint16 port, int receiveBufferBytes) = 0;
    virtual QString errorString() const = 0;
    // The receive buffer the system granted after bind (bytes), -1 when unknown.
    // Below what was asked for, a burst the program cannot read at once is lost.
    virtual int receiveBufferBytes() const { return -1; }

    // Called whenever datagrams are waiting; the handler drains them all.
    virtual void setReadyReadHandler(std::function<void()> handler) = 0;
    virtual bool hasPendingDatagrams() const = 0;
    // Reads the next datagram into buffer (cut to maxSize); returns its size or -1.
    virtual qint64 readDatagram(char *buffer, qint64 maxSize, QHostAddress *sender, quint16 *senderPort) = 0;
    // Returns the bytes written or -1.
    virtual qint64 writeDatagram(QByteArrayView bytes, const QHostAddress &host, quint16 port) = 0;
};
