// Colour evaluation against its targets: one core, a universe of 170 RGB
// pixels at >= 150 M pixel evaluations per second; RGBW pixels with white on
// at >= 60 M per second; no heap allocation in applyUniverse.
#include "alloccounter.h"
#include "monitor/pixelcolourbuffer.h"

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QVector>

namespace {

struct Universe
{
    QVector<TPatch::LayoutPixel> pixels;
    QVector<int> numbers;
    QByteArray data[2]; // alternated, so no call sees the same bytes twice in a row
};

Universe makeUniverse(int pixelCount, std::initializer_list<quint8> roles)
{
    Universe u;
    const int width = int(roles.size());
    for (int i = 0; i < pixelCount; ++i) {
        TPatch::LayoutPixel p;
        std::copy(roles.begin(), roles.end(), p.roles.begin());
        p.startChannel = quint16(i * width);
        u.pixels.append(p);
        u.numbers.append(i);
    }
    quint32 seed = 12345;
    for (QByteArray &d : u.data) {
        d.resize(512);
        for (char &c : d) {
            seed = seed * 1664525u + 1013904223u;
            c = char((seed >> 24) | 1); // never 0, so every white slot mixes
        }
    }
    return u;
}

void runApply(benchmark::State &state, Universe &u, bool white, double targetMillions)
{
    PixelColourBuffer buffer;
    buffer.setPatch(&u.pixels);
    buffer.setWhiteEnabled(white);
    const auto *d0 = reinterpret_cast<const quint8 *>(u.data[0].constData());
    const auto *d1 = reinterpret_cast<const quint8 *>(u.data[1].constData());
    buffer.applyUniverse(u.numbers, d0, 512); // warm-up: tables built, lists detached
    const long long allocationsBefore = AllocCounter::allocations();
    long long calls = 0;
    for (auto _ : state) {
        buffer.applyUniverse(u.numbers, (calls & 1) ? d1 : d0, 512);
        benchmark::DoNotOptimize(buffer.colours().constData());
        benchmark::ClobberMemory();
        ++calls;
    }
    const long long allocations = AllocCounter::allocations() - allocationsBefore;
    state.SetItemsProcessed(state.iterations() * u.numbers.size());
    state.counters["allocs_per_call"] = calls ? double(allocations) / double(calls) : 0.0;
    state.SetLabel(QStringLiteral("target >= %1 M px/s, 0 allocs per call%2")
                       .arg(targetMillions)
                       .arg(AllocCounter::available() ? QString() : QStringLiteral(" (allocs not counted here)"))
                       .toStdString());
}

void BM_Rgb170(benchmark::State &state)
{
    Universe u = makeUniverse(170, {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue});
    runApply(state, u, false, 150);
}

void BM_Rgbw128WhiteOn(benchmark::State &state)
{
    // 512 channels hold 128 four-slot pixels.
    Universe u = makeUniverse(128, {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue, TPatch::RoleWhite});
    runApply(state, u, true, 60);
}

void BM_RgbCwWw102WhiteOn(benchmark::State &state)
{
    // The heaviest mix: cool and warm white on every pixel (5 slots, 102 pixels).
    Universe u = makeUniverse(102, {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue, TPatch::RoleCoolWhite,
                                    TPatch::RoleWarmWhite});
    runApply(state, u, true, 60);
}

} // namespace

BENCHMARK(BM_Rgb170);
BENCHMARK(BM_Rgbw128WhiteOn);
BENCHMARK(BM_RgbCwWw102WhiteOn);
BENCHMARK_MAIN();
