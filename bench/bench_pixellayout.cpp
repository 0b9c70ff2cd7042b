// Layout of a 500,000-pixel patch against its targets: under 1 second and
// under 400 bytes per pixel for the whole layout result (malloc slack included).
#include "alloccounter.h"
#include "patch/gridplacement.h"
#include "patch/pixellayout.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kPixelsPerUniverse = 170;
constexpr int kUniverses = 2942; // 2942 x 170 = 500,140 pixels

// A large installation: one 17 x 10 RGB matrix or one 170-pixel ring per
// universe, every fifth matrix turned by 30 degrees, every seventh warped.
TPatch::PatchData makeLargePatch()
{
    using namespace TPatch;
    PatchData patch;
    for (int g = 0; g < 10; ++g)
        patch.groups.append(PatchGroup{});
    for (int u = 0; u < kUniverses; ++u) {
        Torvoverse t;
        t.universe = quint16(u & 0xF);
        t.subNet = quint8((u >> 4) & 0xF);
        t.Net = quint8(u >> 8);
        t.targetIP = {10, 0, quint8(u >> 8), quint8(u)};
        PatchFixture f;
        const bool ring = u % 4 == 3;
        for (int i = 0; i < kPixelsPerUniverse; ++i) {
            LedRecord r;
            r.posX = quint16(ring ? i : i % 17);
            r.posY = quint16(ring ? 0 : i / 17);
            r.address = quint16(3 * i);
            r.roles = {RoleRed, RoleGreen, RoleBlue};
            f.leds.append(r);
        }
        f.hasLayout = true;
        f.scenePosX = (u % 60) * 200.0;
        f.scenePosY = (u / 60) * 200.0;
        if (ring) {
            f.isArc = true;
            f.arcRadius = 80;
            f.arcStartAngle = 0;
            f.arcEndAngle = 360;
            f.countX = kPixelsPerUniverse;
            const QRectF cells = gridCellBounds(f);
            f.rect = QRectF(0, 0, cells.width() * 3, cells.height() * 3);
        } else {
            f.countX = 17;
            f.countY = 10;
            f.rect = QRectF(0, 0, 170, 100);
            if (u % 5 == 0)
                f.rotationAngle = 30;
            if (u % 7 == 0)
                f.cornerWarp = QTransform(1, 0, 0.001, 0.1, 1, 0, 0, 0, 1);
        }
        t.fixtures.append(f);
        patch.groups[u % 10].torvoverses.append(t);
    }
    return patch;
}

void BM_Layout500k(benchmark::State &state)
{
    const TPatch::PatchData patch = makeLargePatch();
    double bytesPerPixel = 0, peakPerPixel = 0;
    qsizetype pixels = 0;
    for (auto _ : state) {
        const long long before = AllocCounter::liveBytes();
        AllocCounter::resetPeak();
        TPatch::PixelLayout layout = TPatch::buildPixelLayout(patch);
        pixels = layout.pixels.size();
        bytesPerPixel = double(AllocCounter::liveBytes() - before) / double(pixels);
        peakPerPixel = double(AllocCounter::peakBytes() - before) / double(pixels);
        benchmark::DoNotOptimize(layout.pixels.constData());
        state.PauseTiming(); // freeing the result is not the layout's time
        layout = {};
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * pixels);
    state.counters["pixels"] = double(pixels);
    state.counters["bytes_per_px"] = bytesPerPixel;
    state.counters["peak_bytes_per_px"] = peakPerPixel;
    state.counters["entry_bytes"] = double(sizeof(TPatch::LayoutPixel));
    state.SetLabel(AllocCounter::available() ? "target < 1000 ms, < 400 bytes/px"
                                             : "target < 1000 ms, < 400 bytes/px (memory not counted here)");
}

} // namespace

BENCHMARK(BM_Layout500k)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK_MAIN();
