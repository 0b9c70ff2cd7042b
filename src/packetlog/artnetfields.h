#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

namespace PacketLog {

// One field of a datagram as the packet log's detail pane shows it: its name,
// its value in words and where its bytes are, so the hex dump can mark them.
struct DecodedField
{
    QString name;
    QString value;
    int offset = 0;
    int length = 0;
};

// The Art-Net fields of the datagram's first bytes: the header of every
// packet, then for ArtDmx the sequence, physical port, Port-Address (as
// Net/Sub-Net/Universe) and data length; for ArtPoll its flags; for
// ArtPollReply the address, names, ports, BindIndex and status. Fields past
// the bytes given are left out; anything but Art-Net gives no fields.
// Field names are English, like the protocol's own. Never throws.
std::vector<DecodedField> decodeArtNetFields(QByteArrayView bytes);

} // namespace PacketLog
