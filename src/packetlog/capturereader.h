#pragma once

#include "packetlog/byteio.h"
#include "packetlog/logloadresult.h"

#include <QByteArrayView>

namespace PacketLog {

// Reads a capture made by Wireshark, tcpdump or our own pcapng export into
// records, so it can be filtered like our own log. Every UDP-over-IPv4 packet
// becomes a record with source "capture" (or "mox" when it comes from the
// "talu" interface of our own export); other packets are counted in skipped.
// Link types: Ethernet (with VLAN tags), raw IPv4, BSD loopback, Linux cooked
// v1 and v2. Never throws; a damaged or cut file yields what was whole with a
// warning naming the packet and byte where reading stopped. Any thread.
// A whole UDP datagram of a capture, with its record (addresses, time, Art-Net
// fields); the record's head holds only the first bytes, the payload all of them.
using DatagramVisitor = std::function<void(const PacketRecord &record, QByteArrayView payload)>;

// With a visitor, every datagram goes to it instead of into the result's records.
LogLoadResult readPcap(QByteArrayView bytes, const LogReadProgress &progress = {},
                       const DatagramVisitor &visit = {});
LogLoadResult readPcapng(QByteArrayView bytes, const LogReadProgress &progress = {},
                         const DatagramVisitor &visit = {});
// A pcap or pcapng capture (by its first bytes), datagram by datagram.
LogLoadResult visitCapture(QByteArrayView bytes, const DatagramVisitor &visit);

bool isPcap(QByteArrayView bytes);
bool isPcapng(QByteArrayView bytes);
// A pcap or pcapng file, by its first bytes.
bool isCaptureFile(const QString &path);

// Reads a pcap stream as it arrives (the capture helper's output, or a file
// in slices): feed it bytes in pieces of any size; the records of every
// packet that is whole are appended. The same rules and messages as readPcap.
class PcapStreamReader
{
public:
    PcapStreamReader();

    // Datagrams go to the visitor instead of into feed's vector.
    void setVisitor(const DatagramVisitor &visit) { m_visit = visit; }
    // False once the stream is not pcap or is damaged; nothing after that is read.
    bool feed(QByteArrayView bytes, std::vector<PacketRecord> *out);
    // The stream ended: a packet left half-written becomes a "cut short" warning.
    void finish();

    bool started() const { return m_started; }
    qint64 packets() const { return m_packets; }
    qint64 skipped() const { return m_skipped; }
    const LogMessage &error() const { return m_error; }
    const QVector<LogMessage> &warnings() const { return m_warnings; }

private:
    qint64 consume(QByteArrayView bytes, std::vector<PacketRecord> *out);

    QByteArray m_pending;
    DatagramVisitor m_visit;
    ByteIo::Reader m_reader;
    bool m_started = false;
    bool m_failed = false;
    bool m_nanoseconds = false;
    quint32 m_linkType = 0;
    qint64 m_position = 0; // the stream's byte offset of the next packet
    qint64 m_packets = 0;
    qint64 m_skipped = 0;
    LogMessage m_error;
    QVector<LogMessage> m_warnings;
};

} // namespace PacketLog
