// GPS-Sync set verification against reading the same files from the page
// cache. Target: verifying a set takes no longer than 2 x the read.
//
//   bench_gps_verify [--minutes M] [--universes U] [--groups G]
//
// Defaults: 16 groups x 30 minutes at 40 fps (72,000 frames per file), each
// group 2 full universes (512 channels). The files are generated into a
// temporary folder and deleted afterwards.

#include "cli/gpsrecordingmaker.h"
#include "patch/frameorder.h"
#include "recording/gpssyncset.h"
#include "recording/recording.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

TPatch::PatchData makePatch(int groups, int universes)
{
    TPatch::PatchData patch;
    for (int g = 0; g < groups; ++g) {
        TPatch::PatchGroup group;
        group.groupName = QStringLiteral("Group %1").arg(g + 1);
        for (int u = 0; u < universes; ++u) {
            const int n = g * universes + u;
            TPatch::Torvoverse t;
            t.universe = quint16(n & 0xF);
            t.subNet = quint8((n >> 4) & 0xF);
            t.Net = quint8(n >> 8);
            TPatch::PatchFixture f;
            f.hasLayout = true;
            f.rect = QRectF(20.0 * n, 0, 10, 10);
            TPatch::LedRecord led;
            led.roles = {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue, 0, 0, 0};
            f.leds.append(led);
            t.fixtures.append(f);
            group.torvoverses.append(t);
        }
        patch.groups.append(group);
    }
    return patch;
}

// Reads every file whole through a 4 MiB buffer, as cat would.
qint64 readAll(const QStringList &paths)
{
    static std::vector<char> buffer(4 << 20);
    qint64 total = 0;
    unsigned char sum = 0;
    for (const QString &path : paths) {
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly))
            return -1;
        for (qint64 n; (n = f.read(buffer.data(), qint64(buffer.size()))) > 0;) {
            total += n;
            sum = static_cast<unsigned char>(sum + buffer[size_t(n - 1)]);
        }
    }
    return total + (sum & 0);
}

template <typename Work> double bestOfMs(int runs, Work work)
{
    double best = 1e300;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer t;
        t.start();
        work();
        best = std::min(best, t.nsecsElapsed() / 1e6);
    }
    return best;
}

int intArg(const QStringList &args, const QString &name, int fallback)
{
    const qsizetype i = args.indexOf(name);
    return i >= 0 && i + 1 < args.size() ? args.at(i + 1).toInt() : fallback;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const int minutes = std::max(1, intArg(args, QStringLiteral("--minutes"), 30));
    const int universes = std::clamp(intArg(args, QStringLiteral("--universes"), 2), 1, 64);
    const int groups = std::clamp(intArg(args, QStringLiteral("--groups"), 16), 1, 256);
    constexpr int kFps = 40;
    const qint64 frames = qint64(minutes) * 60 * kFps;

    QTemporaryDir dir;
    const TPatch::PatchData patch = makePatch(groups, universes);
    const TPatch::FrameOrder order = TPatch::expectedFrameOrder(patch);
    QStringList paths;
    QElapsedTimer generating;
    generating.start();
    for (int g = 0; g < groups; ++g) {
        GpsRecordingPlan plan;
        plan.universes = order.groupUniverses(g);
        plan.lengths = QVector<int>(plan.universes.size(), 512);
        plan.frames = frames;
        plan.fps = kFps;
        const QString path = QDir(dir.path()).filePath(QStringLiteral("bench_Group %1.tpx").arg(g + 1));
        QString error;
        if (!writeGpsRecording(path, plan, {}, &error)) {
            std::fprintf(stderr, "cannot write %s: %s\n", qPrintable(path), qPrintable(error));
            return 1;
        }
        paths.append(path);
    }
    std::printf("set: %d groups x %lld frames (%d min at %d fps), %d x 512-channel universe(s) per group; "
                "generated in %.1f s\n",
                groups, static_cast<long long>(frames), minutes, kFps, universes,
                generating.elapsed() / 1000.0);

    qint64 bytes = 0;
    const double readMs = bestOfMs(3, [&] { bytes = readAll(paths); });

    GpsSyncSet set;
    set.setGroups(patch);
    int failures = -1;
    qint64 setFrames = 0;
    const double verifyMs = bestOfMs(3, [&] {
        set.setPaths(paths);
        const GpsVerification &v = set.load(&patch);
        failures = v.failures + v.warnings;
        setFrames = v.frameCount;
    });

    // The reader alone on the same files: what the checks add on top of loading.
    const double loadMs = bestOfMs(3, [&] {
        std::vector<Recording> recordings(size_t(paths.size()));
        for (int i = 0; i < paths.size(); ++i)
            recordings[size_t(i)].load(paths.at(i), &patch, true);
    });

    std::printf("files: %.1f MiB\n", bytes / 1048576.0);
    std::printf("read from the page cache: %8.1f ms (best of 3)\n", readMs);
    std::printf("verify the set:           %8.1f ms (best of 3; %lld frames, %d findings)\n", verifyMs,
                static_cast<long long>(setFrames), failures);
    std::printf("  of which the reader:   %8.1f ms (best of 3; the files loaded alone)\n", loadMs);
    std::printf("ratio verify / read: %.2f (target: at most 2.00) %s\n", verifyMs / readMs,
                verifyMs <= 2 * readMs ? "met" : "NOT MET");
    return failures == 0 ? 0 : 1;
}
