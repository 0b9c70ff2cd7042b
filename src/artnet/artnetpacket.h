#pragma once

#include "artnet/artnetwire.h"
#include "artnet/nodeidentity.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QVector>

// The packets this node builds (ArtPoll, ArtPollReply, ArtDmx): pure
// functions over bytes, no sockets, so every rule can be checked against
// golden byte arrays. What a datagram is lives in artnetwire.h.
namespace ArtNet {

// Everything that goes into one ArtPollReply page.
struct PollReplyInput
{
    NodeIdentity identity;
    quint32 bindIPv4 = 0; // host order; 0 when bound to any address
    quint16 port = kDefaultPort;
    QVector<quint16> universes; // advertised Port-Addresses, one page each
    quint64 dmxPackets = 0;     // shown in the node report
};

// Pages in the reply set: one per advertised universe, at least one.
int pollReplyPageCount(const QVector<quint16> &universes);

// BindIndex of a page. Controllers that group pages by BindIndex see the
// Port-Address + 1 when every universe fits into a byte; past 254 that would
// collide, so the page number + 1 is used instead.
quint8 pollReplyBindIndex(const QVector<quint16> &universes, int page);

// The 239-byte ArtPollReply for one page of the reply set.
QByteArray buildPollReply(const PollReplyInput &input, int page);

// Builders for the packets our tests and load generator send.
QByteArray buildPoll();
QByteArray buildDmx(quint16 portAddress, quint8 sequence, QByteArrayView data);
QByteArray buildKelDmx(const QByteArray &deviceNameLatin1, quint16 portAddress, quint8 sequence,
                       QByteArrayView data);

} // namespace ArtNet
