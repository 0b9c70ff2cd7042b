#include "monitor/widgets/led3drenderer.h"
#include "monitor/widgets/led3dview.h"

#include "monitortestdata.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QtTest>

using MonitorTestData::layoutOf;
using MonitorTestData::square;

namespace {

void drag(QWidget *viewport, Qt::MouseButton button, QPoint from, QPoint to)
{
    QTest::mousePress(viewport, button, Qt::NoModifier, from);
    QMouseEvent e(QEvent::MouseMove, QPointF(to), viewport->mapToGlobal(QPointF(to)), Qt::NoButton, button,
                  Qt::NoModifier);
    QApplication::sendEvent(viewport, &e);
    QTest::mouseRelease(viewport, button, Qt::NoModifier, to);
}

} // namespace

class TestLed3DView : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { delete m_view; }
    void autoOrbitStopsOnceWithTheSignal();
    void dragsTurnAndPan();
    void coloursAndKineticsFollowTheMaps();
    void resizeRefitsAroundTheOrigin();
    void groupFilterHidesAndDims();

private:
    Led3DView *m_view = nullptr;
    TPatch::PixelLayout m_layout;
};

void TestLed3DView::init()
{
    QVector<TPatch::LayoutPixel> pixels{square(0, 0, 10), square(50, 0, 10), square(100, 40, 10)};
    pixels[1].isKinetic = true;
    m_layout = layoutOf(pixels);
    m_view = new Led3DView;
    m_view->resize(320, 240);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view));
    m_view->setPatch(m_layout);
}

void TestLed3DView::autoOrbitStopsOnceWithTheSignal()
{
    QSignalSpy stopped(m_view, &Led3DView::autoMovementStopped);
    m_view->startAutoOrbit();
    QVERIFY(m_view->isAutoOrbitRunning());
    const double pitch = m_view->camera().pitch;
    m_view->onAutoMovementTick();
    QVERIFY(m_view->camera().pitch != pitch);
    QTest::mouseClick(m_view->viewport(), Qt::RightButton, Qt::NoModifier, QPoint(10, 10));
    QVERIFY(!m_view->isAutoOrbitRunning());
    m_view->stopAutoOrbit();
    m_view->reset();
    QCOMPARE(stopped.count(), 1);
    m_view->startAutoOrbit();
    m_view->setViewPreset(4);
    QCOMPARE(stopped.count(), 2);
    QCOMPARE(m_view->camera().pitch, -3.14159265358979323846 / 2);
    m_view->startAutoOrbit();
    m_view->reset();
    QCOMPARE(stopped.count(), 3);
}

void TestLed3DView::dragsTurnAndPan()
{
    QWidget *vp = m_view->viewport();
    const Camera3D start = m_view->camera();
    drag(vp, Qt::RightButton, QPoint(50, 50), QPoint(90, 20));
    QCOMPARE(m_view->camera().pitch, start.pitch);
    QCOMPARE(m_view->camera().yaw, start.yaw);
    QCOMPARE(m_view->camera().pan, start.pan);
    drag(vp, Qt::LeftButton, QPoint(50, 50), QPoint(90, 20));
    QVERIFY(std::abs(m_view->camera().pitch - (start.pitch - 0.3)) < 1e-12);
    QVERIFY(std::abs(m_view->camera().yaw - (start.yaw + 0.4)) < 1e-12);
    drag(vp, Qt::MiddleButton, QPoint(50, 50), QPoint(45, 62));
    QCOMPARE(m_view->camera().pan, start.pan + QPointF(-5, 12));
}

void TestLed3DView::coloursAndKineticsFollowTheMaps()
{
    QCOMPARE(m_view->pointPixels(), (QVector<int>{0, 2}));
    QCOMPARE(m_view->kineticPixels(), (QVector<int>{1}));
    const Monitor3DScene &scene = m_view->renderer()->scene3d();
    QCOMPARE(scene.colours(), (QVector<QRgb>{0xFFFFFFFF, 0xFFFFFFFF})); // white until colours arrive
    m_view->setColours({0xFFFF0000, 0xFF123456, 0xFF00FF00});
    QCOMPARE(scene.colours(), (QVector<QRgb>{0xFFFF0000, 0xFF00FF00}));
    m_view->setColours({0xFF0000FF}); // short list: unmapped points go dark
    QCOMPARE(scene.colours(), (QVector<QRgb>{0xFF0000FF, 0xFF000000}));
    m_view->setKinetics({0.0f, 25.0f, 0.0f});
    QCOMPARE(scene.kinetics().constFirst().value, 25.0f);
    m_view->setKinetics({});
    QCOMPARE(scene.kinetics().constFirst().value, 0.0f);
}

void TestLed3DView::resizeRefitsAroundTheOrigin()
{
    m_view->resize(401, 300);
    QTRY_COMPARE(m_view->renderer()->scene3d().viewRect(),
                 QRectF(-m_view->viewport()->width() / 2, -m_view->viewport()->height() / 2,
                        m_view->viewport()->width(), m_view->viewport()->height()));
    const Camera3D fitted = m_view->camera();
    Camera3D expected = fitted;
    const Monitor3DScene &scene = m_view->renderer()->scene3d();
    QVERIFY(expected.fit(scene.positions(), scene.kinetics(), scene.viewRect()));
    QCOMPARE(fitted.distance, expected.distance);
    const QImage picture = m_view->snapshot();
    QCOMPARE(picture.size(), m_view->viewport()->size());
}

void TestLed3DView::groupFilterHidesAndDims()
{
    // Group 0 holds torvoverses 0 and 1, group 1 one torvoverse; every point red.
    m_view->setPatch(layoutOf({square(0, 0, 10, 0, 0), square(50, 0, 10, 0, 1), square(100, 40, 10, 1, 0)}));
    const QRgb red = 0xFFFF0000;
    const QRgb dimmed = QColor::fromRgb(red).darker(260).rgba();
    m_view->setColours({red, red, red});
    const Monitor3DScene &scene = m_view->renderer()->scene3d();
    // Filter changes are applied together once control returns to the event loop.
    m_view->setTorvoverseVisible(0, 1, false);
    QCOMPARE(scene.colours(), (QVector<QRgb>{red, red, red}));
    QTRY_COMPARE(scene.colours(), (QVector<QRgb>{red, 0, red}));
    m_view->setGroupVisible(1, false);
    QTRY_COMPARE(scene.colours(), (QVector<QRgb>{red, 0, 0}));
    m_view->setHighlight(0, 0);
    m_view->setAllVisible(true);
    QTRY_COMPARE(scene.colours(), (QVector<QRgb>{red, dimmed, dimmed}));
    m_view->setHighlight(-1, -1);
    // A group is its torvoverses, as in 2D: hidden with its group, one of them can be shown again.
    m_view->setGroupVisible(0, false);
    m_view->setTorvoverseVisible(0, 1, true);
    QTRY_COMPARE(scene.colours(), (QVector<QRgb>{0, red, red}));
    m_view->setAllVisible(false);
    QTRY_COMPARE(scene.colours(), (QVector<QRgb>{0, 0, 0}));
    // Hidden points are not drawn at all: no red anywhere in the picture.
    const QImage picture = m_view->snapshot().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            QVERIFY(qRed(picture.pixel(x, y)) < 128 || qGreen(picture.pixel(x, y)) > 64);
    m_view->setColours({0xFF00FF00, red, red}); // new colours keep the filter
    QCOMPARE(scene.colours(), (QVector<QRgb>{0, 0, 0}));
}

QTEST_MAIN(TestLed3DView)
#include "tst_led3dview.moc"
