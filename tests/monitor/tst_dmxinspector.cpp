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

void TestDmxInspector::hoverNamesTheFedPixels()
{
    const TPatch::PixelLayout layout = layoutOf({square(0, 0, 1, 0, 0, 0, 7, 0), square(1, 0, 1, 0, 0, 0, 7, 3)});
    DmxInspector inspector;
    inspector.resize(420, 600);
    inspector.show();
    QVERIFY(QTest::qWaitForWindowExposed(&inspector));
    inspector.setPixelLayout(&layout);
    inspector.setUniverses({7});
    DmxChannelGrid *grid = inspector.grid();
    QVERIFY(grid->data().isEmpty()); // "no data"
    QVERIFY(grid->setData(QByteArray("\x01\x02\xff", 3)));
    QVERIFY(!grid->setData(QByteArray("\x01\x02\xff", 3))); // the same bytes: no repaint
    inspector.setUniverseData(QByteArray("\x00\x80\x00\x00\xff", 5));
    QCOMPARE(grid->data(), QByteArray("\x00\x80\x00\x00\xff", 5));
    inspector.setFormat(DmxValueFormat::Hex);
    QCOMPARE(grid->cellColour(1).green(), 170); // the G tint on channel 2
    QCOMPARE(grid->cellColour(6), grid->palette().color(QPalette::Base)); // unpatched
    const auto hover = [&](int channel) {
        const QPointF cell = grid->cellRect(channel).center();
        QMouseEvent e(QEvent::MouseMove, cell, grid->mapToGlobal(cell), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
        QApplication::sendEvent(grid, &e);
        return inspector.hoverText();
    };
    QCOMPARE(grid->channelAt(grid->cellRect(4).center()), 4);
    QCOMPARE(hover(4), QStringLiteral("Channel 5: FF · G of pixel(s) 1")); // pixel 1's G
    QCOMPARE(hover(100), QStringLiteral("Channel 101: - · not patched"));
}

QTEST_MAIN(TestDmxInspector)
#include "tst_dmxinspector.moc"
