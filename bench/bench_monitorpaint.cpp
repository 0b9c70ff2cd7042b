// Painting one full fitted monitor frame into a 1920 x 1080 image, against
// the targets: 2D 100,000 pixels under 8 ms; 3D round dots 100,000 points
// under 20 ms (stamped, anti-aliased); fast draw under 12 ms; no allocation
// per point in the 3D paint loop. Every pixel gets its own colour, so every point
// changes the brush (the worst case).
#include "alloccounter.h"
#include "monitor/model3d.h"
#include "monitor/monitor3dscene.h"
#include "monitor/pixelpainter2d.h"
#include "monitor/view2dcamera.h"
#include "patch/pixellayout.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>

namespace {

const QSize kFrame(1920, 1080);
constexpr int kPixelsPerUniverse = 170;

// Matrices of 17 x 10 RGB pixels, one per universe, in rows of 40, with a
// second Z layer under every third one so the 3D model has depth.
TPatch::PatchData makePatch(int pixels)
{
    using namespace TPatch;
    PatchData patch;
    patch.groups.append(PatchGroup{});
    const int universes = (pixels + kPixelsPerUniverse - 1) / kPixelsPerUniverse;
    for (int u = 0; u < universes; ++u) {
        Torvoverse t;
        t.universe = quint16(u & 0xF);
        t.subNet = quint8((u >> 4) & 0xF);
        t.Net = quint8(u >> 8);
        PatchFixture f;
        const int count = std::min(kPixelsPerUniverse, pixels - u * kPixelsPerUniverse);
        for (int i = 0; i < count; ++i) {
            LedRecord r;
            r.posX = quint16(i % 17);
            r.posY = quint16(i / 17);
            r.posZ = quint16(u % 3 == 0 ? 1 : 0);
            r.address = quint16(3 * i);
            r.roles = {RoleRed, RoleGreen, RoleBlue};
            f.leds.append(r);
        }
        f.hasLayout = true;
        f.countX = 17;
        f.countY = 10;
        f.scenePosX = (u % 40) * 180.0;
        f.scenePosY = (u / 40) * 110.0;
        f.rect = QRectF(0, 0, 170, 100);
        t.fixtures.append(f);
        patch.groups[0].torvoverses.append(t);
    }
    return patch;
}

struct Fixture
{
    TPatch::PixelLayout layout;
    QVector<QRgb> colours;
};

const Fixture &fixture(int pixels)
{
    static std::map<int, std::unique_ptr<Fixture>> cache;
    auto &slot = cache[pixels];
    if (!slot) {
        slot = std::make_unique<Fixture>();
        slot->layout = TPatch::buildPixelLayout(makePatch(pixels));
        slot->colours.resize(slot->layout.pixels.size());
        for (qsizetype i = 0; i < slot->colours.size(); ++i)
            slot->colours[i] = 0xFF000000 | quint32(i * 2654435761u >> 8);
    }
    return *slot;
}

void BM_Paint2D(benchmark::State &state)
{
    const Fixture &f = fixture(int(state.range(0)));
    PixelScene2D scene;
    scene.setPixels(f.layout.pixels);
    View2DCamera camera;
    camera.viewport = kFrame;
    camera.fit(scene.bounds());
    QImage image(kFrame, QImage::Format_ARGB32_Premultiplied);
    QImage layer;
    const bool direct = state.range(1) != 0;
    for (auto _ : state) {
        image.fill(QColor(60, 60, 60));
        QPainter painter(&image);
        painter.setTransform(camera.transform());
        paintPixels2D(painter, scene, f.colours, camera.visibleSceneRect(), Qt::white, direct ? &layer : nullptr);
    }
    state.SetLabel(state.range(0) == 100000 && direct ? "target < 8 ms" : "no target");
}

void run3D(benchmark::State &state, bool fastDraw, bool turning)
{
    const Fixture &f = fixture(int(state.range(0)));
    const Model3D model = buildModel3D(f.layout);
    Monitor3DScene scene;
    scene.setModel(model.positions, model.kinetics, model.worldScale, model.ledRadius);
    QVector<QRgb> colours(model.positions.size());
    for (qsizetype i = 0; i < colours.size(); ++i)
        colours[i] = f.colours.at(model.pointPixels.at(i));
    scene.setColours(colours);
    scene.setFastDraw(fastDraw);
    scene.setViewRect(QRectF(-kFrame.width() / 2, -kFrame.height() / 2, kFrame.width(), kFrame.height()));
    scene.fit();
    QImage image(kFrame, QImage::Format_ARGB32_Premultiplied);
    auto paint = [&] {
        QPainter painter(&image);
        painter.translate(kFrame.width() / 2, kFrame.height() / 2);
        scene.paint(painter);
    };
    paint(); // sorts the drawing order once, as the first frame after a load does
    // Allocations of a whole frame: the painter's own setup, none per point.
    const long long before = AllocCounter::allocations();
    paint();
    const long long frameAllocations = AllocCounter::allocations() - before;
    for (auto _ : state) {
        if (turning)
            scene.camera().yaw += 0.001; // the auto orbit re-sorts every frame
        paint();
    }
    state.counters["allocs_per_frame"] = double(frameAllocations);
    state.counters["allocs_per_point"] = double(frameAllocations) / double(model.positions.size());
    QString label = QStringLiteral("no target");
    if (state.range(0) == 100000 && !turning)
        label = fastDraw ? QStringLiteral("target < 12 ms") : QStringLiteral("target < 20 ms");
    label += QStringLiteral(", 0 allocs per point");
    if (!AllocCounter::available())
        label += QStringLiteral(" (allocs not counted here)");
    state.SetLabel(label.toStdString());
}

void BM_Paint3DDots(benchmark::State &state)
{
    run3D(state, false, false);
}
void BM_Paint3DFast(benchmark::State &state)
{
    run3D(state, true, false);
}
void BM_Paint3DFastTurning(benchmark::State &state)
{
    run3D(state, true, true);
}

} // namespace

// Second argument: 1 composes in a layer as the view and headless rendering do, 0 fills through the painter.
BENCHMARK(BM_Paint2D)->Args({100000, 1})->Args({500000, 1})->Args({100000, 0})->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Paint3DDots)->Arg(100000)->Arg(500000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Paint3DFast)->Arg(100000)->Arg(500000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Paint3DFastTurning)->Arg(100000)->Arg(500000)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
