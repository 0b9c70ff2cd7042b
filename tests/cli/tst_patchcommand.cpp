#include "cli/demopatch.h"
#include "patch/tpatchwriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli patch's layout figures, as a user scripts them.
class TestPatchCommand : public QObject
{
    Q_OBJECT

private slots:
    void layoutFigures();
    void overlapWarningAfterReaderWarnings();
    void refusedPatch();

private:
    QJsonObject runJson(const TPatch::PatchData &patch, int *exitCode = nullptr);
    QTemporaryDir m_dir;
};

QJsonObject TestPatchCommand::runJson(const TPatch::PatchData &patch, int *exitCode)
{
    const QString path = m_dir.filePath(QStringLiteral("p.tpatch"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(TPatch::writeTPatch(patch));
    file.close();
    QProcess p;
    p.start(QStringLiteral(TALU_CLI_PATH), {QStringLiteral("patch"), QStringLiteral("--json"), path});
    p.waitForFinished(60000);
    if (exitCode)
        *exitCode = p.exitCode();
    return QJsonDocument::fromJson(p.readAllStandardOutput()).object();
}

void TestPatchCommand::layoutFigures()
{
    int exitCode = -1;
    const QJsonObject o = runJson(makeDemoPatch(), &exitCode);
    QCOMPARE(exitCode, 0);
    QCOMPARE(o.value(QLatin1StringView("drawablePixels")).toInt(), o.value(QLatin1StringView("pixels")).toInt());
    QCOMPARE(o.value(QLatin1StringView("sceneRect")).toArray(), (QJsonArray{0, 0, 1700, 600}));
    QCOMPARE(o.value(QLatin1StringView("zRange")).toArray(), (QJsonArray{0, 1}));
    QVERIFY(o.value(QLatin1StringView("warnings")).toArray().isEmpty());
}

void TestPatchCommand::overlapWarningAfterReaderWarnings()
{
    TPatch::PatchData patch = makeDemoPatch();
    // Universe 17 collides with universe 1 (reader warnings) and its fixture is
    // moved onto facade 2's (layout warning, which comes last).
    TPatch::Torvoverse &t = patch.groups[0].torvoverses[5];
    t.universe = 17;
    t.fixtures[0].scenePosX = patch.groups[0].torvoverses[1].fixtures[0].scenePosX;
    const QJsonArray warnings = runJson(patch).value(QLatin1StringView("warnings")).toArray();
    QCOMPARE(warnings.size(), 3);
    QVERIFY(warnings.at(0).toString().startsWith(QLatin1StringView("Universe numbers above 15")));
    QCOMPARE(warnings.at(2).toString(),
             QStringLiteral("2 fixtures overlap on 1 screen position(s) - only the topmost one is visible. Use the "
                            "group filter to isolate a torvoverse."));
}

void TestPatchCommand::refusedPatch()
{
    int exitCode = -1;
    const QJsonObject o = runJson(TPatch::PatchData{}, &exitCode); // no groups: refused
    QCOMPARE(exitCode, 1);
    QCOMPARE(o.value(QLatin1StringView("drawablePixels")).toInt(-1), 0);
    QCOMPARE(o.value(QLatin1StringView("sceneRect")).toArray(), (QJsonArray{0, 0, 0, 0}));
    QVERIFY(o.value(QLatin1StringView("zRange")).isNull());
}

QTEST_GUILESS_MAIN(TestPatchCommand)
#include "tst_patchcommand.moc"
