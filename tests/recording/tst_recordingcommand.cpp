#include "recording/recording.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// talu-cli recording and generate demo-recording, run as a process the way
// scripts on show machines run them.
class TestRecordingCommand : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    static int run(const QStringList &args, QByteArray *out = nullptr)
    {
        QProcess p;
        p.start(QStringLiteral(TALU_CLI_PATH), args);
        if (!p.waitForFinished(60'000))
            return -1;
        if (out)
            *out = p.readAllStandardOutput();
        return p.exitCode();
    }

    static QString example(const char *name)
    {
        return QStringLiteral(TALU_SOURCE_DIR "/examples/") + QLatin1String(name);
    }

private slots:
    void demoRecordingMatchesDemoPatch()
    {
        const QString out = m_dir.filePath(QStringLiteral("demo.tpx"));
        QCOMPARE(run({QStringLiteral("generate"), QStringLiteral("demo-recording"), out}), 0);
        for (const QString &file : {out, example("demo.tpx")}) {
            QByteArray json;
            QCOMPARE(run({QStringLiteral("recording"), file, QStringLiteral("--patch"),
                          example("demo.tpatch"), QStringLiteral("--json")},
                         &json),
                     0);
            const QJsonObject o = QJsonDocument::fromJson(json).object();
            QCOMPARE(o.value(QStringLiteral("ok")).toBool(), true);
            QCOMPARE(o.value(QStringLiteral("error")).type(), QJsonValue::Null);
            QCOMPARE(o.value(QStringLiteral("format")).toString(), QStringLiteral("Art-Net"));
            QCOMPARE(o.value(QStringLiteral("recordsPerFrame")).toInt(), 15);
            QCOMPARE(o.value(QStringLiteral("frames")).toInt(), 120);
            QCOMPARE(o.value(QStringLiteral("records")).toInt(), 1800);
            QCOMPARE(o.value(QStringLiteral("detectedPeriod")).toInt(), 15);
            QCOMPARE(o.value(QStringLiteral("matchesPatch")).toBool(), true);
            QCOMPARE(o.value(QStringLiteral("gpsSync")).toBool(), false);
            QCOMPARE(o.value(QStringLiteral("firstRecordOffset")).toInt(), 0);
            QCOMPARE(o.value(QStringLiteral("universes")).toArray().size(), 15);
            QCOMPARE(o.value(QStringLiteral("warnings")).toArray().size(), 0);
            QCOMPARE(o.value(QStringLiteral("parsedBytes")).toInteger(), QFileInfo(file).size());
        }
        // Generating again overwrites rather than appends.
        QCOMPARE(run({QStringLiteral("generate"), QStringLiteral("demo-recording"), out}), 0);
        QCOMPARE(QFileInfo(out).size(), QFileInfo(example("demo.tpx")).size());
    }

    void demoRecordingMoves()
    {
        Recording rec;
        QVERIFY(rec.load(example("demo.tpx")).ok);
        // Facade 1 (Port-Address 0) changes colour from frame to frame.
        QVERIFY(rec.dataOf(rec.recordAt(0, 0)) != rec.dataOf(rec.recordAt(30, 0)));
        // The ball curtain (Port-Address 11, slot 11): each winch's 16-bit position moves.
        const RecordRef first = rec.recordAt(0, 11);
        QCOMPARE(first.universe, quint16(11));
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
        QByteArray json;
        QCOMPARE(run({QStringLiteral("recording"), m_dir.path(), QStringLiteral("--json")}, &json), 1);
        const QJsonObject o = QJsonDocument::fromJson(json).object();
        QCOMPARE(o.value(QStringLiteral("ok")).toBool(), false);
        QVERIFY(o.value(QStringLiteral("error")).toString().startsWith(QStringLiteral("Could not open")));
        QCOMPARE(run({QStringLiteral("recording")}), 2);
        QCOMPARE(run({QStringLiteral("recording"), example("demo.tpx"), QStringLiteral("--patch"),
                      m_dir.filePath(QStringLiteral("none.tpatch"))}),
                 1);
        QCOMPARE(run({QStringLiteral("recording"), QStringLiteral("--help")}), 0);
    }
};

QTEST_GUILESS_MAIN(TestRecordingCommand)
#include "tst_recordingcommand.moc"
