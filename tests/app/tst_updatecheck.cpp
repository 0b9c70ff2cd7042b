// The update check against a feed served inside the private network namespace (label "network"):
// what the user sees for every outcome, what a background check keeps quiet about, nothing waits.
#include "../common/netnsguard.h"
#include "app/appsettings.h"
#include "app/updater.h"
#include "talu_version.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWidget>
#include <QtTest>

namespace {

// Answers every GET with one fixed body, as a plain HTTP/1.1 server would.
class FeedServer : public QTcpServer
{
public:
    QByteArray body;
    int requests = 0;

    FeedServer() { listen(QHostAddress::LocalHost); }
    QUrl url() const { return QUrl(QStringLiteral("http://127.0.0.1:%1/update.json").arg(serverPort())); }

protected:
    void incomingConnection(qintptr handle) override
    {
        auto *socket = new QTcpSocket(this);
        socket->setSocketDescriptor(handle);
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            if (!socket->peek(64 * 1024).contains("\r\n\r\n"))
                return;
            socket->readAll();
            ++requests;
            socket->write(
                "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nConnection: close\r\nContent-Length: " +
                QByteArray::number(body.size()) + "\r\n\r\n" + body);
            socket->disconnectFromHost();
        });
    }
};

QByteArray feed(const char *version)
{
    return QByteArray(R"({"version":")") + version +
           R"(","notes":"Recording is faster.","download":"https://t.example/"})";
}

} // namespace

class TestUpdateCheck : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init();
    void manualCheckReportsEveryOutcome_data();
    void manualCheckReportsEveryOutcome();
    void backgroundCheckKeepsQuiet();

private:
    QWidget m_window;
};

void TestUpdateCheck::init()
{
    TALU_REQUIRE_PRIVATE_NAMESPACE();
    openSettings()->clear();
}

void TestUpdateCheck::manualCheckReportsEveryOutcome_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("reachable");
    QTest::addColumn<QString>("text"); // the start of the box's text
    QTest::addColumn<bool>("offered"); // a new version: notes, Download and Ignore
    const QString latest = QStringLiteral("Torvane TALU " TALU_VERSION " is the latest version.");
    QTest::newRow("newer") << feed("9.0.0") << true
                           << QStringLiteral("Torvane TALU 9.0.0 is available. You have " TALU_VERSION ".")
                           << true;
    QTest::newRow("same") << feed(TALU_VERSION) << true << latest << false;
    QTest::newRow("older") << feed("0.9") << true << latest << false;
    QTest::newRow("malformed") << QByteArray("{\"version\":") << true
                               << "Could not check for updates: The update information is not readable."
                               << false;
    QTest::newRow("huge") << QByteArray(8 * 1024 * 1024, ' ') << true
                          << "Could not check for updates: The update information is too large." << false;
    QTest::newRow("unreachable") << QByteArray() << false << "Could not check for updates: " << false;
}

void TestUpdateCheck::manualCheckReportsEveryOutcome()
{
    QFETCH(QByteArray, body);
    QFETCH(bool, reachable);
    QFETCH(QString, text);
    QFETCH(bool, offered);
    FeedServer server;
    server.body = body;
    UpdateController updates(&m_window);
    QUrl url = server.url();
    if (!reachable)
        server.close(); // nothing listens on the port any more
    updates.setFeedUrl(url);
    QSignalSpy finished(&updates, &UpdateController::checkFinished);
    updates.checkNow();
    // The check runs on the event loop: nothing has happened yet.
    QVERIFY(updates.isChecking());
    QCOMPARE(finished.count(), 0);
    QVERIFY(finished.wait(5000));
    QCOMPARE(finished.at(0).at(1).toBool(), true);
    QMessageBox *box = updates.resultBox();
    QVERIFY(box);
    QVERIFY2(box->text().startsWith(text), qPrintable(box->text()));
    QCOMPARE(box->checkBox()->text(), QStringLiteral("Check for updates automatically (once a day)"));
    if (!offered) {
        box->close();
        return;
    }
    QCOMPARE(box->informativeText(), QStringLiteral("Recording is faster."));
    QStringList buttons;
    for (QAbstractButton *b : box->buttons())
        buttons << b->text();
    buttons.sort();
    QCOMPARE(buttons, (QStringList{"Download...", "Ignore This Version", "Later"}));
    // The box's check box is the switch.
    box->checkBox()->click();
    QCOMPARE(UpdateController::isAutoCheckEnabled(), false);
    box->checkBox()->click();
    for (QAbstractButton *b : box->buttons())
        if (b->text() == QLatin1String("Ignore This Version"))
            b->click();
    QCOMPARE(openSettings()->value(SettingsKey::updateIgnoredVersion).toString(), QStringLiteral("9.0.0"));
}

void TestUpdateCheck::backgroundCheckKeepsQuiet()
{
    FeedServer server;
    UpdateController updates(&m_window);
    updates.setFeedUrl(server.url());
    QSignalSpy finished(&updates, &UpdateController::checkFinished);

    // Same version, an ignored one, a failure: checked, nothing shown.
    openSettings()->setValue(SettingsKey::updateIgnoredVersion, QStringLiteral("9.0.0"));
    for (const QByteArray &body : {feed(TALU_VERSION), feed("9.0.0"), QByteArray("<html>")}) {
        openSettings()->remove(SettingsKey::updateLastCheck);
        server.body = body;
        updates.startBackgroundCheck(0);
        QVERIFY(finished.wait(5000));
        QCOMPARE(finished.takeFirst().at(1).toBool(), false);
        QVERIFY(!updates.resultBox());
    }
    QCOMPARE(server.requests, 3);

    // Checked less than a day ago, or switched off: no request at all.
    updates.startBackgroundCheck(0);
    QTest::qWait(200);
    QCOMPARE(server.requests, 3);
    UpdateController::setAutoCheckEnabled(false);
    openSettings()->remove(SettingsKey::updateLastCheck);
    updates.startBackgroundCheck(0);
    QTest::qWait(200);
    QCOMPARE(server.requests, 3);

    // A version newer than the ignored one is shown.
    UpdateController::setAutoCheckEnabled(true);
    server.body = feed("9.1");
    updates.startBackgroundCheck(0);
    QVERIFY(finished.wait(5000));
    QCOMPARE(finished.takeFirst().at(1).toBool(), true);
    QVERIFY(updates.resultBox()->text().startsWith(QStringLiteral("Torvane TALU 9.1 is available.")));
}

QTEST_MAIN(TestUpdateCheck)
#include "tst_updatecheck.moc"
