#include "clirunner.h"
#include "recording/recording.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli recording and generate demo-recording, run as a process the way
// scripts on show machines run them.
using TestCli::example;
using TestCli::run;

class TestRecordingCommand : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void demoRecordingMatchesDemoPatch()
    {
        const QString out = m_dir.filePath(QStringLiteral("demo.tpx"));
        QCOMPARE(run({"generate", "demo-recording", out}).exitCode, 0);
        for (const QString &file : {out, example("demo.tpx")}) {
            const TestCli::Run r = run({"recording", file, "--patch", example("demo.tpatch"), "--json"});
            QCOMPARE(r.exitCode, 0);
            const QJsonObject o = r.json();
            const QByteArray expectedJson = R"({"ok": true, "error": null, "format": "Art-Net",
                "recordsPerFrame": 15, "frames": 120, "records": 1800, "detectedPeriod": 15,
                "matchesPatch": true, "gpsSync": false, "firstRecordOffset": 0})";
            const QJsonObject expected = QJsonDocument::fromJson(expectedJson).object();
            QCOMPARE(expected.size(), 10);
            for (auto it = expected.begin(); it != expected.end(); ++it)
                QVERIFY2(o.value(it.key()) == it.value(),
                         qPrintable(it.key() + QStringLiteral(": ") + QString::fromUtf8(r.out)));
            QCOMPARE(o.value(QStringLiteral("parsedBytes")).toInteger(), QFileInfo(file).size());
            QCOMPARE(o.value(QStringLiteral("universes")).toArray().size(), 15);
            QCOMPARE(o.value(QStringLiteral("warnings")).toArray().size(), 0);
        }
        // Generating again overwrites rather than appends, and gives the bundled file: a stale
        // examples/demo.tpx (the demo patch changed) fails here.
        QCOMPARE(run({"generate", "demo-recording", out}).exitCode, 0);
        QFile generated(out), bundled(example("demo.tpx"));
        QVERIFY(generated.open(QIODevice::ReadOnly) && bundled.open(QIODevice::ReadOnly));
        QVERIFY2(generated.readAll() == bundled.readAll(),
                 "examples/demo.tpx is stale: run talu-cli generate demo-recording examples/demo.tpx");
    }

    void demoRecordingMoves()
    {
        Recording rec;
        QVERIFY(rec.load(example("demo.tpx")).ok);
        // Facade 1 (Port-Address 0) changes colour from frame to frame.
        QVERIFY(rec.dataOf(rec.recordAt(0, 0)) != rec.dataOf(rec.recordAt(30, 0)));
        // The ball curtain (Port-Address 11, slot 11): each winch's 16-bit position moves.
        QCOMPARE(rec.recordAt(0, 11).universe, quint16(11));
        for (int ball = 0; ball < 8; ++ball) {
            const auto position = [&](qint64 frame) {
                const QByteArrayView d = rec.dataOf(rec.recordAt(frame, 11));
                return (quint8(d.at(ball * 5)) << 8) | quint8(d.at(ball * 5 + 1));
            };
            QVERIFY(qAbs(position(0) - position(40)) > 1000);
        }
    }

    void refusedAndUsage()
    {
        const TestCli::Run refused = run({"recording", m_dir.path(), "--json"});
        QCOMPARE(refused.exitCode, 1);
        QCOMPARE(refused.json().value(QStringLiteral("ok")).toBool(), false);
        const QString error = refused.json().value(QStringLiteral("error")).toString();
        QVERIFY(error.startsWith(QStringLiteral("Could not open")));
        QCOMPARE(run({"recording"}).exitCode, 2);
        const QString noPatch = m_dir.filePath(QStringLiteral("none.tpatch"));
        QCOMPARE(run({"recording", example("demo.tpx"), "--patch", noPatch}).exitCode, 1);
        QCOMPARE(run({"recording", "--help"}).exitCode, 0);
    }
};

QTEST_GUILESS_MAIN(TestRecordingCommand)
#include "tst_recordingcommand.moc"
