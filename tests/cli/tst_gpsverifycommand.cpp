#include "clirunner.h"
#include "testfiles.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli gps-verify and generate demo-gps, run the way a show technician runs them on GPS files.
using TestCli::example;
using TestCli::run;

class TestGpsVerifyCommand : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString generated(const QString &file = QString()) const
    {
        return QDir(m_dir.filePath(QStringLiteral("gps"))).filePath(file);
    }

    static TestCli::Run verify(const QStringList &args)
    {
        return run(QStringList{"gps-verify", "--patch", example("demo.tpatch")} + args);
    }

private slots:
    void initTestCase() { QCOMPARE(run({"generate", "demo-gps", generated()}).exitCode, 0); }

    void demoSetPassesEveryCheck_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("generated") << generated();
        QTest::newRow("examples/gps") << example(QStringLiteral("gps"));
    }
    void demoSetPassesEveryCheck()
    {
        QFETCH(QString, folder);
        const TestCli::Run r = verify({"--folder", folder, "--json"});
        QCOMPARE(r.exitCode, 0);
        const QJsonObject o = r.json();
        QCOMPARE(o.value("failures").toInt(), 0);
        QCOMPARE(o.value("warnings").toInt(), 0);
        QCOMPARE(o.value("frameCount").toInt(), 80);
        QCOMPARE(o.value("summary").toString(), QStringLiteral("4 group(s) - 80 frames - structure and sync verified"));
        QCOMPARE(o.value("unreadable").type(), QJsonValue::Null);
        const QJsonObject matched = o.value("matched").toObject();
        QCOMPARE(matched.keys(), QStringList({"Canopy", "Facade", "Floor", "Stage"}));
        QCOMPARE(QFileInfo(matched.value("Stage").toString()).fileName(), QStringLiteral("demo_Stage.tpx"));
        const QJsonArray checks = o.value("checks").toArray();
        QCOMPARE(checks.size(), 10);
        for (const QJsonValue &c : checks)
            QCOMPARE(c.toObject().value("verdict").toString(), QStringLiteral("PASS"));
    }

    void generatedSetIsWhatExamplesHold()
    {
        for (const char *group : {"Facade", "Canopy", "Stage", "Floor"}) {
            const QString name = QStringLiteral("demo_%1.tpx").arg(QLatin1String(group));
            const QByteArray bytes = TestFiles::read(generated(name));
            QVERIFY2(!bytes.isEmpty() && bytes == TestFiles::read(example(QStringLiteral("gps/") + name)), group);
        }
    }

    void textReportAndFailureExit()
    {
        // Facade's file given to Stage too, Floor's file missing.
        const QString facade = generated(QStringLiteral("demo_Facade.tpx"));
        TestCli::Run r = verify({"--set", "Facade=" + facade, "--set", "Stage=" + facade});
        QCOMPARE(r.exitCode, 1);
        const QStringList lines = QString::fromUtf8(r.out).split(u'\n');
        QCOMPARE(lines.value(0), QStringLiteral("FAIL  2 of 4 group(s) have no recording"));
        QCOMPARE(lines.value(1),
                 QStringLiteral(
                     "      A GPS-Sync show is only complete when every group has its own file. Missing: "
                     "Canopy; Floor"));
        QCOMPARE(lines.value(2), QStringLiteral("2 recording(s) still missing."));

        r = verify({"--set", "Facade=" + facade, "--set", "Stage=" + facade, "--set",
                    "Canopy=" + generated(QStringLiteral("demo_Canopy.tpx")), "--set",
                    "Floor=" + generated(QStringLiteral("demo_Floor.tpx"))});
        QCOMPARE(r.exitCode, 1);
        const QString text = QString::fromUtf8(r.out);
        QVERIFY2(text.contains(QStringLiteral("\nFAIL  The same file is assigned to more than one group\n"
                                              "      demo_Facade.tpx (Facade, Stage). Each group")),
                 qPrintable(text));
        QVERIFY(text.startsWith(
            QStringLiteral("PASS  4 group(s), 4 recording(s) supplied\n      Facade = demo_Facade.tpx\n")));
        QVERIFY(text.endsWith(QStringLiteral("playback is enabled so you can see them\n")));
    }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("args");
        const QString patch = example(QStringLiteral("demo.tpatch"));
        QTest::newRow("no patch") << QStringList{"--folder", "."};
        QTest::newRow("no files") << QStringList{"--patch", patch};
        QTest::newRow("folder and set") << QStringList{"--patch", patch, "--folder", ".", "--set", "Stage=a.tpx"};
        QTest::newRow("unknown group") << QStringList{"--patch", patch, "--set", "Balcony=a.tpx"};
        QTest::newRow("group twice")
            << QStringList{"--patch", patch, "--set", "Stage=a.tpx", "--set", "Stage=b.tpx"};
    }
    void usageErrors()
    {
        QFETCH(QStringList, args);
        QCOMPARE(run(QStringList{"gps-verify"} + args).exitCode, 2);
    }

    void unloadablePatchIsACheck()
    {
        const TestCli::Run r = run({"gps-verify", "--patch", m_dir.filePath(QStringLiteral("none.tpatch")),
                                    "--folder", generated(), "--json"});
        QCOMPARE(r.exitCode, 1);
        QCOMPARE(r.json().value("summary").toString(), QStringLiteral("No patch loaded."));
    }
};

QTEST_GUILESS_MAIN(TestGpsVerifyCommand)
#include "tst_gpsverifycommand.moc"
