#include "cli/demopatch.h"
#include "cli/elmsample.h"
#include "cli/madrixsample.h"
#include "patch/patchloader.h"
#include "patch/tpatchwriter.h"
#include "testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace TPatch;

class TestPatchLoader : public QObject
{
    Q_OBJECT
private slots:
    void sniffing_data();
    void sniffing();
    void loadThroughEntryPoint_data();
    void loadThroughEntryPoint();
    void bytesLoadAsTheFileWould();
};

void TestPatchLoader::sniffing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<int>("format");
    const int madrix = int(PatchFormat::Madrix), elm = int(PatchFormat::Elm), native = int(PatchFormat::Native);
    QTest::newRow("mpz extension, any content") << "show.mpz" << QByteArray("{}") << madrix;
    QTest::newRow("mpz extension, upper case") << "SHOW.MPZ" << QByteArray() << madrix;
    QTest::newRow("gzip signature") << "show.tpatch" << QByteArray("\x1F\x8B\x08\x00", 4) << madrix;
    QTest::newRow("madrix root") << "export.xml" << QByteArray("<?xml version=\"1.0\"?>\n<madrix_patch>") << madrix;
    QTest::newRow("gzip wins over elm extension") << "show.elm" << QByteArray("\x1F\x8B", 2) << madrix;
    QTest::newRow("madrix text wins over elm text")
        << "x.dat" << QByteArray("<console appVersion=\"1\"><madrix_patch>") << madrix;
    QTest::newRow("elm extension") << "show.elm" << QByteArray("{}") << elm;
    QTest::newRow("elmbackup extension") << "show@@2026-01-02 10h11m.ElmBackup" << QByteArray() << elm;
    QTest::newRow("elm content") << "show.xml" << QByteArray("<console version=\"1\" appVersion=\"1.0.0.673\">") << elm;
    QTest::newRow("console without appVersion") << "show.xml" << QByteArray("<console version=\"1\">") << native;
    QTest::newRow("madrix text past 512 bytes") << "show.tpatch" << QByteArray(512, ' ') + "<madrix_patch>" << native;
    QTest::newRow("json") << "show.tpatch" << QByteArray("{\"corePatchData\": []}") << native;
    QTest::newRow("missing file falls through") << QString() << QByteArray() << native;
}

void TestPatchLoader::sniffing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, head);
    QFETCH(int, format);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(name.isEmpty() ? QStringLiteral("absent.tpatch") : name);
    QVERIFY(name.isEmpty() || !TestFiles::write(path, head).isEmpty());
    QCOMPARE(int(sniffPatchFormat(path)), format);
    if (!name.isEmpty())
        QCOMPARE(int(sniffPatchFormat(name, head)), format);
}

// Whole generated files of each kind, under names that do not give them away.
void TestPatchLoader::loadThroughEntryPoint_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("format");
    const QString madrix = QStringLiteral("MADRIX 5 patch (.mpz)"), elm = QStringLiteral("ENTTEC ELM project (.elm)");
    const QByteArray xml = writeMadrixXml(makeMadrixMatrix(20, 5));
    QTest::newRow("native") << "demo.tpatch" << writeTPatch(makeDemoPatch()) << int(SourceKind::Native)
                            << "Torvane MOX patch (.tpatch)";
    QTest::newRow("madrix upper-case extension") << "a.MPZ" << xml << int(SourceKind::Madrix) << madrix;
    QTest::newRow("madrix xml") << "b.xml" << xml << int(SourceKind::Madrix) << madrix;
    QTest::newRow("madrix gzip") << "c.bin" << gzipCompress(xml) << int(SourceKind::Madrix) << madrix;
    const QByteArray project = writeElmXml(makeElmDemo());
    QTest::newRow("elm upper-case extension") << "a.ELM" << project << int(SourceKind::Elm) << elm;
    QTest::newRow("elm backup") << "b@@2026-01-02 10h00m.elmbackup" << project << int(SourceKind::Elm) << elm;
    QTest::newRow("elm content") << "c.txt" << project << int(SourceKind::Elm) << elm;
}

void TestPatchLoader::loadThroughEntryPoint()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(int, kind);
    QFETCH(QString, format);
    QTemporaryDir dir;
    const QString path = TestFiles::write(dir.filePath(name), bytes);
    const PatchLoadResult r = loadPatch(path);
    QVERIFY2(r.ok, qPrintable(r.error.untranslatedText()));
    QCOMPARE(r.patch.sourcePath, path);
    QCOMPARE(int(r.patch.sourceKind), kind);
    QCOMPARE(r.patch.formatLabel, format);

    // A missing file, or a folder, under a name of the same kind: the reader the name points to says why.
    const QString suffix = QFileInfo(name).suffix();
    const PatchLoadResult missing = loadPatch(dir.filePath(QStringLiteral("gone.") + suffix));
    QVERIFY(!missing.ok);
    QVERIFY(missing.error.untranslatedText().startsWith(QStringLiteral("Could not open \"gone.%1\": ").arg(suffix)));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder.") + suffix));
    const PatchLoadResult folder = loadPatch(dir.filePath(QStringLiteral("folder.") + suffix));
    QVERIFY(!folder.ok);
    QCOMPARE(folder.error.untranslatedText(),
             QStringLiteral("Could not open \"folder.%1\": it is a folder, not a file").arg(suffix));
}

void TestPatchLoader::bytesLoadAsTheFileWould()
{
    // Content decides under a neutral name: MADRIX text is read as MADRIX, whatever the name says.
    const QByteArray madrix("<madrix_patch version=\"0x05000000\"><fixture_list/></madrix_patch>");
    const PatchLoadResult fromBytes = loadPatchData(madrix, QStringLiteral("show.tpatch"), QStringLiteral("/x/show.tpatch"));
    QCOMPARE(fromBytes.patch.sourceKind, SourceKind::Madrix);
    QCOMPARE(fromBytes.patch.sourcePath, QStringLiteral("/x/show.tpatch"));
    QVERIFY(!fromBytes.ok);
    QVERIFY(fromBytes.error.untranslatedText().contains(QStringLiteral("\"show.tpatch\"")));

    QTemporaryDir dir;
    const PatchLoadResult fromFile = loadPatch(TestFiles::write(dir.filePath(QStringLiteral("show.tpatch")), madrix));
    QCOMPARE(fromFile.patch.sourceKind, SourceKind::Madrix);
    QCOMPARE(fromFile.error.untranslatedText(), fromBytes.error.untranslatedText());
}

QTEST_GUILESS_MAIN(TestPatchLoader)
#include "tst_patchloader.moc"
