#include "cli/madrixsample.h"
#include "patch/gzipinflate.h"
#include "patch/madrixreader.h"
#include "patch/patchkeys.h"
#include "testfiles.h"

#include "patchtexts.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace TPatch;

Q_DECLARE_METATYPE(MadrixSampleFixture)

namespace {

const QString kFile = QStringLiteral("show.mpz");
// The one-fixture warnings, word for word.
const QString kRotated = QStringLiteral("1 rotated multi-pixel fixture(s): the pixel layout after rotation "
                                        "has not been verified against MADRIX yet. Check them on the monitor.");
const QString kWide = QStringLiteral("1 fixture(s) have pixels whose color channels span more than 6 DMX "
                                     "channels; only the first 6 are shown.");
const QString kPast512 = QStringLiteral("1 fixture(s) run past DMX channel 512 of their universe; channels "
                                        "beyond 512 are not shown.");
const QString kNoColour =
    QStringLiteral("1 fixture(s) have no color channel the tester can show and were skipped.");
const QString kBadUniverse =
    QStringLiteral("1 fixture(s) use a universe that does not fit an Art-Net Port-Address and were skipped.");
const QString kIncomplete = QStringLiteral("1 fixture(s) are incomplete in the file and were skipped.");

QString cellsText(const PatchFixture &f)
{
    QStringList cells;
    for (const LedRecord &led : f.leds)
        cells.append(QStringLiteral("%1,%2").arg(led.posX).arg(led.posY));
    return cells.join(u';');
}

MadrixSampleChannel channel(const char *name, int number, int colour, int fixed = 0)
{
    MadrixSampleChannel c;
    c.name = QString::fromLatin1(name);
    c.number = QString::number(number);
    c.colorChannel = QString::number(colour);
    c.fixedValue = QString::number(fixed);
    return c;
}

MadrixSampleFixture rgbFixture(const QString &name)
{
    MadrixSampleFixture f;
    f.displayNameUser = name;
    f.channels = madrixChannels(1, QStringLiteral("RGB"));
    return f;
}

// One well-formed fixture keeps every load alive, so a row can look at the other.
MadrixSample withBaseline(const MadrixSampleFixture &tested)
{
    MadrixSample s;
    MadrixSampleFixture base = rgbFixture(QStringLiteral("base"));
    base.universe = QStringLiteral("9");
    s.fixtures = {base, tested};
    return s;
}

const PatchFixture *findFixture(const PatchLoadResult &r, const QString &name,
                                quint16 *portAddressOut = nullptr)
{
    for (const PatchGroup &g : r.patch.groups)
        for (const Torvoverse &t : g.torvoverses)
            for (const PatchFixture &f : t.fixtures)
                if (f.fixtureName == name) {
                    if (portAddressOut)
                        *portAddressOut = portAddress(t);
                    return &f;
                }
    return nullptr;
}

} // namespace

class TestMadrixReader : public QObject
{
    Q_OBJECT

private slots:
    void mapping_data();
    void mapping();
    void placement();
    void everyWarningInOrder();
    void failures_data();
    void failures();
    void plainAndGzipReadAlike();
    void gzipBombStopsAtTheLimit();
    void hostileXmlIsBounded_data();
    void hostileXmlIsBounded();
    void largePatchReadsAsInOnePass_data();
    void largePatchReadsAsInOnePass();
};

void TestMadrixReader::mapping_data()
{
    QTest::addColumn<MadrixSampleFixture>("fixture");
    QTest::addColumn<bool>("present");
    QTest::addColumn<int>("portAddress");
    QTest::addColumn<QString>("roles");
    QTest::addColumn<int>("address");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QStringList>("warnings");
    const auto shown = [](const char *tag, const MadrixSampleFixture &f, int portAddress, const char *roles,
                          int address, const char *cells, const QStringList &warnings = {}) {
        QTest::newRow(tag) << f << true << portAddress << roles << address << cells << warnings;
    };
    const auto skipped = [](const char *tag, const MadrixSampleFixture &f, const QStringList &warnings) {
        QTest::newRow(tag) << f << false << 0 << "" << 0 << "" << warnings;
    };
    const QString ignoredAmber =
        QStringLiteral("Color channels the tester cannot show yet were ignored: Amber (4)");

    MadrixSampleFixture f = rgbFixture(QStringLiteral("T"));
    shown("rgb in universe 1", f, 0, "123000", 0, "0,0");
    f.universe = QStringLiteral("32768");
    shown("universe 32768 is 32767", f, 32767, "123000", 0, "0,0");
    // Past the last Port-Address, wrapping 32 bits, zero and negative.
    for (const char *universe : {"32769", "4294967297", "0", "-4"}) {
        f.universe = QString::fromLatin1(universe);
        skipped(universe, f, {kBadUniverse});
    }

    f = rgbFixture(QStringLiteral("T"));
    f.channels.append(channel("Cool White", 3, 5));
    shown("cool white is CW", f, 0, "123500", 0, "0,0");
    f.channels.last() = channel("Cold White", 3, 7);
    shown("cold white is CW", f, 0, "123500", 0, "0,0");
    f.channels.last() = channel("Warm White", 3, 4);
    shown("warm white is WW", f, 0, "123600", 0, "0,0");
    f.channels.last() = channel("White", 3, 3);
    shown("colour 3 is W", f, 0, "123400", 0, "0,0");
    f.channels.last() = channel("Amber", 3, 4);
    shown("amber ignored", f, 0, "123000", 0, "0,0", {ignoredAmber});

    f = rgbFixture(QStringLiteral("T"));
    f.channels = {channel("Mode", 0, 9, 255), channel("Red", 1, 0), channel("Green", 2, 1),
                  channel("Blue", 3, 2)};
    f.dmxChannel = QStringLiteral("20");
    shown("fixed channel skipped", f, 0, "123000", 21, "0,0");
    f.channels = {channel("Blue", 2, 2), channel("Red", 0, 0), channel("Green", 1, 1)};
    shown("channel-number order", f, 0, "123000", 20, "0,0");
    f.channels = {channel("Red", 0, 0), channel("Green", 1, 1), channel("Blue", 7, 2)};
    shown("wide pixel", f, 0, "120000", 20, "0,0", {kWide});
    f = rgbFixture(QStringLiteral("T"));
    f.dmxChannel = QStringLiteral("510");
    shown("past 512", f, 0, "123000", 510, "0,0", {kPast512});
    f.dmxChannel = QStringLiteral("509");
    shown("ends on 512", f, 0, "123000", 509, "0,0");

    // A 3 x 2 grid, pixels numbered row by row.
    f = rgbFixture(QStringLiteral("T"));
    f.pixelCount = QStringLiteral("3, 2, 1");
    f.channels = madrixChannels(6, QStringLiteral("RGB"));
    shown("grid unrotated", f, 0, "123000", 0, "0,0;1,0;2,0;0,1;1,1;2,1");
    f.rotation = QStringLiteral("1");
    shown("quarter turn", f, 0, "123000", 0, "1,0;1,1;1,2;0,0;0,1;0,2", {kRotated});
    f.rotation = QStringLiteral("2");
    shown("half turn", f, 0, "123000", 0, "2,1;1,1;0,1;2,0;1,0;0,0", {kRotated});
    f.rotation = QStringLiteral("3");
    shown("three quarters", f, 0, "123000", 0, "0,2;0,1;0,0;1,2;1,1;1,0", {kRotated});
    f.rotation = QStringLiteral("5");
    shown("low two bits", f, 0, "123000", 0, "1,0;1,1;1,2;0,0;0,1;0,2", {kRotated});
    f.rotation = QStringLiteral("quarter");
    shown("odd rotation", f, 0, "123000", 0, "0,0;1,0;2,0;0,1;1,1;2,1",
          {QStringLiteral("Some MADRIX fields are not supported yet and were ignored: "
                          "fixture_settings/rotation=quarter")});
    f = rgbFixture(QStringLiteral("T"));
    f.rotation = QStringLiteral("1");
    shown("turned single pixel", f, 0, "123000", 0, "0,0");

    f = rgbFixture(QStringLiteral("T"));
    f.protocolType = QStringLiteral("DVI");
    skipped("dvi", f,
            {QStringLiteral("1 DVI fixture(s) were skipped: they have no DMX address, so nothing of theirs "
                            "reaches Art-Net.")});
    f = rgbFixture(QStringLiteral("T"));
    f.channels = {channel("Amber", 0, 4)};
    skipped("only amber", f, {ignoredAmber, kNoColour});
    f = rgbFixture(QStringLiteral("T"));
    f.withSettings = false;
    skipped("no settings", f, {kIncomplete});
    f = rgbFixture(QStringLiteral("T"));
    f.universe = QStringLiteral("one");
    skipped("universe not a number", f, {kIncomplete});
    f = rgbFixture(QStringLiteral("T"));
    f.pixelCount = QStringLiteral("4, 1");
    skipped("fewer channels than pixels", f, {kIncomplete});
}

void TestMadrixReader::mapping()
{
    QFETCH(MadrixSampleFixture, fixture);
    QFETCH(bool, present);
    const PatchLoadResult r = parseMadrixPatch(writeMadrixXml(withBaseline(fixture)), kFile, kFile);
    QVERIFY(r.ok);
    QFETCH(QStringList, warnings);
    QCOMPARE(PatchTexts::warnings(r), warnings);
    quint16 pa = 0;
    const PatchFixture *f = findFixture(r, QStringLiteral("T"), &pa);
    QCOMPARE(f != nullptr, present);
    if (!f)
        return;
    QFETCH(int, portAddress);
    QFETCH(QString, roles);
    QFETCH(int, address);
    QFETCH(QString, cells);
    QCOMPARE(int(pa), portAddress);
    QCOMPARE(PatchTexts::roles(f->leds.first()), roles);
    QCOMPARE(int(f->leds.first().address), address);
    QCOMPARE(cellsText(*f), cells);
}

// A matrix voxel is a 10 x 10 scene cell; rect holds the turned grid; the scene position is the matrix one.
void TestMadrixReader::placement()
{
    MadrixSampleFixture f = rgbFixture(QStringLiteral("T"));
    f.pixelCount = QStringLiteral("3, 2, 1");
    f.channels = madrixChannels(6, QStringLiteral("RGB"));
    f.position = QStringLiteral("4, 2, 7");
    f.rotation = QStringLiteral("1");
    const PatchLoadResult r = parseMadrixPatch(writeMadrixXml(withBaseline(f)), kFile, kFile);
    const PatchFixture *p = findFixture(r, QStringLiteral("T"));
    QVERIFY(p);
    QVERIFY(p->hasLayout);
    QVERIFY(!p->freePositions);
    QCOMPARE((QList<double>{p->scenePosX, p->scenePosY, p->rotationAngle}), (QList<double>{40, 20, 0}));
    QCOMPARE(p->rect, QRectF(0, 0, 20, 30)); // 2 wide, 3 high after the quarter turn
    QCOMPARE((QList<int>{p->countX, p->countY, p->dimX, p->dimY, p->resizeFactor}),
             (QList<int>{2, 3, 2, 3, 1}));
    for (const LedRecord &led : p->leds)
        QCOMPARE(int(led.posZ), 7);
    QCOMPARE(int(p->leds.at(1).address), 3);

    const PatchGroup &g = r.patch.groups.first();
    QCOMPARE(r.patch.groups.size(), 1);
    QCOMPARE(g.groupName, QStringLiteral("MADRIX"));
    QVERIFY(!g.groupId.isNull());
    QCOMPARE(r.patch.formatLabel, QStringLiteral("MADRIX 5 patch (.mpz)"));
    QCOMPARE(r.patch.sourceKind, SourceKind::Madrix);
    // Torvoverses ascend by Port-Address: universe 1 (0x0000) before the baseline's 9 (0x0008).
    QCOMPARE(g.torvoverses.size(), 2);
    QCOMPARE(int(portAddress(g.torvoverses.at(0))), 0);
    QCOMPARE(int(portAddress(g.torvoverses.at(1))), 8);
    const PatchLoadResult again = parseMadrixPatch(writeMadrixXml(withBaseline(f)), kFile, kFile);
    QVERIFY(again.patch.groups.first().groupId != g.groupId);
}

void TestMadrixReader::everyWarningInOrder()
{
    MadrixSample s;
    s.version = QStringLiteral("0x05010000");
    s.product = QStringLiteral("MADRIX 5.1");
    s.extraElements = {QStringLiteral("save_date"), QStringLiteral("is_patched")};
    s.fixtureGroups = 3;
    const MadrixSampleFixture good = rgbFixture(QStringLiteral("good"));
    MadrixSampleFixture rotated = good, amber = good, wide = good, past = good, dvi = good, dark = good,
                        far = good, broken = good;
    rotated.pixelCount = QStringLiteral("2, 1");
    rotated.channels = madrixChannels(2, QStringLiteral("RGB"));
    rotated.rotation = QStringLiteral("2");
    amber.channels.append(channel("Amber", 3, 4));
    wide.channels.last().number = QStringLiteral("9");
    past.dmxChannel = QStringLiteral("511");
    dvi.protocolType = QStringLiteral("DVI");
    dark.channels = {channel("UV", 0, 6)};
    far.universe = QStringLiteral("40000");
    broken.withSpecification = false;
    s.fixtures = {good, rotated, amber, wide, past, dvi, dvi, dark, far, broken};

    const PatchLoadResult r = parseMadrixPatch(writeMadrixXml(s), kFile, kFile);
    QVERIFY(r.ok);
    QCOMPARE(r.patch.importedFrom, QStringLiteral("MADRIX 5.1 (file version 0x05010000)"));
    const QStringList expected{
        QStringLiteral(
            "\"show.mpz\" was saved by MADRIX 5.1 (file version 0x05010000), which this importer has "
            "not been checked against. Verify the result on the monitor."),
        QStringLiteral("Some MADRIX fields are not supported yet and were ignored: product, save_date, "
                       "is_patched, fixture_group_list"),
        QStringLiteral(
            "3 MADRIX fixture group(s) were found, but groups are not imported yet; all fixtures were "
            "placed in one group."),
        kRotated,
        QStringLiteral("Color channels the tester cannot show yet were ignored: Amber (4), UV (6)"),
        kWide,
        kPast512,
        QStringLiteral("2 DVI fixture(s) were skipped: they have no DMX address, so nothing of theirs "
                       "reaches Art-Net."),
        kNoColour,
        kBadUniverse,
        kIncomplete,
    };
    QCOMPARE(PatchTexts::warnings(r), expected);
}

void TestMadrixReader::failures_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error"); // exact, or a prefix when it ends in "..."
    const QString unreadable = QStringLiteral("\"show.mpz\" is not a readable MADRIX patch: ");
    const QString noRoot = unreadable + QStringLiteral("the document has no root element");
    const QString truncated = unreadable + QStringLiteral("the file is truncated");
    const QString nothing = QStringLiteral("\"show.mpz\" contains no DMX fixtures that can be shown.");
    QTest::newRow("empty") << QByteArray() << noRoot;
    QTest::newRow("only a declaration") << QByteArray("<?xml version=\"1.0\"?>\n") << noRoot;
    QTest::newRow("other root") << QByteArray("<console appVersion=\"1\"/>")
                                << unreadable + QStringLiteral("the <madrix_patch> root element is missing");
    QTest::newRow("no list") << QByteArray("<madrix_patch version=\"0x05000000\"><patch/></madrix_patch>")
                             << unreadable + QStringLiteral("the <fixture_list> element is missing");
    QTest::newRow("cut off") << QByteArray("<madrix_patch>\n<patch>\n<fixture_list>")
                             << unreadable + QStringLiteral("Premature end of document. (line 3)");
    QTest::newRow("not xml") << QByteArray("{\"corePatchData\": []}") << unreadable + QStringLiteral("...");

    const QByteArray gz = gzipCompress(writeMadrixXml(withBaseline(rgbFixture(QStringLiteral("T")))));
    QTest::newRow("truncated gzip") << gz.left(gz.size() / 2) << truncated;
    QTest::newRow("gzip header only") << gz.left(10) << truncated;
    QByteArray corrupt = gz;
    for (qsizetype i = 12; i < corrupt.size() - 8; i += 7)
        corrupt[i] = char(corrupt.at(i) ^ 0x5A);
    QTest::newRow("corrupt gzip") << corrupt << unreadable + QStringLiteral("...");
    QByteArray badCrc = gz;
    badCrc[badCrc.size() - 6] = char(badCrc.at(badCrc.size() - 6) ^ 1);
    QTest::newRow("bad checksum") << badCrc << unreadable + QStringLiteral("incorrect data check");

    MadrixSample none;
    QTest::newRow("empty list") << writeMadrixXml(none) << nothing;
    none.fixtures = {rgbFixture(QStringLiteral("T"))};
    none.fixtures[0].protocolType = QStringLiteral("DVI");
    QTest::newRow("nothing to show") << writeMadrixXml(none) << nothing;
}

void TestMadrixReader::failures()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    const PatchLoadResult r = parseMadrixPatch(bytes, kFile, kFile);
    QVERIFY(!r.ok);
    QVERIFY(r.patch.groups.isEmpty());
    QCOMPARE(r.patch.formatLabel, QStringLiteral("MADRIX 5 patch (.mpz)"));
    const QString text = r.error.untranslatedText();
    if (error.endsWith(QLatin1StringView("...")))
        QVERIFY2(text.startsWith(error.chopped(3)) && text.size() > error.size() - 3, qPrintable(text));
    else
        QCOMPARE(text, error);
}

// Opening a missing file is checked through the loader (tst_patchloader, every format).
void TestMadrixReader::plainAndGzipReadAlike()
{
    const QByteArray xml = writeMadrixXml(makeMadrixMatrix(400, 20));
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString plainPath = TestFiles::write(dir.filePath(QStringLiteral("plain.mpz")), xml);
    const PatchLoadResult a = readMadrixPatch(plainPath);
    const PatchLoadResult b =
        readMadrixPatch(TestFiles::write(dir.filePath(QStringLiteral("packed.mpz")), gzipCompress(xml)));
    QVERIFY(a.ok);
    QVERIFY(b.ok);
    QCOMPARE(countPatch(a.patch).fixtures, 400);
    QCOMPARE(countPatch(b.patch).pixels, 400);
    QCOMPARE(a.patch.groups.first().torvoverses.size(), 3); // 170 + 170 + 60
    QCOMPARE(b.patch.groups.first().torvoverses.size(), 3);
    QCOMPARE(a.warnings, b.warnings);
    QCOMPARE(a.patch.sourcePath, plainPath);
    const Torvoverse &t = b.patch.groups.first().torvoverses.at(1);
    QCOMPARE(int(t.fixtures.first().leds.first().address), 0);
    QCOMPARE(t.fixtures.first().scenePosX, 170 % 20 * 10.0);
}

void TestMadrixReader::gzipBombStopsAtTheLimit()
{
    // Small limits first: exactly at the limit passes, one byte more fails.
    const QByteArray small = gzipBomb(100000 - 14);
    QVERIFY(inflateGzip(small, 100000).ok);
    QCOMPARE(inflateGzip(small, 100000).bytes.size(), 100000);
    const InflateResult over = inflateGzip(small, 99999);
    QVERIFY(!over.ok);
    QVERIFY(over.bytes.isEmpty());
    QCOMPARE(over.error.untranslatedText(), QStringLiteral("the unpacked data is too large"));
    // The real limit through the reader: a file of well under a megabyte.
    const QByteArray bomb = gzipBomb(kMaxInflatedBytes);
    QVERIFY(bomb.size() < 1024 * 1024);
    const PatchLoadResult r = parseMadrixPatch(bomb, kFile, kFile);
    QVERIFY(!r.ok);
    QCOMPARE(r.error.untranslatedText(),
             QStringLiteral("\"show.mpz\" is not a readable MADRIX patch: the unpacked data is too large"));
}

void TestMadrixReader::hostileXmlIsBounded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("tooDeep"); // refused for nesting elements more than 256 deep
    QByteArray laughs =
        "<?xml version=\"1.0\"?>\n<!DOCTYPE madrix_patch [\n<!ENTITY a0 \"hahahahahahahahahaha\">\n";
    for (int i = 1; i < 12; ++i)
        laughs += QStringLiteral("<!ENTITY a%1 \"&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;\">\n")
                      .arg(i)
                      .arg(i - 1)
                      .toLatin1();
    laughs += "]>\n<madrix_patch><product>&a11;</product><patch><fixture_list/></patch></madrix_patch>";
    QTest::newRow("entity expansion") << laughs << false;
    QTest::newRow("external entity")
        << QByteArray("<?xml version=\"1.0\"?><!DOCTYPE m [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>"
                      "<madrix_patch><product>&e;</product><patch><fixture_list/></patch></madrix_patch>")
        << false;
    QTest::newRow("deep nesting in a fixture")
        << "<madrix_patch><patch><fixture_list><fixture><fixture_settings>" +
               QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000) +
               "</fixture_settings></fixture></fixture_list></patch></madrix_patch>"
        << true;
    QTest::newRow("deep and unclosed") << "<madrix_patch>" + QByteArray("<x>").repeated(200000) << true;
    QTest::newRow("nested patch elements") << "<madrix_patch>" + QByteArray("<patch>").repeated(300) << true;
    QTest::newRow("deep inside a text element")
        << "<madrix_patch><product>" + QByteArray("<b>").repeated(300) << true;
    // The root at depth 1, the list at 3: 253 more levels reach 256 exactly.
    QTest::newRow("256 deep is read")
        << "<madrix_patch><patch><fixture_list>" + QByteArray("<a>").repeated(253) +
               QByteArray("</a>").repeated(253) + "</fixture_list></patch></madrix_patch>"
        << false;
}

// Every row fails: refused, or nothing to show. The time taken is printed for the record.
void TestMadrixReader::hostileXmlIsBounded()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, tooDeep);
    QElapsedTimer timer;
    timer.start();
    const PatchLoadResult r = parseMadrixPatch(bytes, kFile, kFile);
    QVERIFY(!r.ok);
    QVERIFY(!r.error.isEmpty());
    QCOMPARE(r.error.untranslatedText().contains(QStringLiteral("elements are nested more than 256 deep")),
             tooDeep);
    qInfo("%s in %lld ms", qPrintable(r.error.untranslatedText().left(160)), timer.elapsed());
}

// Large documents are read in two halves on two threads; a DOCTYPE forces the single pass, the reference.
void TestMadrixReader::largePatchReadsAsInOnePass_data()
{
    QTest::addColumn<QByteArray>("xml");
    MadrixSample s = makeMadrixMatrix(6000, 80);
    s.product = QStringLiteral("MADRIX 5.7");
    s.fixtureGroups = 2;
    for (int i : {10, 2999, 3001, 5990}) {
        s.fixtures[i].rotation = QStringLiteral("r%1").arg(i);
        s.fixtures[i].channels.append(channel(i < 3000 ? "Amber" : "UV", 3, 4 + i % 3));
        s.fixtures[i + 1].universe = QStringLiteral("0");
    }
    const QByteArray xml = writeMadrixXml(s);
    QVERIFY(xml.size() > 4 * 1024 * 1024);
    QTest::newRow("between fixtures") << xml;
    // The middle "<fixture>" sits in a comment: the halves do not parse and the single pass takes over.
    QByteArray commented = xml;
    commented.insert(commented.indexOf("<fixture>", commented.size() / 2),
                     "<!-- a <fixture> mentioned in passing --><fixture><fixture_specification/></fixture>");
    QTest::newRow("cut inside a comment") << commented;
}

void TestMadrixReader::largePatchReadsAsInOnePass()
{
    QFETCH(QByteArray, xml);
    QByteArray onePass = xml;
    onePass.replace("<madrix_patch", "<!DOCTYPE madrix_patch><madrix_patch");
    const PatchLoadResult split = parseMadrixPatch(xml, kFile, kFile);
    const PatchLoadResult single = parseMadrixPatch(onePass, kFile, kFile);
    QVERIFY(split.ok);
    QVERIFY(single.ok);
    QCOMPARE(PatchTexts::warnings(split), PatchTexts::warnings(single));
    QVERIFY(PatchTexts::warnings(split).join(u'|').contains(
        QStringLiteral("Amber (5), Amber (6), UV (5), UV (6)")));
    const QVector<Torvoverse> &a = split.patch.groups.first().torvoverses;
    const QVector<Torvoverse> &b = single.patch.groups.first().torvoverses;
    QCOMPARE(a.size(), b.size());
    for (qsizetype t = 0; t < a.size(); ++t) {
        QCOMPARE(a.at(t).torvoverseName, b.at(t).torvoverseName);
        QCOMPARE(a.at(t).fixtures.size(), b.at(t).fixtures.size());
        for (qsizetype f = 0; f < a.at(t).fixtures.size(); ++f) {
            QCOMPARE(a.at(t).fixtures.at(f).fixtureName, b.at(t).fixtures.at(f).fixtureName);
            QCOMPARE(a.at(t).fixtures.at(f).leds.first().address,
                     b.at(t).fixtures.at(f).leds.first().address);
        }
    }
}

QTEST_GUILESS_MAIN(TestMadrixReader)
#include "tst_madrixreader.moc"
