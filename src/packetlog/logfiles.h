#pragma once

#include "packetlog/logloadresult.h"

#include <QString>

#include <vector>

// Reading and writing whole packet log files by path. Any thread.
namespace PacketLog {

enum class LogFormat { Tlog, Csv, Text, Pcapng };

// "tlog", "csv", "text", "pcapng" (lower case).
bool logFormatFromName(const QString &name, LogFormat *format);

// The format a file name's suffix names (.tlog, .pcapng, .csv, .txt; any case).
bool logFormatFromSuffix(const QString &path, LogFormat *format);

// Reads a .tlog, pcapng or pcap file, chosen by its first bytes, not its name.
LogLoadResult loadPacketLog(const QString &path, const LogReadProgress &progress = {});
LogLoadResult readPacketLog(QByteArrayView bytes, const LogReadProgress &progress = {});

// Writes the records whole (through a temporary file, so a failed write leaves
// any earlier file in place). False with a message when the file cannot be written.
bool savePacketLog(const QString &path, LogFormat format, const std::vector<PacketRecord> &records,
                   LogMessage *error);

} // namespace PacketLog
