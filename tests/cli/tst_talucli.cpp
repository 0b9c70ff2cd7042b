#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Run
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

Run talu(const QStringList &arguments)
{
    QProcess p;
    p.start(QStringLiteral(TALU_CLI_PATH), arguments);
    Run r;
    if (!p.waitForFinished(60000))
        return r;
    r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2;
    r.out = p.readAllStandardOutput();
    r.err = p.readAllStandardError();
    return r;
}

QJsonObject json(const Run &r)
{
    QJsonParseError e{};
    const QJsonDocument d = QJsonDocument::fromJson(r.out, &e);
    return d.object();
}

} // namespace

class TestTaluCli : public QObject
{
    Q_OBJECT
private slots:
    void usageErrors_data();
    void usageErrors();
    void patchJsonOnDemo();
    void patchRefused();
    void generatedDemoMatchesBundled();
};

void TestTaluCli::usageErrors_data()
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
}

void TestTaluCli::usageErrors()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QCOMPARE(talu(arguments).exitCode, exitCode);
}

void TestTaluCli::patchJsonOnDemo()
{
    const Run r = talu({QStringLiteral("patch"), QStringLiteral(TALU_SOURCE_DIR "/examples/demo.tpatch"),
                        QStringLiteral("--json")});
    QCOMPARE(r.exitCode, 0);
    const QJsonObject o = json(r);
    QCOMPARE(o.value("ok").toBool(), true);
    QVERIFY(o.value("error").isNull());
    QVERIFY(o.value("warnings").isArray());
    QCOMPARE(o.value("format").toString(), QStringLiteral("Torvane MOX patch (.tpatch)"));
    QCOMPARE(o.value("project").toString(), QStringLiteral("Harbour Hall demo"));
    QVERIFY(o.value("groups").toInt() >= 3);
    QVERIFY(o.value("torvoverses").toInt() >= 12);
    QVERIFY(o.value("fixtures").toInt() > 0);
    QVERIFY(o.value("pixels").toInt() >= 2000);
    QVERIFY(o.value("kinetics").toInt() > 0);
}

void TestTaluCli::patchRefused()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("empty.tpatch"));
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("{\"corePatchData\": []}");
    f.close();
    const Run r = talu({QStringLiteral("patch"), path, QStringLiteral("--json")});
    QCOMPARE(r.exitCode, 1);
    const QJsonObject o = json(r);
    QCOMPARE(o.value("ok").toBool(), false);
    QCOMPARE(o.value("error").toString(), QStringLiteral("\"empty.tpatch\" contains no groups."));
    QCOMPARE(o.value("pixels").toInt(), 0);

    const Run plain = talu({QStringLiteral("patch"), path});
    QCOMPARE(plain.exitCode, 1);
    QVERIFY(plain.err.contains("contains no groups."));
}

void TestTaluCli::generatedDemoMatchesBundled()
{
    // examples/demo.tpatch is what the generator writes today; regenerate it when the generator changes.
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("demo.tpatch"));
    QCOMPARE(talu({QStringLiteral("generate"), QStringLiteral("demo-patch"), path}).exitCode, 0);
    QFile generated(path), bundled(QStringLiteral(TALU_SOURCE_DIR "/examples/demo.tpatch"));
    QVERIFY(generated.open(QIODevice::ReadOnly));
    QVERIFY(bundled.open(QIODevice::ReadOnly));
    QVERIFY2(generated.readAll() == bundled.readAll(),
             "examples/demo.tpatch is stale: run talu-cli generate demo-patch examples/demo.tpatch");
}

QTEST_GUILESS_MAIN(TestTaluCli)
#include "tst_talucli.moc"
