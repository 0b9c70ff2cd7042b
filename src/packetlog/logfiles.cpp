#include "packetlog/logfiles.h"

#include "packetlog/capturereader.h"
#include "packetlog/pcapngwriter.h"
#include "packetlog/textexport.h"
#include "packetlog/tlogfile.h"

#include <QDateTime>
#include <QFile>
#include <QSaveFile>

namespace PacketLog {

bool logFormatFromName(const QString &name, LogFormat *format)
{
    static const struct { const char *name; LogFormat format; } kNames[] = {
        {"tlog", LogFormat::Tlog}, {"csv", LogFormat::Csv}, {"text", LogFormat::Text}, {"pcapng", LogFormat::Pcapng},
    };
    for (const auto &n : kNames) {
        if (name == QLatin1StringView(n.name)) {
            *format = n.format;
            return true;
        }
    }
    return false;
}

LogLoadResult readPacketLog(QByteArrayView bytes)
{
    if (bytes.size() >= 8 && std::memcmp(bytes.data(), kTlogMagic, 8) == 0)
        return readTlog(bytes);
    if (isPcapng(bytes))
        return readPcapng(bytes);
    if (isPcap(bytes))
        return readPcap(bytes);
    LogLoadResult result;
    result.error = LogMessage(
        QT_TRANSLATE_NOOP("PacketLog", "This is neither a packet log (.tlog) nor a pcapng or pcap capture."));
    return result;
}

LogLoadResult loadPacketLog(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        LogLoadResult result;
        result.error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Cannot open %1: %2"), {path, file.errorString()});
        return result;
    }
    const QByteArray bytes = file.readAll();
    return readPacketLog(bytes);
}

bool savePacketLog(const QString &path, LogFormat format, const std::vector<PacketRecord> &records,
                   LogMessage *error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        if (error)
            *error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Cannot write %1: %2"), {path, file.errorString()});
        return false;
    }
    bool written = true;
    switch (format) {
    case LogFormat::Tlog: {
        const QByteArray bytes = writeTlog(records, QDateTime::currentMSecsSinceEpoch() * 1000000);
        written = file.write(bytes) == bytes.size();
        break;
    }
    case LogFormat::Csv: {
        const QByteArray bytes = exportCsv(records);
        written = file.write(bytes) == bytes.size();
        break;
    }
    case LogFormat::Text: {
        const QByteArray bytes = exportText(records);
        written = file.write(bytes) == bytes.size();
        break;
    }
    case LogFormat::Pcapng:
        written = writePcapng(records, &file, nullptr);
        break;
    }
    if (!written || !file.commit()) {
        if (error)
            *error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Cannot write %1: %2"), {path, file.errorString()});
        return false;
    }
    return true;
}

} // namespace PacketLog
