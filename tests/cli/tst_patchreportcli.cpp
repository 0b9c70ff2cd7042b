#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli generate (MADRIX, ELM) and patch --report, run as a user scripts them.
class TestPatchReportCli : public QObject
{
    Q_OBJECT

private slots:
    void generatedFilesLoadAndReport_data();
    void generatedFilesLoadAndReport();
    void badGenerateArguments();

private:
    static int run(const QStringList &args, QByteArray *out = nullptr)
    {
        QProcess p;
        p.start(QStringLiteral(TALU_CLI_PATH), args);
        if (!p.waitForFinished(120000))
            return -1;
        if (out)
            *out = p.readAllStandardOutput();
        return p.exitCode();
    }
};

void TestPatchReportCli::generatedFilesLoadAndReport_data()
{
    QTest::addColumn<QStringList>("generate");
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("warnings");
    QTest::newRow("madrix gzip") << QStringList{"madrix-patch", "wall.mpz", "--fixtures", "500"}
                                 << "MADRIX 5 patch (.mpz)" << 500 << 0;
    QTest::newRow("madrix plain") << QStringList{"madrix-patch", "wall.mpz", "--plain"}
                                  << "MADRIX 5 patch (.mpz)" << 256 << 0;
    QTest::newRow("elm") << QStringList{"elm-project", "show.elm"} << "ENTTEC ELM project (.elm)" << 292 << 2;
}

void TestPatchReportCli::generatedFilesLoadAndReport()
{
    QFETCH(QStringList, generate);
    QFETCH(QString, format);
    QFETCH(int, pixels);
    QFETCH(int, warnings);
    QTemporaryDir dir;
    const QString file = dir.filePath(generate.at(1));
    generate[1] = file;
    QCOMPARE(run(QStringList{QStringLiteral("generate")} + generate), 0);

    const QString logs = dir.filePath(QStringLiteral("logs"));
    QByteArray out;
    QCOMPARE(run({QStringLiteral("patch"), file, QStringLiteral("--json"), QStringLiteral("--report"),
                  QStringLiteral("--logs"), logs},
                 &out),
             0);
    const QJsonObject json = QJsonDocument::fromJson(out).object();
    QCOMPARE(json.value(QStringLiteral("format")).toString(), format);
    QCOMPARE(json.value(QStringLiteral("pixels")).toInt(), pixels);
    QCOMPARE(json.value(QStringLiteral("warnings")).toArray().size(), warnings);
    const QString folder = json.value(QStringLiteral("report")).toString();
    QVERIFY(QFileInfo::exists(QDir(folder).filePath(QStringLiteral("report.txt"))));
    QVERIFY(QFileInfo::exists(QDir(folder).filePath(QFileInfo(file).fileName())));

    // Plain output ends with the folder; the same load again reuses it.
    QCOMPARE(run({QStringLiteral("patch"), file, QStringLiteral("--report"), QStringLiteral("--logs"), logs},
                 &out),
             0);
    QCOMPARE(QString::fromUtf8(out).trimmed().split(u'\n').last(), folder);
    QCOMPARE(QDir(logs).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}

void TestPatchReportCli::badGenerateArguments()
{
    QTemporaryDir dir;
    QCOMPARE(run({QStringLiteral("generate"), QStringLiteral("madrix-patch"),
                  dir.filePath(QStringLiteral("a.mpz")), QStringLiteral("--fixtures"), QStringLiteral("0")}),
             2);
    QCOMPARE(run({QStringLiteral("generate"), QStringLiteral("wall"), dir.filePath(QStringLiteral("a.mpz"))}),
             2);
}

QTEST_GUILESS_MAIN(TestPatchReportCli)
#include "tst_patchreportcli.moc"
