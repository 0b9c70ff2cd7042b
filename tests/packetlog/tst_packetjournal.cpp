#include "cli/samplelog.h"
#include "packetlog/packetjournal.h"
#include "packetlog/tlogfile.h"
#include "packetlog/logfiles.h"
#include "logtestdata.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace PacketLog;
using namespace LogTestData;

constexpr qint64 kMs = 1000000;

class TestPacketJournal : public QObject
{
    Q_OBJECT

private slots:
    void sidesFollowTheDirection()
    {
        PacketJournal journal(16);
        const QByteArray poll = makeArtPoll();
        PacketEvent out = journalEvent(poll, 1, Direction::Out, Outcome::Failed, 50000);
        out.error = 10065;
        QVERIFY(journal.append(journalEvent(poll, 1, Direction::In, Outcome::Ok, 50000)));
        QVERIFY(journal.append(out));
        QCOMPARE(journal.size(), 2);
        const PacketRecord &r = journal.at(0);
        QCOMPARE(r.srcIp, 0xC0000202u);
        QCOMPARE(r.srcPort, 50000);
        QCOMPARE(r.dstIp, 0xC0000201u);
        QCOMPARE(r.dstPort, 6454);
        QCOMPARE(r.opcode, kOpPoll);
        QCOMPARE(r.source, RecordSource::Mox);
        const PacketRecord &s = journal.at(1);
        QCOMPARE(s.srcIp, 0xC0000201u);
        QCOMPARE(s.dstPort, 50000);
        QCOMPARE(s.outcome, Outcome::Failed);
        QCOMPARE(s.error, 10065);
    }

    void collapsing_data()
    {
        QTest::addColumn<QByteArray>("second");
        QTest::addColumn<qint64>("afterNs");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<quint16>("peerPort");
        QTest::addColumn<bool>("kept");
        // After ArtDmx 0x0001 seq 1, 512 channels of 0, from port 6454.
        const QByteArray same = makeArtDmx(1, 2, 512, 0);
        const quint16 port = 6454;
        QTest::newRow("same frame, next sequence, 25 ms") << same << 25 * kMs << 0 << port << false;
        QTest::newRow("same frame 249 ms") << same << 249 * kMs << 0 << port << false;
        QTest::newRow("same frame 250 ms") << same << 250 * kMs << 0 << port << true;
        QTest::newRow("data changed") << makeArtDmx(1, 2, 512, 1) << 25 * kMs << 0 << port << true;
        QTest::newRow("other universe") << makeArtDmx(2, 2, 512, 0) << 25 * kMs << 0 << port << true;
        QTest::newRow("other sender port") << same << 25 * kMs << 0 << quint16(6455) << true;
        QTest::newRow("shorter frame") << makeArtDmx(1, 2, 510, 0) << 25 * kMs << 0 << port << true;
        QTest::newRow("failed send kept") << same << 25 * kMs << 1 << port << true;
        QTest::newRow("clock went back") << same << -5 * kMs << 0 << port << true;
    }
    void collapsing()
    {
        QFETCH(QByteArray, second);
        QFETCH(qint64, afterNs);
        QFETCH(int, outcome);
        QFETCH(quint16, peerPort);
        QFETCH(bool, kept);
        PacketJournal journal(16);
        const QByteArray first = makeArtDmx(1, 1, 512, 0);
        const qint64 t0 = 1000 * kMs;
        QVERIFY(journal.append(journalEvent(first, t0)));
        QCOMPARE(journal.append(journalEvent(second, t0 + afterNs, Direction::In, Outcome(outcome), peerPort)), kept);
        QCOMPARE(journal.size(), kept ? 2 : 1);
        QCOMPARE(journal.counters().collapsed, kept ? 0 : 1);
    }

    // An unchanged stream at 40 Hz keeps one frame every 250 ms: the window counts from the last kept frame.
    void steadyStreamKeepsFourPerSecond()
    {
        PacketJournal journal(256);
        const QByteArray frame = makeArtDmx(1, 1, 512, 0);
        for (int i = 0; i < 40; ++i)
            journal.append(journalEvent(frame, qint64(i) * 25 * kMs));
        QCOMPARE(journal.size(), 4);
        QCOMPARE(journal.counters().collapsed, 36);
    }

    void ringKeepsTheNewest()
    {
        PacketJournal journal(5); // rounded up to 8
        QCOMPARE(journal.capacity(), 8);
        for (int i = 0; i < 20; ++i)
            journal.append(journalEvent(makeArtDmx(quint16(i), 1, 10, 0), i));
        QCOMPARE(journal.size(), 8);
        QCOMPARE(journal.at(0).portAddress, 12);
        QCOMPARE(journal.at(7).portAddress, 19);
        QCOMPARE(journal.records().back().portAddress, 19);
        QCOMPARE(journal.counters().appended, 20);
        journal.clear();
        QCOMPARE(journal.size(), 0);
        journal.setEnabled(false); // disabled: keeps nothing
        QVERIFY(!journal.append(journalEvent(makeArtPoll(), 1)));
        QCOMPARE(journal.size(), 0);
    }

    // What the spool writes is a whole .tlog that reads back record for record.
    void spoolWritesTheSession()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("session.tlog"));
        PacketJournal journal(1024);
        LogMessage error;
        QVERIFY(journal.startSpool(path, &error));
        QVERIFY(journal.isSpooling());
        for (int i = 0; i < 5000; ++i)
            journal.append(journalEvent(makeArtDmx(quint16(i % 7), quint8(i), 64, quint8(i)), qint64(i) * kMs));
        QTRY_VERIFY(journal.counters().spooled > 0); // written while still running
        journal.stopSpool();
        QVERIFY(!journal.isSpooling());
        const JournalCounters c = journal.counters();
        QCOMPARE(c.spooled + c.spoolDropped, 5000);
        QVERIFY(!c.spoolFailed);
        const LogLoadResult r = loadPacketLog(path);
        QVERIFY(r.ok);
        QVERIFY(r.warnings.isEmpty());
        QCOMPARE(qint64(r.records.size()), c.spooled);
        if (c.spoolDropped == 0) { // the ring kept the last 1024; they are the file's last 1024
            for (int i = 0; i < journal.size(); ++i)
                QVERIFY(r.records[r.records.size() - size_t(journal.size()) + size_t(i)] == journal.at(i));
        }
    }

    void spoolToAnUnwritablePath()
    {
        PacketJournal journal(8);
        LogMessage error;
        QVERIFY(!journal.startSpool(QStringLiteral("/nonexistent-dir/x.tlog"), &error));
        QVERIFY(error.untranslatedText().startsWith(QStringLiteral("Cannot write the packet log /nonexistent-dir/x.tlog")));
        QVERIFY(!journal.isSpooling());
        QVERIFY(journal.append(journalEvent(makeArtPoll(), 1)));
    }

    void destroyingWhileSpoolingFlushes()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("s.tlog"));
        {
            PacketJournal journal(64);
            QVERIFY(journal.startSpool(path, nullptr));
            for (int i = 0; i < 10; ++i)
                journal.append(journalEvent(makeArtPoll(), i));
        }
        QCOMPARE(int(loadPacketLog(path).records.size()), 10);
    }
};

QTEST_GUILESS_MAIN(TestPacketJournal)
#include "tst_packetjournal.moc"
