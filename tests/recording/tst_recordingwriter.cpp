#include "recording/recording.h"
#include "recording/recordingwriter.h"
#include "testfiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

namespace {

using TestFiles::read;

QByteArray dmx(int count, char value = 0x11)
{
    return QByteArray(count, value);
}

} // namespace

class TestRecordingWriter : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_fileNumber = 0;

    QString freshPath() { return m_dir.filePath(QStringLiteral("rec%1.tpx").arg(++m_fileNumber)); }

private slots:
    // One record as the writer lays it out: the header it builds, and the file's counters.
    void goldenRecord_data()
    {
        QTest::addColumn<int>("flavour");
        QTest::addColumn<int>("port");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QByteArray>("expected");
        // "Art-Net\0", OpCode 0x5000 (little-endian), protocol version 14, sequence (always 0), physical,
        // Port-Address 0x0102 (SubUni, then Net), length 2 (big-endian), slots, the stamp of frame 0.
        const QByteArray plain = QByteArray::fromHex("4172742d4e657400 0050 000e 00 00 0201 0002 ff80 0000");
        // Device prefix, "KEL6S-LONG" (the name cut to 10 bytes), "Art-Net\0", OpCode 0x5300, protocol
        // version 14, sequence and physical, Port-Address 5, length 3, slots, stamp.
        const QByteArray kel = QByteArray::fromHex("0100 4b454c36532d4c4f4e47 4172742d4e657400 0053 000e 0000"
                                                   " 0500 0003 010203 0000");
        QTest::newRow("Art-Net") << int(RecordFlavour::ArtNet) << 0x0102 << QByteArray::fromHex("ff80")
                                 << plain;
        QTest::newRow("KEL") << int(RecordFlavour::Kel) << 5 << QByteArray::fromHex("010203") << kel;
    }
    void goldenRecord()
    {
        QFETCH(int, flavour);
        QFETCH(int, port);
        QFETCH(QByteArray, data);
        QFETCH(QByteArray, expected);
        const QString path = freshPath();
        const QString name = QStringLiteral("KEL6S-LONGNAME");
        RecordingWriter w;
        QVERIFY(w.open(path, 40, 0));
        if (RecordFlavour(flavour) == RecordFlavour::Kel) // Art-Net is what a fresh writer writes
            w.setSource(RecordFlavour::Kel, name);
        QVERIFY(w.write(quint16(port), data));
        w.close();
        QCOMPARE(read(path), expected);
        const int headerSize = int(expected.size() - data.size() - 2);
        QCOMPARE(RecordingWriter::header(RecordFlavour(flavour), name, quint16(port), quint16(data.size())),
                 expected.left(headerSize));
        QCOMPARE(w.recordsWritten(), 1);
        QCOMPARE(w.framesWritten(), 1);
        QCOMPARE(w.bytesAppended(), expected.size());
        QCOMPARE(w.fileSize(), expected.size());
    }

    void renamedNodeShortName()
    {
        // A node that renames itself: the next records carry the new name, zero-padded.
        const QString path = freshPath();
        RecordingWriter w;
        QVERIFY(w.open(path, 40, 0));
        w.setSource(RecordFlavour::Kel, QStringLiteral("KEL6S-LONGNAME"));
        QVERIFY(w.write(5, QByteArray::fromHex("010203")));
        w.setSource(RecordFlavour::Kel, QStringLiteral("AB"));
        QVERIFY(w.write(5, QByteArray::fromHex("010203")));
        w.close();
        QCOMPARE(read(path).mid(35 + 2, 10), QByteArray("AB\0\0\0\0\0\0\0\0", 10)); // a KEL record is 35 bytes
    }

    void longPayloadIsCut()
    {
        const QString path = freshPath();
        RecordingWriter w;
        QVERIFY(w.open(path, 40, 0));
        QVERIFY(w.write(1, dmx(600)));
        QVERIFY(w.write(1, QByteArray())); // empty data: nothing happens
        w.close();
        const QByteArray bytes = read(path);
        QCOMPARE(bytes.size(), 18 + 512 + 2);
        QCOMPARE(bytes.mid(16, 2), QByteArray::fromHex("0200"));
        QCOMPARE(w.recordsWritten(), 1);
    }

    void framesByCount()
    {
        // With 3 records per frame the fourth record starts frame 2 whatever
        // its universe; the stamp grows by the frame rate per frame, in thousandths.
        const QString path = freshPath();
        RecordingWriter w;
        QVERIFY(w.open(path, 40, 3));
        for (int i = 0; i < 153; ++i)
            QVERIFY(w.write(quint16(i % 2), dmx(2)));
        w.close();
        QCOMPARE(w.framesWritten(), 51);
        Recording rec;
        QVERIFY(rec.load(path).ok);
        const auto &records = rec.records();
        QCOMPARE(records.size(), 153);
        QCOMPARE(rec.timestampOf(records.at(3 * 24 + 2)), quint16(0)); // frame 24: 960
        QCOMPARE(rec.timestampOf(records.at(3 * 25)), quint16(1));     // frame 25: 1000
        QCOMPARE(rec.timestampOf(records.at(3 * 50)), quint16(2));     // frame 50: 2000
    }

    void framesByRepetition()
    {
        const QString path = freshPath();
        RecordingWriter w;
        QVERIFY(w.open(path, 100, 0));
        for (int u : {1, 2, 3, 1, 2, 3, 1})
            w.write(quint16(u), dmx(4));
        QCOMPARE(w.framesWritten(), 2); // the third frame is still open
        w.close();
        QCOMPARE(w.framesWritten(), 3); // closing counts the partial frame
        Recording rec;
        QVERIFY(rec.load(path).ok);
        QCOMPARE(rec.timestampOf(rec.records().at(2)), quint16(0));
        QCOMPARE(rec.timestampOf(rec.records().at(3)), quint16(0)); // 100 / 1000
        QCOMPARE(rec.timestampOf(rec.records().at(6)), quint16(0)); // 200 / 1000
    }

    void framesByPause()
    {
        RecordingWriter w;
        QVERIFY(w.open(freshPath(), 40, 0));
        w.write(1, dmx(4));
        w.write(2, dmx(4));
        QThread::msleep(9); // more than the 7 ms gap
        w.write(3, dmx(4));
        QCOMPARE(w.framesWritten(), 1);
    }

    void reopenClosesAndClampsArguments()
    {
        const QString first = freshPath();
        RecordingWriter w;
        QVERIFY(w.open(first, 1000, -4));
        QCOMPARE(w.frameRate(), 240);
        QCOMPARE(w.recordsPerFrame(), 0);
        QCOMPARE(w.expectedRecordsPerFrame(), 0);
        w.write(1, dmx(4));
        QVERIFY(w.open(freshPath(), 0, 5));
        QCOMPARE(read(first).size(), 24);
        QCOMPARE(w.recordsWritten(), 0);
        QCOMPARE(w.frameRate(), 1);
        QCOMPARE(w.recordsPerFrame(), 5);
    }

    void appendsToExistingFile()
    {
        const QString path = freshPath();
        {
            RecordingWriter w;
            QVERIFY(w.open(path, 40, 2));
            for (int i = 0; i < 4; ++i)
                w.write(quint16(1 + i % 2), dmx(10));
        }
        const QByteArray before = read(path);
        RecordingWriter w;
        QVERIFY(w.open(path, 40, 2));
        QCOMPARE(w.sizeAtOpen(), before.size());
        QCOMPARE(w.fileSize(), before.size());
        for (int i = 0; i < 4; ++i)
            w.write(quint16(1 + i % 2), dmx(10, 0x22));
        QCOMPARE(w.fileSize(), 2 * before.size());
        w.close();
        QCOMPARE(w.bytesAppended(), before.size());
        QCOMPARE(w.framesWritten(), 2);
        const QByteArray after = read(path);
        QVERIFY(after.startsWith(before));
        Recording rec;
        QVERIFY(rec.load(path).ok);
        QCOMPARE(rec.frameCount(), 4);
        QCOMPARE(rec.dataOf(rec.recordAt(3, 1)), QByteArrayView(dmx(10, 0x22)));
    }

    void roundTripKel()
    {
        const QString path = freshPath();
        RecordingWriter w;
        QVERIFY(w.open(path, 30, 4));
        w.setSource(RecordFlavour::Kel, QStringLiteral("Mirra"));
        for (int f = 0; f < 60; ++f)
            for (quint16 u : {0x10, 0x11, 0x12, 0x13})
                w.write(u, dmx(512, char(f)));
        w.close();
        Recording rec;
        const auto result = rec.load(path);
        QVERIFY(result.ok);
        QCOMPARE(rec.formatLabel(), QStringLiteral("KEL (Mirra)"));
        QCOMPARE(rec.recordsPerFrame(), 4);
        QCOMPARE(rec.frameCount(), 60);
        QCOMPARE(rec.frameRecords(59).at(3).universe, quint16(0x13));
        QCOMPARE(rec.dataOf(rec.recordAt(42, 0)).at(511), char(42));
        QCOMPARE(rec.timestampOf(rec.recordAt(59, 3)), quint16(59 * 30 / 1000));
        QCOMPARE(rec.parsedBytes(), w.bytesAppended());
    }

    void openFailure()
    {
        RecordingWriter w;
        QVERIFY(!w.open(m_dir.filePath(QStringLiteral("no/such/folder/x.tpx")), 40, 0));
        QVERIFY(!w.lastError().isEmpty());
        QVERIFY(!w.write(1, dmx(4)) || !w.isOpen());
    }

    void diskFullIsReported()
    {
        if (!QFile::exists(QStringLiteral("/dev/full")))
            QSKIP("needs /dev/full");
        RecordingWriter w;
        QVERIFY(w.open(QStringLiteral("/dev/full"), 40, 1));
        QSignalSpy failures(&w, &RecordingWriter::writeFailed);
        bool ok = true;
        for (int i = 0; i < 100 && ok; ++i)
            ok = w.write(1, dmx(512));
        QVERIFY(!ok);
        QVERIFY(w.failed());
        QVERIFY(!w.failureReason().isEmpty());
        QVERIFY(!w.write(1, dmx(512)));
        QCOMPARE(failures.size(), 1);
        QCOMPARE(failures.at(0).at(0).toString(), w.failureReason());
    }
};

QTEST_GUILESS_MAIN(TestRecordingWriter)
#include "tst_recordingwriter.moc"
