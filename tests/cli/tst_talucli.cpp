#include "cli/demopatch.h"
#include "clirunner.h"
#include "patch/tpatchwriter.h"
#include "testfiles.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli as users script it: usage, and the patch command with its report.
using TestCli::example;
using TestCli::run;
using TPatch::writeTPatch;

class TestTaluCli : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("no command") << QStringList() << 2;
        QTest::newRow("unknown command") << QStringList{"frobnicate"} << 2;
        QTest::newRow("patch without file") << QStringList{"patch"} << 2;
        QTest::newRow("patch with two files") << QStringList{"patch", "a", "b"} << 2;
        QTest::newRow("unknown option") << QStringList{"patch", "--jsno", "a"} << 2;
        QTest::newRow("help") << QStringList{"--help"} << 0;
        QTest::newRow("command help") << QStringList{"patch", "--help"} << 0;
        QTest::newRow("generate unknown kind") << QStringList{"generate", "nothing", "out"} << 2;
        QTest::newRow("generate no fixtures")
            << QStringList{"generate", "madrix-patch", "/nonexistent/a.mpz", "--fixtures", "0"} << 2;
    }
    void usageErrors()
    {
        QFETCH(QStringList, arguments);
        QTEST(run(arguments).exitCode, "exitCode");
    }

    void patchJsonOnDemo()
    {
        const TestCli::Run r = run({"patch", example("demo.tpatch"), "--json"});
        QCOMPARE(r.exitCode, 0);
        const QJsonObject o = r.json();
        QCOMPARE(o.value("ok").toBool(), true);
        QVERIFY(o.value("error").isNull());
        QVERIFY(o.value("warnings").toArray().isEmpty());
        QCOMPARE(o.value("format").toString(), QStringLiteral("Torvane MOX patch (.tpatch)"));
        QCOMPARE(o.value("project").toString(), QStringLiteral("Harbour Hall demo"));
        QVERIFY(o.value("groups").toInt() >= 3);
        QVERIFY(o.value("torvoverses").toInt() >= 12);
        QVERIFY(o.value("fixtures").toInt() > 0);
        QVERIFY(o.value("pixels").toInt() >= 2000);
        QVERIFY(o.value("kinetics").toInt() > 0);
        QCOMPARE(o.value("drawablePixels").toInt(), o.value("pixels").toInt());
        QCOMPARE(o.value("sceneRect").toArray(), (QJsonArray{0, 0, 1700, 600}));
        QCOMPARE(o.value("zRange").toArray(), (QJsonArray{0, 1}));
    }

    void patchRefused()
    {
        const QString path =
            TestFiles::write(m_dir.filePath(QStringLiteral("empty.tpatch")), "{\"corePatchData\": []}");
        const TestCli::Run r = run({"patch", path, "--json"});
        QCOMPARE(r.exitCode, 1);
        const QJsonObject o = r.json();
        QCOMPARE(o.value("ok").toBool(), false);
        QCOMPARE(o.value("error").toString(), QStringLiteral("\"empty.tpatch\" contains no groups."));
        QCOMPARE(o.value("pixels").toInt(), 0);
        QCOMPARE(o.value("drawablePixels").toInt(-1), 0);
        QCOMPARE(o.value("sceneRect").toArray(), (QJsonArray{0, 0, 0, 0}));
        QVERIFY(o.value("zRange").isNull());

        const TestCli::Run plain = run({"patch", path});
        QCOMPARE(plain.exitCode, 1);
        QVERIFY(plain.err.contains("contains no groups."));
    }

    void overlapWarningAfterReaderWarnings()
    {
        TPatch::PatchData patch = makeDemoPatch();
        // Universe 17 collides with 1 (reader warnings); its fixture moves onto facade 2's (layout, last).
        TPatch::Torvoverse &t = patch.groups[0].torvoverses[5];
        t.universe = 17;
        t.fixtures[0].scenePosX = patch.groups[0].torvoverses[1].fixtures[0].scenePosX;
        const QString path = TestFiles::write(m_dir.filePath(QStringLiteral("p.tpatch")), writeTPatch(patch));
        const QJsonArray warnings = run({"patch", "--json", path}).json().value("warnings").toArray();
        QCOMPARE(warnings.size(), 3);
        QVERIFY(warnings.at(0).toString().startsWith(QLatin1StringView("Universe numbers above 15")));
        QCOMPARE(warnings.at(2).toString(),
                 QStringLiteral("2 fixtures overlap on 1 screen position(s) - only the topmost one is visible. "
                                "Use the group filter to isolate a torvoverse."));
    }

    void generatedDemoMatchesBundled()
    {
        // examples/demo.tpatch is what the generator writes today; regenerate it when the generator changes.
        const QString path = m_dir.filePath(QStringLiteral("demo.tpatch"));
        QCOMPARE(run({"generate", "demo-patch", path}).exitCode, 0);
        QVERIFY2(TestFiles::read(path) == TestFiles::read(example("demo.tpatch")),
                 "examples/demo.tpatch is stale: run talu-cli generate demo-patch examples/demo.tpatch");
    }

    void generatedFilesLoadAndReport_data()
    {
        QTest::addColumn<QStringList>("generate");
        QTest::addColumn<QString>("format");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<int>("warnings");
        QTest::newRow("madrix gzip") << QStringList{"madrix-patch", "wall.mpz", "--fixtures", "500"}
                                     << "MADRIX 5 patch (.mpz)" << 500 << 0;
        QTest::newRow("madrix plain") << QStringList{"madrix-patch", "wall.mpz", "--plain"}
                                      << "MADRIX 5 patch (.mpz)" << 256 << 0;
        QTest::newRow("elm") << QStringList{"elm-project", "show.elm"} << "ENTTEC ELM project (.elm)" << 292
                             << 2;
    }
    void generatedFilesLoadAndReport()
    {
        QFETCH(QStringList, generate);
        QTemporaryDir dir;
        const QString file = dir.filePath(generate.at(1));
        generate[1] = file;
        QCOMPARE(run(QStringList{"generate"} + generate).exitCode, 0);

        const QString logs = dir.filePath(QStringLiteral("logs"));
        const QJsonObject json = run({"patch", file, "--json", "--report", "--logs", logs}).json();
        QTEST(json.value("format").toString(), "format");
        QTEST(json.value("pixels").toInt(), "pixels");
        QTEST(int(json.value("warnings").toArray().size()), "warnings");
        const QString folder = json.value("report").toString();
        QVERIFY(QFileInfo::exists(QDir(folder).filePath(QStringLiteral("report.txt"))));
        QVERIFY(QFileInfo::exists(QDir(folder).filePath(QFileInfo(file).fileName())));

        // Plain output ends with the folder; the same load again reuses it.
        const TestCli::Run plain = run({"patch", file, "--report", "--logs", logs});
        QCOMPARE(plain.exitCode, 0);
        QCOMPARE(QString::fromUtf8(plain.out).trimmed().split(u'\n').last(), folder);
        QCOMPARE(QDir(logs).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestTaluCli)
#include "tst_talucli.moc"
