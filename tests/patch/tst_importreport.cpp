#include "patch/importreport.h"
#include "testfiles.h"

#include <QCryptographicHash>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

using namespace TPatch;

namespace {

const QDateTime kNoon(QDate(2026, 3, 14), QTime(12, 30, 5));

// Turns every patch text into upper case: enough of a second language to tell
// translated from untranslated blocks.
class ShoutingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (QByteArray(context) != "TPatch")
            return {};
        return QString::fromUtf8(sourceText).toUpper();
    }
    bool isEmpty() const override { return false; }
};

PatchLoadResult warned()
{
    PatchLoadResult r;
    r.ok = true;
    r.patch.formatLabel = QStringLiteral("MADRIX 5 patch (.mpz)");
    r.warnings = {PatchMessage("%1 fixture(s) are incomplete in the file and were skipped.", {qint64(2)}),
                  PatchMessage("Color channels the tester cannot show yet were ignored: %1",
                               {QStringLiteral("UV (6)")})};
    return r;
}

PatchLoadResult failed()
{
    PatchLoadResult r;
    r.patch.formatLabel = QStringLiteral("ENTTEC ELM project (.elm)");
    r.error = PatchMessage("\"%1\" contains no DMX fixtures that can be shown.", {QStringLiteral("a.elm")});
    return r;
}

using TestFiles::read;
using TestFiles::write;

ImportReportResult report(const QString &logs, const QString &source, const PatchLoadResult &result,
                          const QString &language = QStringLiteral("English"), const QDateTime &when = kNoon)
{
    return writeImportReport(logs, source, result, language, when);
}

QString reportText(const ImportReportResult &r)
{
    return QString::fromUtf8(read(QDir(r.folder).filePath(QStringLiteral("report.txt"))));
}

} // namespace

class TestImportReport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void layout_data();
    void layout();
    void sameLoadReusesItsFolder();
    void languageDoesNotChangeTheFingerprint();
    void foldersWithinOneSecondCount();
    void unreadableSource();
    void copyStaysInsideTheFolder();
    void logsFolderFallsBack();
};

void TestImportReport::layout_data()
{
    QTest::addColumn<PatchLoadResult>("result");
    QTest::addColumn<QString>("resultLine");
    QTest::addColumn<QString>("block");
    QTest::newRow("warnings") << warned() << "loaded with 2 warning(s)"
                              << "Warnings:\n"
                                 "  1. 2 fixture(s) are incomplete in the file and were skipped.\n"
                                 "  2. Color channels the tester cannot show yet were ignored: UV (6)\n";
    QTest::newRow("error") << failed() << "not loaded"
                           << "Error:\n  \"a.elm\" contains no DMX fixtures that can be shown.\n";
    PatchLoadResult clean;
    clean.ok = true;
    clean.patch.formatLabel = QStringLiteral("Torvane MOX patch (.tpatch)");
    QTest::newRow("clean") << clean << "loaded with 0 warning(s)"
                           << "";
}

void TestImportReport::layout()
{
    QFETCH(PatchLoadResult, result);
    QFETCH(QString, resultLine);
    QFETCH(QString, block);
    QTemporaryDir dir;
    const QByteArray bytes("<madrix_patch/>\n");
    const QString source = write(dir.filePath(QStringLiteral("wall.mpz")), bytes);
    const QString logs = dir.filePath(QStringLiteral("logs"));
    QVERIFY(QDir().mkpath(logs));

    const ImportReportResult r = report(logs, source, result);
    QVERIFY2(r.ok, qPrintable(r.error));
    QVERIFY(!r.reused);
    QCOMPARE(r.folder, QDir(logs).filePath(QStringLiteral("2026-03-14_12-30-05")));
    QCOMPARE(read(QDir(r.folder).filePath(QStringLiteral("wall.mpz"))), bytes);

    const QString fileHash =
        QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    const QString fingerprint = QString::fromLatin1(
        QCryptographicHash::hash(bytes + block.toUtf8(), QCryptographicHash::Sha256).toHex());
    QCOMPARE(importFingerprint(bytes, result), fingerprint);
    const QString expected = QStringLiteral("Torvane TALU 1.0.0 - patch import report\n"
                                            "Fingerprint: %1\n"
                                            "\n"
                                            "Time:      2026-03-14 12:30:05\n"
                                            "Source:    %2\n"
                                            "Format:    %3\n"
                                            "Size:      16 bytes\n"
                                            "SHA-256:   %4\n"
                                            "Copy:      wall.mpz\n"
                                            "Result:    %5\n"
                                            "Language:  English\n")
                                 .arg(fingerprint, QDir::toNativeSeparators(source), result.patch.formatLabel,
                                      fileHash, resultLine) +
                             block + QStringLiteral("\n--- In the interface language (English) ---\n\n") +
                             block;
    const QByteArray report = read(QDir(r.folder).filePath(QStringLiteral("report.txt")));
    QVERIFY(report.startsWith("\xEF\xBB\xBF"));
    QCOMPARE(QString::fromUtf8(report.mid(3)), expected);
}

void TestImportReport::sameLoadReusesItsFolder()
{
    QTemporaryDir dir;
    const QString source = write(dir.filePath(QStringLiteral("a.elm")), "<console appVersion=\"1\"/>");
    const ImportReportResult first = report(dir.path(), source, failed());
    QVERIFY(first.ok);
    const ImportReportResult again =
        report(dir.path(), source, failed(), QStringLiteral("English"), kNoon.addSecs(3600));
    QVERIFY(again.ok);
    QVERIFY(again.reused);
    QCOMPARE(again.folder, first.folder);
    // Another outcome for the same bytes, or other bytes, is another load.
    const ImportReportResult other = report(dir.path(), source, warned());
    QVERIFY(!other.reused);
    QVERIFY(other.folder != first.folder);
    write(source, "<console appVersion=\"2\"/>");
    QVERIFY(!report(dir.path(), source, failed()).reused);
}

void TestImportReport::languageDoesNotChangeTheFingerprint()
{
    QTemporaryDir dir, other;
    const QString source = write(dir.filePath(QStringLiteral("wall.mpz")), "x");
    const ImportReportResult english = report(dir.path(), source, warned());
    ShoutingTranslator shouting;
    QCoreApplication::installTranslator(&shouting);
    const ImportReportResult loud = report(dir.path(), source, warned(), QStringLiteral("Loud"));
    // A fresh folder in the other language shows both blocks.
    const ImportReportResult fresh = report(other.path(), source, warned(), QStringLiteral("Loud"));
    QCoreApplication::removeTranslator(&shouting);
    QVERIFY(loud.reused);
    QCOMPARE(loud.folder, english.folder);
    const QString text = reportText(fresh);
    QVERIFY(text.contains(QStringLiteral("Warnings:\n  1. 2 fixture(s) are incomplete")));
    QVERIFY(text.contains(QStringLiteral(
        "--- In the interface language (Loud) ---\n\nWARNINGS:\n  1. 2 FIXTURE(S) ARE INCOMPLETE")));
}

void TestImportReport::foldersWithinOneSecondCount()
{
    QTemporaryDir dir;
    const QString logs = dir.filePath(QStringLiteral("logs"));
    QVERIFY(QDir().mkpath(logs));
    QStringList names;
    for (int i = 0; i < 3; ++i) {
        const ImportReportResult r = report(
            logs, write(dir.filePath(QStringLiteral("p%1.mpz").arg(i)), QByteArray::number(i)), warned());
        QVERIFY(r.ok);
        names.append(QFileInfo(r.folder).fileName());
    }
    QCOMPARE(names, (QStringList{"2026-03-14_12-30-05", "2026-03-14_12-30-05_2", "2026-03-14_12-30-05_3"}));
}

void TestImportReport::unreadableSource()
{
    QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("gone.tpatch"));
    const ImportReportResult r = report(dir.path(), source, failed());
    QVERIFY(r.ok);
    const QString text = reportText(r);
    QVERIFY(text.contains(QStringLiteral("\nSHA-256:   -\n")));
    QVERIFY(text.contains(QStringLiteral("\nCopy:      not saved - the source could not be read: ")));
    QCOMPARE(QDir(r.folder).entryList(QDir::Files), QStringList{QStringLiteral("report.txt")});

    // A logs folder that cannot be made is a failure with the folder named.
    const QString blocker = write(dir.filePath(QStringLiteral("file")), "x");
    const ImportReportResult bad = report(blocker, source, failed());
    QVERIFY(!bad.ok);
    QCOMPARE(bad.error, QStringLiteral("could not create %1")
                            .arg(QDir::toNativeSeparators(
                                QDir(blocker).filePath(QStringLiteral("2026-03-14_12-30-05")))));
}

void TestImportReport::copyStaysInsideTheFolder()
{
    QTemporaryDir dir;
    QVERIFY(QDir().mkpath(dir.filePath(QStringLiteral("deep/er"))));
    write(dir.filePath(QStringLiteral("deep/er/report.txt")), "not a report");
    const QString logs = dir.filePath(QStringLiteral("logs"));
    QVERIFY(QDir().mkpath(logs));
    const ImportReportResult r =
        report(logs, dir.filePath(QStringLiteral("deep/../deep/er/report.txt")), warned());
    QVERIFY(r.ok);
    QCOMPARE(QDir(r.folder).entryList(QDir::Files, QDir::Name),
             (QStringList{QStringLiteral("report.txt"), QStringLiteral("source-report.txt")}));
    QVERIFY(read(QDir(r.folder).filePath(QStringLiteral("report.txt"))).startsWith("\xEF\xBB\xBF"));
    QCOMPARE(QDir(logs).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void TestImportReport::logsFolderFallsBack()
{
    QTemporaryDir dir;
    const QString good = dir.filePath(QStringLiteral("beside/logs"));
    const QString perUser = dir.filePath(QStringLiteral("user/logs"));
    QCOMPARE(importLogsFolder(good, perUser), good);
    QVERIFY(QFileInfo(good).isDir());
    QCOMPARE(QDir(good).entryList(QDir::Files).size(), 0); // the probe is gone again

    // Beside the program is a file, not a folder: the per-user folder is used.
    const QString blocked = write(dir.filePath(QStringLiteral("blocked")), "x") + QStringLiteral("/logs");
    QCOMPARE(importLogsFolder(blocked, perUser), perUser);
    QVERIFY(QFileInfo(perUser).isDir());
    QVERIFY(importLogsFolder(blocked, blocked).isEmpty());

    // The default per-user folder is the test-mode data location, never the user's own.
    const QString fallback = importLogsFolder(blocked);
    QVERIFY(fallback.startsWith(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    QVERIFY(fallback.endsWith(QStringLiteral("/logs")));
}

QTEST_GUILESS_MAIN(TestImportReport)
#include "tst_importreport.moc"
