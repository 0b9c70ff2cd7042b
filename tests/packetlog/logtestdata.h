#pragma once

#include "packetlog/packetjournal.h"
#include "packetlog/pcapngwriter.h"

#include <QBuffer>

// Datagrams, journal events and files the packet log tests build by hand.
namespace LogTestData {

// ArtDmx: "Art-Net\0", OpCode 0x5000 LE, ProtVer 14, sequence, physical, Port-Address LE, length BE, then the
// data (the sequence again, so that the journal never takes two of them for one refreshed frame).
inline QByteArray artDmx(quint16 portAddress, quint8 sequence, int channels = 4)
{
    QByteArray b("Art-Net\0\x00\x50\x00\x0e", 12);
    b += char(sequence);
    b += char(0);
    b += char(portAddress & 0xFF);
    b += char(portAddress >> 8);
    b += char(channels >> 8);
    b += char(channels & 0xFF);
    return b + QByteArray(channels, char(sequence));
}

// A datagram between this node (192.0.2.1:6454) and 192.0.2.2; a time of -1 takes the time of the append.
// The event views bytes: they must outlive it.
inline PacketLog::PacketEvent journalEvent(const QByteArray &bytes, qint64 timeNs = -1,
                                           PacketLog::Direction direction = PacketLog::Direction::In,
                                           PacketLog::Outcome outcome = PacketLog::Outcome::Ok,
                                           quint16 peerPort = 6454)
{
    PacketLog::PacketEvent e;
    e.direction = direction;
    e.localIp = 0xC0000201;
    e.localPort = 6454;
    e.peerIp = 0xC0000202;
    e.peerPort = peerPort;
    e.bytes = bytes;
    e.outcome = outcome;
    e.timeNs = timeNs;
    return e;
}

// The records as the program writes a pcapng file; empty when the writer failed.
inline QByteArray pcapngOf(const std::vector<PacketLog::PacketRecord> &records)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return PacketLog::writePcapng(records, &buffer, nullptr) ? buffer.data() : QByteArray();
}

} // namespace LogTestData
