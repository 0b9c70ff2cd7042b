#include "monitor/view2dcamera.h"

#include <QtTest>

#include <cmath>
#include <limits>

class TestView2DCamera : public QObject
{
    Q_OBJECT
private slots:
    void fit_data();
    void fit();
    void zoomStopsExactlyAtTheLimits();
    void zoomKeepsTheCursorPoint_data();
    void zoomKeepsTheCursorPoint();
    void panAndTransformAgreeWithMapping();
};

void TestView2DCamera::fit_data()
{
    QTest::addColumn<QRectF>("bounds");
    QTest::addColumn<QSize>("viewport");
    QTest::addColumn<bool>("fits");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("centre");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("wide: width limits") << QRectF(0, 0, 1000, 100) << QSize(1040, 1040) << true << 1.0 << QPointF(500, 50);
    QTest::newRow("tall: height limits") << QRectF(-50, -200, 100, 400) << QSize(1000, 832) << true << 2.0 << QPointF(0, 0);
    QTest::newRow("tiny: clamped to 400") << QRectF(10, 10, 0.01, 0.01) << QSize(800, 600) << true << 400.0 << QPointF(10.005, 10.005);
    QTest::newRow("+-1e9: clamped to 0.02") << QRectF(-1e9, -1e9, 2e9, 2e9) << QSize(800, 600) << true << 0.02 << QPointF(0, 0);
    QTest::newRow("flat row: width only") << QRectF(0, 5, 520, 0) << QSize(1040, 600) << true << 1.923076923076923 << QPointF(260, 5);
    QTest::newRow("empty patch") << QRectF() << QSize(800, 600) << false << 1.0 << QPointF();
    QTest::newRow("one-pixel viewport") << QRectF(0, 0, 10, 10) << QSize(1, 600) << false << 1.0 << QPointF();
    QTest::newRow("zero viewport") << QRectF(0, 0, 10, 10) << QSize(0, 0) << false << 1.0 << QPointF();
    QTest::newRow("NaN bounds") << QRectF(nan, 0, 10, 10) << QSize(800, 600) << false << 1.0 << QPointF();
}

void TestView2DCamera::fit()
{
    QFETCH(QRectF, bounds);
    QFETCH(QSize, viewport);
    QFETCH(bool, fits);
    QFETCH(double, scale);
    QFETCH(QPointF, centre);
    View2DCamera c;
    c.viewport = viewport;
    QCOMPARE(c.fit(bounds), fits);
    QVERIFY(qFuzzyCompare(c.scale, scale));
    QCOMPARE(c.centre, centre);
    if (fits && bounds.width() > 0 && bounds.height() > 0 && scale > View2DCamera::kMinScale && scale < View2DCamera::kMaxScale) {
        // The limiting side keeps 2 % of air on each side.
        const QRectF shown = c.visibleSceneRect();
        QVERIFY(shown.contains(bounds));
        QVERIFY(qFuzzyCompare(std::max(bounds.width() / shown.width(), bounds.height() / shown.height()), 1 / 1.04));
    }
}

void TestView2DCamera::zoomStopsExactlyAtTheLimits()
{
    View2DCamera c;
    c.viewport = QSize(800, 600);
    for (int i = 0; i < 200; ++i)
        QVERIFY(c.zoomAt(QPointF(100, 100), 120));
    QCOMPARE(c.scale, 400.0);
    const QPointF centre = c.centre;
    QVERIFY(c.zoomAt(QPointF(300, 20), 120)); // accepted, nothing moves
    QCOMPARE(c.centre, centre);
    for (int i = 0; i < 400; ++i)
        c.zoomAt(QPointF(100, 100), -120);
    QCOMPARE(c.scale, 0.02);
}

void TestView2DCamera::zoomKeepsTheCursorPoint_data()
{
    QTest::addColumn<QPointF>("cursor");
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("factor");
    QTest::newRow("in at a corner") << QPointF(0, 0) << 120 << 1.15;
    QTest::newRow("out off-centre") << QPointF(700, 123) << -120 << 1 / 1.15;
    QTest::newRow("small delta, full step") << QPointF(400, 300) << 1 << 1.15;
    QTest::newRow("large delta, one step") << QPointF(37, 590) << -960 << 0.8695652173913044;
    QTest::newRow("zero delta: not handled") << QPointF(5, 5) << 0 << 1.0;
}

void TestView2DCamera::zoomKeepsTheCursorPoint()
{
    QFETCH(QPointF, cursor);
    QFETCH(int, delta);
    QFETCH(double, factor);
    View2DCamera c;
    c.viewport = QSize(800, 600);
    c.scale = 3.0;
    c.centre = QPointF(-40, 12.5);
    const QPointF under = c.mapToScene(cursor);
    QCOMPARE(c.zoomAt(cursor, delta), delta != 0);
    QVERIFY(qFuzzyCompare(c.scale, 3.0 * factor));
    const QPointF after = c.mapToScene(cursor);
    QVERIFY(std::abs(after.x() - under.x()) < 1e-9 && std::abs(after.y() - under.y()) < 1e-9);
}

void TestView2DCamera::panAndTransformAgreeWithMapping()
{
    View2DCamera c;
    c.viewport = QSize(641, 480); // odd width: whole-pixel half as the graphics view
    c.scale = 2.5;
    c.centre = QPointF(10, -7);
    QCOMPARE(c.transform().map(QPointF(10, -7)), QPointF(320, 240));
    QCOMPARE(c.transform().map(QPointF(3, 4)), c.mapFromScene(QPointF(3, 4)));
    const QPointF grabbed = c.mapToScene(QPointF(100, 100));
    c.panBy(QPointF(30, -20)); // the grabbed point follows the mouse
    QCOMPARE(c.mapToScene(QPointF(130, 80)), grabbed);
}

QTEST_GUILESS_MAIN(TestView2DCamera)
#include "tst_view2dcamera.moc"
