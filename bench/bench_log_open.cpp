// Opening a 1 GiB pcapng capture (about 1.7 million ArtDmx packets of full
// length, as Wireshark writes them) in the Network Log: the time until the
// window shows its first rows (target: under 1 s) and until it has them all,
// beside the floor measured in the same run: `cat FILE > /dev/null` from the
// page cache. Also the core reader alone, and the memory the list holds.
//
//   QT_QPA_PLATFORM=offscreen build/bench/bench/bench_log_open [MiB] [file]
// The capture is written once (to $TMPDIR/talu-bench-1024.pcapng) and kept.
#include "app/mainwindow.h"
#include "packetlog/logfiles.h"
#include "packetlog/widgets/packetlistmodel.h"
#include "packetlog/widgets/packetlogwindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>

namespace {

void put32(QByteArray &b, quint32 v) { b.append(reinterpret_cast<const char *>(&v), 4); } // little-endian hosts
void put16(QByteArray &b, quint16 v) { b.append(reinterpret_cast<const char *>(&v), 2); }

// An enhanced packet block: Ethernet, IPv4, UDP, an ArtDmx of 512 channels.
QByteArray packetBlock(quint64 timeUs, quint16 universe, quint8 sequence)
{
    QByteArray frame = QByteArray(6, char(0xFF)) + QByteArray("\x02\x00\xC0\x00\x02\x01\x08\x00", 8);
    const quint16 udpLength = 8 + 18 + 512;
    const quint16 ipLength = 20 + udpLength;
    frame += QByteArray("\x45\x00", 2);
    frame += char(ipLength >> 8);
    frame += char(ipLength);
    frame += QByteArray("\x00\x01\x00\x00\x40\x11\x00\x00\xC0\x00\x02\x01\xC0\x00\x02\xFF", 16);
    frame += QByteArray("\x19\x36\x19\x36", 4);
    frame += char(udpLength >> 8);
    frame += char(udpLength);
    frame += QByteArray(2, '\0');
    frame += QByteArray("Art-Net\0\x00\x50\x00\x0e", 12);
    frame += char(sequence);
    frame += '\0';
    frame += char(universe & 0xFF);
    frame += char(universe >> 8);
    frame += QByteArray("\x02\x00", 2);
    frame += QByteArray(512, char(sequence));
    while (frame.size() % 4)
        frame += '\0';
    QByteArray block;
    const quint32 total = quint32(12 + 20 + frame.size());
    put32(block, 6);
    put32(block, total);
    put32(block, 0);
    put32(block, quint32(timeUs >> 32));
    put32(block, quint32(timeUs));
    put32(block, 14 + ipLength);
    put32(block, 14 + ipLength);
    block += frame;
    put32(block, total);
    return block;
}

bool writeCapture(const QString &path, qint64 bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray head;
    put32(head, 0x0A0D0D0A); // section header
    put32(head, 28);
    put32(head, 0x1A2B3C4D);
    put16(head, 1);
    put16(head, 0);
    head += QByteArray(8, char(0xFF));
    put32(head, 28);
    put32(head, 1); // interface: Ethernet
    put32(head, 20);
    put16(head, 1);
    put16(head, 0);
    put32(head, 65535);
    put32(head, 20);
    file.write(head);
    QByteArray chunk;
    quint64 timeUs = 1767225600ULL * 1000000ULL;
    for (qint64 i = 0; file.size() + chunk.size() < bytes; ++i) {
        chunk += packetBlock(timeUs, quint16(i % 1024), quint8(i % 255 + 1));
        timeUs += 22;
        if (chunk.size() > (8 << 20)) {
            file.write(chunk);
            chunk.clear();
        }
    }
    file.write(chunk);
    return file.error() == QFile::NoError;
}

double catMs(const QString &path)
{
    QElapsedTimer t;
    t.start();
    QProcess cat;
    cat.setStandardOutputFile(QProcess::nullDevice());
    cat.start(QStringLiteral("cat"), {path});
    cat.waitForFinished(-1);
    return double(t.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // never the user's settings
    const qint64 mib = QCoreApplication::arguments().value(1, QStringLiteral("1024")).toLongLong();
    const QString path = QCoreApplication::arguments().value(
        2, QDir(QDir::tempPath()).filePath(QStringLiteral("talu-bench-%1.pcapng").arg(mib)));
    if (QFileInfo(path).size() < mib * 1024 * 1024 * 99 / 100) {
        std::printf("writing %s ...\n", qPrintable(path));
        if (!writeCapture(path, mib * 1024 * 1024)) {
            std::fprintf(stderr, "bench_log_open: cannot write %s\n", qPrintable(path));
            return 2;
        }
    }
    catMs(path); // into the page cache
    const double floor = std::min(catMs(path), catMs(path));

    QElapsedTimer core;
    core.start();
    const qint64 coreRecords = qint64(PacketLog::loadPacketLog(path).records.size());
    const double coreMs = double(core.nsecsElapsed()) / 1e6;

    MainWindow w;
    QElapsedTimer t;
    t.start();
    w.openNetworkLogFile(path);
    PacketLogWindow *log = nullptr;
    double firstRowsMs = -1;
    while (t.elapsed() < 120000) {
        QApplication::processEvents(QEventLoop::AllEvents, 5);
        if (!log)
            log = w.findChild<PacketLogWindow *>();
        if (log && firstRowsMs < 0 && log->isVisible() && log->model()->rowCount() > 0) {
            log->repaint(); // the rows drawn, not only in the model
            firstRowsMs = double(t.nsecsElapsed()) / 1e6;
        }
        if (log && firstRowsMs >= 0 && !log->isLoading())
            break;
    }
    const double allMs = double(t.nsecsElapsed()) / 1e6;
    const qint64 rows = log ? log->model()->recordCount() : 0;
    std::printf("file:        %.0f MiB, %lld packets\n", double(QFileInfo(path).size()) / 1048576.0, rows);
    std::printf("floor:       cat %.1f ms\n", floor);
    std::printf("first rows:  %.1f ms   target < 1000 ms   %s\n", firstRowsMs,
                firstRowsMs >= 0 && firstRowsMs < 1000 ? "met" : "NOT MET");
    std::printf("all rows:    %.1f ms (%.1f x cat); %.2f M records/s; the list holds %.0f MiB\n", allMs,
                allMs / floor, double(rows) / allMs / 1000.0, double(rows) * sizeof(PacketLog::PacketRecord) / 1048576.0);
    std::printf("core reader: %.1f ms (%.1f x cat) for %lld records\n", coreMs, coreMs / floor, coreRecords);
    return rows == coreRecords ? 0 : 1;
}
