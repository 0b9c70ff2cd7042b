#include "monitor/pixelscene2d.h"

#include "monitortestdata.h"

#include <QtTest>

using MonitorTestData::square;

namespace {

// Pixels: 0 g0/t0 z0, 1 g0/t1 z0, 2 g1/t0 z1, 3 kinetic g1/t0 z0, 4 g1/t1 z1
PixelScene2D makeScene()
{
    QVector<TPatch::LayoutPixel> pixels{square(0, 0, 1, 0, 0, 0), square(2, 0, 1, 0, 1, 0), square(4, 0, 1, 1, 0, 1),
                                        square(6, 0, 1, 1, 0, 0), square(8, 0, 1, 1, 1, 1)};
    pixels[3].isKinetic = true;
    PixelScene2D scene;
    scene.setPixels(pixels);
    return scene;
}

} // namespace

class TestPixelScene2D : public QObject
{
    Q_OBJECT
private slots:
    void filters_data();
    void filters();
    void boundsLeaveKineticsOut();
    void topmostPixelWins();
    void turnedPixelsAreHitInsideTheirOutline();
};

void TestPixelScene2D::filters_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QVector<int>>("visible");
    QTest::addColumn<QVector<int>>("highlighted");
    QTest::newRow("all, kinetics never drawn") << "" << QVector<int>{0, 1, 2, 4} << QVector<int>{};
    QTest::newRow("hide group 1") << "g1-" << QVector<int>{0, 1} << QVector<int>{};
    QTest::newRow("hide torvoverse 0/1") << "t0.1-" << QVector<int>{0, 2, 4} << QVector<int>{};
    QTest::newRow("group shown again shows its torvoverses") << "t0.1- g0+" << QVector<int>{0, 1, 2, 4} << QVector<int>{};
    QTest::newRow("hide all") << "all-" << QVector<int>{} << QVector<int>{};
    QTest::newRow("hide all, show one torvoverse") << "all- t1.1+" << QVector<int>{4} << QVector<int>{};
    QTest::newRow("layer 1") << "z1" << QVector<int>{2, 4} << QVector<int>{};
    QTest::newRow("layer 1, then all layers") << "z1 z-1" << QVector<int>{0, 1, 2, 4} << QVector<int>{};
    QTest::newRow("highlight 1/0") << "h1.0" << QVector<int>{0, 1, 2, 4} << QVector<int>{2};
    QTest::newRow("highlight follows visibility") << "h1.0 z0" << QVector<int>{0, 1} << QVector<int>{};
    QTest::newRow("highlight cleared") << "h1.0 h-1.-1" << QVector<int>{0, 1, 2, 4} << QVector<int>{};
}

void TestPixelScene2D::filters()
{
    QFETCH(QString, steps);
    QFETCH(QVector<int>, visible);
    QFETCH(QVector<int>, highlighted);
    PixelScene2D scene = makeScene();
    // Steps: "all+", "all-", "gN+", "gN-", "tG.T+", "tG.T-", "zN", "hG.T".
    for (const QString &step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QChar kind = step.at(0);
        if (step.startsWith(QLatin1String("all"))) {
            scene.setAllVisible(step.endsWith(QLatin1Char('+')));
        } else if (kind == QLatin1Char('z')) {
            scene.setVisibleZ(step.mid(1).toInt());
        } else {
            QString body = step.mid(1);
            const bool on = body.endsWith(QLatin1Char('+'));
            if (kind != QLatin1Char('h'))
                body.chop(1);
            const QStringList n = body.split(QLatin1Char('.'));
            if (kind == QLatin1Char('g'))
                scene.setGroupVisible(n.at(0).toInt(), on);
            else if (kind == QLatin1Char('t'))
                scene.setTorvoverseVisible(n.at(0).toInt(), n.at(1).toInt(), on);
            else
                scene.setHighlight(n.at(0).toInt(), n.at(1).toInt());
        }
    }
    QCOMPARE(scene.visiblePixels(), visible);
    QCOMPARE(scene.highlightedPixels(), highlighted);
}

void TestPixelScene2D::boundsLeaveKineticsOut()
{
    QVector<TPatch::LayoutPixel> pixels{square(0, 0, 2), square(100, 100, 2)};
    pixels[1].isKinetic = true;
    PixelScene2D scene;
    scene.setPixels(pixels);
    QCOMPARE(scene.bounds(), QRectF(0, 0, 2, 2));
    scene.clear();
    QVERIFY(scene.bounds().isEmpty());
    QCOMPARE(scene.pixelAt(QPointF(1, 1)), -1);
}

void TestPixelScene2D::topmostPixelWins()
{
    // 0 and 2 overlap 1; 2 is drawn last, so it is on top where all three meet.
    PixelScene2D scene;
    scene.setPixels({square(0, 0, 10, 0, 0), square(5, 5, 10, 0, 1), square(8, 8, 10, 0, 0)});
    QCOMPARE(scene.pixelAt(QPointF(9, 9)), 2);
    QCOMPARE(scene.pixelAt(QPointF(6, 6)), 1);
    QCOMPARE(scene.pixelAt(QPointF(1, 1)), 0);
    QCOMPARE(scene.pixelAt(QPointF(-1, 1)), -1);
    // A highlighted pixel is drawn after the rest, so it wins.
    scene.setHighlight(0, 1);
    QCOMPARE(scene.pixelAt(QPointF(9, 9)), 1);
    // A hidden pixel is never hit.
    scene.setTorvoverseVisible(0, 1, false);
    QCOMPARE(scene.pixelAt(QPointF(6, 6)), 0);
}

void TestPixelScene2D::turnedPixelsAreHitInsideTheirOutline()
{
    PixelScene2D scene;
    scene.setPixels({MonitorTestData::diamond(10, 10, 5)});
    QVERIFY(!scene.entry(0).axisAligned);
    QCOMPARE(scene.pixelAt(QPointF(10, 10)), 0);
    QCOMPARE(scene.pixelAt(QPointF(13, 11)), 0);
    QCOMPARE(scene.pixelAt(QPointF(6, 6)), -1); // inside the bounds, outside the diamond
}

QTEST_GUILESS_MAIN(TestPixelScene2D)
#include "tst_pixelscene2d.moc"
