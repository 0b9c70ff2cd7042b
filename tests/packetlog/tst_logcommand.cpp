// talu-cli log and filter, run as scripts run them: as a process, output parsed.
#include "clirunner.h"
#include "testfiles.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

using Run = TestCli::Run;
static Run talu(const QStringList &arguments) { return TestCli::run(arguments); }

class TestLogCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_sample = m_dir.filePath(QStringLiteral("sample.tlog"));
        QCOMPARE(talu({QStringLiteral("generate"), QStringLiteral("sample-log"), m_sample}).exitCode, 0);
    }

    void filterCommand_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("output");
        QTest::newRow("joined arguments") << QStringList{"frame.len", ">", "100"} << 0 << "(frame.len > 100)\n";
        QTest::newRow("empty") << QStringList{" "} << 0 << "(no filter: every record is shown)\n";
        QTest::newRow("error") << QStringList{"(frame.len > 100"} << 1 << "error: Missing ')'.\n";
        QTest::newRow("no expression") << QStringList{} << 2 << "talu-cli filter: give a filter expression.\n";
    }
    void filterCommand()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, output);
        const Run r = talu(QStringList{QStringLiteral("filter")} + arguments);
        QCOMPARE(r.exitCode, exitCode);
        QCOMPARE(QString::fromUtf8(exitCode == 0 ? r.out : r.err), output);
    }

    void filterJson()
    {
        const Run r = talu({QStringLiteral("filter"), QStringLiteral("--json"), QStringLiteral("frame.len >")});
        QCOMPARE(r.exitCode, 1);
        QCOMPARE(r.json().value(QStringLiteral("ok")).toBool(true), false);
        QCOMPARE(r.json().value(QStringLiteral("error")).toString(), QStringLiteral("Missing value after '>'."));
        const Run good = talu({QStringLiteral("filter"), QStringLiteral("--json"), QStringLiteral("!talu.dir == in")});
        const QJsonObject root = good.json().value(QStringLiteral("root")).toObject();
        QCOMPARE(root.value(QStringLiteral("node")).toString(), QStringLiteral("not"));
        const QJsonObject child = root.value(QStringLiteral("child")).toObject();
        QCOMPARE(child.value(QStringLiteral("field")).toString(), QStringLiteral("talu.dir"));
        QCOMPARE(child.value(QStringLiteral("known")).toBool(), true);
    }

    void logPrintsMatchingLines()
    {
        const Run r = runLog({"SAMPLE", "--filter", "talu.outcome != ok"});
        QCOMPARE(r.exitCode, 0);
        const QList<QByteArray> lines = r.out.trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[0].endsWith("[SEND FAILED: WSAENOBUFS (10055)]"));
        QVERIFY(lines[1].contains("NOT SENT"));
    }

    void logJson()
    {
        const Run r = runLog({"SAMPLE", "--json", "--filter", "artnet.universe == 2 && artnet.opcode == artdmx"});
        QCOMPARE(r.exitCode, 0);
        const QJsonObject o = r.json();
        QCOMPARE(o.value(QStringLiteral("format")).toString(), QStringLiteral("tlog"));
        QCOMPARE(o.value(QStringLiteral("total")).toInt(), 16);
        QCOMPARE(o.value(QStringLiteral("matched")).toInt(), 3);
        const QJsonObject first = o.value(QStringLiteral("records")).toArray().at(0).toObject();
        QCOMPARE(first.value(QStringLiteral("universe")).toInt(), 2);
        QCOMPARE(first.value(QStringLiteral("sequence")).toInt(), 1);
        QCOMPARE(first.value(QStringLiteral("direction")).toString(), QStringLiteral("in"));
        QCOMPARE(first.value(QStringLiteral("origin")).toString(), QStringLiteral("mox"));
    }

    // tlog -> pcapng -> filtered again: the capture reads back with the same records.
    void exportAndReadBack()
    {
        const QString capture = m_dir.filePath(QStringLiteral("out.pcapng"));
        const Run r = runLog({"SAMPLE", "--export", "pcapng", "-o", capture});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.out, QByteArray("16 of 16 records written to ") + capture.toUtf8() + '\n');
        const Run fromPcapng = runLog({capture});
        QCOMPARE(fromPcapng.exitCode, 0);
        QCOMPARE(fromPcapng.out, runLog({"SAMPLE"}).out);
        const QString csv = m_dir.filePath(QStringLiteral("out.csv"));
        QCOMPARE(runLog({capture, "--filter", "talu.dir == out", "--export", "csv", "-o", csv}).exitCode, 0);
        QCOMPARE(TestFiles::read(csv).count('\n'), 4); // header and three sends
        // pcapng -> filtered .tlog -> the same lines as filtering the original.
        const QString tlog = m_dir.filePath(QStringLiteral("dmx.tlog"));
        QCOMPARE(runLog({capture, "--filter", "artnet.opcode == artdmx", "--export", "tlog", "-o", tlog}).exitCode, 0);
        const Run again = runLog({tlog});
        QCOMPARE(again.out.count('\n'), 12);
        QCOMPARE(again.out, runLog({"SAMPLE", "--filter", "artnet.opcode == artdmx"}).out);
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        QTest::newRow("bad filter") << QStringList{"SAMPLE", "--filter", "a &&"} << 1 << "error: Unexpected end of filter.";
        QTest::newRow("missing file") << QStringList{"/nonexistent/x.tlog"} << 1 << "error: Cannot open /nonexistent/x.tlog";
        QTest::newRow("unwritable output") << QStringList{"SAMPLE", "--export", "tlog", "-o", "/nonexistent/x.tlog"}
                                           << 1 << "error: Cannot write /nonexistent/x.tlog";
        QTest::newRow("export without -o") << QStringList{"SAMPLE", "--export", "csv"} << 2
                                           << "talu-cli log: --export and -o go together.";
        QTest::newRow("unknown export") << QStringList{"SAMPLE", "--export", "xml", "-o", "x"} << 2
                                        << "talu-cli log: --export takes csv, text, pcapng or tlog.";
        QTest::newRow("no file") << QStringList{} << 2 << "talu-cli log: give exactly one log file.";
    }
    void refusals()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        const Run r = runLog(arguments);
        QCOMPARE(r.exitCode, exitCode);
        QVERIFY2(QString::fromUtf8(r.err).startsWith(message), r.err.constData());
    }

    void damagedFileWarns()
    {
        const QString path =
            TestFiles::write(m_dir.filePath(QStringLiteral("cut.tlog")), TestFiles::read(m_sample).left(32 + 296 * 3 + 10));
        const Run r = runLog({path});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.out.count('\n'), 3);
        QCOMPARE(r.err, QByteArray("warning: The packet log is cut short in record 4 (at byte 920); the 3 records before "
                                   "it were read.\n"));
    }

private:
    // talu-cli log with these arguments; "SAMPLE" stands for the sample log.
    Run runLog(QStringList arguments) const
    {
        arguments.replaceInStrings(QStringLiteral("SAMPLE"), m_sample);
        return talu(QStringList{QStringLiteral("log")} + arguments);
    }

    QTemporaryDir m_dir;
    QString m_sample;
};

QTEST_GUILESS_MAIN(TestLogCommand)
#include "tst_logcommand.moc"
