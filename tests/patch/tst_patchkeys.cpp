#include "patch/patchkeys.h"
#include "patch/patchmessage.h"
#include "patch/tpatchreader.h"

#include <QtTest>

using namespace TPatch;

// Declared before the data tables use it (a Release build instantiates the type id there).
Q_DECLARE_METATYPE(TPatch::KineticChannel)

class TestPatchKeys : public QObject
{
    Q_OBJECT
private slots:
    void portAddressAndDeviceKey_data();
    void portAddressAndDeviceKey();
    void kineticChannelRule_data();
    void kineticChannelRule();
    void deviceNames_data();
    void deviceNames();
    void messageSubstitution_data();
    void messageSubstitution();
};

void TestPatchKeys::portAddressAndDeviceKey_data()
{
    QTest::addColumn<int>("net");
    QTest::addColumn<int>("subNet");
    QTest::addColumn<int>("universe");
    QTest::addColumn<QVector<qint32>>("ip");
    QTest::addColumn<int>("portAddress");
    QTest::addColumn<quint64>("deviceKey");
    QTest::addColumn<QString>("shown");
    const QVector<qint32> broadcast{255, 255, 255, 255};
    QTest::newRow("zero") << 0 << 0 << 0 << broadcast << 0 << Q_UINT64_C(0xFFFFFFFF00000000) << "0x0000";
    QTest::newRow("universe 16 wraps to 0, key keeps it")
        << 0 << 0 << 16 << broadcast << 0 << Q_UINT64_C(0xFFFFFFFF00000010) << "0x0000";
    QTest::newRow("net sub uni") << 1 << 2 << 3 << QVector<qint32>{10, 0, 0, 7} << 0x0123
                                 << Q_UINT64_C(0x0A00000700010203) << "0x0123";
    QTest::newRow("top of the range") << 127 << 15 << 15 << QVector<qint32>{2, 0, 0, 1} << 0x7FFF
                                      << Q_UINT64_C(0x02000001007F0F0F) << "0x7FFF";
    QTest::newRow("three octets: no address in the key")
        << 0 << 0 << 5 << QVector<qint32>{10, 0, 0} << 5 << Q_UINT64_C(0x0000000000000005) << "0x0005";
    QTest::newRow("full 16-bit universe in the key")
        << 0 << 1 << 0xABCD << QVector<qint32>{192, 0, 2, 9} << 0x001D << Q_UINT64_C(0xC00002090000ABCD) << "0x001D";
}

void TestPatchKeys::portAddressAndDeviceKey()
{
    QFETCH(int, net);
    QFETCH(int, subNet);
    QFETCH(int, universe);
    QFETCH(QVector<qint32>, ip);
    QFETCH(int, portAddress);
    QFETCH(quint64, deviceKey);
    QFETCH(QString, shown);
    Torvoverse t;
    t.Net = quint8(net);
    t.subNet = quint8(subNet);
    t.universe = quint16(universe);
    t.targetIP = ip;
    QCOMPARE(TPatch::portAddress(t), quint16(portAddress));
    QCOMPARE(TPatch::deviceKey(t), deviceKey);
    QCOMPARE(formatPortAddress(TPatch::portAddress(t)), shown);
}

void TestPatchKeys::kineticChannelRule_data()
{
    QTest::addColumn<QVector<KineticStructure>>("structures");
    QTest::addColumn<KineticChannel>("expected");
    using S = KineticStructure;
    QTest::newRow("16-bit colour, gap, position")
        << QVector<S>{{3, 1, true}, {0, 0, false}, {5, 6, false}} << KineticChannel{true, 100 + 2, false};
    QTest::newRow("position first, 16-bit") << QVector<S>{{1, 6, true}} << KineticChannel{true, 100, true};
    QTest::newRow("gap with a position role does not count")
        << QVector<S>{{0, 6, true}, {2, 2, false}, {4, 6, true}} << KineticChannel{true, 101, true};
    QTest::newRow("no position role") << QVector<S>{{1, 1, false}, {2, 2, true}} << KineticChannel{};
    QTest::newRow("nothing") << QVector<S>{} << KineticChannel{};
    QTest::newRow("position in the eighth entry")
        << QVector<S>{{1, 1, true}, {1, 1, true}, {1, 1, true}, {1, 1, true},
                      {1, 1, true}, {1, 1, true}, {1, 1, false}, {1, 6, false}}
        << KineticChannel{true, 100 + 13, false};
}

void TestPatchKeys::kineticChannelRule()
{
    QFETCH(QVector<KineticStructure>, structures);
    QFETCH(KineticChannel, expected);
    LedRecord r;
    r.address = 100;
    for (int i = 0; i < structures.size(); ++i)
        r.structures[i] = structures.at(i);
    QCOMPARE(kineticChannel(r), expected);
}

void TestPatchKeys::deviceNames_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("0") << 0 << "ARTNET";
    QTest::newRow("3") << 3 << "MIRRA";
    QTest::newRow("7") << 7 << "RUSKA";
    QTest::newRow("8") << 8 << "Device #8";
    QTest::newRow("-1") << -1 << "Device #-1";
}

void TestPatchKeys::deviceNames()
{
    QFETCH(int, code);
    QFETCH(QString, name);
    QCOMPARE(deviceName(code), name);
}

void TestPatchKeys::messageSubstitution_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << "a.tpatch" << "\"a.tpatch\" contains no groups.";
    // A file name holding a placeholder is shown as it is, never substituted again.
    QTest::newRow("placeholder in argument") << "show%1%2.tpatch" << "\"show%1%2.tpatch\" contains no groups.";
}

void TestPatchKeys::messageSubstitution()
{
    QFETCH(QString, fileName);
    QFETCH(QString, expected);
    const PatchMessage m("\"%1\" contains no groups.", {fileName});
    QCOMPARE(m.untranslatedText(), expected);
    QCOMPARE(m.text(), expected); // no translator installed: the source text
    const PatchMessage two("%2 then %1", {QStringLiteral("a"), qint64(-7)});
    QCOMPARE(two.untranslatedText(), QStringLiteral("-7 then a"));
}

QTEST_GUILESS_MAIN(TestPatchKeys)
#include "tst_patchkeys.moc"
