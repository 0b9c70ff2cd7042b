#include "monitor/universechannelmap.h"

#include "monitortestdata.h"

#include <QtTest>

using MonitorTestData::layoutOf;
using MonitorTestData::square;

class TestUniverseChannelMap : public QObject
{
    Q_OBJECT
private slots:
    void rolesAndPixelsPerChannel();
    void format_data();
    void format();
};

void TestUniverseChannelMap::rolesAndPixelsPerChannel()
{
    // Universe 0x12: pixel 0 RGB at 0, pixel 1 RGBW at 2 (overlapping channel 2), a 16-bit kinetic
    // at 510 and a pixel running past the end; pixel 2 sits in another universe.
    QVector<TPatch::LayoutPixel> pixels{square(0, 0, 1, 0, 0, 0, 0x12, 0), square(1, 0, 1, 0, 0, 0, 0x12, 2),
                                        square(2, 0, 1, 0, 0, 0, 0x13, 0), square(3, 0, 1, 0, 0, 0, 0x12, 0),
                                        square(4, 0, 1, 0, 0, 0, 0x12, 510)};
    pixels[1].roles = {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue, TPatch::RoleWhite};
    pixels[3].isKinetic = true;
    pixels[3].kineticChannel = TPatch::KineticChannel{true, 510, true};
    pixels[4].isKinetic = false;
    const TPatch::PixelLayout layout = layoutOf(pixels);
    const UniverseChannelMap map(layout, 0x12);
    QCOMPARE(map.role(0), quint8(TPatch::RoleRed));
    QCOMPARE(map.pixels(0), QVector<int>{0});
    QCOMPARE(map.pixels(2), (QVector<int>{0, 1}));
    QCOMPARE(map.role(5), quint8(TPatch::RoleWhite));
    QCOMPARE(map.role(6), quint8(0));
    QVERIFY(map.pixels(6).isEmpty());
    QCOMPARE(map.pixels(510), (QVector<int>{3, 4}));
    QCOMPARE(map.pixels(511), (QVector<int>{3, 4}));
    QCOMPARE(map.role(511), quint8(TPatch::RoleGreen)); // the later pixel names the role
    QVERIFY(map.pixels(512).isEmpty());
    QVERIFY(map.pixels(-1).isEmpty());
    QCOMPARE(map.role(9999), quint8(0));
    QVERIFY(UniverseChannelMap(layout, 0x99).pixels(0).isEmpty());
}

void TestUniverseChannelMap::format_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("text");
    QTest::newRow("decimal") << 255 << int(DmxValueFormat::Decimal) << "255";
    QTest::newRow("hex pads") << 10 << int(DmxValueFormat::Hex) << "0A";
    QTest::newRow("percent full") << 255 << int(DmxValueFormat::Percent) << "100";
    QTest::newRow("percent rounds") << 128 << int(DmxValueFormat::Percent) << "50";
    QTest::newRow("percent zero") << 0 << int(DmxValueFormat::Percent) << "0";
}

void TestUniverseChannelMap::format()
{
    QFETCH(int, value);
    QFETCH(int, format);
    QFETCH(QString, text);
    QCOMPARE(formatDmxValue(value, DmxValueFormat(format)), text);
}

QTEST_GUILESS_MAIN(TestUniverseChannelMap)
#include "tst_universechannelmap.moc"
