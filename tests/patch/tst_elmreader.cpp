#include "cli/elmsample.h"
#include "patch/elmgeometry.h"
#include "patch/elmreader.h"
#include "patch/patchkeys.h"

#include "patchtexts.h"

#include <QtTest>

using namespace TPatch;

Q_DECLARE_METATYPE(ElmSampleFixture)

namespace {

const QString kFile = QStringLiteral("club.elm");

PatchLoadResult load(const QVector<ElmSampleFixture> &fixtures)
{
    ElmSample s;
    s.stages = {ElmSampleStage()};
    s.stages[0].fixtures = fixtures;
    return parseElmProject(writeElmXml(s), kFile, kFile);
}

// The first fixture a one-fixture project reads as; an empty one when the load fails.
PatchFixture firstOf(const ElmSampleFixture &f)
{
    const PatchLoadResult r = load({f});
    return r.ok ? r.patch.groups.first().torvoverses.first().fixtures.first() : PatchFixture();
}

// "universe:address" of every pixel, in tree order.
QStringList wiring(const PatchLoadResult &r)
{
    QStringList out;
    for (const PatchGroup &g : r.patch.groups)
        for (const Torvoverse &t : g.torvoverses)
            for (const PatchFixture &f : t.fixtures)
                for (const LedRecord &led : f.leds)
                    out.append(QStringLiteral("%1:%2").arg(portAddress(t)).arg(led.address));
    return out;
}

bool near(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length() < 1e-6;
}

} // namespace

class TestElmReader : public QObject
{
    Q_OBJECT

private slots:
    void typesAndUniverses_data();
    void typesAndUniverses();
    void freePositions();
    void curveAndLoop();
    void stagesAndTargets();
    void skippedFixtures();
    void failures_data();
    void failures();
};

void TestElmReader::typesAndUniverses_data()
{
    QTest::addColumn<ElmSampleFixture>("fixture");
    QTest::addColumn<QString>("roles");
    QTest::addColumn<QStringList>("wiring");
    QTest::addColumn<QStringList>("warnings");
    // Ten LEDs of a type packed from channel 100 of universe 0, step channels apart.
    const auto type = [](const char *tag, const char *ledType, const char *roles, int step,
                         const QStringList &warnings = {}) {
        ElmSampleFixture f;
        f.ledType = QString::fromLatin1(ledType);
        f.startAddress = QStringLiteral("100");
        QStringList wiring;
        for (int i = 0; i < 10; ++i)
            wiring.append(QStringLiteral("0:%1").arg(100 + step * i));
        QTest::newRow(tag) << f << roles << wiring << warnings;
    };
    const auto ignored = [](const char *ledType) {
        return QStringList{QStringLiteral("Color channels the tester cannot show yet were ignored: A (%1)")
                               .arg(QLatin1String(ledType))};
    };
    type("RGB", "RGB", "123000", 3);
    type("RBG", "RBG", "132000", 3);
    type("GRB", "GRB", "213000", 3);
    type("lower case", "grb", "213000", 3);
    type("RGBW", "RGBW", "123400", 4);
    type("GRBW", "GRBW", "213400", 4);
    type("RGBA", "RGBA", "123000", 4, ignored("RGBA"));
    type("RGBAW", "RGBAW", "123040", 5, ignored("RGBAW"));
    type("RGB16", "RGB16", "102030", 6,
         {QStringLiteral("1 fixture(s) use 16-bit LED types (RGB16); the monitor shows the high byte of each "
                         "color only.")});
    type("missing type is RGB", "", "123000", 3);

    // RGB fixtures placed by universe, start address, break and LED count.
    const auto wired = [](const char *tag, const char *universe, const char *address, const char *breakAfter,
                          const char *leds, const QStringList &wiring, const QStringList &warnings = {}) {
        ElmSampleFixture f;
        f.startUniverse = QString::fromLatin1(universe);
        f.startAddress = QString::fromLatin1(address);
        f.breakUniverseAfter = QString::fromLatin1(breakAfter);
        f.leds = QString::fromLatin1(leds);
        QTest::newRow(tag) << f << "123000" << wiring << warnings;
    };
    wired("packed, fits", "2", "0", "0", "3", {"2:0", "2:3", "2:6"});
    wired("packed, boundary between pixels", "0", "506", "0", "3", {"0:506", "0:509", "1:0"});
    wired("packed, pixel split", "0", "508", "0", "3", {"0:508", "0:511", "1:2"},
          {QStringLiteral("1 fixture(s) have a pixel split across a universe boundary; its channels in the "
                          "next universe are not shown.")});
    wired("break every 2", "5", "9", "2", "5", {"5:9", "5:12", "6:0", "6:3", "7:0"});
    wired("break after too many", "0", "507", "2", "2", {"0:507", "0:510"},
          {QStringLiteral("1 fixture(s) run past DMX channel 512 of their universe; channels beyond 512 are "
                          "not shown.")});
    wired("last Port-Address", "32767", "0", "0", "2", {"32767:0", "32767:3"});
}

void TestElmReader::typesAndUniverses()
{
    QFETCH(ElmSampleFixture, fixture);
    QFETCH(QString, roles);
    QFETCH(QStringList, wiring);
    QFETCH(QStringList, warnings);
    const PatchLoadResult r = load({fixture});
    QVERIFY2(r.ok, qPrintable(r.error.untranslatedText()));
    QCOMPARE(::wiring(r), wiring);
    QCOMPARE(PatchTexts::warnings(r), warnings);
    QCOMPARE(PatchTexts::roles(r.patch.groups.at(0).torvoverses.at(0).fixtures.at(0).leds.at(0)), roles);
    // Every part of a fixture keeps only its own pixels' points.
    for (const Torvoverse &t : r.patch.groups.first().torvoverses)
        for (const PatchFixture &p : t.fixtures)
            QCOMPARE(p.pixelPoints.size(), p.leds.size());
}

void TestElmReader::freePositions()
{
    ElmSampleFixture f; // 10 LEDs from (0, 0) to (90, 0)
    const PatchFixture p = firstOf(f);
    QVERIFY(p.freePositions);
    QVERIFY(p.hasLayout);
    QCOMPARE(p.pixelPoints.size(), 10);
    for (int i = 0; i < 10; ++i)
        QVERIFY(near(p.pixelPoints.at(i), QPointF(10.0 * i, 0)));
    QCOMPARE(p.pixelSize, 8.0); // 80 % of the 10-pixel spacing
    QCOMPARE(p.rect, QRectF(-4, -4, 98, 8));
    QCOMPARE(p.scenePosX, 0.0);
    QCOMPARE(p.rotationAngle, 0.0);

    // An L: 10 LEDs over a length of 90 (60 across, 30 down) land every 10 along it.
    f.points = {{0, 0}, {60, 0}, {60, 30}};
    const PatchFixture l = firstOf(f);
    QVERIFY(near(l.pixelPoints.at(6), QPointF(60, 0)));
    QVERIFY(near(l.pixelPoints.at(7), QPointF(60, 10)));
    QVERIFY(near(l.pixelPoints.at(9), QPointF(60, 30)));
    QCOMPARE(l.pixelRotations.at(8), 90.0);

    // rotation turns the fixture about the centre of its points (y grows downwards).
    f.points = {{0, 0}, {90, 0}};
    f.rotation = QStringLiteral("90");
    const PatchFixture turned = firstOf(f);
    const QPointF start = turned.pixelPoints.first();
    QVERIFY2(near(start, QPointF(45, -45)),
             qPrintable(QStringLiteral("%1 %2").arg(start.x()).arg(start.y())));
    QVERIFY(near(turned.pixelPoints.last(), QPointF(45, 45)));
    QCOMPARE(turned.pixelRotations.first(), 90.0);

    // A single LED sits on the first point at the largest size.
    f.rotation = QStringLiteral("0");
    f.leds = QStringLiteral("1");
    f.points = {{7, 9}, {50, 9}};
    const PatchFixture one = firstOf(f);
    QVERIFY(near(one.pixelPoints.first(), QPointF(7, 9)));
    QCOMPARE(one.pixelSize, 10.0);
}

void TestElmReader::curveAndLoop()
{
    // A closed square of side 40 with 8 LEDs: one every 20, starting on the first corner.
    const QVector<QPointF> square{{0, 0}, {40, 0}, {40, 40}, {0, 40}};
    const QVector<QPointF> ring = elmLedPositions(square, 8, false, true);
    QCOMPARE(ring.size(), 8);
    QVERIFY(near(ring.at(0), QPointF(0, 0)));
    QVERIFY(near(ring.at(1), QPointF(20, 0)));
    QVERIFY(near(ring.at(7), QPointF(0, 20)));
    // Open, the same LEDs end on the last corner.
    QVERIFY(near(elmLedPositions(square, 7, false, false).last(), QPointF(0, 40)));

    // A curve through collinear points is the straight line, evenly filled.
    const QVector<QPointF> straight = elmLedPositions({{0, 0}, {30, 0}, {100, 0}}, 11, true, false);
    for (int i = 0; i < 11; ++i)
        QVERIFY2(std::abs(straight.at(i).x() - 10.0 * i) < 1e-6 && std::abs(straight.at(i).y()) < 1e-9,
                 qPrintable(QString::number(straight.at(i).x())));
    // A curve passes through its control points and bulges outside the polygon they span.
    const QVector<QPointF> bent = elmLedPositions({{0, 0}, {50, 50}, {100, 0}}, 101, true, false);
    QVERIFY(near(bent.first(), QPointF(0, 0)));
    QVERIFY(near(bent.last(), QPointF(100, 0)));
    QVERIFY(std::abs(bent.at(50).x() - 50) < 0.5);
    QVERIFY(std::abs(bent.at(50).y() - 50) < 0.5);
    double maxX = 0;
    for (const QPointF &p : elmLedPositions(square, 40, true, true))
        maxX = std::max(maxX, p.x());
    QVERIFY(maxX > 40.5);
    // Degenerate input gives no crash and no LEDs or a stack on the one point.
    QVERIFY(elmLedPositions({}, 5, true, true).isEmpty());
    QCOMPARE(elmLedPositions({{3, 4}}, 3, true, true), (QVector<QPointF>{{3, 4}, {3, 4}, {3, 4}}));
    QCOMPARE(elmLedPositions({{3, 4}, {3, 4}}, 2, false, true).size(), 2);
}

void TestElmReader::stagesAndTargets()
{
    ElmSample s = makeElmDemo();
    ElmSampleStage second;
    second.name = QStringLiteral("Lobby");
    second.id = QStringLiteral("not a guid");
    second.fixtures = {ElmSampleFixture()};
    second.fixtures[0].startUniverse = QStringLiteral("300");
    s.stages.append(second);
    s.universeIps.append({300, QStringLiteral("192.0.2.1")});
    const PatchLoadResult r =
        parseElmProject(writeElmXml(s), QStringLiteral("club@@2026-11-21 22h15m.elmbackup"), kFile);
    QVERIFY2(r.ok, qPrintable(r.error.untranslatedText()));
    QCOMPARE(r.patch.projectName, QStringLiteral("club"));
    QCOMPARE(r.patch.importedFrom, QStringLiteral("ENTTEC ELM 1.0.0.673"));
    QCOMPARE(r.patch.formatLabel, QStringLiteral("ENTTEC ELM project (.elm)"));
    QCOMPARE(r.patch.sourceKind, SourceKind::Elm);
    // The stages under <view> and inside sequences are not read.
    QCOMPARE(r.patch.groups.size(), 2);
    QCOMPARE(r.patch.groups.at(0).groupName, QStringLiteral("Facade"));
    QCOMPARE(r.patch.groups.at(0).groupId,
             QUuid::fromString(QStringLiteral("{6f1c2a1e-3b7d-4c55-9e0a-1d2b3c4d5e6f}")));
    QVERIFY(!r.patch.groups.at(1).groupId.isNull());

    // Facade: ring in universe 0; the eaves (200 GRB) fill 1 and run into 2; the bar breaks 3 | 4.
    const QVector<Torvoverse> &facade = r.patch.groups.at(0).torvoverses;
    QStringList names;
    for (const Torvoverse &t : facade)
        names.append(t.torvoverseName);
    QCOMPARE(names, (QStringList{"Universe 0", "Universe 1", "Universe 2", "Universe 3", "Universe 4"}));
    QCOMPARE(facade.at(1).targetIP, (QVector<qint32>{192, 0, 2, 2}));
    QCOMPARE(facade.at(0).targetIP, (QVector<qint32>{255, 255, 255, 255}));
    QCOMPARE(facade.at(1).fixtures.first().leds.size() + facade.at(2).fixtures.first().leds.size(), 200);
    QCOMPARE(facade.at(1).fixtures.first().fixtureName, QStringLiteral("Eaves 2"));

    const Torvoverse &lobby = r.patch.groups.at(1).torvoverses.first();
    QCOMPARE((QList<int>{lobby.Net, lobby.subNet, lobby.universe}), (QList<int>{1, 2, 12}));
    QCOMPARE(lobby.targetIP, (QVector<qint32>{192, 0, 2, 1}));

    // CRLF and LF read alike.
    s.crlf = false;
    QCOMPARE(wiring(parseElmProject(writeElmXml(s), kFile, kFile)), wiring(r));
}

void TestElmReader::skippedFixtures()
{
    ElmSampleFixture good, dmx, odd, far, empty, huge;
    dmx.protocol = QStringLiteral("sACN");
    odd.ledType = QStringLiteral("RGBX");
    far.startUniverse = QStringLiteral("32767");
    far.leds = QStringLiteral("200"); // runs into universe 32768
    empty.points.clear();
    huge.leds = QStringLiteral("2000000000");
    PatchLoadResult r = load({good, dmx, odd, dmx, far, empty, huge});
    QVERIFY(r.ok);
    QCOMPARE(
        PatchTexts::warnings(r),
        (QStringList{
            QStringLiteral("2 fixture(s) output sACN rather than Art-Net and were skipped."),
            QStringLiteral("1 fixture(s) use LED types the tester does not know (RGBX) and were skipped."),
            QStringLiteral("1 fixture(s) use a universe that does not fit an Art-Net Port-Address and "
                           "were skipped."),
            QStringLiteral("2 fixture(s) are incomplete in the file and were skipped."),
        }));
    QCOMPARE(countPatch(r.patch).fixtures, 1);

    // A fixture is a count, so a few hundred bytes can ask for millions of LEDs:
    // past 500,000 in the project the remaining fixtures are skipped.
    ElmSampleFixture big;
    big.leds = QStringLiteral("100000");
    big.breakUniverseAfter = QStringLiteral("170");
    r = load({big, big, big, big, big, big, big});
    QVERIFY(r.ok);
    QCOMPARE(countPatch(r.patch).pixels, 500000);
    QVERIFY(PatchTexts::warnings(r).contains(
        QStringLiteral("2 fixture(s) were skipped: the project has more than 500000 LEDs.")));
}

void TestElmReader::failures_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    const QString unreadable = QStringLiteral("\"club.elm\" is not a readable ELM project: ");
    const QString tooDeep = unreadable + QStringLiteral("elements are nested more than 256 deep (line 1)");
    const QString nothing = QStringLiteral("\"club.elm\" contains no DMX fixtures that can be shown.");
    QTest::newRow("empty") << QByteArray() << unreadable + QStringLiteral("the document has no root element");
    QTest::newRow("other root") << QByteArray("<madrix_patch/>")
                                << unreadable + QStringLiteral("the <console> root element is missing");
    QTest::newRow("cut off") << QByteArray("<console appVersion=\"1\">\r\n<model>")
                             << unreadable + QStringLiteral("Premature end of document. (line 2)");
    QTest::newRow("nested too deep under model")
        << QByteArray("<console appVersion=\"1\"><model>") + QByteArray("<a>").repeated(300) << tooDeep;
    QTest::newRow("nested too deep in a view")
        << QByteArray("<console appVersion=\"1\"><view><stage>") + QByteArray("<a>").repeated(300) << tooDeep;
    QTest::newRow("no stages") << QByteArray("<console version=\"1\" appVersion=\"1.0.0.673\"/>") << nothing;
    // Nothing under model/stages: the decoy stages must not count.
    QTest::newRow("only decoy stages") << writeElmXml(ElmSample()) << nothing;
}

void TestElmReader::failures()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const PatchLoadResult r = parseElmProject(bytes, kFile, kFile);
    QVERIFY(!r.ok);
    QVERIFY(r.patch.groups.isEmpty());
    QCOMPARE(r.error.untranslatedText(), error);
}

QTEST_GUILESS_MAIN(TestElmReader)
#include "tst_elmreader.moc"
