// Pictures where the pixels matter: 2D colours and highlight, 3D squares and dots, order, culling, bad input.
#include "monitor/model3d.h"
#include "monitor/monitor3dscene.h"
#include "monitor/monitorrender.h"
#include "monitor/pixelpainter2d.h"
#include "monitor/view2dcamera.h"

#include "monitortestdata.h"

#include <QPainter>
#include <QtTest>

#include <limits>

using MonitorTestData::layoutOf;
using MonitorTestData::square;

namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kGreen = 0xFF00FF00;
constexpr QRgb kOrange = 0xFFC86432;

QRgb at(const QImage &image, const QPointF &p)
{
    return image.pixel(p.toPoint()) | 0xFF000000;
}

// The scene painted on a square picture of that side, the view's centre in the middle;
// scaled, the painter is no plain translation and the scene fills its own ellipses.
QImage paintScene(Monitor3DScene &scene, int side, bool scaled = false)
{
    QImage image(side, side, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.translate(side / 2, side / 2);
    if (scaled)
        painter.scale(1.0 + 1e-12, 1.0);
    scene.paint(painter);
    painter.end();
    return image;
}

} // namespace

class TestMonitorRender : public QObject
{
    Q_OBJECT
private slots:
    void litPixelAppearsInPlace();
    void highlightDarkensTheRest();
    void layerAndPainterPathsAgree();
    void fastDrawDrawsSquares();
    void stampedDotsLookLikePaintedOnes_data();
    void stampedDotsLookLikePaintedOnes();
    void nearerPointsArePaintedLast();
    void pointsBehindTheCameraAreNotDrawn();
    void colourListsOfAnotherSizeAreIgnored();
    void modelMapsPointsAndKinetics();
    void badInputPaintsNothingWrong();
};

void TestMonitorRender::litPixelAppearsInPlace()
{
    const TPatch::PixelLayout layout = layoutOf({square(0, 0, 10), square(30, 0, 10)});
    const QImage image = MonitorRender::render2D(layout, {kRed}, QSize(400, 200)); // pixel 1 has no colour: dark
    View2DCamera camera;
    camera.viewport = QSize(400, 200);
    QVERIFY(camera.fit(QRectF(0, 0, 40, 10)));
    QCOMPARE(at(image, camera.mapFromScene(QPointF(5, 5))), kRed);
    QCOMPARE(at(image, camera.mapFromScene(QPointF(35, 5))), 0xFF000000);
    QCOMPARE(at(image, camera.mapFromScene(QPointF(20, 5))), qRgb(60, 60, 60)); // the gap
    QCOMPARE(at(image, QPointF(2, 2)), qRgb(60, 60, 60));
}

void TestMonitorRender::highlightDarkensTheRest()
{
    PixelScene2D scene;
    scene.setPixels({square(0, 0, 10, 0, 0), square(20, 0, 10, 0, 1), square(40, 0, 10, 0, 0)});
    scene.setHighlight(0, 1);
    QImage image(60, 20, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    paintPixels2D(painter, scene, {kOrange, kOrange, kGreen}, QRectF(0, 0, 60, 20), Qt::white);
    painter.end();
    QCOMPARE(at(image, QPointF(5, 5)), QColor::fromRgb(kOrange).darker(260).rgb());
    QCOMPARE(at(image, QPointF(45, 5)), QColor::fromRgb(kGreen).darker(260).rgb());
    QCOMPARE(at(image, QPointF(25, 5)), kOrange); // bright
    QCOMPARE(at(image, QPointF(20, 5)), 0xFFFFFFFF); // outlined
    QCOMPARE(at(image, QPointF(0, 5)), QColor::fromRgb(kOrange).darker(260).rgb()); // no outline on the rest
}

void TestMonitorRender::layerAndPainterPathsAgree()
{
    // Rectangles and a turned pixel overlapping them, at a fractional zoom and offset.
    PixelScene2D scene;
    // The last pixel lies far outside the picture but inside the exposed area.
    scene.setPixels({square(0, 0, 10), square(7, 3, 10), MonitorTestData::diamond(12, 8, 6), square(14, 9, 4),
                     square(500, -300, 10)});
    View2DCamera camera;
    camera.viewport = QSize(97, 61);
    camera.scale = 3.3;
    camera.centre = QPointF(9.1, 7.7);
    const QVector<QRgb> colours{kRed, kGreen, kOrange, 0xFF0000FF, kRed};
    QImage pictures[2];
    for (int direct = 0; direct < 2; ++direct) {
        pictures[direct] = QImage(camera.viewport, QImage::Format_ARGB32_Premultiplied);
        pictures[direct].fill(QColor(60, 60, 60));
        QPainter painter(&pictures[direct]);
        painter.setTransform(camera.transform());
        QImage layer;
        paintPixels2D(painter, scene, colours, camera.visibleSceneRect().adjusted(-1000, -1000, 1000, 1000), Qt::white,
                      direct ? &layer : nullptr);
    }
    QCOMPARE(pictures[1], pictures[0]);
}

void TestMonitorRender::fastDrawDrawsSquares()
{
    // Two dots far apart in a front view; look just inside the corner of the first one's square.
    const TPatch::PixelLayout layout = layoutOf({square(0, 0, 10), square(90, 0, 10)});
    MonitorRender::Options3D options;
    options.yaw = options.pitch = 0;
    const Model3D model = buildModel3D(layout);
    Monitor3DScene scene;
    scene.setModel(model.positions, model.kinetics, model.worldScale, model.ledRadius);
    scene.camera().yaw = scene.camera().pitch = 0;
    scene.setViewRect(QRectF(-200, -50, 400, 100));
    QVERIFY(scene.fit());
    const QPointF centre = scene.camera().project(scene.camera().rotate(model.positions.at(0))) + scene.camera().pan
                           + QPointF(200, 50);
    const double r = scene.camera().projectionScale() * model.ledRadius;
    QVERIFY(r > 4);
    const QPointF corner = centre + QPointF(-r + 1, -r + 1);

    options.fastDraw = true;
    const QImage squares = MonitorRender::render3D(layout, {kRed, kRed}, {}, QSize(400, 100), options);
    options.fastDraw = false;
    const QImage dots = MonitorRender::render3D(layout, {kRed, kRed}, {}, QSize(400, 100), options);
    QCOMPARE(at(squares, centre), kRed);
    QCOMPARE(at(dots, centre), kRed);
    QCOMPARE(at(squares, corner), kRed);
    QVERIFY(at(dots, corner) != kRed);
}

void TestMonitorRender::stampedDotsLookLikePaintedOnes_data()
{
    QTest::addColumn<int>("side"); // picture side: the larger, the larger the dots
    QTest::newRow("small dots") << 90;
    QTest::newRow("medium dots") << 300;
    QTest::newRow("large dots") << 1200;
}

// The view stamps its dots, a scaled painter fills ellipses: the same picture, but for a few
// levels on the rims (a stamp places a dot to 1/8 or 1/4 of a pixel).
void TestMonitorRender::stampedDotsLookLikePaintedOnes()
{
    QFETCH(int, side);
    QVector<TPatch::LayoutPixel> pixels;
    QVector<QRgb> colours;
    for (int i = 0; i < 60; ++i) {
        pixels << square(i % 8 * 13.37 + i * 0.29, i / 8 * 11.73, 10, 0, 0, i % 3);
        colours << (0xFF000000 | quint32(i * 2654435761u >> 8));
    }
    const Model3D model = buildModel3D(layoutOf(pixels));
    Monitor3DScene scene;
    scene.setModel(model.positions, model.kinetics, model.worldScale, model.ledRadius);
    scene.setColours(colours);
    scene.camera().yaw = 0.4;
    scene.camera().pitch = 0.3;
    scene.setViewRect(QRectF(-side / 2, -side / 2, side, side));
    QVERIFY(scene.fit());
    const QImage stamped = paintScene(scene, side);
    const QImage painted = paintScene(scene, side, true);
    int worst = 0;
    qint64 total = 0;
    int marked = 0; // pixels more than 32 levels apart
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const QRgb a = stamped.pixel(x, y), b = painted.pixel(x, y);
            const int d = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                    std::abs(qBlue(a) - qBlue(b))});
            worst = std::max(worst, d);
            total += d;
            marked += d > 32;
        }
    const double mean = double(total) / (double(side) * side);
    const double radius = scene.camera().projectionScale() * model.ledRadius;
    // Measured: worst 27-36, mean 0.08-0.72, 0-11 pixels over 32 (60 dots).
    QVERIFY2(worst <= 48 && mean < 1.0 && marked <= pixels.size(),
             qPrintable(QStringLiteral("radius %1 px: worst %2, mean %3, %4 pixels over 32")
                            .arg(radius).arg(worst).arg(mean).arg(marked)));
}

void TestMonitorRender::nearerPointsArePaintedLast()
{
    // Front view: the camera looks along +z, so z = -5 is nearer than z = +5.
    Monitor3DScene scene;
    scene.setModel({Point3{0, 0, -5}, Point3{0, 0, 5}, Point3{100, 0, 0}}, {}, 1.0, 3.0);
    QVERIFY(scene.setColours({kRed, kGreen, kGreen}));
    scene.camera().yaw = scene.camera().pitch = 0;
    scene.setViewRect(QRectF(-100, -100, 200, 200));
    QVERIFY(scene.fit());
    const QImage image = paintScene(scene, 200);
    QCOMPARE(scene.drawOrder().constLast(), 0);
    const QPointF p = scene.camera().project(Point3{0, 0, 0}) + scene.camera().pan + QPointF(100, 100);
    QCOMPARE(at(image, p), kRed);
    // Turned round, the other one is in front.
    scene.camera().yaw = 3.14159265358979323846;
    paintScene(scene, 200);
    QCOMPARE(scene.drawOrder().constLast(), 1);
}

void TestMonitorRender::pointsBehindTheCameraAreNotDrawn()
{
    Monitor3DScene scene;
    scene.setModel({Point3{0, 0, -299}, Point3{10, 0, float(-300 + 1.5)}}, {Kinetic3{20, 0, -299.5f, 0}}, 1.0, 2.0);
    QVERIFY(scene.setColours({kRed, kGreen}));
    QVERIFY(scene.setKineticValues({0.0f}));
    scene.camera().yaw = scene.camera().pitch = 0; // distance 300, s = 1
    scene.setViewRect(QRectF(-50, -50, 100, 100));
    const QImage image = paintScene(scene, 100);
    QVERIFY(at(image, QPointF(50, 50)) != kRed); // z + distance = 1: not drawn
    QCOMPARE(at(image, QPointF(60, 50)), kGreen);
    QVERIFY(at(image, QPointF(70, 50)) != 0xFFFFFFFF); // kinetic line with an end behind: not drawn
}

void TestMonitorRender::colourListsOfAnotherSizeAreIgnored()
{
    Monitor3DScene scene;
    scene.setModel({Point3{}, Point3{1, 1, 1}}, {Kinetic3{0, 0, 0, 7}}, 1.0, 1.0);
    QCOMPARE(scene.colours(), (QVector<QRgb>{0xFFFFFFFF, 0xFFFFFFFF}));
    QCOMPARE(scene.kinetics().constFirst().value, 0.0f);
    QVERIFY(!scene.setColours({kRed}));
    QVERIFY(!scene.setKineticValues({1.0f, 2.0f}));
    QCOMPARE(scene.colours(), (QVector<QRgb>{0xFFFFFFFF, 0xFFFFFFFF}));
    QVERIFY(scene.setColours({kRed, kGreen}));
    QCOMPARE(scene.colours(), (QVector<QRgb>{kRed, kGreen}));
}

void TestMonitorRender::modelMapsPointsAndKinetics()
{
    QVector<TPatch::LayoutPixel> pixels{square(0, 0, 10, 0, 0, 0), square(10, 0, 10), square(190, 90, 10, 0, 0, 2)};
    pixels[1].isKinetic = true;
    TPatch::PixelLayout layout = layoutOf(pixels);
    const Model3D model = buildModel3D(layout);
    QCOMPARE(model.pointPixels, (QVector<int>{0, 2}));
    QCOMPARE(model.kineticPixels, (QVector<int>{1}));
    // The plan's longer side spans the model extent, centred; layers stack along z.
    QCOMPARE(model.positions.at(1).x - model.positions.at(0).x, float(Model3D::kModelExtent * 190 / 200));
    QCOMPARE(model.positions.at(0).x + model.positions.at(1).x, 0.0f);
    QCOMPARE(model.positions.at(1).z - model.positions.at(0).z, float(2 * Model3D::kLayerSpacing));
    QVERIFY(model.ledRadius > 0);
}

void TestMonitorRender::badInputPaintsNothingWrong()
{
    const QRgb grey = qRgb(60, 60, 60);
    const QImage empty = MonitorRender::render2D(TPatch::PixelLayout{}, {}, QSize(50, 40));
    QCOMPARE(empty.pixel(25, 20), grey);
    QVERIFY(MonitorRender::render2D(TPatch::PixelLayout{}, {}, QSize(0, 0)).isNull());
    QVERIFY(MonitorRender::render3D(TPatch::PixelLayout{}, {}, {}, QSize(0, 7), {}).isNull());
    const QImage empty3d = MonitorRender::render3D(TPatch::PixelLayout{}, {}, {}, QSize(50, 40), {});
    QVERIFY(!empty3d.isNull());

    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVector<TPatch::LayoutPixel> pixels{square(-1e9, -1e9, 1), square(1e9, 1e9, 1), square(3, 3, 1)};
    TPatch::LayoutPixel broken = square(0, 0, 1);
    broken.bounds = QRectF(nan, nan, 1, 1);
    broken.centre = QPointF(nan, nan);
    pixels.append(broken);
    const TPatch::PixelLayout layout = layoutOf(pixels);
    const QVector<QRgb> colours(4, kRed);
    QVERIFY(!MonitorRender::render2D(layout, colours, QSize(64, 64)).isNull());
    QVERIFY(!MonitorRender::render3D(layout, colours, QVector<float>(4, 50.0f), QSize(64, 64), {}).isNull());
    QCOMPARE(buildModel3D(layout).positions.size(), 3); // the NaN pixel is left out

    const QImage one = MonitorRender::render3D(layoutOf({square(5, 5, 2)}), {kRed}, {}, QSize(64, 64), {});
    QVERIFY(!one.isNull());
}

QTEST_GUILESS_MAIN(TestMonitorRender)
#include "tst_monitorrender.moc"
