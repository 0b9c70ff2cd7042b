#pragma once

#include "packetlog/logmessage.h"
#include "packetlog/packetrecord.h"

#include <QVector>

#include <functional>
#include <vector>

namespace PacketLog {

// What every log reader returns. A damaged file still yields the records that
// were whole before the damage, with a warning saying where reading stopped;
// ok is false only when nothing of the file could be read as a log.
struct LogLoadResult
{
    bool ok = false;
    LogMessage error;
    QVector<LogMessage> warnings;
    QString format; // "tlog", "pcapng", "pcap"
    std::vector<PacketRecord> records;
    qint64 skipped = 0; // captured packets that were not UDP over IPv4
};

// Lets a caller watch a long read: called every few thousand records with the
// result so far and the bytes read. It may move the records out (they are
// then not in the final result) and returns false to stop reading there.
using LogReadProgress = std::function<bool(LogLoadResult &partial, qint64 bytesRead)>;
constexpr size_t kProgressRecords = 16384;

} // namespace PacketLog
