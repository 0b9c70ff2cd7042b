#include "patch/patchkeys.h"
#include "patch/tpatchreader.h"
#include "patch/tpatchwriter.h"

#include "patchtexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace TPatch;

namespace {

QJsonObject layoutEntry(int g, int t, int f, QJsonArray rect = {0, 0, 100, 10})
{
    return {{"grpIndex", g}, {"torvoIndex", t}, {"fixIndex", f}, {"rect", rect}};
}

QJsonObject torvoverse(int universe, QJsonArray fixtures = {}, int subNet = 0, int net = 0)
{
    return {{"torvoverseName", QStringLiteral("T%1").arg(universe)},
            {"universe", universe},
            {"subNet", subNet},
            {"Net", net},
            {"fixtures", fixtures}};
}

QJsonObject patchWith(QJsonArray groups, QJsonArray layouts = {})
{
    return {{"fileFormatVersion", "1.0"},
            {"projectParams", QJsonObject{{"projectName", "Test"}}},
            {"corePatchData", groups},
            {"sceneLayout", QJsonObject{{"ledItems", layouts}}}};
}

QJsonObject groupOf(QJsonArray torvoverses, QString name = QStringLiteral("G"))
{
    return {{"groupName", name}, {"torvoverses", torvoverses}};
}

QJsonObject oneGroup(QJsonArray torvoverses, QJsonArray layouts = {})
{
    return patchWith(QJsonArray{groupOf(torvoverses)}, layouts);
}

// A one-group, one-torvoverse, one-fixture patch around the given fixture object, with a usable layout.
QJsonObject singleFixture(QJsonObject fixture, QJsonObject torvoverseExtra = {})
{
    QJsonObject t = torvoverse(0, QJsonArray{fixture});
    for (auto it = torvoverseExtra.begin(); it != torvoverseExtra.end(); ++it)
        t.insert(it.key(), it.value());
    return patchWith(QJsonArray{groupOf(QJsonArray{t})}, QJsonArray{layoutEntry(0, 0, 0)});
}

PatchLoadResult parse(const QByteArray &bytes)
{
    return parseTPatch(bytes, QStringLiteral("show.tpatch"), QStringLiteral("/shows/show.tpatch"));
}

PatchLoadResult parse(const QJsonObject &root)
{
    return parse(QJsonDocument(root).toJson());
}

const PatchFixture &firstFixture(const PatchLoadResult &r)
{
    return r.patch.groups.at(0).torvoverses.at(0).fixtures.at(0);
}

} // namespace

class TestTPatchReader : public QObject
{
    Q_OBJECT
private slots:
    void fatalErrors_data();
    void fatalErrors();
    void warnings_data();
    void warnings();
    void defaultsAndClamps();
    void recordsAreTruncatedToTheirArrays();
    void layoutAttachment_data();
    void layoutAttachment();
    void demoPatchRoundTrips();
};

void TestTPatchReader::fatalErrors_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error"); // empty: some parser error, and no crash
    const QString notValid = QStringLiteral("\"show.tpatch\" is not a valid .tpatch file: ");
    const QString noGroups = QStringLiteral("\"show.tpatch\" contains no groups.");
    QTest::newRow("empty file") << QByteArray() << notValid + QStringLiteral("illegal value");
    QTest::newRow("array root") << QByteArray("[1, 2]") << notValid + QStringLiteral("the root is not a JSON object");
    QTest::newRow("binary junk") << QByteArray("\x00\xff\x13\x37garbage", 12) << notValid + QStringLiteral("illegal value");
    QTest::newRow("truncated") << QByteArray("{\"corePatchData\": [") << notValid + QStringLiteral("unterminated array");
    QTest::newRow("deep nesting") << QByteArray(100000, '[') << QString();
    QTest::newRow("no corePatchData") << QByteArray("{}") << noGroups;
    QTest::newRow("empty corePatchData") << QByteArray("{\"corePatchData\": []}") << noGroups;
    QTest::newRow("corePatchData wrong type") << QByteArray("{\"corePatchData\": {\"a\": 1}}") << noGroups;
}

void TestTPatchReader::fatalErrors()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const PatchLoadResult r = parse(bytes);
    QVERIFY(!r.ok);
    QVERIFY(r.patch.groups.isEmpty());
    QVERIFY(r.warnings.isEmpty());
    if (error.isEmpty())
        QVERIFY(r.error.untranslatedText().startsWith(QStringLiteral("\"show.tpatch\" is not a valid .tpatch file: ")));
    else
        QCOMPARE(r.error.untranslatedText(), error);
    QCOMPARE(r.patch.formatLabel, QStringLiteral("Torvane MOX patch (.tpatch)"));
}

void TestTPatchReader::warnings_data()
{
    QTest::addColumn<QJsonObject>("root");
    QTest::addColumn<QStringList>("expected");
    const QJsonObject fixture{{"leds", QJsonArray{QJsonObject{{"channels", QJsonArray{1, 2, 3}}}}}};
    const QString truncation = QStringLiteral("Universe numbers above 15 are truncated to 4 bits on the wire "
                                              "(Art-Net PortAddress). Affected universes: %1");
    const QString shared = QStringLiteral(
        "%1 port address(es) are used by more than one torvoverse (%2). Recorded playback can still tell "
        "them apart by frame order, but a live capture at a single IP will only see one device's data.");
    const QString layout = QStringLiteral("%1 fixture(s) have no usable scene layout and will not be drawn.");

    QTest::newRow("clean") << oneGroup({torvoverse(1, {fixture})}, {layoutEntry(0, 0, 0)}) << QStringList();
    QTest::newRow("1 and 17 collide")
        << oneGroup({torvoverse(1), torvoverse(17)})
        << QStringList{truncation.arg(QStringLiteral("17")), shared.arg(1).arg(QStringLiteral("0x0001 x2"))};
    QTest::newRow("sorted as text") << oneGroup({torvoverse(16, {}, 1), torvoverse(20, {}, 2),
                                                 torvoverse(100, {}, 3), torvoverse(16, {}, 4)})
                                    << QStringList{truncation.arg(QStringLiteral("100, 16, 20"))};
    QTest::newRow("shared across groups, entries sorted")
        << patchWith(QJsonArray{
               groupOf(QJsonArray{torvoverse(5, {}, 0, 1), torvoverse(2)}),
               groupOf(QJsonArray{torvoverse(2), torvoverse(5, {}, 0, 1), torvoverse(5, {}, 0, 1)})})
        << QStringList{shared.arg(2).arg(QStringLiteral("0x0002 x2, 0x0105 x3"))};
    QTest::newRow("no layout entry, all three in order")
        << oneGroup({torvoverse(3, {fixture, fixture}), torvoverse(19)}, {layoutEntry(0, 0, 1)})
        << QStringList{layout.arg(1), truncation.arg(QStringLiteral("19")),
                       shared.arg(1).arg(QStringLiteral("0x0003 x2"))};
    QTest::newRow("rect of three numbers")
        << oneGroup({torvoverse(1, {fixture})}, {layoutEntry(0, 0, 0, {0, 0, 100})})
        << QStringList{layout.arg(1)};
    QTest::newRow("zero and negative sizes")
        << oneGroup({torvoverse(1, {fixture, fixture})},
                    {layoutEntry(0, 0, 0, {0, 0, 0, 10}), layoutEntry(0, 0, 1, {0, 0, 5, -1})})
        << QStringList{layout.arg(2)};
    QTest::newRow("a later entry replaces an earlier one")
        << oneGroup({torvoverse(1, {fixture})}, {layoutEntry(0, 0, 0), layoutEntry(0, 0, 0, {0, 0, 0, 0})})
        << QStringList{layout.arg(1)};
}

void TestTPatchReader::warnings()
{
    QFETCH(QJsonObject, root);
    QFETCH(QStringList, expected);
    const PatchLoadResult r = parse(root);
    QVERIFY(r.ok);
    QCOMPARE(PatchTexts::warnings(r), expected);
}

void TestTPatchReader::defaultsAndClamps()
{
    const QJsonObject fixture{{"fixtureName", 42}, // wrong type: empty text
                              {"countY", "7"},     // wrong type: default 1
                              {"countZ", 70000},   // stored in 16 bits
                              {"arcRadius", "x"},
                              {"shapeType", 1}};
    const PatchLoadResult r =
        parse(singleFixture(fixture, {{"targetIP", QJsonArray{10, 0, 0}}, {"universe", 65537}}));
    QVERIFY(r.ok);
    QCOMPARE((QList<int>{r.patch.selectedChLimit, r.patch.device}), (QList<int>{512, 0}));
    QCOMPARE(r.patch.sourcePath, QStringLiteral("/shows/show.tpatch"));
    QVERIFY(r.patch.importedFrom.isEmpty());
    const PatchGroup &g = r.patch.groups.at(0);
    QVERIFY(g.groupId.isNull());
    QCOMPARE(g.groupColor, QColor(240, 130, 32));
    QCOMPARE(g.torvoverses.at(0).targetIP, (QVector<qint32>{255, 255, 255, 255}));
    QCOMPARE(g.torvoverses.at(0).universe, quint16(1)); // 65537 in 16 bits
    const PatchFixture &f = firstFixture(r);
    QVERIFY(f.fixtureName.isEmpty());
    QVERIFY(f.isArc);
    QCOMPARE((QList<double>{f.arcRadius, f.arcStartAngle, f.arcEndAngle}), (QList<double>{50, 0, 180}));
    QCOMPARE((QList<int>{f.countX, f.countY, f.countZ, f.resizeFactor, f.selectedZ}),
             (QList<int>{1, 1, 70000 & 0xFFFF, 1, -1}));
    QVERIFY(f.cornerWarp.isIdentity());

    // Colours and UUIDs in their usual text forms.
    const PatchLoadResult c =
        parse(patchWith(QJsonArray{QJsonObject{{"groupName", "A"},
                                               {"groupId", "6f1c2a10-0d51-4c57-9a0e-1b9d8e3f0a01"},
                                               {"groupColor", "#80102030"}},
                                   QJsonObject{{"groupColor", "steelblue"}, {"groupId", "nonsense"}}}));
    QVERIFY(c.ok);
    QCOMPARE(c.patch.groups.at(0).groupId, QUuid(QStringLiteral("{6f1c2a10-0d51-4c57-9a0e-1b9d8e3f0a01}")));
    QCOMPARE(c.patch.groups.at(0).groupColor, QColor(0x10, 0x20, 0x30, 0x80));
    QCOMPARE(c.patch.groups.at(1).groupColor, QColor(70, 130, 180));
    QVERIFY(c.patch.groups.at(1).groupId.isNull());
}

void TestTPatchReader::recordsAreTruncatedToTheirArrays()
{
    QJsonArray structures;
    for (int i = 0; i < 10; ++i)
        structures.append(QJsonObject{{"channel", 256 + i + 1}, {"role", i % 9}, {"bitRes", i == 2 ? 1 : 2}});
    const QJsonObject fixture{
        {"kinetics", QJsonArray{QJsonObject{{"address", 7}, {"structures", structures}}}},
        {"leds", QJsonArray{QJsonObject{{"posX", 3}, {"posY", -1}, {"posZ", 2}, {"address", 509},
                                        {"channels", QJsonArray{1, 9, 3, 4, 5, 6, 1, 2}}},
                            QJsonObject{{"channels", "RGB"}}}}};
    const PatchLoadResult r = parse(singleFixture(fixture));
    QVERIFY(r.ok);
    const PatchFixture &f = firstFixture(r);
    QCOMPARE(f.kinetics.size(), 1);
    const LedRecord &k = f.kinetics.at(0);
    QCOMPARE(k.address, quint16(7));
    for (int i = 0; i < kStructureCount; ++i) {
        QCOMPARE(k.structures[i].channel, quint8(i + 1)); // 256 + i + 1 in 8 bits
        QCOMPARE(k.structures[i].role, quint8(i % 9 > 6 ? 0 : i % 9));
        QCOMPARE(k.structures[i].is16Bit, i == 2);
    }
    QCOMPARE(f.leds.size(), 2);
    const LedRecord &led = f.leds.at(0);
    QCOMPARE((QList<int>{led.posX, led.posY, led.posZ, led.address}), (QList<int>{3, 0xFFFF, 2, 509}));
    QCOMPARE(led.roles, (std::array<quint8, 6>{1, 0, 3, 4, 5, 6})); // role 9 reads as none; 8 entries keep 6
    QCOMPARE(f.leds.at(1).roles, (std::array<quint8, 6>{}));
}

void TestTPatchReader::layoutAttachment_data()
{
    QTest::addColumn<QJsonObject>("entry");
    QTest::addColumn<bool>("hasLayout");
    QTest::addColumn<int>("resizeFactor");
    QTest::addColumn<bool>("identityWarp");
    QJsonObject full = layoutEntry(0, 0, 0, {5, 6, 70, 80});
    full.insert("scenePosX", 12.5);
    full.insert("scenePosY", -3);
    full.insert("rotationAngle", 90);
    full.insert("resizeFactor", 3);
    full.insert("dimX", 16);
    full.insert("selectedZ", 2);
    full.insert("cornerWarp", QJsonArray{1, 0, 0, 0, 1, 0, 10, 20, 1});
    QTest::newRow("full") << full << true << 3 << false;
    QJsonObject entry = layoutEntry(0, 0, 0);
    entry.insert("resizeFactor", 0);
    QTest::newRow("resize 0") << entry << true << 1 << true;
    entry.insert("resizeFactor", -3);
    entry.insert("cornerWarp", QJsonArray{2, 0, 0, 0, 2, 0, 0, 0}); // eight entries: identity
    QTest::newRow("resize -3, short warp") << entry << true << 1 << true;
    QTest::newRow("other fixture's entry") << layoutEntry(0, 0, 1) << false << 1 << true;
    QTest::newRow("indices missing") << QJsonObject{{"rect", QJsonArray{0, 0, 10, 10}}} << false << 1 << true;
}

void TestTPatchReader::layoutAttachment()
{
    QFETCH(QJsonObject, entry);
    QFETCH(bool, hasLayout);
    QFETCH(int, resizeFactor);
    QFETCH(bool, identityWarp);
    QJsonObject root = singleFixture(QJsonObject{});
    root.insert("sceneLayout", QJsonObject{{"ledItems", QJsonArray{entry}}});
    const PatchLoadResult r = parse(root);
    QVERIFY(r.ok);
    const PatchFixture &f = firstFixture(r);
    QCOMPARE(f.hasLayout, hasLayout);
    QCOMPARE(f.resizeFactor, resizeFactor);
    QCOMPARE(f.cornerWarp.isIdentity(), identityWarp);
    if (QTest::currentDataTag() == QByteArrayLiteral("full")) {
        QCOMPARE(f.rect, QRectF(5, 6, 70, 80));
        // scenePosX, scenePosY, rotationAngle, and the warp's translation
        QCOMPARE((QList<double>{f.scenePosX, f.scenePosY, f.rotationAngle, f.cornerWarp.m31(),
                                f.cornerWarp.m32()}),
                 (QList<double>{12.5, -3, 90, 10, 20}));
        QCOMPARE((QList<int>{f.dimX, f.dimY, f.selectedZ}), (QList<int>{16, 1, 2}));
    }
}

void TestTPatchReader::demoPatchRoundTrips()
{
    // The generator's writer and the reader agree on every field: read, write, read again.
    const PatchLoadResult first = readTPatch(QStringLiteral(TALU_SOURCE_DIR "/examples/demo.tpatch"));
    QVERIFY2(first.ok, qPrintable(first.error.untranslatedText()));
    QVERIFY(first.warnings.isEmpty());
    const PatchLoadResult second = parse(writeTPatch(first.patch));
    QVERIFY(second.ok);
    QCOMPARE(writeTPatch(second.patch), writeTPatch(first.patch));
}

QTEST_GUILESS_MAIN(TestTPatchReader)
#include "tst_tpatchreader.moc"
