#include "monitor/widgets/dmxchannelgrid.h"
#include "monitor/widgets/dmxinspector.h"

#include "monitortestdata.h"

#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QtTest>

using MonitorTestData::layoutOf;
using MonitorTestData::square;

class TestDmxInspector : public QObject
{
    Q_OBJECT
private slots:
    void universesAreSortedAndKept();
    void updatesOnlyWhenDataChanged();
    void hoverNamesTheFedPixels();
};

void TestDmxInspector::universesAreSortedAndKept()
{
    DmxInspector inspector;
    QSignalSpy spy(&inspector, &DmxInspector::universeChanged);
    QCOMPARE(inspector.currentUniverse(), -1);
    inspector.setUniverses({0x21, 0x03, 0x21, 0x10});
    auto *box = inspector.findChildren<QComboBox *>().constFirst();
    QCOMPARE(box->count(), 3);
    QCOMPARE(box->itemText(0), QStringLiteral("0x0003"));
    QCOMPARE(inspector.currentUniverse(), 0x03);
    box->setCurrentIndex(2);
    QCOMPARE(spy.constLast().at(0).toInt(), 0x21);
    inspector.setUniverses({0x21, 0x40}); // still offered: kept
    QCOMPARE(inspector.currentUniverse(), 0x21);
    inspector.setUniverses({});
    QCOMPARE(inspector.currentUniverse(), -1);
    QCOMPARE(spy.constLast().at(0).toInt(), -1);
}

void TestDmxInspector::updatesOnlyWhenDataChanged()
{
    DmxInspector inspector;
    inspector.setUniverses({1});
    DmxChannelGrid *grid = inspector.grid();
    QVERIFY(grid->data().isEmpty()); // "no data"
    const QByteArray bytes("\x01\x02\xff", 3);
    QVERIFY(grid->setData(bytes));
    QVERIFY(!grid->setData(QByteArray("\x01\x02\xff", 3)));
    inspector.setUniverseData(QByteArray("\x01\x02\xfe", 3));
    QCOMPARE(grid->data().at(2), char(0xfe));
}

void TestDmxInspector::hoverNamesTheFedPixels()
{
    const TPatch::PixelLayout layout = layoutOf({square(0, 0, 1, 0, 0, 0, 7, 0), square(1, 0, 1, 0, 0, 0, 7, 3)});
    DmxInspector inspector;
    inspector.resize(420, 600);
    inspector.show();
    QVERIFY(QTest::qWaitForWindowExposed(&inspector));
    inspector.setPixelLayout(&layout);
    inspector.setUniverses({7});
    inspector.setUniverseData(QByteArray("\x00\x80\x00\x00\xff", 5));
    inspector.setFormat(DmxValueFormat::Hex);
    DmxChannelGrid *grid = inspector.grid();
    QCOMPARE(grid->cellColour(1).green(), 170); // the G tint on channel 2
    QCOMPARE(grid->cellColour(6), grid->palette().color(QPalette::Base));   // unpatched
    const QPoint cell = grid->cellRect(4).center();                         // channel 5: pixel 1's G
    QCOMPARE(grid->channelAt(cell), 4);
    QMouseEvent e(QEvent::MouseMove, QPointF(cell), grid->mapToGlobal(QPointF(cell)), Qt::NoButton, Qt::NoButton,
                  Qt::NoModifier);
    QApplication::sendEvent(grid, &e);
    QCOMPARE(inspector.hoverText(), QStringLiteral("Channel 5: FF · G of pixel(s) 1"));
    const QPoint empty = grid->cellRect(100).center();
    QMouseEvent e2(QEvent::MouseMove, QPointF(empty), grid->mapToGlobal(QPointF(empty)), Qt::NoButton, Qt::NoButton,
                   Qt::NoModifier);
    QApplication::sendEvent(grid, &e2);
    QCOMPARE(inspector.hoverText(), QStringLiteral("Channel 101: - · not patched"));
}

QTEST_MAIN(TestDmxInspector)
#include "tst_dmxinspector.moc"
