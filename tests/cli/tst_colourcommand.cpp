#include "clirunner.h"

#include <QJsonArray>
#include <QtTest>

using TestCli::run;

// talu-cli colour as a user scripts it.
class TestColourCommand : public QObject
{
    Q_OBJECT

private slots:
    void colour_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("out");
        auto args = [](const char *text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); };
        // The colour rules themselves are pinned by the PixelColourBuffer test; these rows check the parsing.
        QTest::newRow("hex and commas") << args("0x0a,0x14 30") << 0 << QByteArray("0xFF0A141E");
        QTest::newRow("white on") << args("--white --roles R,G,B,W 0,0,0,255") << 0 << QByteArray("0xFFFFFFFF");
        QTest::newRow("cool white") << args("--white --roles cw 255") << 0 << QByteArray("0xFFEBEEFF");
        QTest::newRow("codes and gaps") << args("--roles 3,-,1 1,2,3") << 0 << QByteArray("0xFF030001");
        QTest::newRow("start channel, short") << args("--start 2 1 2 3") << 0 << QByteArray("0xFF030000");
        QTest::newRow("unknown role") << args("--roles R,X 1") << 2 << QByteArray();
        QTest::newRow("seven roles") << args("--roles R,G,B,W,CW,WW,R 1") << 2 << QByteArray();
        QTest::newRow("byte too big") << args("256") << 2 << QByteArray();
        QTest::newRow("no bytes") << args("--white") << 2 << QByteArray();
        QTest::newRow("bad start") << args("--start -1 1") << 2 << QByteArray();
    }
    void colour()
    {
        QFETCH(QStringList, arguments);
        const TestCli::Run r = run(QStringList{QStringLiteral("colour")} + arguments);
        QTEST(r.exitCode, "exitCode");
        QTEST(r.out.trimmed(), "out");
    }

    void json()
    {
        const TestCli::Run r = run({"colour", "--json", "--white", "--roles", "R,-,WW", "200,9"});
        QCOMPARE(r.exitCode, 0);
        const QJsonObject o = r.json();
        QCOMPARE(o.value(QLatin1StringView("colour")).toString(), QStringLiteral("0xFFC80000"));
        QCOMPARE(o.value(QLatin1StringView("red")).toInt(), 200);
        QCOMPARE(o.value(QLatin1StringView("white")).toBool(), true);
        // Slot 1 has no role, slot 2 lies past the two bytes.
        const QJsonArray slotValues = o.value(QLatin1StringView("slots")).toArray();
        QCOMPARE(slotValues.size(), 6);
        QCOMPARE(slotValues.at(0).toInt(), 200);
        QVERIFY(slotValues.at(1).isNull() && slotValues.at(2).isNull());
        QCOMPARE(o.value(QLatin1StringView("peakWhite")).toInt(), 0);
    }
};

QTEST_GUILESS_MAIN(TestColourCommand)
#include "tst_colourcommand.moc"
