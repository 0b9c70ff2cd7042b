#include "monitor/pixelcolourbuffer.h"

#include <QtTest>

using namespace TPatch;

namespace {

using Roles = std::array<quint8, kSlotCount>;

LayoutPixel colourPixel(Roles roles, int start = 0, quint16 port = 0)
{
    LayoutPixel p;
    p.roles = roles;
    p.startChannel = quint16(start);
    p.portAddress = port;
    return p;
}

LayoutPixel kineticPixel(int channel, bool is16Bit, bool hasChannel = true)
{
    LayoutPixel p;
    p.isKinetic = true;
    p.kineticChannel = KineticChannel{hasChannel, quint16(channel), is16Bit};
    p.roles = {RoleWhite, RoleWhite}; // kinetic items never count as white slots
    return p;
}

const quint8 *bytes(const QByteArray &a)
{
    return reinterpret_cast<const quint8 *>(a.constData());
}

} // namespace

Q_DECLARE_METATYPE(Roles)

class TestPixelColourBuffer : public QObject
{
    Q_OBJECT

private slots:
    void colour_data();
    void colour();
    void kinetic_data();
    void kinetic();
    void peakWhiteUsesOr();
    void unknownPixelNumbersIgnored();
    void setPatchAndClear();
    void slotValues();
};

void TestPixelColourBuffer::colour_data()
{
    QTest::addColumn<Roles>("roles");
    QTest::addColumn<int>("start");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("white");
    QTest::addColumn<uint>("expected");
    const Roles rgb{RoleRed, RoleGreen, RoleBlue};
    const Roles rgbw{RoleRed, RoleGreen, RoleBlue, RoleWhite};
    QTest::newRow("rgb") << rgb << 0 << QByteArray("\x0a\x14\x1e", 3) << false << 0xFF0A141Eu;
    QTest::newRow("rgb, white on") << rgb << 0 << QByteArray("\x0a\x14\x1e", 3) << true << 0xFF0A141Eu;
    QTest::newRow("grb order") << Roles{RoleGreen, RoleRed, RoleBlue} << 0 << QByteArray("\x01\x02\x03", 3) << false
                               << 0xFF020103u;
    QTest::newRow("offset start") << rgb << 4 << QByteArray("\0\0\0\0\x07\x08\x09", 7) << false << 0xFF070809u;
    QTest::newRow("W white off") << rgbw << 0 << QByteArray("\0\0\0\xff", 4) << false << 0xFF000000u;
    QTest::newRow("W") << rgbw << 0 << QByteArray("\0\0\0\xff", 4) << true << 0xFFFFFFFFu;
    QTest::newRow("CW") << Roles{RoleCoolWhite} << 0 << QByteArray("\xff", 1) << true << 0xFFEBEEFFu;
    QTest::newRow("WW") << Roles{RoleWarmWhite} << 0 << QByteArray("\xff", 1) << true << 0xFFFFA957u;
    QTest::newRow("saturates") << rgbw << 0 << QByteArray("\xff\xff\xff\xff", 4) << true << 0xFFFFFFFFu;
    QTest::newRow("R + W in linear light") << rgbw << 0 << QByteArray("\x80\0\0\x40", 4) << true << 0xFF8D4040u;
    QTest::newRow("all whites") << Roles{RoleRed, RoleGreen, RoleBlue, RoleCoolWhite, RoleWarmWhite} << 0
                                << QByteArray("\x0a\x14\x1e\x64\x64", 5) << true << 0xFF86716Du;
    QTest::newRow("white zero: raw") << rgbw << 0 << QByteArray("\x01\x02\x03\0", 4) << true << 0xFF010203u;
    // Three bytes and a pixel from channel 2: only its first slot is inside.
    QTest::newRow("short universe") << rgb << 2 << QByteArray("\x01\x02\x03", 3) << false << 0xFF030000u;
    QTest::newRow("past the end") << rgb << 3 << QByteArray("\x01\x02\x03", 3) << false << 0xFF000000u;
    QTest::newRow("same role twice: later wins") << Roles{RoleRed, 0, RoleRed} << 0 << QByteArray("\x10\x20\x30", 3)
                                                 << false << 0xFF300000u;
    QTest::newRow("same role, later past end") << Roles{RoleRed, RoleRed} << 0 << QByteArray("\x10", 1) << false
                                               << 0xFF100000u;
    QTest::newRow("sixth slot") << Roles{0, 0, 0, 0, 0, RoleBlue} << 0 << QByteArray("\0\0\0\0\0\x42", 6) << false
                                << 0xFF000042u;
}

void TestPixelColourBuffer::colour()
{
    QFETCH(Roles, roles);
    QFETCH(int, start);
    QFETCH(QByteArray, data);
    QFETCH(bool, white);
    QFETCH(uint, expected);
    const QVector<LayoutPixel> pixels{colourPixel(roles, start)};
    PixelColourBuffer buffer;
    buffer.setPatch(&pixels);
    buffer.setWhiteEnabled(white);
    buffer.applyUniverse(QVector<int>{0}, bytes(data), int(data.size()));
    QCOMPARE(buffer.colours().constFirst(), QRgb(expected));
}

void TestPixelColourBuffer::kinetic_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<bool>("is16Bit");
    QTest::addColumn<bool>("hasChannel");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<float>("expected");
    QTest::newRow("16-bit full") << 1 << true << true << QByteArray("\0\xff\xff", 3) << 50.0f;
    QTest::newRow("16-bit MSB first") << 0 << true << true << QByteArray("\x80\x00", 2)
                                      << float(0x8000 / 65535.0 * 50.0);
    // The high byte is the last byte of the universe: no low byte, no value.
    QTest::newRow("16-bit at the edge") << 2 << true << true << QByteArray("\0\0\xff", 3) << -1.0f;
    QTest::newRow("8-bit") << 2 << false << true << QByteArray("\0\0\xff", 3) << 50.0f;
    QTest::newRow("8-bit half") << 0 << false << true << QByteArray("\x33", 1) << float(0x33 / 255.0 * 50.0);
    QTest::newRow("8-bit past end") << 3 << false << true << QByteArray("\0\0\xff", 3) << -1.0f;
    QTest::newRow("no channel") << 0 << false << false << QByteArray("\xff", 1) << -1.0f;
}

void TestPixelColourBuffer::kinetic()
{
    QFETCH(int, channel);
    QFETCH(bool, is16Bit);
    QFETCH(bool, hasChannel);
    QFETCH(QByteArray, data);
    QFETCH(float, expected);
    const QVector<LayoutPixel> pixels{kineticPixel(channel, is16Bit, hasChannel)};
    PixelColourBuffer buffer;
    buffer.setPatch(&pixels);
    // A full universe first, so that a skipped evaluation shows as the old value.
    const QByteArray full(512, '\x40');
    buffer.applyUniverse(QVector<int>{0}, bytes(full), int(full.size()));
    const float before = buffer.kineticValues().constFirst();
    QCOMPARE(before, !hasChannel ? 0.0f : is16Bit ? float(0x4040 / 65535.0 * 50.0) : float(0x40 / 255.0 * 50.0));
    buffer.applyUniverse(QVector<int>{0}, bytes(data), int(data.size()));
    QCOMPARE(buffer.kineticValues().constFirst(), expected < 0 ? before : expected);
    QCOMPARE(buffer.colours().constFirst(), PixelColourBuffer::kDark); // kinetics leave colours alone
    QCOMPARE(buffer.peakWhite(), 0);
}

void TestPixelColourBuffer::peakWhiteUsesOr()
{
    const QVector<LayoutPixel> pixels{colourPixel({RoleWhite, RoleCoolWhite, RoleWarmWhite})};
    PixelColourBuffer buffer;
    buffer.setPatch(&pixels);
    // Each step: the slots' OR against the peak so far; a winning OR shows as its largest slot.
    const std::pair<QByteArray, int> steps[] = {
        {QByteArray("\x05\0\0", 3), 5},   {QByteArray("\0\x04\x02", 3), 4}, // OR 6 beats 5
        {QByteArray("\x03\0\0", 3), 4},   {QByteArray("\x01\x04\0", 3), 4}, // OR 5 beats 4
        {QByteArray("\0\0\xc8", 3), 200}};
    for (const auto &[data, peak] : steps) {
        buffer.applyUniverse(QVector<int>{0}, bytes(data), 3);
        QCOMPARE(buffer.peakWhite(), peak);
    }
    buffer.clear();
    QCOMPARE(buffer.peakWhite(), 0);
}

void TestPixelColourBuffer::unknownPixelNumbersIgnored()
{
    const QVector<LayoutPixel> pixels{colourPixel({RoleRed}), colourPixel({RoleGreen})};
    PixelColourBuffer buffer;
    const QByteArray data("\x11", 1);
    buffer.applyUniverse(QVector<int>{0}, bytes(data), 1); // no patch yet: nothing happens
    buffer.setPatch(&pixels);
    buffer.applyUniverse(QVector<int>{-1, 2, 1 << 30, std::numeric_limits<int>::min(), 1}, bytes(data), 1);
    QCOMPARE(buffer.colours(), (QVector<QRgb>{0xFF000000u, 0xFF001100u}));
    buffer.applyUniverse(QVector<int>{0}, nullptr, 1);
    buffer.applyUniverse(QVector<int>{0}, bytes(data), 0);
    QCOMPARE(buffer.colours().constFirst(), PixelColourBuffer::kDark);
}

void TestPixelColourBuffer::setPatchAndClear()
{
    const QVector<LayoutPixel> pixels{colourPixel({RoleRed, RoleGreen, RoleBlue, RoleWhite}),
                                      colourPixel({RoleCoolWhite, RoleWarmWhite, RoleWarmWhite}),
                                      colourPixel({RoleRed, RoleGreen, RoleBlue}), kineticPixel(5, false)};
    PixelColourBuffer buffer;
    buffer.setPatch(&pixels);
    QCOMPARE(buffer.colours(), QVector<QRgb>(4, PixelColourBuffer::kDark));
    QCOMPARE(buffer.kineticValues(), QVector<float>(4, 0.0f));
    QCOMPARE(buffer.pixelsWithWhite(), 2);
    QCOMPARE(buffer.whiteSlotCount(RoleWhite), 1);
    QCOMPARE(buffer.whiteSlotCount(RoleCoolWhite), 1);
    QCOMPARE(buffer.whiteSlotCount(RoleWarmWhite), 2);
    QCOMPARE(buffer.whiteSlotCount(RoleRed), 0);
    QCOMPARE(buffer.whiteSlotCount(9), 0);

    const QByteArray data("\x01\x02\x03\x04\x05\xff", 6);
    buffer.applyUniverse(QVector<int>{0, 3}, bytes(data), 6);
    buffer.storeUniverse(0, bytes(data), 6);
    QCOMPARE(buffer.peakWhite(), 4);
    buffer.clear();
    QCOMPARE(buffer.colours(), QVector<QRgb>(4, PixelColourBuffer::kDark));
    QCOMPARE(buffer.kineticValues(), QVector<float>(4, 0.0f));
    QVERIFY(buffer.universeData(0).isEmpty());
    QCOMPARE(buffer.peakWhite(), 0);
    QCOMPARE(buffer.pixelsWithWhite(), 2); // counts survive clear()

    buffer.setPatch(nullptr);
    QVERIFY(buffer.colours().isEmpty());
    QVERIFY(buffer.kineticValues().isEmpty());
    QCOMPARE(buffer.pixelsWithWhite(), 0);
    QCOMPARE(buffer.whiteSlotCount(RoleWarmWhite), 0);
}

void TestPixelColourBuffer::slotValues()
{
    const QVector<LayoutPixel> pixels{colourPixel({RoleRed, 0, RoleBlue, RoleWhite}, 1, 0x12),
                                      colourPixel({RoleRed}, 0, 0x13)};
    PixelColourBuffer buffer;
    buffer.setPatch(&pixels);
    using Values = std::array<int, kSlotCount>;
    const Values none{-1, -1, -1, -1, -1, -1};
    QCOMPARE(buffer.pixelSlotValues(0), none); // nothing stored yet
    const QByteArray data("\x00\x0a\x0b\x0c", 4);
    buffer.storeUniverse(0x12, bytes(data), 4);
    buffer.storeUniverse(0x13, nullptr, 4); // ignored
    buffer.storeUniverse(0x13, bytes(data), 0); // ignored
    QCOMPARE(buffer.universeData(0x12), data);
    QVERIFY(buffer.universeData(0x13).isEmpty());
    // Slot 1 has no role, slot 3 lies past the stored bytes.
    QCOMPARE(buffer.pixelSlotValues(0), (Values{10, -1, 12, -1, -1, -1}));
    for (const int pixel : {1, 2, -1}) // its universe has nothing stored; no such pixels
        QCOMPARE(buffer.pixelSlotValues(pixel), none);
}

QTEST_GUILESS_MAIN(TestPixelColourBuffer)
#include "tst_pixelcolourbuffer.moc"
