// Recording load and writer throughput, against their targets:
//   - loading a 1 GiB recording of 512-byte ArtDmx records from the page cache
//     in at most 1.5 x the time `cat FILE > /dev/null` takes in the same run;
//   - peak memory of the load at most the file size + 24 bytes per record;
//   - the writer appending at least 500 000 records per second.
// The 1 GiB file is written (through RecordingWriter, which is the writer
// figure) into a temporary folder and deleted at the end.
//
// Usage: bench_recording_load [SIZE_MIB]    (default 1024)
//        bench_recording_load --load FILE   (internal: one load in a fresh process)

#include "recording/recording.h"
#include "recording/recordingwriter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kUniversesPerFrame = 16;
constexpr int kRecordBytes = 18 + 512 + 2;
constexpr int kRuns = 3;

// Peak resident set size of this process (Linux), in bytes; -1 where unknown.
qint64 peakRssBytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong() * 1024;
    }
    return -1;
}

int loadOnce(const QString &path)
{
    const qint64 before = peakRssBytes();
    QElapsedTimer timer;
    timer.start();
    Recording rec;
    const RecordingLoadResult result = rec.load(path);
    const qint64 ns = timer.nsecsElapsed();
    const qint64 after = peakRssBytes();
    std::printf("%lld %lld %lld %lld %d\n", ns, before, after, qint64(rec.records().size()),
                result.ok ? 1 : 0);
    return result.ok ? 0 : 1;
}

qint64 timeCat(const QString &path)
{
    QProcess cat;
    cat.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    cat.start(QStringLiteral("cat"), {path});
    cat.waitForFinished(-1);
    return timer.nsecsElapsed();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() == 3 && args.at(1) == QLatin1StringView("--load"))
        return loadOnce(args.at(2));
    const qint64 sizeMiB = args.size() > 1 ? args.at(1).toLongLong() : 1024;

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("big.tpx"));
    const qint64 records = sizeMiB * 1024 * 1024 / kRecordBytes;

    // Writer: records of 512 slots, 16 universes per frame.
    QByteArray data(512, '\0');
    RecordingWriter writer;
    if (!writer.open(path, 40, kUniversesPerFrame)) {
        std::printf("cannot write %s\n", qPrintable(path));
        return 1;
    }
    QElapsedTimer timer;
    timer.start();
    for (qint64 i = 0; i < records; ++i) {
        data[int(i % 512)] = char(i);
        writer.write(quint16(i % kUniversesPerFrame), data);
    }
    writer.close();
    const double writeSeconds = double(timer.nsecsElapsed()) / 1e9;
    const double recordsPerSecond = double(records) / writeSeconds;
    std::printf("writer: %lld records (%.0f MiB) in %.2f s = %.0f records/s   target >= 500000   %s\n",
                records, double(writer.fileSize()) / 1048576.0, writeSeconds, recordsPerSecond,
                recordsPerSecond >= 500000 ? "met" : "MISSED");

    // Warm the page cache, then take the best of a few runs of each.
    timeCat(path);
    qint64 catNs = -1;
    for (int i = 0; i < kRuns; ++i) {
        const qint64 ns = timeCat(path);
        catNs = catNs < 0 ? ns : std::min(catNs, ns);
    }
    qint64 loadNs = -1, peakDelta = -1, peakTotal = -1, loaded = 0;
    for (int i = 0; i < kRuns; ++i) {
        QProcess child;
        child.start(app.applicationFilePath(), {QStringLiteral("--load"), path});
        child.waitForFinished(-1);
        const QList<QByteArray> f = child.readAllStandardOutput().trimmed().split(' ');
        if (f.size() != 5 || f.at(4) != "1") {
            std::printf("load failed\n");
            return 1;
        }
        const qint64 ns = f.at(0).toLongLong();
        loadNs = loadNs < 0 ? ns : std::min(loadNs, ns);
        peakDelta = std::max(peakDelta, f.at(2).toLongLong() - f.at(1).toLongLong());
        peakTotal = std::max(peakTotal, f.at(2).toLongLong());
        loaded = f.at(3).toLongLong();
    }
    const qint64 fileSize = QFileInfo(path).size();
    const double ratio = double(loadNs) / double(catNs);
    std::printf(
        "load:   %.1f ms for %.0f MiB (%lld records); cat %.1f ms; ratio %.2f   target <= 1.50   %s\n",
        loadNs / 1e6, fileSize / 1048576.0, loaded, catNs / 1e6, ratio, ratio <= 1.5 ? "met" : "MISSED");
    const qint64 budget = fileSize + 24 * loaded;
    std::printf(
        "memory: peak grew by %.1f MiB during the load (process peak %.1f MiB); budget file + 24 B/record "
        "= %.1f MiB   %s\n",
        peakDelta / 1048576.0, peakTotal / 1048576.0, budget / 1048576.0,
        peakDelta <= budget ? "met" : "MISSED");
    QFile::remove(path);
    return 0;
}
