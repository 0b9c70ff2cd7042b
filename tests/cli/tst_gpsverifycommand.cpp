#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli gps-verify and generate demo-gps, run as a process the way a show
// technician runs them on a stick of GPS files.
class TestGpsVerifyCommand : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    static int run(const QStringList &args, QByteArray *out = nullptr)
    {
        QProcess p;
        p.start(QStringLiteral(TALU_CLI_PATH), args);
        if (!p.waitForFinished(60'000))
            return -1;
        if (out)
            *out = p.readAllStandardOutput();
        return p.exitCode();
    }

    static QString example(const QString &name)
    {
        return QStringLiteral(TALU_SOURCE_DIR "/examples/") + name;
    }

    QString generated() const { return m_dir.filePath(QStringLiteral("gps")); }

private slots:
    void initTestCase()
    {
        QCOMPARE(run({QStringLiteral("generate"), QStringLiteral("demo-gps"), generated()}), 0);
    }

    void demoSetPassesEveryCheck_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("generated") << generated();
        QTest::newRow("examples/gps") << example(QStringLiteral("gps"));
    }
    void demoSetPassesEveryCheck()
    {
        QFETCH(QString, folder);
        QByteArray json;
        QCOMPARE(run({QStringLiteral("gps-verify"), QStringLiteral("--patch"),
                      example(QStringLiteral("demo.tpatch")), QStringLiteral("--folder"), folder,
                      QStringLiteral("--json")},
                     &json),
                 0);
        const QJsonObject o = QJsonDocument::fromJson(json).object();
        QCOMPARE(o.value(QStringLiteral("failures")).toInt(), 0);
        QCOMPARE(o.value(QStringLiteral("warnings")).toInt(), 0);
        QCOMPARE(o.value(QStringLiteral("frameCount")).toInt(), 80);
        QCOMPARE(o.value(QStringLiteral("summary")).toString(),
                 QStringLiteral("4 group(s) - 80 frames - structure and sync verified"));
        QCOMPARE(o.value(QStringLiteral("unreadable")).type(), QJsonValue::Null);
        const QJsonObject matched = o.value(QStringLiteral("matched")).toObject();
        QCOMPARE(matched.keys(), QStringList({"Canopy", "Facade", "Floor", "Stage"}));
        QCOMPARE(QFileInfo(matched.value(QStringLiteral("Stage")).toString()).fileName(),
                 QStringLiteral("demo_Stage.tpx"));
        const QJsonArray checks = o.value(QStringLiteral("checks")).toArray();
        QCOMPARE(checks.size(), 10);
        for (const QJsonValue &c : checks)
            QCOMPARE(c.toObject().value(QStringLiteral("verdict")).toString(), QStringLiteral("PASS"));
    }

    void generatedSetIsWhatExamplesHold()
    {
        for (const char *group : {"Facade", "Canopy", "Stage", "Floor"}) {
            QFile a(QDir(generated()).filePath(QStringLiteral("demo_%1.tpx").arg(QLatin1String(group))));
            QFile b(example(QStringLiteral("gps/demo_%1.tpx").arg(QLatin1String(group))));
            QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
            QVERIFY2(a.readAll() == b.readAll(), group);
        }
    }

    void textReportAndFailureExit()
    {
        // Facade's file given to Stage too, Floor's file missing.
        const QString facade = QDir(generated()).filePath(QStringLiteral("demo_Facade.tpx"));
        QByteArray out;
        QCOMPARE(run({QStringLiteral("gps-verify"), QStringLiteral("--patch"),
                      example(QStringLiteral("demo.tpatch")), QStringLiteral("--set"),
                      QStringLiteral("Facade=") + facade, QStringLiteral("--set"),
                      QStringLiteral("Stage=") + facade},
                     &out),
                 1);
        const QStringList lines = QString::fromUtf8(out).split(u'\n');
        QCOMPARE(lines.value(0), QStringLiteral("FAIL  2 of 4 group(s) have no recording"));
        QCOMPARE(lines.value(1),
                 QStringLiteral(
                     "      A GPS-Sync show is only complete when every group has its own file. Missing: "
                     "Canopy; Floor"));
        QCOMPARE(lines.value(2), QStringLiteral("2 recording(s) still missing."));

        const QString canopy = QDir(generated()).filePath(QStringLiteral("demo_Canopy.tpx"));
        const QString floor = QDir(generated()).filePath(QStringLiteral("demo_Floor.tpx"));
        QCOMPARE(run({QStringLiteral("gps-verify"), QStringLiteral("--patch"),
                      example(QStringLiteral("demo.tpatch")), QStringLiteral("--set"),
                      QStringLiteral("Facade=") + facade, QStringLiteral("--set"),
                      QStringLiteral("Stage=") + facade, QStringLiteral("--set"),
                      QStringLiteral("Canopy=") + canopy, QStringLiteral("--set"),
                      QStringLiteral("Floor=") + floor},
                     &out),
                 1);
        const QString text = QString::fromUtf8(out);
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
        QTest::newRow("folder and set")
            << QStringList{"--patch", patch, "--folder", ".", "--set", "Stage=a.tpx"};
        QTest::newRow("unknown group") << QStringList{"--patch", patch, "--set", "Balcony=a.tpx"};
        QTest::newRow("group twice") << QStringList{"--patch",     patch,   "--set",
                                                    "Stage=a.tpx", "--set", "Stage=b.tpx"};
    }
    void usageErrors()
    {
        QFETCH(QStringList, args);
        QCOMPARE(run(QStringList{QStringLiteral("gps-verify")} + args), 2);
    }

    void unloadablePatchIsACheck()
    {
        QByteArray json;
        QCOMPARE(run({QStringLiteral("gps-verify"), QStringLiteral("--patch"),
                      m_dir.filePath(QStringLiteral("none.tpatch")), QStringLiteral("--folder"), generated(),
                      QStringLiteral("--json")},
                     &json),
                 1);
        const QJsonObject o = QJsonDocument::fromJson(json).object();
        QCOMPARE(o.value(QStringLiteral("summary")).toString(), QStringLiteral("No patch loaded."));
    }
};

QTEST_GUILESS_MAIN(TestGpsVerifyCommand)
#include "tst_gpsverifycommand.moc"
