#include "cli/demopatch.h"
#include "patch/patchloader.h"
#include "patch/tpatchwriter.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace TPatch;

class TestPatchLoader : public QObject
{
    Q_OBJECT
private slots:
    void sniffing_data();
    void sniffing();
    void nativeLoadThroughEntryPoint();
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
    QString path = dir.filePath(name.isEmpty() ? QStringLiteral("absent.tpatch") : name);
    if (!name.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(head);
    }
    QCOMPARE(int(sniffPatchFormat(path)), format);
    if (!name.isEmpty())
        QCOMPARE(int(sniffPatchFormat(name, head)), format);
}

void TestPatchLoader::nativeLoadThroughEntryPoint()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("demo.tpatch"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(writeTPatch(makeDemoPatch()));
    file.close();
    const PatchLoadResult r = loadPatch(path);
    QVERIFY(r.ok);
    QCOMPARE(r.patch.sourcePath, path);
    QCOMPARE(r.patch.sourceKind, SourceKind::Native);
    QCOMPARE(r.patch.formatLabel, QStringLiteral("Torvane MOX patch (.tpatch)"));
    QCOMPARE(r.patch.projectName, QStringLiteral("Harbour Hall demo"));

    const PatchLoadResult missing = loadPatch(dir.filePath(QStringLiteral("nothing.tpatch")));
    QVERIFY(!missing.ok);
    QVERIFY(missing.error.untranslatedText().startsWith(QStringLiteral("Could not open \"nothing.tpatch\"")));
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
    const QString path = dir.filePath(QStringLiteral("show.tpatch"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(madrix);
    file.close();
    const PatchLoadResult fromFile = loadPatch(path);
    QCOMPARE(fromFile.patch.sourceKind, SourceKind::Madrix);
    QCOMPARE(fromFile.error.untranslatedText(), fromBytes.error.untranslatedText());
}

QTEST_GUILESS_MAIN(TestPatchLoader)
#include "tst_patchloader.moc"
