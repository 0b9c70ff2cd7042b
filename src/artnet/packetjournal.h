#pragma once

#include <QByteArrayView>
#include <QHostAddress>

// What the node hands the packet log: every datagram it sends or receives,
// as raw bytes, before any check. The node holds a non-owning pointer; the
// journal must outlive it or be detached with setPacketJournal(nullptr).
//
// Called on the node's thread (the GUI thread), synchronously inside the
// receive loop and the send routine, so an implementation must be quick:
// copy the bytes and return.
class PacketJournal
{
public:
    enum class Direction { Received, Sent };

    virtual ~PacketJournal() = default;

    // The node offers datagrams only while this is true.
    virtual bool isEnabled() const = 0;

    // peer: sender of a received datagram, destination of a sent one.
    // writeResult: for a sent datagram what the socket's write returned (bytes
    // written, or -1 on failure); for a received one the datagram's size.
    virtual void journalDatagram(Direction direction, const QHostAddress &peer, quint16 peerPort,
                                 QByteArrayView bytes, qint64 writeResult) = 0;
};
