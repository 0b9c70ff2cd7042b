#pragma once

#include "packetlog/logloadresult.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <thread>

namespace PacketLog {

// Reads a packet log or capture file on a thread of its own, handing the
// records over in batches as they are read, so that a window shows the first
// rows of a gigabyte capture at once and the user can stop the read. The
// signals arrive on the thread that owns the loader.
class LogFileLoader : public QObject
{
    Q_OBJECT
public:
    explicit LogFileLoader(QObject *parent = nullptr);
    ~LogFileLoader() override; // stops a read still running and waits for it

    // Starts reading (once per loader).
    void start(const QString &path);
    // Asks the read to stop; finished() follows with what was read so far.
    void cancel();
    bool isRunning() const { return m_running; }

signals:
    // The next records in file order, and how far the read has come.
    void recordsRead(const std::vector<PacketLog::PacketRecord> &records, qint64 bytesRead, qint64 bytesTotal);
    // The read ended: result holds the error and warnings, not the records
    // (those came through recordsRead). cancelled: stopped by cancel().
    void finished(const PacketLog::LogLoadResult &result, bool cancelled);

private:
    void deliver(std::shared_ptr<std::vector<PacketRecord>> records, qint64 bytesRead);

    std::thread m_thread;
    std::atomic<bool> m_cancel{false};
    bool m_running = false;
    qint64 m_total = 0;
};

} // namespace PacketLog
