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
    QTest::addColumn<QStringList>("parsed"); // what a normal start reads

    QTest::newRow("normal start") << QStringList{"talu"} << false << QStringList() << QStringList{"talu"};
    QTest::newRow("files only") << QStringList{"talu", "a.tpatch", "b.tpx"} << false << QStringList()
                                << QStringList{"talu", "a.tpatch", "b.tpx"};
    QTest::newRow("flag alone") << QStringList{"talu", "--apply-update"} << false << QStringList()
                                << QStringList{"talu"};
    QTest::newRow("one argument starts normally") << QStringList{"talu", "--apply-update", "pkg.zip"} << false
                                                  << QStringList() << QStringList{"talu"};
    QTest::newRow("two arguments") << QStringList{"talu", "--apply-update", "pkg.zip", "C:/Program Files/TALU"}
                                   << true << QStringList{"pkg.zip", "C:/Program Files/TALU"} << QStringList{"talu"};
    QTest::newRow("flag after other arguments, rest handed on")
        << QStringList{"talu", "-x", "--apply-update", "a", "b", "c"} << true << QStringList{"a", "b", "c"}
        << QStringList{"talu", "-x"};
}

void TestStartup::updateHandOver()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, handsOver);
    QFETCH(QStringList, handed);
    QFETCH(QStringList, parsed);
    QCOMPARE(argumentsForNormalStart(arguments), parsed);
    const auto result = updateHandOverArguments(arguments);
    QCOMPARE(result.has_value(), handsOver);
    if (handsOver)
        QCOMPARE(*result, handed);
}

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
