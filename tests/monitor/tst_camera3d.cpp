#include "monitor/camera3d.h"

#include <QVector3D>
#include <QtTest>

#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;
const QRectF kView(-400, -300, 800, 600);

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
    void fit();
    void presets_data();
    void presets();
    void wheelKeepsTheCursorPointWithinTheLimits_data();
    void wheelKeepsTheCursorPointWithinTheLimits();
    void resetAndOrbit();
};

void TestCamera3D::rotation_data()
{
    QTest::addColumn<double>("pitch");
    QTest::addColumn<double>("yaw");
    QTest::addColumn<QVector3D>("point");
    QTest::addColumn<QVector3D>("rotated");
    QTest::newRow("identity") << 0.0 << 0.0 << QVector3D(1, 2, 3) << QVector3D(1, 2, 3);
    QTest::newRow("yaw 90: x goes to -z") << 0.0 << kPi / 2 << QVector3D(1, 0, 0) << QVector3D(0, 0, -1);
    QTest::newRow("yaw 90: z goes to x") << 0.0 << kPi / 2 << QVector3D(0, 0, 1) << QVector3D(1, 0, 0);
    QTest::newRow("pitch 90: y goes to z") << kPi / 2 << 0.0 << QVector3D(0, 1, 0) << QVector3D(0, 0, 1);
    QTest::newRow("pitch 90: z goes to -y") << kPi / 2 << 0.0 << QVector3D(0, 0, 1) << QVector3D(0, -1, 0);
    // Pitch first, then yaw: y -> z (pitch) -> x (yaw).
    QTest::newRow("pitch then yaw") << kPi / 2 << kPi / 2 << QVector3D(0, 1, 0) << QVector3D(1, 0, 0);
    QTest::newRow("back: x and z mirrored") << 0.0 << kPi << QVector3D(2, -1, 5) << QVector3D(-2, -1, -5);
}

void TestCamera3D::rotation()
{
    QFETCH(double, pitch);
    QFETCH(double, yaw);
    QFETCH(QVector3D, point);
    QFETCH(QVector3D, rotated);
    Camera3D c;
    c.pitch = pitch;
    c.yaw = yaw;
    const Point3 r = c.rotate(Point3{point.x(), point.y(), point.z()});
    QVERIFY2(near(r.x, rotated.x()) && near(r.y, rotated.y()) && near(r.z, rotated.z()),
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
    QCOMPARE(Camera3D::clampDistance(std::nan("")), Camera3D::kDefaultDistance);
}

void TestCamera3D::fit()
{
    Camera3D c;
    c.pitch = c.yaw = 0;
    c.worldScale = 2.0;
    QVERIFY(c.fit({{-10, 0, 0}, {30, 5, 0}}, {}, kView)); // 40 wide, 5 high: the width limits
    // needed scale 800 * 0.88 / 40 = 17.6; distance = 2 * 300 / 17.6
    QVERIFY(near(c.distance, 600 / 17.6, 1e-9));
    QVERIFY(near(40 * c.pointScale(), 800 * 0.88, 1e-6));
    const QPointF middle = c.project(c.rotate(Point3{10, 2.5, 0})) + c.pan; // lands on the view's centre
    QVERIFY(near(middle.x(), 0, 1e-6) && near(middle.y(), 0, 1e-6));
    // Nothing, one point or one spot has no extent: the camera stays where it is.
    const Camera3D fitted = c;
    QVERIFY(!c.fit({Point3{7, 8, 9}}, {}, kView));
    QVERIFY(!c.fit({}, {}, kView));
    QVERIFY(!c.fit({Point3{1, 1, 1}, Point3{1, 1, 1}}, {Kinetic3{1, 1, 1, 0}}, kView));
    QCOMPARE(c.distance, fitted.distance);
    QCOMPARE(c.pan, fitted.pan);
    // Top view (+z up the screen): a kinetic item alone, 50 units tall, fits by its line.
    c.pitch = kPi / 2;
    QVERIFY(c.fit({}, {Kinetic3{0, 0, 0, 50}}, kView));
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

void TestCamera3D::wheelKeepsTheCursorPointWithinTheLimits_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("distance");
    QTest::newRow("one notch in") << 120 << 280.0;
    QTest::newRow("half a notch") << 60 << 290.0;
    QTest::newRow("three notches out") << -360 << 360.0;
    QTest::newRow("in past the nearest") << 100 * 120 << 5.0;
    QTest::newRow("out past the farthest") << -1000 * 120 << 15000.0;
}

void TestCamera3D::wheelKeepsTheCursorPointWithinTheLimits()
{
    QFETCH(int, delta);
    QFETCH(double, distance);
    Camera3D c;
    c.pan = QPointF(15, -8);
    const QPointF cursor(610, 95);
    const QPointF c0 = cursor - QPointF(400, 300);
    const QPointF model = (c0 - c.pan) / c.projectionScale(); // the point under the cursor, unscaled
    c.wheel(delta, cursor, QSizeF(800, 600));
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
    // The orbit swings around where it started, never more than an eighth of a turn away.
    orbit.tick(c);
    QVERIFY(c.pitch != 2.0 && c.yaw != -1.0);
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
