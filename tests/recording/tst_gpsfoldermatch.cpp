#include "recording/gpsfoldermatch.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestGpsFolderMatch : public QObject
{
    Q_OBJECT

private slots:
    void match_data();
    void match();
};

void TestGpsFolderMatch::match_data()
{
    QTest::addColumn<QStringList>("files"); // written into the folder; a trailing "/" makes a folder
    QTest::addColumn<QStringList>("groups");
    QTest::addColumn<QStringList>("expected"); // file name per group, empty for none
    QTest::addColumn<QString>("session");
    QTest::addColumn<QString>("newest"); // the files starting so were written last, the others a day ago

    const QStringList groups{QStringLiteral("Front"), QStringLiteral("Back_Stage Left"),
                             QStringLiteral("Roof")};
    QTest::newRow("one session") << QStringList{"show_Front.tpx", "show_Back_Stage Left.tpx", "show_Roof.tpx"}
                                 << groups
                                 << QStringList{"show_Front.tpx", "show_Back_Stage Left.tpx", "show_Roof.tpx"}
                                 << "show" << QString();
    QTest::newRow("the session covering most groups wins")
        << QStringList{"rehearsal_Front.tpx",       "rehearsal_Roof.tpx", "final_Front.tpx",
                       "final_Back_Stage Left.tpx", "final_Roof.tpx",     "old_Roof.tpx"}
        << groups << QStringList{"final_Front.tpx", "final_Back_Stage Left.tpx", "final_Roof.tpx"} << "final"
        << QString();
    QTest::newRow("a session name with underscores")
        << QStringList{"my_show_2_Front.tpx", "my_show_2_Roof.tpx"} << groups
        << QStringList{"my_show_2_Front.tpx", "", "my_show_2_Roof.tpx"} << "my_show_2" << QString();
    // "x_Stage_Left" reads as session "x" for "Stage_Left" or session "x_Stage" for "Left".
    QTest::newRow("group names ending in other group names")
        << QStringList{"x_Stage_Left.tpx", "x_Left.tpx"} << QStringList{"Left", "Stage_Left"}
        << QStringList{"x_Left.tpx", "x_Stage_Left.tpx"} << "x" << QString();
    QTest::newRow("case of the group name counts")
        << QStringList{"show_front.tpx", "show_Roof.TPX"} << groups << QStringList{"", "", "show_Roof.TPX"}
        << "show" << QString();
    QTest::newRow("groups that differ only in case")
        << QStringList{"s_Front.tpx", "s_FRONT.tpx"} << QStringList{"FRONT", "Front"}
        << QStringList{"s_FRONT.tpx", "s_Front.tpx"} << "s" << QString();
    QTest::newRow("other files and folders are ignored")
        << QStringList{"show_Front.tpatch", "show_Front.tpx.bak", "show_Front.tpx/", "Front.tpx",
                       "show_Roof.tpx"}
        << groups << QStringList{"", "", "show_Roof.tpx"} << "show" << QString();
    QTest::newRow("resource forks a Mac leaves on a stick")
        << QStringList{"._show_Front.tpx", "show_Front.tpx"} << groups
        << QStringList{"show_Front.tpx", "", ""} << "show" << QString();
    QTest::newRow("nothing matches") << QStringList{"notes.txt", "show_Side.tpx"} << groups
                                     << QStringList{"", "", ""} << "" << QString();
    QTest::newRow("a group without a name")
        << QStringList{"show_.tpx", "show_Roof.tpx"} << QStringList{"", "Roof"}
        << QStringList{"", "show_Roof.tpx"} << "show" << QString();
    // "a" was recorded last, although "b" comes later in the alphabet.
    QTest::newRow("a tie goes to the newest session")
        << QStringList{"a_Front.tpx", "a_Roof.tpx", "b_Front.tpx", "b_Roof.tpx"}
        << QStringList{"Front", "Roof"} << QStringList{"a_Front.tpx", "a_Roof.tpx"} << "a"
        << QStringLiteral("a_");
}

void TestGpsFolderMatch::match()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, groups);
    QFETCH(QStringList, expected);
    QFETCH(QString, session);
    QFETCH(QString, newest);

    QTemporaryDir dir;
    const QDateTime base = QDateTime::currentDateTimeUtc().addDays(-1);
    for (const QString &name : files) {
        if (name.endsWith(u'/')) {
            QVERIFY(QDir(dir.path()).mkdir(name.chopped(1)));
            continue;
        }
        QFile f(QDir(dir.path()).filePath(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
        if (!newest.isEmpty())
            QVERIFY(f.setFileTime(base.addSecs(name.startsWith(newest) ? 600 : 0),
                                  QFileDevice::FileModificationTime));
    }
    const GpsFolderMatch m = GpsFolderMatch::match(dir.path(), groups);
    QStringList got;
    for (const QString &path : m.paths)
        got.append(QFileInfo(path).fileName());
    QCOMPARE(got, expected);
    QCOMPARE(m.matched, int(expected.size() - expected.count(QString())));
    QCOMPARE(m.session, session);
}

QTEST_GUILESS_MAIN(TestGpsFolderMatch)
#include "tst_gpsfoldermatch.moc"
