#pragma once

#include "packetlog/logloadresult.h"

#include <QByteArray>
#include <QByteArrayView>

// The packet log's own file, .tlog: a 32-byte header, then 296-byte records
// back to back, all little-endian. Appending is all a writer does, so the
// spool can add batches to an open file and a crash loses only the tail.
//
// Header:  0  8  magic "TALUTLOG"
//          8  2  version (1)
//         10  2  header size in bytes (32; readers skip to it, so later versions may grow it)
//         12  2  record size in bytes (296)
//         14  2  zero
//         16  8  creation time, ns since 1970 UTC (signed)
//         24  8  zero
// Record:  0  8  time, ns since 1970 UTC (signed)
//          8  4  source IPv4, 12 4 destination IPv4 (host order: 10.0.0.1 = 0x0A000001)
//         16  2  source port, 18 2 destination port
//         20  4  datagram length
//         24  2  opcode, 26 2 Port-Address, 28 1 sequence
//         29  1  direction (0 in, 1 out), 30 1 outcome, 31 1 reason
//         32  4  Windows Sockets error (signed)
//         36  1  record source (0 mox, 1 capture), 37 1 flags (1 Art-Net, 2 DMX)
//         38  2  bytes kept (0 to 256), 40 256 first bytes of the datagram, zero-filled
namespace PacketLog {

constexpr char kTlogMagic[8] = {'T', 'A', 'L', 'U', 'T', 'L', 'O', 'G'};
constexpr quint16 kTlogVersion = 1;
constexpr int kTlogHeaderSize = 32;
constexpr int kTlogRecordSize = 296;

QByteArray tlogHeader(qint64 createdNs);
void encodeTlogRecord(const PacketRecord &record, unsigned char *out);
// False when the bytes cannot be a record we wrote (a field out of range).
bool decodeTlogRecord(const unsigned char *in, PacketRecord *record);

// A whole file's bytes: header, then every whole record.
LogLoadResult readTlog(QByteArrayView bytes, const LogReadProgress &progress = {});
QByteArray writeTlog(const std::vector<PacketRecord> &records, qint64 createdNs);

} // namespace PacketLog
