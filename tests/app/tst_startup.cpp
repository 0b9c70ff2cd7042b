#include "app/startup.h"

#include <QtTest>

class TestStartup : public QObject
{
    Q_OBJECT
private slots:
    void updateHandOver_data();
    void updateHandOver();
};

void TestStartup::updateHandOver_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("handsOver");
    QTest::addColumn<QStringList>("handed");

    QTest::newRow("normal start") << QStringList{"talu"} << false << QStringList();
    QTest::newRow("files only") << QStringList{"talu", "a.tpatch", "b.tpx"} << false << QStringList();
    QTest::newRow("flag alone") << QStringList{"talu", "--apply-update"} << false << QStringList();
    QTest::newRow("one argument starts normally") << QStringList{"talu", "--apply-update", "pkg.zip"} << false
                                                  << QStringList();
    QTest::newRow("two arguments") << QStringList{"talu", "--apply-update", "pkg.zip", "C:/Program Files/TALU"}
                                   << true << QStringList{"pkg.zip", "C:/Program Files/TALU"};
    QTest::newRow("flag after other arguments, rest handed on")
        << QStringList{"talu", "-x", "--apply-update", "a", "b", "c"} << true << QStringList{"a", "b", "c"};
}

void TestStartup::updateHandOver()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, handsOver);
    QFETCH(QStringList, handed);
    const auto result = updateHandOverArguments(arguments);
    QCOMPARE(result.has_value(), handsOver);
    if (handsOver)
        QCOMPARE(*result, handed);
}

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
