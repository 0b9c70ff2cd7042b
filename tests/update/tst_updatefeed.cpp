// The update feed document, version order and the once-a-day rule.
#include "update/updatefeed.h"

#include <QtTest>

class TestUpdateFeed : public QObject
{
    Q_OBJECT
private slots:
    void parse_data();
    void parse();
    void versionOrder_data();
    void versionOrder();
    void checkDue();
};

void TestUpdateFeed::parse_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("version"); // empty: refused
    QTest::addColumn<QString>("error");
    const QString unreadable = QStringLiteral("The update information is not readable.");
    const QString noVersion = QStringLiteral("The update information names no valid version.");
    const QString noPage = QStringLiteral("The update information has no valid download page.");
    QTest::newRow("complete")
        << QByteArray(R"({"version":" 1.2.0 ","notes":"Faster.","download":"https://t.example/d"})")
        << "1.2.0" << QString();
    QTest::newRow("no notes") << QByteArray(R"({"version":"2","download":"http://t.example/"})") << "2"
                              << QString();
    QTest::newRow("empty") << QByteArray() << QString() << unreadable;
    QTest::newRow("html page") << QByteArray("<html>captive portal</html>") << QString() << unreadable;
    QTest::newRow("array") << QByteArray("[1,2]") << QString() << unreadable;
    QTest::newRow("truncated") << QByteArray(R"({"version":"1.2.0","downl)") << QString() << unreadable;
    QTest::newRow("version a number")
        << QByteArray(R"({"version":1.2,"download":"https://t.example/"})") << QString() << noVersion;
    QTest::newRow("version words") << QByteArray(R"({"version":"1.2-beta","download":"https://t.example/"})")
                                   << QString() << noVersion;
    QTest::newRow("five parts") << QByteArray(R"({"version":"1.2.3.4.5","download":"https://t.example/"})")
                                << QString() << noVersion;
    QTest::newRow("no download") << QByteArray(R"({"version":"1.2"})") << QString() << noPage;
    QTest::newRow("file download") << QByteArray(R"({"version":"1.2","download":"file:///etc/passwd"})")
                                   << QString() << noPage;
}

void TestUpdateFeed::parse()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, version);
    QFETCH(QString, error);
    const UpdateFeedResult result = parseUpdateFeed(document);
    QCOMPARE(result.ok, !version.isEmpty());
    QCOMPARE(result.feed.version, version);
    QCOMPARE(result.error, error);
    if (QByteArray(QTest::currentDataTag()) == "complete") {
        QCOMPARE(result.feed.notes, QStringLiteral("Faster."));
        QCOMPARE(result.feed.downloadPage, QUrl(QStringLiteral("https://t.example/d")));
    }
}

void TestUpdateFeed::versionOrder_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("order");
    QTest::newRow("equal") << "1.0.0"
                           << "1.0.0" << 0;
    QTest::newRow("missing part is 0") << "1.2"
                                       << "1.2.0" << 0;
    QTest::newRow("numeric, not text") << "1.10"
                                       << "1.9" << 1;
    QTest::newRow("patch") << "1.0.0"
                           << "1.0.1" << -1;
    QTest::newRow("major wins") << "2"
                                << "1.99.99" << 1;
    QTest::newRow("not a version is 0") << "beta"
                                        << "0.0.1" << -1;
}

void TestUpdateFeed::versionOrder()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(int, order);
    QCOMPARE(compareVersions(a, b), order);
    QCOMPARE(compareVersions(b, a), -order);
}

void TestUpdateFeed::checkDue()
{
    const QDateTime now(QDate(2026, 11, 24), QTime(12, 0), Qt::UTC);
    QVERIFY(isUpdateCheckDue(QDateTime(), now));
    QVERIFY(!isUpdateCheckDue(now.addSecs(-23 * 3600), now));
    QVERIFY(isUpdateCheckDue(now.addSecs(-24 * 3600), now));
    QVERIFY(isUpdateCheckDue(now.addSecs(3600), now)); // the clock was set back
}

QTEST_GUILESS_MAIN(TestUpdateFeed)
#include "tst_updatefeed.moc"
