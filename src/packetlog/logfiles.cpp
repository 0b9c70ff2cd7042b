#include "packetlog/logfiles.h"

#include "packetlog/capturereader.h"
#include "packetlog/pcapngwriter.h"
#include "packetlog/textexport.h"
#include "packetlog/tlogfile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
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

bool logFormatFromSuffix(const QString &path, LogFormat *format)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return logFormatFromName(suffix == QLatin1StringView("txt") ? QStringLiteral("text") : suffix, format)
        && suffix != QLatin1StringView("text");
}

LogLoadResult readPacketLog(QByteArrayView bytes, const LogReadProgress &progress)
{
    if (bytes.size() >= 8 && std::memcmp(bytes.data(), kTlogMagic, 8) == 0)
        return readTlog(bytes, progress);
    if (isPcapng(bytes))
        return readPcapng(bytes, progress);
    if (isPcap(bytes))
        return readPcap(bytes, progress);
    LogLoadResult result;
    result.error = LogMessage(
        QT_TRANSLATE_NOOP("PacketLog", "This is neither a packet log (.tlog) nor a pcapng or pcap capture."));
    return result;
}

LogLoadResult loadPacketLog(const QString &path, const LogReadProgress &progress)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        LogLoadResult result;
        result.error = LogMessage(QT_TRANSLATE_NOOP("PacketLog", "Cannot open %1: %2"), {path, file.errorString()});
        return result;
    }
    // Mapped rather than read: a capture of a gigabyte is not copied first.
    if (const uchar *mapped = file.map(0, file.size()))
        return readPacketLog(QByteArrayView(mapped, file.size()), progress);
    const QByteArray bytes = file.readAll();
    return readPacketLog(bytes, progress);
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
