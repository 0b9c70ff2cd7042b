#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli render as a user scripts it: the picture file and the exit codes.
class TestRenderCommand : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }
    void refusals_data();
    void refusals();
    void demoFrameIsLit_data();
    void demoFrameIsLit();

private:
    QTemporaryDir m_dir;
};

namespace {

const QString kPatch = QStringLiteral(TALU_SOURCE_DIR "/examples/demo.tpatch");
const QString kRecording = QStringLiteral(TALU_SOURCE_DIR "/examples/demo.tpx");

struct Run
{
    int exitCode = -1;
    QByteArray out;
};

Run runCli(const QStringList &arguments)
{
    QProcess p;
    p.start(QStringLiteral(TALU_CLI_PATH), QStringList{QStringLiteral("render")} + arguments);
    p.waitForFinished(120000);
    return Run{p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput()};
}

// Pixels that are neither the 2D background nor a grey of the 3D gradient.
int colouredPixels(const QImage &image)
{
    int n = 0;
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) {
            const QRgb c = image.pixel(x, y);
            n += !(qRed(c) == qGreen(c) && qGreen(c) == qBlue(c));
        }
    }
    return n;
}

} // namespace

void TestRenderCommand::refusals_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    const QString out = QStringLiteral("/nonexistent-folder/x.png");
    QTest::newRow("no patch") << QStringList{QStringLiteral("-o"), QStringLiteral("x.png")} << 2;
    QTest::newRow("no output") << QStringList{QStringLiteral("--patch"), kPatch} << 2;
    QTest::newRow("bad view") << QStringList{QStringLiteral("--patch"), kPatch, QStringLiteral("--view"), QStringLiteral("4d"), QStringLiteral("-o"), out} << 2;
    QTest::newRow("bad size") << QStringList{QStringLiteral("--patch"), kPatch, QStringLiteral("--size"), QStringLiteral("0x10"), QStringLiteral("-o"), out} << 2;
    QTest::newRow("bad yaw") << QStringList{QStringLiteral("--patch"), kPatch, QStringLiteral("--yaw"), QStringLiteral("nan"), QStringLiteral("-o"), out} << 2;
    QTest::newRow("frame without recording") << QStringList{QStringLiteral("--patch"), kPatch, QStringLiteral("--frame"), QStringLiteral("3"), QStringLiteral("-o"), out} << 2;
    QTest::newRow("missing patch") << QStringList{QStringLiteral("--patch"), QStringLiteral("/nonexistent.tpatch"), QStringLiteral("-o"), out} << 1;
    QTest::newRow("frame past the end") << QStringList{QStringLiteral("--patch"), kPatch, QStringLiteral("--recording"), kRecording, QStringLiteral("--frame"), QStringLiteral("100000"), QStringLiteral("-o"), out} << 1;
    QTest::newRow("unwritable output") << QStringList{QStringLiteral("--patch"), kPatch, QStringLiteral("-o"), out} << 1;
}

void TestRenderCommand::refusals()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QCOMPARE(runCli(arguments).exitCode, exitCode);
}

void TestRenderCommand::demoFrameIsLit_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("2d") << QStringList{};
    QTest::newRow("3d") << QStringList{QStringLiteral("--view"), QStringLiteral("3d"), QStringLiteral("--yaw"), QStringLiteral("30")};
    QTest::newRow("3d fast") << QStringList{QStringLiteral("--view"), QStringLiteral("3d"), QStringLiteral("--fast")};
}

void TestRenderCommand::demoFrameIsLit()
{
    QFETCH(QStringList, options);
    const QString out = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()).replace(QLatin1Char(' '), QLatin1Char('_')) + QStringLiteral(".png"));
    const Run run = runCli(QStringList{QStringLiteral("--patch"), kPatch, QStringLiteral("--recording"), kRecording,
                                       QStringLiteral("--frame"), QStringLiteral("40"), QStringLiteral("--size"),
                                       QStringLiteral("640x360"), QStringLiteral("--json"), QStringLiteral("-o"), out}
                           + options);
    QCOMPARE(run.exitCode, 0);
    const QJsonObject json = QJsonDocument::fromJson(run.out).object();
    QCOMPARE(json.value(QStringLiteral("frame")).toInt(), 40);
    QVERIFY(json.value(QStringLiteral("frames")).toInt() > 40);
    QVERIFY(json.value(QStringLiteral("pixels")).toInt() > 0);
    QCOMPARE(json.value(QStringLiteral("litPixels")).toInt(), json.value(QStringLiteral("pixels")).toInt());
    const QImage image(out);
    QCOMPARE(image.size(), QSize(640, 360));
    QVERIFY2(colouredPixels(image) > 1000, qPrintable(QString::number(colouredPixels(image))));
}

QTEST_GUILESS_MAIN(TestRenderCommand)
#include "tst_rendercommand.moc"
