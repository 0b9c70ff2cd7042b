#include "packetlog/logfileloader.h"

#include "packetlog/logfiles.h"

#include <QFileInfo>
#include <QMetaObject>

namespace PacketLog {

LogFileLoader::LogFileLoader(QObject *parent) : QObject(parent) {}

LogFileLoader::~LogFileLoader()
{
    m_cancel = true;
    if (m_thread.joinable())
        m_thread.join();
}

void LogFileLoader::start(const QString &path)
{
    if (m_running || m_thread.joinable())
        return;
    m_running = true;
    m_total = QFileInfo(path).size();
    m_thread = std::thread([this, path] {
        const LogReadProgress progress = [this](LogLoadResult &partial, qint64 bytesRead) {
            auto batch = std::make_shared<std::vector<PacketRecord>>(std::move(partial.records));
            partial.records = {};
            partial.records.reserve(kProgressRecords);
            deliver(std::move(batch), bytesRead);
            return !m_cancel.load();
        };
        LogLoadResult result = loadPacketLog(path, progress);
        auto rest = std::make_shared<std::vector<PacketRecord>>(std::move(result.records));
        result.records = {};
        const bool cancelled = m_cancel.load();
        // Queued to the loader's thread, after every batch; Qt drops calls
        // still queued when the loader is deleted.
        QMetaObject::invokeMethod(
            this,
            [this, rest, result = std::move(result), cancelled] {
                if (m_thread.joinable())
                    m_thread.join();
                m_running = false;
                if (!rest->empty())
                    emit recordsRead(*rest, m_total, m_total);
                emit finished(result, cancelled);
            },
            Qt::QueuedConnection);
    });
}

void LogFileLoader::cancel()
{
    m_cancel = true;
}

void LogFileLoader::deliver(std::shared_ptr<std::vector<PacketRecord>> records, qint64 bytesRead)
{
    QMetaObject::invokeMethod(
        this, [this, records, bytesRead] { emit recordsRead(*records, bytesRead, m_total); }, Qt::QueuedConnection);
}

} // namespace PacketLog
