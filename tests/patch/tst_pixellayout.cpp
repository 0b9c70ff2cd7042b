#include "patch/gridplacement.h"
#include "patch/patchkeys.h"
#include "patch/pixellayout.h"

#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>

using namespace TPatch;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

LedRecord record(int x, int y, int z = 0, int address = 0)
{
    LedRecord r;
    r.posX = quint16(x);
    r.posY = quint16(y);
    r.posZ = quint16(z);
    r.address = quint16(address);
    r.roles = {RoleRed, RoleGreen, RoleBlue, 0, 0, 0};
    return r;
}

// A countX x countY matrix filling rect, records row by row.
PatchFixture grid(int countX, int countY, const QRectF &rect, QPointF pos = {})
{
    PatchFixture f;
    f.countX = quint16(countX);
    f.countY = quint16(countY);
    for (int y = 0; y < countY; ++y)
        for (int x = 0; x < countX; ++x)
            f.leds.append(record(x, y, 0, 3 * int(f.leds.size())));
    f.hasLayout = true;
    f.rect = rect;
    f.scenePosX = pos.x();
    f.scenePosY = pos.y();
    return f;
}

PatchData patchOf(const QVector<PatchFixture> &fixtures, int universe = 0)
{
    Torvoverse t;
    t.universe = quint16(universe);
    t.fixtures = fixtures;
    PatchGroup g;
    g.torvoverses.append(t);
    PatchData p;
    p.groups.append(g);
    return p;
}

bool fuzzyPoint(const QPointF &a, const QPointF &b)
{
    return std::fabs(a.x() - b.x()) < 1e-9 && std::fabs(a.y() - b.y()) < 1e-9;
}

bool fuzzyRect(const QRectF &a, const QRectF &b)
{
    return fuzzyPoint(a.topLeft(), b.topLeft()) && fuzzyPoint(a.bottomRight(), b.bottomRight());
}

QString warningText(const PixelLayout &l)
{
    return l.warnings.isEmpty() ? QString() : l.warnings.constFirst().untranslatedText();
}

} // namespace

class TestPixelLayout : public QObject
{
    Q_OBJECT

private slots:
    void gridCells_data();
    void gridCells();
    void onePositionFillsRect();
    void rotationAndWarpOrder_data();
    void rotationAndWarpOrder();
    void kineticsFirst();
    void hashes();
    void zRange();
    void overlap_data();
    void overlap();
    void arcsAreRound();
    void arcSteps_data();
    void arcSteps();
    void freePositions();
    void badInput_data();
    void badInput();
};

void TestPixelLayout::gridCells_data()
{
    QTest::addColumn<int>("countX");
    QTest::addColumn<int>("countY");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("resizeFactor");
    // Each record gets rect / count: square cells when the rectangle has the grid's aspect.
    QTest::newRow("matrix 16x10") << 16 << 10 << QRectF(0, 0, 160, 100) << 1;
    QTest::newRow("strip 170x1") << 170 << 1 << QRectF(0, 0, 1700, 10) << 1;
    QTest::newRow("column 1x30") << 1 << 30 << QRectF(5, 7, 4, 120) << 4;
    QTest::newRow("stretched 4x4") << 4 << 4 << QRectF(-20, 0, 80, 20) << 2;
}

void TestPixelLayout::gridCells()
{
    QFETCH(int, countX);
    QFETCH(int, countY);
    QFETCH(QRectF, rect);
    QFETCH(int, resizeFactor);
    PatchFixture f = grid(countX, countY, rect, QPointF(100, 50));
    f.resizeFactor = resizeFactor;
    const PixelLayout l = buildPixelLayout(patchOf({f}));
    QCOMPARE(l.pixels.size(), countX * countY);
    const double w = rect.width() / countX, h = rect.height() / countY;
    for (int i = 0; i < l.pixels.size(); ++i) {
        const LayoutPixel &p = l.pixels.at(i);
        const QRectF expected(100 + rect.x() + (i % countX) * w, 50 + rect.y() + (i / countX) * h, w, h);
        QVERIFY2(fuzzyRect(p.bounds, expected), qPrintable(QStringLiteral("pixel %1").arg(i)));
        QVERIFY(p.isAxisAligned());
        QVERIFY(fuzzyPoint(p.centre, expected.center()));
        QVERIFY(fuzzyPoint(p.outline[0], expected.topLeft())); // corners clockwise from top-left
        QVERIFY(fuzzyPoint(p.outline[2], expected.bottomRight()));
    }
    QVERIFY(fuzzyRect(l.sceneRect, rect.translated(100, 50)));
    QVERIFY(l.warnings.isEmpty());
}

void TestPixelLayout::onePositionFillsRect()
{
    PatchFixture f = grid(1, 1, QRectF(0, 0, 30, 12));
    f.leds.append(record(0, 0, 0, 3)); // a second record on the same step
    const PixelLayout l = buildPixelLayout(patchOf({f}));
    QCOMPARE(l.pixels.size(), 2);
    for (const LayoutPixel &p : l.pixels)
        QCOMPARE(p.bounds, QRectF(0, 0, 30, 12));

    // Records two steps apart: the gap is a cell of its own.
    PatchFixture gap = grid(1, 1, QRectF(0, 0, 30, 10));
    gap.leds.append(record(2, 0));
    const PixelLayout g = buildPixelLayout(patchOf({gap}));
    QCOMPARE(g.pixels.at(0).bounds, QRectF(0, 0, 10, 10));
    QCOMPARE(g.pixels.at(1).bounds, QRectF(20, 0, 10, 10));
}

void TestPixelLayout::rotationAndWarpOrder_data()
{
    QTest::addColumn<double>("rotation");
    QTest::addColumn<QTransform>("warp");
    QTest::addColumn<QPointF>("topLeft");
    QTest::addColumn<QPointF>("topRight");
    // One cell filling rect (0, 0, 20, 10) at scenePos (100, 0), centre (10, 5).
    QTest::newRow("plain") << 0.0 << QTransform() << QPointF(100, 0) << QPointF(120, 0);
    // A positive rotationAngle turns counter-clockwise on screen: the right end goes up.
    QTest::newRow("rotate 90") << 90.0 << QTransform() << QPointF(105, 15) << QPointF(105, -5);
    QTest::newRow("rotate -90") << -90.0 << QTransform() << QPointF(115, -5) << QPointF(115, 15);
    // The warp acts in fixture coordinates, before the rotation about the centre.
    QTest::newRow("warp then rotate")
        << 90.0 << QTransform::fromTranslate(10, 0) << QPointF(105, 5) << QPointF(105, -15);
    QTest::newRow("projective warp") << 0.0 << QTransform(1, 0, 0.01, 0, 1, 0, 0, 0, 1) << QPointF(100, 0)
                                     << QPointF(100 + 20 / 1.2, 0); // divided before the move
}

void TestPixelLayout::rotationAndWarpOrder()
{
    QFETCH(double, rotation);
    QFETCH(QTransform, warp);
    QFETCH(QPointF, topLeft);
    QFETCH(QPointF, topRight);
    PatchFixture f = grid(1, 1, QRectF(0, 0, 20, 10), QPointF(100, 0));
    f.rotationAngle = rotation;
    f.cornerWarp = warp;
    const PixelLayout l = buildPixelLayout(patchOf({f}));
    QCOMPARE(l.pixels.size(), 1);
    const LayoutPixel &p = l.pixels.constFirst();
    QVERIFY2(fuzzyPoint(p.outline[0], topLeft),
             qPrintable(QStringLiteral("%1,%2").arg(p.outline[0].x()).arg(p.outline[0].y())));
    QVERIFY2(fuzzyPoint(p.outline[1], topRight),
             qPrintable(QStringLiteral("%1,%2").arg(p.outline[1].x()).arg(p.outline[1].y())));
    if (warp.isIdentity())
        QCOMPARE(p.isAxisAligned(), rotation == 0.0 || std::fabs(rotation) == 90.0);
    else if (warp.type() == QTransform::TxProject)
        QVERIFY(!p.isAxisAligned());
}

void TestPixelLayout::kineticsFirst()
{
    PatchFixture f = grid(2, 1, QRectF(0, 0, 20, 10));
    LedRecord winch = record(1, 0, 0, 10);
    winch.roles = {};
    winch.structures[0] = {3, 1, true};
    winch.structures[2] = {5, kKineticPositionRole, false};
    f.kinetics.append(winch);
    const PixelLayout l = buildPixelLayout(patchOf({f}));
    QCOMPARE(l.pixels.size(), 3);
    QVERIFY(l.pixels.at(0).isKinetic);
    QCOMPARE(l.pixels.at(0).kineticChannel, (KineticChannel{true, 12, false}));
    QCOMPARE(l.pixels.at(0).bounds, QRectF(10, 0, 10, 10));
    QVERIFY(!l.pixels.at(1).isKinetic);
    QCOMPARE(l.pixels.at(1).startChannel, 0);
    QCOMPARE(l.pixels.at(2).startChannel, 3);
    QCOMPARE(l.pixels.at(2).roles[2], quint8(RoleBlue));
    QCOMPARE(l.drawablePixelCount(), 2);
}

void TestPixelLayout::hashes()
{
    // Universe 1 and 17 share Port-Address 0x0001 but not their device key.
    PatchData p = patchOf({grid(2, 1, QRectF(0, 0, 20, 10))}, 1);
    Torvoverse second = p.groups[0].torvoverses[0];
    second.universe = 17;
    second.fixtures[0].scenePosY = 20;
    Torvoverse third = second;
    third.universe = 2;
    third.fixtures[0].hasLayout = false; // nothing drawn: no entry at all
    p.groups.append(PatchGroup{});
    p.groups[1].torvoverses = {second, third};
    const PixelLayout l = buildPixelLayout(p);
    QCOMPARE(l.pixelsForPortAddress(0x0001), (QVector<int>{0, 1, 2, 3}));
    QCOMPARE(l.pixelsForDeviceKey(deviceKey(p.groups[0].torvoverses[0])), (QVector<int>{0, 1}));
    QCOMPARE(l.pixelsForDeviceKey(deviceKey(second)), (QVector<int>{2, 3}));
    QVERIFY(l.pixelsForPortAddress(0x0002).isEmpty());
    QVERIFY(!l.portAddressPixels.contains(0x0002));
    const LayoutPixel &last = l.pixels.at(3);
    QCOMPARE((QList<int>{last.groupIndex, last.torvoverseIndex, last.portAddress}),
             (QList<int>{1, 0, 0x0001}));
    QCOMPARE(last.deviceKey, deviceKey(second));
}

void TestPixelLayout::zRange()
{
    PatchFixture f = grid(3, 1, QRectF(0, 0, 30, 10));
    f.leds[0].posZ = 3;
    f.leds[1].posZ = 1;
    f.leds[2].posZ = 7;
    const PixelLayout l = buildPixelLayout(patchOf({f}));
    QVERIFY(l.zRange.seen);
    QCOMPARE(l.zRange.min, 1);
    QCOMPARE(l.zRange.max, 7);
    QCOMPARE(l.pixels.at(2).z, 7);
    // Layers lie on top of each other in the plane.
    f.leds[2].posX = 0;
    QCOMPARE(buildPixelLayout(patchOf({f})).pixels.at(2).bounds.left(), 0.0);
}

void TestPixelLayout::overlap_data()
{
    QTest::addColumn<QVector<PatchFixture>>("fixtures");
    QTest::addColumn<QString>("warning");
    const PatchFixture a = grid(2, 2, QRectF(0, 0, 20, 20));
    const QString two = QStringLiteral("2 fixtures overlap on 1 screen position(s) - only the topmost one is "
                                       "visible. Use the group filter to isolate a torvoverse.");
    QTest::newRow("identical") << QVector<PatchFixture>{a, a} << two;
    PatchFixture nudged = a;
    nudged.scenePosX = 0.4; // rounds to the same rectangle
    QTest::newRow("rounded alike") << QVector<PatchFixture>{a, nudged} << two;
    nudged.scenePosX = 0.6;
    QTest::newRow("apart") << QVector<PatchFixture>{a, nudged} << QString();
    PatchFixture layer = a;
    for (LedRecord &r : layer.leds)
        r.posZ = 1;
    QTest::newRow("other layer") << QVector<PatchFixture>{a, layer} << QString();
    PatchFixture mixed = layer;
    mixed.leds[3].posZ = 0; // lowest layer 0 again
    QTest::newRow("same lowest layer") << QVector<PatchFixture>{layer, mixed, a} << two;
    PatchFixture kinetic = a;
    kinetic.kinetics = kinetic.leds;
    kinetic.leds.clear();
    QTest::newRow("kinetics never") << QVector<PatchFixture>{kinetic, kinetic} << QString();
    PatchFixture b = a;
    b.scenePosX = 100;
    QTest::newRow("five on two") << QVector<PatchFixture>{a, b, a, b, a}
                                 << QStringLiteral(
                                        "5 fixtures overlap on 2 screen position(s) - only the topmost "
                                        "one is visible. Use the group filter to isolate a torvoverse.");
}

void TestPixelLayout::overlap()
{
    QFETCH(QVector<PatchFixture>, fixtures);
    QFETCH(QString, warning);
    QCOMPARE(warningText(buildPixelLayout(patchOf(fixtures))), warning);
}

void TestPixelLayout::arcsAreRound()
{
    // Two half rings of 75 pixels, rects round their cells at 3 scene units a step, centred on (500, 400).
    QVector<PatchFixture> halves;
    for (const double start : {0.0, 180.0}) {
        PatchFixture f;
        f.isArc = true;
        f.arcRadius = 100;
        f.arcStartAngle = start;
        f.arcEndAngle = start + 180;
        f.countX = 75;
        for (int i = 0; i < 75; ++i)
            f.leds.append(record(i, 0));
        const QRectF cells = gridCellBounds(f);
        f.hasLayout = true;
        f.rect = QRectF(0, 0, cells.width() * 3, cells.height() * 3);
        f.scenePosX = 500 + cells.left() * 3;
        f.scenePosY = 400 + cells.top() * 3;
        halves.append(f);
    }
    const PixelLayout l = buildPixelLayout(patchOf(halves));
    QCOMPARE(l.pixels.size(), 150);
    const QPointF centre(500, 400);
    for (int i = 0; i < 150; ++i) {
        const LayoutPixel &p = l.pixels.at(i);
        // Radius 100, counter-clockwise from 3 o'clock in 2.4 degree steps, the first half above the centre.
        const double angle = (i + 0.5) * 2.4 * M_PI / 180;
        QVERIFY2(fuzzyPoint(p.centre, centre + QPointF(100 * std::cos(angle), -100 * std::sin(angle))),
                 qPrintable(QString::number(i)));
        QVERIFY(std::fabs(p.bounds.width() - 3) < 1e-9 && std::fabs(p.bounds.height() - 3) < 1e-9);
    }
    QVERIFY(l.warnings.isEmpty());
    // Start beyond the end: the end is taken a turn further.
    PatchFixture wrap = halves.at(0);
    wrap.arcStartAngle = 270;
    wrap.arcEndAngle = 90;
    const PixelLayout wrapped = buildPixelLayout(patchOf({wrap}));
    QVERIFY(wrapped.pixels.constFirst().centre.y() > wrapped.pixels.constLast().centre.y()); // 6 via 3 to 12
}

void TestPixelLayout::arcSteps_data()
{
    QTest::addColumn<int>("countX");
    QTest::addColumn<int>("records");
    QTest::addColumn<int>("resizeFactor");
    QTest::addColumn<QRectF>("cells");
    // A quarter arc from 3 o'clock to 12 o'clock of radius 30 scene units:
    // 10 steps at resizeFactor 1, 5 at 2. Bounds include half a cell all round.
    auto quarter = [](double r, double a0, double a1) {
        return QRectF(r * std::cos(a1) - 0.5, -r * std::sin(a1) - 0.5, r * (std::cos(a0) - std::cos(a1)) + 1,
                      r * (std::sin(a1) - std::sin(a0)) + 1);
    };
    const double d = M_PI / 180;
    QTest::newRow("3 records") << 3 << 3 << 1 << quarter(10, 15 * d, 75 * d);
    QTest::newRow("resize 2") << 3 << 3 << 2 << quarter(5, 15 * d, 75 * d);
    // countX names more pixels than there are records: they bunch at the start.
    QTest::newRow("countX 6") << 6 << 3 << 1 << quarter(10, 7.5 * d, 37.5 * d);
    // A record beyond countX widens the count instead of running off the arc.
    QTest::newRow("countX 1") << 1 << 3 << 1 << quarter(10, 15 * d, 75 * d);
}

void TestPixelLayout::arcSteps()
{
    QFETCH(int, countX);
    QFETCH(int, records);
    QFETCH(int, resizeFactor);
    QFETCH(QRectF, cells);
    PatchFixture f;
    f.isArc = true;
    f.arcRadius = 30;
    f.arcStartAngle = 0;
    f.arcEndAngle = 90;
    f.countX = quint16(countX);
    f.resizeFactor = resizeFactor;
    for (int i = 0; i < records; ++i)
        f.leds.append(record(i, 0));
    const QRectF b = gridCellBounds(f);
    QVERIFY2(fuzzyRect(b, cells),
             qPrintable(QStringLiteral("%1 %2 %3 %4").arg(b.x()).arg(b.y()).arg(b.width()).arg(b.height())));
}

void TestPixelLayout::freePositions()
{
    PatchFixture f;
    f.hasLayout = true;
    f.rect = QRectF(0, 0, 1, 1);
    f.scenePosX = 1000; // free points are scene positions: the fixture transform does not apply
    f.freePositions = true;
    f.pixelSize = 4;
    f.leds = {record(0, 0, 2), record(0, 0, 5), record(0, 0, 9)};
    f.pixelPoints = {QPointF(10, 20), QPointF(30, 40)}; // shorter than leds: two pixels
    f.pixelRotations = {45};                            // shorter than points: the second is not rotated
    const PixelLayout l = buildPixelLayout(patchOf({f}));
    QCOMPARE(l.pixels.size(), 2);
    QCOMPARE(l.pixels.at(1).bounds, QRectF(28, 38, 4, 4));
    const double half = 2 * std::sqrt(2.0);
    QVERIFY(fuzzyPoint(l.pixels.at(0).bounds.topLeft(), QPointF(10 - half, 20 - half)));
    QVERIFY(fuzzyPoint(l.pixels.at(0).centre, QPointF(10, 20)));
    QVERIFY(!l.pixels.at(0).isAxisAligned());
    QCOMPARE(l.zRange.min, 2);
    QCOMPARE(l.zRange.max, 5);
}

void TestPixelLayout::badInput_data()
{
    QTest::addColumn<PatchData>("patch");
    QTest::addColumn<int>("drawn");
    const PatchFixture good = grid(2, 2, QRectF(0, 0, 20, 20), QPointF(0, 100));
    const auto withBad = [&](const PatchFixture &bad) { return patchOf({bad, good}); };
    const PatchFixture f = grid(2, 2, QRectF(0, 0, 20, 20));
    // One change to f, beside the good fixture.
    const auto changed = [&](const char *tag, int drawn, const std::function<void(PatchFixture &)> &change) {
        PatchFixture b = f;
        change(b);
        QTest::newRow(tag) << withBad(b) << drawn;
    };

    QTest::newRow("empty groups") << PatchData{} << 0;
    PatchData emptyGroup;
    emptyGroup.groups.resize(3);
    emptyGroup.groups[1].torvoverses.resize(2);
    QTest::newRow("empty torvoverses") << emptyGroup << 0;
    PatchFixture hidden = f;
    hidden.hasLayout = false;
    QTest::newRow("no layout") << patchOf({hidden, hidden}) << 0;
    PatchFixture absurd = f;
    absurd.countX = absurd.countY = absurd.countZ = 65535;
    absurd.dimX = absurd.dimY = absurd.dimZ = 65535;
    absurd.leds.append(record(65535, 65535, 65535));
    QTest::newRow("absurd counts") << withBad(absurd) << 9;
    PatchFixture arc = absurd;
    arc.isArc = true;
    QTest::newRow("absurd arc") << withBad(arc) << 9;
    arc.arcRadius = kNaN;
    QTest::newRow("NaN radius") << withBad(arc) << 4;
    arc.arcRadius = 1e308;
    QTest::newRow("huge radius") << withBad(arc) << 4;
    arc.arcRadius = 10;
    arc.arcEndAngle = kInf;
    QTest::newRow("infinite angle") << withBad(arc) << 4;
    for (const QRectF &r :
         {QRectF(0, 0, 0, 10), QRectF(0, 0, -5, 10), QRectF(0, 0, kNaN, 10), QRectF(kInf, 0, 10, 10)}) {
        PatchFixture bad = f;
        bad.rect = r;
        QTest::addRow("rect %g,%g,%g,%g", r.x(), r.y(), r.width(), r.height()) << withBad(bad) << 4;
    }
    // Aspect 1 below 1e-6 height: slivers, but finite ones.
    changed("rect sliver", 8, [](auto &b) { b.rect = QRectF(0, 0, 1e308, 1e-308); });
    changed("NaN position", 4, [](auto &b) { b.scenePosX = kNaN; });
    changed("infinite rotation", 4, [](auto &b) { b.rotationAngle = -kInf; });
    changed("zero warp", 4, [](auto &b) { b.cornerWarp = QTransform(0, 0, 0, 0, 0, 0, 0, 0, 0); });
    changed("warp onto a line", 4, [](auto &b) { b.cornerWarp = QTransform(1, 1, 0, 1, 1, 0, 0, 0, 1); });
    // Horizon at x = 10.
    changed("warp horizon", 4, [](auto &b) { b.cornerWarp = QTransform(1, 0, -0.1, 0, 1, 0, 0, 0, 1); });
    changed("NaN warp", 4, [](auto &b) { b.cornerWarp = QTransform(1, 0, 0, 0, 1, 0, 0, 0, kNaN); });
    changed("huge resize", 8, [](auto &b) { b.resizeFactor = std::numeric_limits<qint32>::max(); });
    PatchFixture freeBad;
    freeBad.hasLayout = true;
    freeBad.freePositions = true;
    freeBad.leds = {record(0, 0), record(0, 0), record(0, 0)};
    freeBad.pixelPoints = {QPointF(kNaN, 0), QPointF(1, 1), QPointF(2, 2)};
    freeBad.pixelRotations = {0, kInf};
    QTest::newRow("free NaN point and rotation") << withBad(freeBad) << 5;
    freeBad.pixelSize = -1;
    QTest::newRow("free negative size") << withBad(freeBad) << 4;
}

void TestPixelLayout::badInput()
{
    QFETCH(PatchData, patch);
    QFETCH(int, drawn);
    const PixelLayout l = buildPixelLayout(patch);
    QCOMPARE(l.pixels.size(), drawn);
    for (const LayoutPixel &p : l.pixels) {
        for (const QPointF &c : p.outline)
            QVERIFY(std::isfinite(c.x()) && std::isfinite(c.y()));
    }
    QVERIFY(std::isfinite(l.sceneRect.width()) && std::isfinite(l.sceneRect.height()));
    if (drawn == 0) { // nothing placed leaves everything empty
        QVERIFY(l.sceneRect.isEmpty());
        QVERIFY(!l.zRange.seen);
        QVERIFY(l.warnings.isEmpty());
        QVERIFY(l.pixelsForPortAddress(0).isEmpty());
    }
}

QTEST_GUILESS_MAIN(TestPixelLayout)
#include "tst_pixellayout.moc"
