// Patch import timings: a generated 50,000-fixture gzip MADRIX patch through
// the loading entry point (target: under 2 s including layout), 100,000
// fixtures plain, and a large ELM project. Prints best and median of a few
// runs and the peak resident memory.

#include "cli/elmsample.h"
#include "cli/madrixsample.h"
#include "patch/patchloader.h"
#include "patch/pixellayout.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

#if defined(Q_OS_UNIX)
#include <sys/resource.h>
#endif

namespace {

constexpr int kRuns = 3;

long peakMemoryMiB()
{
#if defined(Q_OS_UNIX)
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024; // kilobytes on Linux
#else
    return -1;
#endif
}

// Process CPU time: the machine the figures come from is shared, so wall time alone overstates.
double cpuTimeMs()
{
#if defined(Q_OS_UNIX)
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3 +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
#else
    return 0;
#endif
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

void timeLoad(const char *label, const QString &path, double targetMs)
{
    std::vector<double> ms;
    std::vector<double> cpuMs;
    qint64 pixels = 0;
    bool ok = true;
    for (int i = 0; i < kRuns; ++i) {
        QElapsedTimer timer;
        const double cpuStart = cpuTimeMs();
        timer.start();
        const TPatch::PatchLoadResult result = TPatch::loadPatch(path);
        // What the user waits for: the import and the layout the monitor is built from.
        const TPatch::PixelLayout layout = TPatch::buildPixelLayout(result.patch);
        ms.push_back(timer.nsecsElapsed() / 1e6);
        cpuMs.push_back(cpuTimeMs() - cpuStart);
        ok = ok && result.ok;
        pixels = TPatch::countPatch(result.patch).pixels;
    }
    std::sort(ms.begin(), ms.end());
    std::sort(cpuMs.begin(), cpuMs.end());
    std::printf("%-48s best %7.1f ms  median %7.1f ms  CPU median %7.1f ms  (%lld pixels, %s)", label,
                ms.front(), ms[ms.size() / 2], cpuMs[cpuMs.size() / 2], static_cast<long long>(pixels),
                ok ? "ok" : "refused");
    if (targetMs > 0)
        std::printf("  target < %.0f ms: %s", targetMs, ms[ms.size() / 2] < targetMs ? "met" : "MISSED");
    std::printf("  peak RSS %ld MiB\n", peakMemoryMiB());
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    if (!dir.isValid())
        return 1;

    MadrixSample sample = makeMadrixMatrix(50000, 224);
    for (bool indented : {false, true}) {
        sample.indented = indented;
        const QByteArray wall = writeMadrixXml(sample);
        const QString wallPath = dir.filePath(QStringLiteral("wall.mpz"));
        const QByteArray packed = gzipCompress(wall);
        writeFile(wallPath, packed);
        std::printf("MADRIX 50,000 fixtures, %s: %lld bytes of XML, %lld bytes gzip\n",
                    indented ? "indented" : "one line", static_cast<long long>(wall.size()),
                    static_cast<long long>(packed.size()));
        timeLoad(indented ? "MADRIX import, 50,000 fixtures, gzip, indented"
                          : "MADRIX import, 50,000 fixtures, gzip",
                 wallPath, 2000);
    }

    const QString bigPath = dir.filePath(QStringLiteral("big.mpz"));
    writeFile(bigPath, writeMadrixXml(makeMadrixMatrix(100000, 317)));
    timeLoad("MADRIX import, 100,000 fixtures, plain", bigPath, 0);

    ElmSample show;
    ElmSampleStage stage;
    for (int i = 0; i < 1000; ++i) {
        ElmSampleFixture f;
        f.leds = QStringLiteral("170");
        f.startUniverse = QString::number(i);
        f.type = i % 2 ? QStringLiteral("curve") : QStringLiteral("line");
        f.points = {{0, 10.0 * i}, {500, 10.0 * i + 5}, {1000, 10.0 * i}};
        stage.fixtures.append(f);
    }
    show.stages = {stage};
    const QString elmPath = dir.filePath(QStringLiteral("show.elm"));
    writeFile(elmPath, writeElmXml(show));
    timeLoad("ELM import, 1,000 fixtures x 170 LEDs", elmPath, 0);

    // Hostile input: deep nesting, then the gzip bomb last, since it sets the peak memory.
    QByteArray deep = "<madrix_patch>" + QByteArray("<x>").repeated(100000) + QByteArray("</x>").repeated(100000)
                      + "<patch><fixture_list/></patch></madrix_patch>";
    const QString deepPath = dir.filePath(QStringLiteral("deep.mpz"));
    writeFile(deepPath, deep);
    timeLoad("MADRIX refusal, 100,000 nested elements", deepPath, 0);
    const QString bombPath = dir.filePath(QStringLiteral("bomb.mpz"));
    writeFile(bombPath, gzipBomb(qint64(600) * 1024 * 1024));
    std::printf("gzip bomb: %lld bytes unpacking to 600 MiB\n", static_cast<long long>(QFileInfo(bombPath).size()));
    timeLoad("MADRIX refusal, gzip bomb", bombPath, 0);

    std::printf("Every figure includes the pixel layout of the imported patch.\n");
    return 0;
}
