#include "panels/patchbar.h"
#include "panels/statuslabel.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

class TestPatchBar : public QObject
{
    Q_OBJECT
private slots:
    void showsItsTexts();
    void uploadSendsTheTrimmedPath_data();
    void uploadSendsTheTrimmedPath();
    void busyBarCannotStartASecondLoad();
    void browseStartsInTheNamedFolder_data();
    void browseStartsInTheNamedFolder();
};

void TestPatchBar::showsItsTexts()
{
    PatchBar bar;
    QCOMPARE(bar.findChild<QLabel *>(QStringLiteral("patchCaption"))->text(), QStringLiteral("Patch File"));
    QCOMPARE(bar.findChild<QLineEdit *>()->placeholderText(),
             QStringLiteral("Path to a patch file (.tpatch, .mpz, .elm)"));
    QCOMPARE(bar.findChild<QToolButton *>()->text(), QStringLiteral("..."));
    QCOMPARE(bar.findChild<QToolButton *>()->toolTip(), QStringLiteral("Browse for a patch file"));
    QCOMPARE(bar.findChild<QPushButton *>()->text(), QStringLiteral("Upload"));
    QCOMPARE(bar.findChild<QPushButton *>()->toolTip(), QStringLiteral("Load the patch and build the monitor"));
    QCOMPARE(bar.findChild<QPushButton *>()->minimumWidth(), 96);
    QCOMPARE(bar.statusLabel()->text(), QStringLiteral("No patch loaded."));
    QCOMPARE(bar.statusLabel()->messageLevel(), 0);
}

void TestPatchBar::uploadSendsTheTrimmedPath_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("emitted"); // empty: refused with the hint
    QTest::newRow("spaces only") << "   " << "";
    QTest::newRow("nothing") << "" << "";
    QTest::newRow("padded path") << "  /shows/hall.tpatch " << "/shows/hall.tpatch";
}

void TestPatchBar::uploadSendsTheTrimmedPath()
{
    QFETCH(QString, typed);
    QFETCH(QString, emitted);
    PatchBar bar;
    QSignalSpy spy(&bar, &PatchBar::uploadRequested);
    QTest::keyClicks(bar.findChild<QLineEdit *>(), typed);
    QTest::mouseClick(bar.findChild<QPushButton *>(), Qt::LeftButton);
    QTest::keyClick(bar.findChild<QLineEdit *>(), Qt::Key_Return);
    if (emitted.isEmpty()) {
        QVERIFY(spy.isEmpty());
        QCOMPARE(bar.statusLabel()->text(), QStringLiteral("Enter a patch path or pick one with the ... button."));
        QCOMPARE(bar.statusLabel()->messageLevel(), 2);
    } else {
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).at(0).toString(), emitted);
        QCOMPARE(bar.statusLabel()->text(), QStringLiteral("No patch loaded."));
    }
}

void TestPatchBar::busyBarCannotStartASecondLoad()
{
    PatchBar bar;
    bar.setPath(QStringLiteral("/shows/hall.tpatch"));
    QSignalSpy spy(&bar, &PatchBar::uploadRequested);
    bar.setBusy(true);
    QCOMPARE(bar.findChild<QPushButton *>()->text(), QStringLiteral("Loading..."));
    QVERIFY(!bar.findChild<QToolButton *>()->isEnabled());
    QTest::keyClick(bar.findChild<QLineEdit *>(), Qt::Key_Return);
    QTest::mouseClick(bar.findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(spy.isEmpty());
    bar.retranslateUi(); // a language change keeps the busy text
    QCOMPARE(bar.findChild<QPushButton *>()->text(), QStringLiteral("Loading..."));
    bar.setBusy(false);
    QCOMPARE(bar.findChild<QPushButton *>()->text(), QStringLiteral("Upload"));
    QTest::keyClick(bar.findChild<QLineEdit *>(), Qt::Key_Return);
    QCOMPARE(spy.count(), 1);
}

void TestPatchBar::browseStartsInTheNamedFolder_data()
{
    QTest::addColumn<QString>("typed"); // relative to a temporary folder holding "show/hall.tpatch"
    QTest::addColumn<QString>("expected");
    QTest::newRow("existing file") << "show/hall.tpatch" << "show";
    QTest::newRow("missing file, existing folder") << "show/gone.tpatch" << "show";
    QTest::newRow("missing folder") << "nowhere/gone.tpatch" << "";
}

void TestPatchBar::browseStartsInTheNamedFolder()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("show")));
    QVERIFY(QFile(dir.filePath(QStringLiteral("show/hall.tpatch"))).open(QIODevice::WriteOnly));
    PatchBar bar;
    bar.setPath(dir.filePath(typed));
    QSignalSpy spy(&bar, &PatchBar::uploadRequested);
    QString shownFolder;
    QString title;
    // The dialog is modal: look at it once it is up, then cancel it.
    QTimer::singleShot(0, &bar, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        shownFolder = dialog->directory().absolutePath();
        title = dialog->windowTitle();
        dialog->reject();
    });
    QTest::mouseClick(bar.findChild<QToolButton *>(), Qt::LeftButton);
    QCOMPARE(title, QStringLiteral("Select Patch File"));
    if (expected.isEmpty())
        QVERIFY(!shownFolder.startsWith(dir.path()));
    else
        QCOMPARE(shownFolder, QDir(dir.filePath(expected)).absolutePath());
    QVERIFY(spy.isEmpty()); // cancelling changes nothing
    QCOMPARE(bar.path(), dir.filePath(typed));
}

QTEST_MAIN(TestPatchBar)
#include "tst_patchbar.moc"
