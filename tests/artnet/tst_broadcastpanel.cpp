#include "artnet/widgets/broadcastpanel.h"
#include "panels/statuslabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

namespace {

template <typename T>
T *child(QWidget &w, const char *name)
{
    return w.findChild<T *>(QLatin1String(name));
}

QStringList itemTexts(QComboBox *box)
{
    QStringList out;
    for (int i = 0; i < box->count(); ++i)
        out << box->itemText(i) + QLatin1Char('=') + box->itemData(i).toString();
    return out;
}

} // namespace

class TestBroadcastPanel : public QObject
{
    Q_OBJECT
private slots:
    // The default port, long name, file name, frame rate and unticked box show in the requests tested below.
    void firstStartShowsDefaults()
    {
        BroadcastPanel panel;
        QCOMPARE(panel.address(), QStringLiteral("0.0.0.0"));
        QCOMPARE(child<QComboBox>(panel, "listenAddress")->currentText(), QStringLiteral("Any (0.0.0.0)"));
        QCOMPARE(child<QSpinBox>(panel, "listenPort")->toolTip(),
                 QStringLiteral("Art-Net uses 6454. Change only if you know why."));
        QCOMPARE(child<QComboBox>(panel, "identityProfile")->currentText(), QStringLiteral("Torvane Tester"));
        QCOMPARE(panel.identity().shortName, QStringLiteral("TorvaneTester"));
        QCOMPARE(panel.identity().net, quint8(0));
        QCOMPARE(panel.identity().subNet, quint8(0));
        QCOMPARE(child<QPushButton>(panel, "listenButton")->text(), QStringLiteral("Start listening"));
        QCOMPARE(child<QPushButton>(panel, "recordButton")->text(), QStringLiteral("Record"));
        QCOMPARE(panel.listenMessageLabel()->text(), QStringLiteral("Not listening."));
        QCOMPARE(panel.recordMessageLabel()->text(), QStringLiteral("Not recording."));
        QCOMPARE(panel.livenessLabel()->text(), QString());
    }

    void interfaceListKeepsTheChosenAddress()
    {
        BroadcastPanel panel;
        QComboBox *box = child<QComboBox>(panel, "listenAddress");
        panel.setInterfaces({{QStringLiteral("192.0.2.1"), QStringLiteral("veth0")},
                             {QStringLiteral("127.0.0.1"), QStringLiteral("lo")}});
        QCOMPARE(itemTexts(box), (QStringList{"Any (0.0.0.0)=0.0.0.0", "127.0.0.1 (loopback)=127.0.0.1",
                                              "192.0.2.1 (veth0)=192.0.2.1"}));
        box->setCurrentIndex(2);
        panel.setInterfaces({{QStringLiteral("198.51.100.7"), QStringLiteral("eth1")},
                             {QStringLiteral("192.0.2.1"), QStringLiteral("veth0")}});
        QCOMPARE(panel.address(), QStringLiteral("192.0.2.1"));
        // A stored address no interface has any more is kept, and says so.
        panel.setAddress(QStringLiteral("203.0.113.5"));
        QCOMPARE(box->currentText(), QStringLiteral("203.0.113.5 (not present)"));
        QCOMPARE(panel.address(), QStringLiteral("203.0.113.5"));
        panel.setAddress(QString());
        QCOMPARE(panel.address(), QStringLiteral("0.0.0.0"));
    }

    void profilesFillOnlyTheNames_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("shortName");
        QTest::addColumn<QString>("longName");
        QTest::newRow("tester") << 0 << "Torvane Tester" << "TorvaneTester" << "Torvane Art-Net Tester";
        QTest::newRow("tova") << 1 << "TOVA" << "TOVA" << "Torvane TOVA";
        QTest::newRow("breno") << 2 << "BRENO" << "BRENO" << "Torvane BRENO";
        QTest::newRow("kel6s") << 3 << "KEL6S" << "KEL6S" << "Torvane KEL6S";
        QTest::newRow("mirra") << 4 << "MIRRA" << "MIRRA" << "Torvane MIRRA";
        QTest::newRow("generic") << 5 << "Generic node" << "ArtNetNode" << "Generic Art-Net Node";
    }
    void profilesFillOnlyTheNames()
    {
        QFETCH(int, row);
        QFETCH(QString, shortName);
        BroadcastPanel panel;
        child<QSpinBox>(panel, "netBox")->setValue(3);
        child<QSpinBox>(panel, "subBox")->setValue(7);
        QTest::keyClicks(child<QLineEdit>(panel, "shortName"), QStringLiteral("X"));
        QSignalSpy identity(&panel, &BroadcastPanel::identityChanged);
        QComboBox *profile = child<QComboBox>(panel, "identityProfile");
        QCOMPARE(profile->count(), 6);
        QTEST(profile->itemText(row), "label");
        profile->setCurrentIndex(row == 0 ? 1 : 0);
        for (int i = 0; i < 6; ++i)
            QTest::keyClick(profile, Qt::Key_Up); // the user's way to the top
        for (int i = 0; i < row; ++i)
            QTest::keyClick(profile, Qt::Key_Down);
        QCOMPARE(profile->currentIndex(), row);
        QCOMPARE(panel.identity().shortName, shortName);
        QTEST(panel.identity().longName, "longName");
        QCOMPARE(panel.identity().net, quint8(3));
        QCOMPARE(panel.identity().subNet, quint8(7));
        QVERIFY(!identity.isEmpty());
        QCOMPARE(identity.last().at(0).value<NodeIdentity>().shortName, shortName);
    }

    void startAndStopListening()
    {
        BroadcastPanel panel;
        panel.setInterfaces({{QStringLiteral("192.0.2.1"), QStringLiteral("veth0")}});
        child<QComboBox>(panel, "listenAddress")->setCurrentIndex(2);
        QSignalSpy start(&panel, &BroadcastPanel::startRequested);
        QSignalSpy stop(&panel, &BroadcastPanel::stopRequested);
        QPushButton *listen = child<QPushButton>(panel, "listenButton");
        QTest::mouseClick(listen, Qt::LeftButton);
        QCOMPARE(start.count(), 1);
        QCOMPARE(start.at(0).at(0).toString(), QStringLiteral("192.0.2.1"));
        QCOMPARE(start.at(0).at(1).value<quint16>(), quint16(6454));
        QCOMPARE(start.at(0).at(2).value<NodeIdentity>().longName, QStringLiteral("Torvane Art-Net Tester"));
        panel.setListening(true);
        QCOMPARE(listen->text(), QStringLiteral("Stop listening"));
        QVERIFY(!child<QComboBox>(panel, "listenAddress")->isEnabled());
        QVERIFY(!child<QSpinBox>(panel, "listenPort")->isEnabled());
        QTest::mouseClick(listen, Qt::LeftButton);
        QCOMPARE(stop.count(), 1);
        QCOMPARE(start.count(), 1);
        panel.setListening(false);
        QCOMPARE(listen->text(), QStringLiteral("Start listening"));
        QVERIFY(child<QSpinBox>(panel, "listenPort")->isEnabled());
    }

    void recordingRequestsAndTheNoPatchNote()
    {
        BroadcastPanel panel;
        panel.show();
        QPushButton *record = child<QPushButton>(panel, "recordButton");
        QVERIFY(!record->isEnabled()); // until "Record incoming stream" is ticked
        QTest::mouseClick(child<QCheckBox>(panel, "recordEnabled"), Qt::LeftButton);
        QVERIFY(record->isEnabled());
        QTest::keyClicks(child<QLineEdit>(panel, "recordFolder"), QStringLiteral("/rec"));
        QSignalSpy start(&panel, &BroadcastPanel::recordStartRequested);
        QSignalSpy stop(&panel, &BroadcastPanel::recordStopRequested);
        QTest::mouseClick(record, Qt::LeftButton);
        QCOMPARE(start.count(), 1);
        QCOMPARE(start.at(0), (QVariantList{QStringLiteral("/rec"), QStringLiteral("artnet_capture"), 40}));
        QVERIFY(panel.noPatchNote()->isVisible());
        QCOMPARE(panel.noPatchNote()->text(),
                 QStringLiteral("No patch loaded - recording works, but the monitor stays dark."));
        panel.setRecording(true);
        QCOMPARE(record->text(), QStringLiteral("Stop recording"));
        QVERIFY(!child<QLineEdit>(panel, "recordName")->isEnabled());
        QTest::mouseClick(record, Qt::LeftButton);
        QCOMPARE(stop.count(), 1);
        panel.setRecording(false);
        QCOMPARE(record->text(), QStringLiteral("Record"));
        panel.setPatchLoaded(true);
        QVERIFY(!panel.noPatchNote()->isVisible());
        QTest::mouseClick(record, Qt::LeftButton);
        QVERIFY(!panel.noPatchNote()->isVisible());
    }

    void livenessLine_data()
    {
        QTest::addColumn<qint64>("msSinceLastPoll");
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("text");
        QTest::newRow("never") << qint64(-1) << 1
                               << "No ArtPoll seen yet - no controller is looking for nodes.";
        QTest::newRow("just now") << qint64(0) << 0 << "Answering ArtPoll (7 replies sent).";
        QTest::newRow("10 s") << qint64(10000) << 0 << "Answering ArtPoll (7 replies sent).";
        QTest::newRow("just over") << qint64(10001) << 1
                                   << "Last ArtPoll 10 s ago - the controller may have stopped.";
        QTest::newRow("truncated") << qint64(25999) << 1
                                   << "Last ArtPoll 25 s ago - the controller may have stopped.";
    }
    void livenessLine()
    {
        QFETCH(qint64, msSinceLastPoll);
        BroadcastPanel panel;
        NodeStats stats;
        stats.artPolls = 7;
        panel.setListening(true);
        panel.refreshStatus(stats, msSinceLastPoll);
        QTEST(panel.livenessLabel()->text(), "text");
        QTEST(panel.livenessLabel()->messageLevel(), "level");
        panel.setListening(false); // a stopped node shows no stale liveness
        QCOMPARE(panel.livenessLabel()->text(), QString());
    }

    void statisticsLine()
    {
        BroadcastPanel panel;
        NodeStats stats;
        stats.dmxPackets = 5000000000; // 64-bit counters
        stats.packetsPerSecond = 1234.4;
        stats.sequenceErrors = 3;
        stats.ignored = 2;
        stats.msSinceLastDmx = 12;
        panel.refreshStatus(stats, 100);
        QCOMPARE(panel.statisticsLabel()->text(),
                 QStringLiteral("1234 pkt/s · 5000000000 packets · last 12 ms ago · 3 seq errors · 2 ignored"));
        stats.msSinceLastDmx = -1;
        panel.refreshStatus(stats, 100);
        QVERIFY(panel.statisticsLabel()->text().contains(QStringLiteral(" · no DMX yet · ")));
    }
};

QTEST_MAIN(TestBroadcastPanel)
#include "tst_broadcastpanel.moc"
