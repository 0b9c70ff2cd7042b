#include "clirunner.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli render as a user scripts it: the picture file and the exit codes.
namespace {

const QString kPatch = TestCli::example(QStringLiteral("demo.tpatch"));
const QString kRecording = TestCli::example(QStringLiteral("demo.tpx"));

TestCli::Run runCli(const QStringList &arguments)
{
    return TestCli::run(QStringList{QStringLiteral("render")} + arguments);
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

class TestRenderCommand : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        const QString out = QStringLiteral("/nonexistent-folder/x.png");
        QTest::newRow("no patch") << QStringList{"-o", "x.png"} << 2;
        QTest::newRow("no output") << QStringList{"--patch", kPatch} << 2;
        QTest::newRow("bad view") << QStringList{"--patch", kPatch, "--view", "4d", "-o", out} << 2;
        QTest::newRow("bad size") << QStringList{"--patch", kPatch, "--size", "0x10", "-o", out} << 2;
        QTest::newRow("bad yaw") << QStringList{"--patch", kPatch, "--yaw", "nan", "-o", out} << 2;
        QTest::newRow("frame without recording")
            << QStringList{"--patch", kPatch, "--frame", "3", "-o", out} << 2;
        QTest::newRow("missing patch") << QStringList{"--patch", "/nonexistent.tpatch", "-o", out} << 1;
        QTest::newRow("frame past the end")
            << QStringList{"--patch", kPatch, "--recording", kRecording, "--frame", "100000", "-o", out} << 1;
        QTest::newRow("unwritable output") << QStringList{"--patch", kPatch, "-o", out} << 1;
    }
    void refusals()
    {
        QFETCH(QStringList, arguments);
        QTEST(runCli(arguments).exitCode, "exitCode");
    }

    void demoFrameIsLit_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("2d") << QStringList{};
        QTest::newRow("3d") << QStringList{"--view", "3d", "--yaw", "30"};
        QTest::newRow("3d fast") << QStringList{"--view", "3d", "--fast"};
    }
    void demoFrameIsLit()
    {
        QFETCH(QStringList, options);
        const QString tag = QString::fromLatin1(QTest::currentDataTag()).replace(u' ', u'_');
        const QString out = m_dir.filePath(tag + QStringLiteral(".png"));
        const TestCli::Run run = runCli(QStringList{"--patch", kPatch, "--recording", kRecording, "--frame",
                                                    "40", "--size", "640x360", "--json", "-o", out} +
                                        options);
        QCOMPARE(run.exitCode, 0);
        const QJsonObject json = run.json();
        QCOMPARE(json.value("frame").toInt(), 40);
        QVERIFY(json.value("frames").toInt() > 40);
        QVERIFY(json.value("pixels").toInt() > 0);
        QCOMPARE(json.value("litPixels").toInt(), json.value("pixels").toInt());
        const QImage image(out);
        QCOMPARE(image.size(), QSize(640, 360));
        QVERIFY2(colouredPixels(image) > 1000, qPrintable(QString::number(colouredPixels(image))));
    }
};

QTEST_GUILESS_MAIN(TestRenderCommand)
#include "tst_rendercommand.moc"
