#include "packetlog/packetvocabulary.h"

#include <QtTest>

using namespace PacketLog;

class TestPacketVocabulary : public QObject
{
    Q_OBJECT

private slots:
    void outcomes_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("label");
        QTest::newRow("ok") << 0 << "ok" << "";
        QTest::newRow("failed") << 1 << "failed" << "SEND FAILED";
        QTest::newRow("notsent") << 2 << "notsent" << "NOT SENT";
        QTest::newRow("partial") << 3 << "partial" << "PARTIAL WRITE";
    }
    void outcomes()
    {
        QFETCH(int, code);
        QFETCH(QString, word);
        QFETCH(QString, label);
        QCOMPARE(outcomeWord(Outcome(code)), word);
        QCOMPARE(outcomeLabel(Outcome(code)), label);
        Outcome parsed = Outcome::Ok;
        QVERIFY(outcomeFromWord(word.toUpper(), &parsed));
        QCOMPARE(int(parsed), code);
        // A word that is none of the four ("sent" only ends "notsent") is refused and changes nothing.
        QVERIFY(!outcomeFromWord(QStringLiteral("sent"), &parsed));
        QCOMPARE(int(parsed), code);
    }

    void reasons_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("text");
        QTest::newRow("0 has no text") << 0 << "none" << "";
        QTest::newRow("1") << 1 << "offline" << "device offline (no ArtPollReply within the liveness window)";
        QTest::newRow("2") << 2 << "transferclosed" << "output is closed (udpTransferOpen = false)";
        QTest::newRow("3") << 3 << "testmode" << "Device Manager test broadcast is active";
        QTest::newRow("4") << 4 << "nosocket" << "socket unavailable (adapter is being switched)";
        QTest::newRow("5") << 5 << "invalidtarget" << "target address could not be resolved";
        QTest::newRow("6 is unknown") << 6 << "unknown" << "unknown";
        QTest::newRow("255 is unknown") << 255 << "unknown" << "unknown";
    }
    void reasons()
    {
        QFETCH(int, code);
        QFETCH(QString, word);
        QFETCH(QString, text);
        QCOMPARE(reasonWord(quint8(code)), word);
        QCOMPARE(reasonText(quint8(code)), text);
        QCOMPARE(reasonText(quint8(code), false), text);
    }

    void errors_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("meaning");    // the whole text, or its start when meaningEnd is given
        QTest::addColumn<QString>("meaningEnd");
        QTest::newRow("0") << 0 << "none" << "" << "";
        QTest::newRow("10013") << 10013 << "WSAEACCES (10013)" << "Access denied. A broadcast"
                               << "does not have SO_BROADCAST enabled.";
        QTest::newRow("10040") << 10040 << "WSAEMSGSIZE (10040)" << "The datagram is larger"
                               << "Check the channel count and the interface MTU.";
        QTest::newRow("10047 no meaning") << 10047 << "WSAEAFNOSUPPORT (10047)" << "" << "";
        QTest::newRow("10049") << 10049 << "WSAEADDRNOTAVAIL (10049)" << "The requested address is not valid"
                               << "The adapter may have lost its IP address.";
        QTest::newRow("10050") << 10050 << "WSAENETDOWN (10050)"
                               << "The network is down. The adapter is disconnected or disabled." << "";
        QTest::newRow("10051") << 10051 << "WSAENETUNREACH (10051)" << "The network is unreachable. There is no route"
                               << "from the selected adapter to this destination.";
        QTest::newRow("10054") << 10054 << "WSAECONNRESET (10054)"
                               << "The remote host reset the connection. An earlier packet triggered an ICMP "
                                  "port-unreachable reply, which means nothing is listening on the destination port."
                               << "";
        QTest::newRow("10055") << 10055 << "WSAENOBUFS (10055)"
                               << "No buffer space available. The send queue is full: the interface cannot drain "
                                  "packets as fast as they are being produced, or the destination MAC has not been "
                                  "resolved and datagrams are piling up waiting for ARP. Lowering the frame rate or "
                                  "checking the link usually resolves it."
                               << "";
        QTest::newRow("10060 no meaning") << 10060 << "WSAETIMEDOUT (10060)" << "" << "";
        QTest::newRow("10064") << 10064 << "WSAEHOSTDOWN (10064)" << "The destination host is down." << "";
        QTest::newRow("10065") << 10065 << "WSAEHOSTUNREACH (10065)" << "No route to host. ARP could not resolve"
                               << "This is the usual cause when nothing appears on the wire at all.";
        QTest::newRow("12345 unknown") << 12345 << "error 12345" << "" << "";
        QTest::newRow("negative") << -1 << "error -1" << "" << "";
    }
    void errors()
    {
        QFETCH(int, code);
        QFETCH(QString, name);
        QFETCH(QString, meaning);
        QFETCH(QString, meaningEnd);
        QCOMPARE(errorName(code), name);
        const QString got = errorMeaning(code);
        if (meaningEnd.isEmpty())
            QCOMPARE(got, meaning);
        else
            QVERIFY2(got.startsWith(meaning) && got.endsWith(meaningEnd), qPrintable(got));
    }
};

QTEST_GUILESS_MAIN(TestPacketVocabulary)
#include "tst_packetvocabulary.moc"
