#include "monitor/camera3d.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;

bool near(double a, double b, double tolerance = 1e-5)
{
    return std::abs(a - b) <= tolerance;
}

} // namespace

class TestCamera3D : public QObject
{
    Q_OBJECT
private slots:
    void rotation_data();
    void rotation();
    void projectionAndVisibility();
    void fitFillsTheLimitingSide();
    void fitLeavesAOnePointModelUnchanged();
    void fitCountsKineticTips();
    void presets_data();
    void presets();
    void distanceClamps();
    void wheelNotchesKeepTheCursorPoint_data();
    void wheelNotchesKeepTheCursorPoint();
    void resetAndOrbit();
};

void TestCamera3D::rotation_data()
{
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("yaw");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    QTest::addColumn<double>("rx");
    QTest::addColumn<double>("ry");
    QTest::addColumn<double>("rz");
    QTest::newRow("identity") << 0.0 << 0.0 << 1.0 << 2.0 << 3.0 << 1.0 << 2.0 << 3.0;
    QTest::newRow("yaw 90: x goes to -z") << 0.0 << kPi / 2 << 1.0 << 0.0 << 0.0 << 0.0 << 0.0 << -1.0;
    QTest::newRow("yaw 90: z goes to x") << 0.0 << kPi / 2 << 0.0 << 0.0 << 1.0 << 1.0 << 0.0 << 0.0;
    QTest::newRow("pitch 90: y goes to z") << kPi / 2 << 0.0 << 0.0 << 1.0 << 0.0 << 0.0 << 0.0 << 1.0;
    QTest::newRow("pitch 90: z goes to -y") << kPi / 2 << 0.0 << 0.0 << 0.0 << 1.0 << 0.0 << -1.0 << 0.0;
    // Pitch first, then yaw: y -> z (pitch) -> x (yaw).
    QTest::newRow("pitch then yaw") << kPi / 2 << kPi / 2 << 0.0 << 1.0 << 0.0 << 1.0 << 0.0 << 0.0;
    QTest::newRow("back preset mirrors x and z") << 0.0 << kPi << 2.0 << -1.0 << 5.0 << -2.0 << -1.0 << -5.0;
}

void TestCamera3D::rotation()
{
    QFETCH(double, pitch);
    QFETCH(double, yaw);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, z);
    Camera3D c;
    c.pitch = pitch;
    c.yaw = yaw;
    const Point3 r = c.rotate(Point3{float(x), float(y), float(z)});
    QFETCH(double, rx);
    QFETCH(double, ry);
    QFETCH(double, rz);
    QVERIFY2(near(r.x, rx) && near(r.y, ry) && near(r.z, rz),
             qPrintable(QStringLiteral("got (%1, %2, %3)").arg(r.x).arg(r.y).arg(r.z)));
}

void TestCamera3D::projectionAndVisibility()
{
    Camera3D c;
    c.distance = 150.0; // s = 2
    c.worldScale = 3.0;
    QCOMPARE(c.projectionScale(), 2.0);
    QCOMPARE(c.project(Point3{1, -2, 99}), QPointF(6, -12)); // parallel: z does not move it
    QVERIFY(!c.isVisible(Point3{0, 0, float(-150 + 1.0)}));
    QVERIFY(!c.isVisible(Point3{0, 0, -1000}));
    QVERIFY(c.isVisible(Point3{0, 0, float(-150 + 1.01)}));
}

void TestCamera3D::fitFillsTheLimitingSide()
{
    Camera3D c;
    c.pitch = c.yaw = 0;
    c.worldScale = 2.0;
    const QVector<Point3> points{{-10, 0, 0}, {30, 5, 0}}; // 40 wide, 5 high
    QVERIFY(c.fit(points, {}, QRectF(-400, -300, 800, 600)));
    // needed scale 800 * 0.88 / 40 = 17.6; distance = 2 * 300 / 17.6
    QVERIFY(near(c.distance, 600 / 17.6, 1e-9));
    const double k = c.pointScale();
    QVERIFY(near(40 * k, 800 * 0.88, 1e-6));
    // The middle of the extents lands on the view's centre.
    const QPointF middle = c.project(c.rotate(Point3{10, 2.5, 0})) + c.pan;
    QVERIFY(near(middle.x(), 0, 1e-6) && near(middle.y(), 0, 1e-6));
}

void TestCamera3D::fitLeavesAOnePointModelUnchanged()
{
    Camera3D c;
    c.distance = 123;
    c.pan = QPointF(4, 5);
    QVERIFY(!c.fit({Point3{7, 8, 9}}, {}, QRectF(-400, -300, 800, 600)));
    QVERIFY(!c.fit({}, {}, QRectF(-400, -300, 800, 600)));
    QVERIFY(!c.fit({Point3{1, 1, 1}, Point3{1, 1, 1}}, {Kinetic3{1, 1, 1, 0}}, QRectF(-400, -300, 800, 600)));
    QCOMPARE(c.distance, 123.0);
    QCOMPARE(c.pan, QPointF(4, 5));
}

void TestCamera3D::fitCountsKineticTips()
{
    Camera3D c;
    c.pitch = kPi / 2; // top view: +z points up the screen (-y)
    c.yaw = 0;
    // One kinetic item alone, standing 50 units tall: its line is the extent.
    QVERIFY(c.fit({}, {Kinetic3{0, 0, 0, 50}}, QRectF(-400, -300, 800, 600)));
    QVERIFY(near(50 * c.pointScale(), 600 * 0.88, 1e-6));
}

void TestCamera3D::presets_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("yaw");
    QTest::newRow("0 front") << 0 << 0.0 << 0.0;
    QTest::newRow("1 back") << 1 << 0.0 << kPi;
    QTest::newRow("2") << 2 << 0.0 << kPi / 2;
    QTest::newRow("3") << 3 << 0.0 << -kPi / 2;
    QTest::newRow("4 top") << 4 << -kPi / 2 << 0.0;
    QTest::newRow("5 bottom") << 5 << kPi / 2 << 0.0;
}

void TestCamera3D::presets()
{
    QFETCH(int, preset);
    QFETCH(double, pitch);
    QFETCH(double, yaw);
    Camera3D c;
    QVERIFY(c.setPreset(preset));
    QCOMPARE(c.pitch, pitch);
    QCOMPARE(c.yaw, yaw);
    QVERIFY(!c.setPreset(6));
    QVERIFY(!c.setPreset(-1));
    QCOMPARE(c.pitch, pitch);
}

void TestCamera3D::distanceClamps()
{
    Camera3D c;
    for (int i = 0; i < 100; ++i)
        c.wheel(120, QPointF(400, 300), QSizeF(800, 600));
    QCOMPARE(c.distance, 5.0);
    QCOMPARE(c.projectionScale(), 60.0);
    for (int i = 0; i < 1000; ++i)
        c.wheel(-120, QPointF(400, 300), QSizeF(800, 600));
    QCOMPARE(c.distance, 15000.0);
    QCOMPARE(c.projectionScale(), 0.02);
    QCOMPARE(Camera3D::clampDistance(std::nan("")), Camera3D::kDefaultDistance);
}

void TestCamera3D::wheelNotchesKeepTheCursorPoint_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("distance");
    QTest::newRow("one notch in") << 120 << 280.0;
    QTest::newRow("half a notch") << 60 << 290.0;
    QTest::newRow("three notches out") << -360 << 360.0;
}

void TestCamera3D::wheelNotchesKeepTheCursorPoint()
{
    QFETCH(int, delta);
    QFETCH(double, distance);
    Camera3D c;
    c.pan = QPointF(15, -8);
    const QPointF cursor(610, 95);
    const QSizeF viewport(800, 600);
    const QPointF c0 = cursor - QPointF(400, 300);
    const QPointF model = (c0 - c.pan) / c.projectionScale(); // the point under the cursor, unscaled
    c.wheel(delta, cursor, viewport);
    QCOMPARE(c.distance, distance);
    const QPointF back = model * c.projectionScale() + c.pan;
    QVERIFY(near(back.x(), c0.x(), 1e-9) && near(back.y(), c0.y(), 1e-9));
}

void TestCamera3D::resetAndOrbit()
{
    Camera3D c;
    c.pitch = 2;
    c.yaw = -1;
    c.distance = 77;
    c.pan = QPointF(3, 3);
    AutoOrbit3D orbit;
    orbit.start(c);
    orbit.tick(c);
    QVERIFY(near(c.pitch, 2 + std::sin(0.02) * kPi / 4, 1e-12));
    QVERIFY(near(c.yaw, -1 + std::sin(0.7 * 0.02 + 1.5) * kPi / 4, 1e-12));
    for (int i = 0; i < 10000; ++i) {
        orbit.tick(c);
        QVERIFY(std::abs(c.pitch - 2) <= kPi / 4 + 1e-12 && std::abs(c.yaw + 1) <= kPi / 4 + 1e-12);
    }
    c.reset();
    QCOMPARE(c.pitch, 0.3);
    QCOMPARE(c.yaw, 0.7);
    QCOMPARE(c.distance, 300.0);
    QCOMPARE(c.pan, QPointF());
}

QTEST_GUILESS_MAIN(TestCamera3D)
#include "tst_camera3d.moc"
