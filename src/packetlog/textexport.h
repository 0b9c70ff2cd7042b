#pragma once

#include "packetlog/packetrecord.h"

#include <QByteArray>
#include <QString>

#include <vector>

// The packet log as text for people (one aligned line per record) and as CSV
// for spreadsheets. Times are UTC with microseconds. Any thread.
namespace PacketLog {

// "2026-11-22 05:18:20.123456"
QString formatRecordTime(qint64 timeNs);
// "2026-11-22 05:18:20.123456  out  192.0.2.1:6454 -> 192.0.2.2:6454  530  ArtDmx 0x0001 seq 5, 512 channels"
QString recordLine(const PacketRecord &record);

QByteArray exportText(const std::vector<PacketRecord> &records);
// Header row, then one row per record: time (ISO 8601 UTC), direction, source,
// source port, destination, destination port, length, opcode (hex), universe
// (hex, empty when not DMX), sequence, outcome, reason, error, origin, info.
QByteArray exportCsv(const std::vector<PacketRecord> &records);

} // namespace PacketLog
