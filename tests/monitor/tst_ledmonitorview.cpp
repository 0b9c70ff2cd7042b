#include "monitor/widgets/ledcanvasitem.h"
#include "monitor/widgets/ledmonitorview.h"

#include "monitortestdata.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

using MonitorTestData::layoutOf;
using MonitorTestData::square;

namespace {

void move(QWidget *viewport, QPoint pos, Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent e(QEvent::MouseMove, QPointF(pos), viewport->mapToGlobal(QPointF(pos)), Qt::NoButton, buttons,
                  Qt::NoModifier);
    QApplication::sendEvent(viewport, &e);
}

bool wheel(QWidget *viewport, QPoint pos, int delta)
{
    QWheelEvent e(QPointF(pos), viewport->mapToGlobal(QPointF(pos)), QPoint(), QPoint(0, delta), Qt::NoButton,
                  Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(viewport, &e);
    return e.isAccepted();
}

} // namespace

class TestLedMonitorView : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { delete m_view; }
    void hoverSignalsOncePerPixel();
    void wheelZoomStopsAtTheLimits();
    void leftAndMiddleButtonsPan();
    void snapshotShowsTheLitPixel();
    void staysFittedUntilTouched();

private:
    LedMonitorView *m_view = nullptr;
    TPatch::PatchData m_patch;
    TPatch::PixelLayout m_layout;
    QVector<QRgb> m_colours;
};

void TestLedMonitorView::init()
{
    m_patch = {};
    m_patch.groups.append(TPatch::PatchGroup{});
    m_patch.groups[0].groupName = QStringLiteral("Facade <A>");
    m_patch.groups[0].torvoverses.append(TPatch::Torvoverse{});
    m_patch.groups[0].torvoverses[0].torvoverseName = QStringLiteral("Left");
    m_patch.groups[0].torvoverses[0].fixtures.append(TPatch::PatchFixture{});
    m_patch.groups[0].torvoverses[0].fixtures[0].fixtureName = QStringLiteral("Panel");
    m_layout = layoutOf({square(0, 0, 10, 0, 0, 0, 0x12, 3), square(20, 0, 10)});
    m_colours = {0xFFFF0000, 0xFF000000};
    m_view = new LedMonitorView;
    m_view->resize(300, 200);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view));
    m_view->setPatch(&m_patch, &m_layout);
    m_view->setColours(&m_colours);
    m_view->fitToView();
}

void TestLedMonitorView::hoverSignalsOncePerPixel()
{
    QSignalSpy spy(m_view, &LedMonitorView::cellHovered);
    QWidget *vp = m_view->viewport();
    const QPoint inside = m_view->mapFromScene(QPointF(4, 5));
    move(vp, inside);
    move(vp, inside + QPoint(2, 1)); // same pixel: nothing new
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 0);
    const QString tip = m_view->toolTip();
    QVERIFY2(tip.contains(QStringLiteral("<b>Panel</b>")) && tip.contains(QStringLiteral("Facade &lt;A&gt;"))
                 && tip.contains(QStringLiteral("Port address: 0x0012")) && tip.contains(QStringLiteral("R @ 4")),
             qPrintable(tip));
    move(vp, m_view->mapFromScene(QPointF(15, 5))); // the gap
    move(vp, m_view->mapFromScene(QPointF(16, 5)));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toInt(), -1);
    QVERIFY(m_view->toolTip().isEmpty());
    move(vp, m_view->mapFromScene(QPointF(25, 5)));
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(2).at(0).toInt(), 1);
}

void TestLedMonitorView::wheelZoomStopsAtTheLimits()
{
    QWidget *vp = m_view->viewport();
    const QPoint cursor(60, 70);
    const QPointF under = m_view->mapToScene(cursor);
    QVERIFY(wheel(vp, cursor, 120));
    // The point under the cursor stays within the half pixel the view snaps to.
    const QPointF after = m_view->mapToScene(cursor);
    QVERIFY(QLineF(after, under).length() <= 0.75 / m_view->camera().scale);
    QCOMPARE(m_view->camera().mapToScene(cursor), after);
    for (int i = 0; i < 200; ++i)
        wheel(vp, cursor, 120);
    QCOMPARE(m_view->camera().scale, 400.0);
    QCOMPARE(m_view->transform().m11(), 400.0);
    for (int i = 0; i < 400; ++i)
        wheel(vp, cursor, -120);
    QCOMPARE(m_view->camera().scale, 0.02);
    QVERIFY(!wheel(vp, cursor, 0));
}

void TestLedMonitorView::leftAndMiddleButtonsPan()
{
    QWidget *vp = m_view->viewport();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        const QPointF grabbed = m_view->mapToScene(QPoint(100, 100));
        QTest::mousePress(vp, button, Qt::NoModifier, QPoint(100, 100));
        move(vp, QPoint(130, 80), button);
        QTest::mouseRelease(vp, button, Qt::NoModifier, QPoint(130, 80));
        const QPointF now = m_view->mapToScene(QPoint(130, 80));
        QVERIFY(QLineF(now, grabbed).length() < 1e-9);
    }
    const View2DCamera before = m_view->camera();
    QTest::mousePress(vp, Qt::RightButton, Qt::NoModifier, QPoint(100, 100));
    move(vp, QPoint(150, 150), Qt::RightButton);
    QTest::mouseRelease(vp, Qt::RightButton, Qt::NoModifier, QPoint(150, 150));
    QCOMPARE(m_view->camera().centre, before.centre);
}

void TestLedMonitorView::snapshotShowsTheLitPixel()
{
    const QImage image = m_view->snapshot();
    QCOMPARE(image.size(), m_view->viewport()->size());
    QCOMPARE(image.pixel(m_view->mapFromScene(QPointF(5, 5))) | 0xFF000000, 0xFFFF0000u);
    QCOMPARE(image.pixel(m_view->mapFromScene(QPointF(25, 5))) | 0xFF000000, 0xFF000000u);
    QCOMPARE(image.pixel(1, 1) | 0xFF000000, qRgb(60, 60, 60));
    // Painted into a bigger picture at an offset, as into a window's backing store.
    QImage window(m_view->viewport()->size() + QSize(40, 30), QImage::Format_RGB32);
    m_view->viewport()->render(&window, QPoint(40, 30));
    QCOMPARE(window.pixel(m_view->mapFromScene(QPointF(5, 5)) + QPoint(40, 30)) | 0xFF000000, 0xFFFF0000u);
    QCOMPARE(window.pixel(m_view->mapFromScene(QPointF(29, 5)) + QPoint(40, 30)) | 0xFF000000, 0xFF000000u);
    m_colours[1] = 0xFF00FF00; // written in place, as the colour buffer does
    m_view->refresh();
    QCOMPARE(m_view->snapshot().pixel(m_view->mapFromScene(QPointF(25, 5))) | 0xFF000000, 0xFF00FF00u);
}

void TestLedMonitorView::staysFittedUntilTouched()
{
    LedMonitorView hidden;
    hidden.setPatch(&m_patch, &m_layout);
    hidden.fitToView(); // no size yet
    hidden.resize(300, 200);
    hidden.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hidden));
    QCOMPARE(hidden.camera().scale, m_view->camera().scale); // as fitted at this size
    wheel(hidden.viewport(), QPoint(10, 10), 120); // once the user zooms, a resize keeps the zoom
    const double zoomed = hidden.camera().scale;
    hidden.resize(600, 400);
    QTRY_COMPARE(hidden.viewport()->width(), 600);
    QCOMPARE(hidden.camera().scale, zoomed);
}

QTEST_MAIN(TestLedMonitorView)
#include "tst_ledmonitorview.moc"
