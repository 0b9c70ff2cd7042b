#include "patch/patchdata.h"
#include "recording/gpsmetadatablock.h"
#include "recording/recording.h"
#include "testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// One plain ArtDmx record, Port-Address 0x0102, two slots, timestamp 0x0304.
const QByteArray kGoldenArtNet = QByteArray::fromHex("4172742d4e657400" // "Art-Net\0"
                                                     "0050"             // OpCode 0x5000, little-endian
                                                     "000e"             // protocol version 14
                                                     "07"               // sequence (not read)
                                                     "00"               // physical
                                                     "0201"   // Port-Address 0x0102: SubUni 0x02, Net 0x01
                                                     "0002"   // data length 2, big-endian
                                                     "ff80"   // DMX slots
                                                     "0403"); // timestamp 0x0304, little-endian

// One KEL record from device "KEL6S-A", Port-Address 5, three slots, timestamp 1.
const QByteArray kGoldenKel =
    QByteArray::fromHex("0100"                 // prefix, not interpreted
                        "4b454c36532d41000000" // device name "KEL6S-A", zero-padded to 10 bytes
                        "4172742d4e657400"     // "Art-Net\0"
                        "0053"                 // OpCode 0x5300
                        "000e0000"             // protocol version, sequence, physical
                        "0500"                 // Port-Address 5
                        "0003"                 // data length 3
                        "010203"               // DMX slots
                        "0100");               // timestamp 1

QByteArray artDmx(quint16 universe, int length = 4, quint16 stamp = 0)
{
    QByteArray r = QByteArray::fromHex("4172742d4e6574000050000e0000");
    r.append(char(universe & 0xFF)).append(char(universe >> 8));
    r.append(char(length >> 8)).append(char(length & 0xFF));
    r.append(QByteArray(length, char(universe)));
    r.append(char(stamp & 0xFF)).append(char(stamp >> 8));
    return r;
}

QByteArray sequence(std::initializer_list<int> universes)
{
    QByteArray out;
    for (int u : universes)
        out += artDmx(quint16(u));
    return out;
}

TPatch::PatchData patchOf(std::initializer_list<int> universes)
{
    TPatch::PatchData patch;
    TPatch::PatchGroup group;
    for (int u : universes) {
        TPatch::Torvoverse t;
        t.universe = quint16(u);
        group.torvoverses.append(t);
    }
    patch.groups.append(group);
    return patch;
}

QStringList texts(const QVector<TPatch::PatchMessage> &messages)
{
    QStringList out;
    for (const auto &m : messages)
        out.append(m.untranslatedText());
    return out;
}

const QString kGpsWarning = QStringLiteral(
    "GPS-Sync recording: this file holds one group's universes only. Records are mapped by universe number, "
    "so "
    "pixels outside that group stay dark. Use the GPS Mirra tab to play a full set of group files together.");

} // namespace

class TestRecording : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_dir.filePath(name);
        TestFiles::write(path, bytes);
        return path;
    }

private slots:
    void goldenArtNet()
    {
        Recording rec;
        const auto result = rec.load(write(QStringLiteral("golden.tpx"), kGoldenArtNet));
        QVERIFY(result.ok);
        QVERIFY(result.warnings.isEmpty());
        QCOMPARE(rec.records().size(), 1);
        const RecordRef ref = rec.recordAt(0, 0);
        QCOMPARE(ref, (RecordRef{18, 2, 0x0102, 18}));
        QCOMPARE(rec.dataOf(ref), QByteArrayView("\xff\x80", 2));
        QCOMPARE(rec.timestampOf(ref), quint16(0x0304));
        QCOMPARE(rec.formatLabel(), QStringLiteral("Art-Net"));
        QCOMPARE(rec.universes(), QVector<quint16>{0x0102});
        QCOMPARE(rec.parsedBytes(), qint64(kGoldenArtNet.size()));
        QCOMPARE(rec.frameCount(), 1);
        QCOMPARE(rec.firstRecordOffset(), 0);
        QVERIFY(!rec.isGpsSync());
    }

    void goldenKel()
    {
        Recording rec;
        QVERIFY(rec.load(write(QStringLiteral("kel.tpx"), kGoldenKel + kGoldenKel)).ok);
        QCOMPARE(rec.flavour(), RecordFlavour::Kel);
        QCOMPARE(rec.kelDeviceName(), QStringLiteral("KEL6S-A"));
        QCOMPARE(rec.formatLabel(), QStringLiteral("KEL (KEL6S-A)"));
        QCOMPARE(rec.records().size(), 2);
        QCOMPARE(rec.recordAt(0, 0), (RecordRef{30, 3, 5, 30}));
        QCOMPARE(rec.timestampOf(rec.records().at(1)), quint16(1));

        QByteArray unnamed = kGoldenKel;
        unnamed.replace(2, 10, QByteArray(10, '\0'));
        QVERIFY(rec.load(write(QStringLiteral("kel-unnamed.tpx"), unnamed)).ok);
        QCOMPARE(rec.formatLabel(), QStringLiteral("KEL"));
    }

    void gpsSync_data()
    {
        QTest::addColumn<int>("blockUniverseCount");
        QTest::addColumn<bool>("quiet");
        QTest::addColumn<int>("recordsPerFrame");
        // Six records of universes 1, 2, 1, 2, ...: the detected period is 2.
        QTest::newRow("block count used") << 3 << false << 3;
        QTest::newRow("zero ignored") << 0 << false << 2;
        QTest::newRow("above 64 ignored") << 65 << true << 2;
        QTest::newRow("more than the records ignored") << 7 << true << 2;
    }

    void gpsSync()
    {
        QFETCH(int, blockUniverseCount);
        QFETCH(bool, quiet);
        QFETCH(int, recordsPerFrame);
        GpsMetadataBlock block;
        block.universeCount = quint8(blockUniverseCount);
        block.frameByteSize = 0xDEADBEEF; // arbitrary: the reader does not check it
        const QByteArray head = block.toBytes();
        Recording rec;
        const auto result =
            rec.load(write(QStringLiteral("gps.tpx"), head + sequence({1, 2, 1, 2, 1, 2})), nullptr, quiet);
        QVERIFY(result.ok);
        QVERIFY(rec.isGpsSync());
        QCOMPARE(rec.firstRecordOffset(), 143);
        QCOMPARE(rec.formatLabel(), QStringLiteral("Art-Net GPS-Sync"));
        QCOMPARE(rec.gpsMetadataBlock(), head);
        QCOMPARE(rec.recordsPerFrame(), recordsPerFrame);
        QCOMPARE(rec.frameCount(), 6 / recordsPerFrame);
        QCOMPARE(texts(result.warnings), quiet ? QStringList() : QStringList{kGpsWarning});
        QCOMPARE(rec.parsedBytes(), 6 * 24);
    }

    void gpsSyncNeverMatchesPatch()
    {
        Recording rec;
        const TPatch::PatchData patch = patchOf({1, 2});
        QByteArray head(143, 'x'); // arbitrary bytes in front of the first record
        QVERIFY(
            rec.load(write(QStringLiteral("gps-patch.tpx"), head + sequence({1, 2, 1, 2})), &patch, true).ok);
        QVERIFY(!rec.matchesPatch());
        QCOMPARE(rec.recordsPerFrame(), 2);
    }

    void errors_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        const QString tooSmall = QStringLiteral("\"bad.tpx\" is too small to contain a single record.");
        const QString notDmx = QStringLiteral("\"bad.tpx\" does not start with an Art-Net or KEL DMX record. It "
                                              "is not a Torvane recording, or it is damaged.");
        const QString noRecords = QStringLiteral("\"bad.tpx\" contains no usable DMX records.");
        QTest::newRow("empty") << QByteArray() << tooSmall;
        QTest::newRow("19 bytes") << artDmx(1, 0).left(19) << tooSmall;
        QTest::newRow("random") << QByteArray::fromHex("8f3c11d2e4a07b55c3e91f0d2a6b7c8d9e0f1a2b3c4d5e6f708192a3b4")
                                << notDmx;
        QByteArray wrongOp = artDmx(1);
        wrongOp[9] = 0x20; // ArtPoll, not ArtDmx
        QTest::newRow("not ArtDmx") << wrongOp << notDmx;
        QTest::newRow("length past the end") << artDmx(1, 100).left(60) << noRecords;
        QByteArray kelTooShort = kGoldenKel;
        kelTooShort[29] = char(0xFF); // 255 slots announced, 3 present
        QTest::newRow("KEL length past the end") << kelTooShort << noRecords;
    }

    void errors()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        Recording rec;
        QVERIFY(rec.load(write(QStringLiteral("good.tpx"), kGoldenArtNet)).ok);
        const auto result = rec.load(write(QStringLiteral("bad.tpx"), bytes));
        QVERIFY(!result.ok);
        QCOMPARE(result.error.untranslatedText(), error);
        // A failed load leaves nothing of the previous file behind.
        QVERIFY(!rec.isLoaded());
        QVERIFY(rec.records().isEmpty());
        QCOMPARE(rec.frameCount(), 0);
        QVERIFY(rec.bytes().isEmpty());
    }

    void openErrors()
    {
        QDir(m_dir.path()).mkdir(QStringLiteral("folder.tpx"));
        for (const char *name : {"missing.tpx", "folder.tpx"}) {
            const auto result = Recording().load(m_dir.filePath(QLatin1String(name)));
            QVERIFY(!result.ok);
            QVERIFY(result.error.untranslatedText().startsWith(QStringLiteral("Could not open \"%1\": ").arg(QLatin1String(name))));
        }
    }

    void smallestRecord()
    {
        Recording rec;
        const QByteArray twenty = artDmx(7, 0, 9);
        QCOMPARE(twenty.size(), 20);
        QVERIFY(rec.load(write(QStringLiteral("twenty.tpx"), twenty)).ok);
        QCOMPARE(rec.frameCount(), 1);
        QCOMPARE(rec.timestampOf(rec.recordAt(0, 0)), quint16(9));
        QVERIFY(rec.dataOf(rec.recordAt(0, 0)).isEmpty());
    }

    void walkStops_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("records");
        QTest::addColumn<QStringList>("warnings");
        const auto stopped = [](int at, int of, int usable) {
            return QStringList{QStringLiteral("Stopped parsing at byte %1 of %2 - the file is truncated or contains "
                                              "a record this reader does not understand. %3 record(s) were usable.")
                                   .arg(at)
                                   .arg(of)
                                   .arg(usable)};
        };
        const QByteArray three = sequence({1, 2, 3});
        QTest::newRow("one stray byte") << three + "x" << 3 << QStringList();
        QTest::newRow("two stray bytes") << three + "xy" << 3 << QStringList();
        QTest::newRow("three stray bytes") << three + "xyz" << 3 << stopped(72, 75, 3);
        QTest::newRow("record cut short") << three + artDmx(4).left(21) << 3 << stopped(72, 93, 3);
        QTest::newRow("KEL after plain") << three + kGoldenKel << 3 << stopped(72, 107, 3);
        QTest::newRow("garbage in the middle")
            << sequence({1, 1}) + QByteArray(30, 'z') + sequence({1, 1}) << 2 << stopped(48, 126, 2);
    }

    void walkStops()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, records);
        QFETCH(QStringList, warnings);
        Recording rec;
        const auto result = rec.load(write(QStringLiteral("walk.tpx"), bytes));
        QVERIFY(result.ok);
        QCOMPARE(rec.records().size(), records);
        QCOMPARE(rec.parsedBytes(), qint64(records) * 24);
        QCOMPARE(texts(result.warnings), warnings);
    }

    void period_data()
    {
        QTest::addColumn<QVector<int>>("universes");
        QTest::addColumn<int>("period");
        QTest::newRow("single") << QVector<int>{5} << 1;
        QTest::newRow("constant") << QVector<int>{5, 5, 5, 5} << 1;
        QTest::newRow("three") << QVector<int>{1, 2, 3, 1, 2, 3} << 3;
        QTest::newRow("not dividing") << QVector<int>{1, 2, 3, 1, 2, 3, 1, 2} << 8;
        QTest::newRow("palindrome") << QVector<int>{1, 2, 2, 1} << 4;
        QVector<int> longFrame; // 5000 distinct universes twice: the period lies beyond 4096
        for (int pass = 0; pass < 2; ++pass)
            for (int u = 0; u < 5000; ++u)
                longFrame.append(u);
        QTest::newRow("beyond 4096") << longFrame << 10000;
        QVector<int> atLimit;
        for (int pass = 0; pass < 3; ++pass)
            for (int u = 0; u < 4096; ++u)
                atLimit.append(u);
        QTest::newRow("exactly 4096") << atLimit << 4096;
    }

    void period()
    {
        QFETCH(QVector<int>, universes);
        QFETCH(int, period);
        QVector<RecordRef> refs;
        for (int u : universes)
            refs.append(RecordRef{0, 0, quint16(u), 18});
        QCOMPARE(Recording::detectPeriod(refs), quint32(period));
    }

    void patchMatch_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("matches");
        QTest::addColumn<int>("recordsPerFrame");
        QTest::addColumn<int>("frames");
        QTest::addColumn<QStringList>("warnings");
        const auto mismatch = [](int period) {
            return QStringList{QStringLiteral("This recording does not match the loaded patch: the patch expects 3 "
                                              "record(s) per frame in a fixed order, but the file repeats every %1. "
                                              "Playback will follow the file and map records by universe number, "
                                              "which cannot separate devices that share a universe.")
                                   .arg(period)};
        };
        QTest::newRow("matches with a partial frame")
            << sequence({1, 2, 3, 1, 2, 3, 1, 2}) << true << 3 << 2
            << QStringList{QStringLiteral("2 trailing record(s) do not form a complete frame and are ignored.")};
        QTest::newRow("matches exactly") << sequence({1, 2, 3, 1, 2, 3}) << true << 3 << 2 << QStringList();
        QTest::newRow("other layout") << sequence({1, 2, 1, 2}) << false << 2 << 2 << mismatch(2);
        QTest::newRow("shorter than one frame") << sequence({1, 2}) << false << 2 << 1 << mismatch(2);
        QTest::newRow("wrong trailing record") << sequence({1, 2, 3, 1, 2, 3, 1, 3}) << false << 8 << 1 << mismatch(8);
    }

    void patchMatch()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, matches);
        QFETCH(int, recordsPerFrame);
        QFETCH(int, frames);
        QFETCH(QStringList, warnings);
        // Torvoverse universes 1, 2, 3 on Net 0 / Sub-Net 0: Port-Addresses 1, 2, 3.
        const TPatch::PatchData patch = patchOf({1, 2, 3});
        Recording rec;
        const auto result = rec.load(write(QStringLiteral("patch.tpx"), bytes), &patch);
        QVERIFY(result.ok);
        QCOMPARE(rec.matchesPatch(), matches);
        QCOMPARE(rec.recordsPerFrame(), recordsPerFrame);
        QCOMPARE(rec.frameCount(), frames);
        QCOMPARE(texts(result.warnings), warnings);
    }

    void noPatchOrEmptyPatch()
    {
        Recording rec;
        const QString path = write(QStringLiteral("plain.tpx"), sequence({1, 2, 1, 2}));
        QVERIFY(rec.load(path).ok);
        QVERIFY(!rec.matchesPatch());
        const TPatch::PatchData empty;
        const auto result = rec.load(path, &empty);
        QVERIFY(result.warnings.isEmpty());
        QVERIFY(!rec.matchesPatch());
        QCOMPARE(rec.recordsPerFrame(), 2);
    }

    void framesAndLookups()
    {
        Recording rec;
        QByteArray bytes;
        for (int f = 0; f < 4; ++f)
            bytes += artDmx(10, 2, quint16(f)) + artDmx(11, 2, quint16(f));
        QVERIFY(rec.load(write(QStringLiteral("frames.tpx"), bytes)).ok);
        QCOMPARE(rec.frameCount(), 4);
        QCOMPARE(rec.universes(), (QVector<quint16>{10, 11}));
        QCOMPARE(rec.frameRecords(2).size(), 2);
        QCOMPARE(rec.frameRecords(2).at(1).universe, quint16(11));
        QCOMPARE(rec.timestampOf(rec.recordAt(3, 0)), quint16(3));
        QVERIFY(rec.recordAt(4, 0).isNull());
        QVERIFY(rec.recordAt(-1, 0).isNull());
        QVERIFY(rec.recordAt(0, 2).isNull());
        QVERIFY(rec.recordAt(0, -1).isNull());
        QVERIFY(rec.frameRecords(4).isEmpty());
        QVERIFY(rec.frameRecords(-1).isEmpty());
        // A reference whose timestamp would lie past the end of the file.
        QCOMPARE(rec.timestampOf(RecordRef{qint64(bytes.size()) - 1, 2, 0, 18}), quint16(0));
        QVERIFY(rec.dataOf(RecordRef{qint64(bytes.size()) - 1, 2, 0, 18}).isEmpty());

        QVERIFY(rec.load(write(QStringLiteral("sorted.tpx"), sequence({0x0203, 7, 0x0100, 7}))).ok);
        QCOMPARE(rec.universes(), (QVector<quint16>{7, 0x0100, 0x0203}));
    }

    void bytesLoadAsTheFileWould()
    {
        QByteArray bytes;
        for (int f = 0; f < 3; ++f)
            bytes += artDmx(10, 2, quint16(f)) + artDmx(11, 2, quint16(f));
        Recording fromFile;
        Recording fromBytes;
        QVERIFY(fromFile.load(write(QStringLiteral("same.tpx"), bytes)).ok);
        QVERIFY(fromBytes.loadData(bytes, QStringLiteral("same.tpx")).ok);
        QCOMPARE(fromBytes.path(), QStringLiteral("same.tpx"));
        QCOMPARE(fromBytes.records(), fromFile.records());
        QCOMPARE(fromBytes.frameCount(), fromFile.frameCount());
        QCOMPARE(fromBytes.timestampOf(fromBytes.recordAt(2, 1)), quint16(2));
        const RecordingLoadResult tooSmall = fromBytes.loadData(bytes.left(10), QStringLiteral("cut.tpx"));
        QCOMPARE(tooSmall.error.untranslatedText(), QStringLiteral("\"cut.tpx\" is too small to contain a single record."));
        QVERIFY(!fromBytes.isLoaded());
    }

    void randomBytesNeverCrash()
    {
        // Records with random bytes after a valid start, and random cuts of a
        // valid file: every load ends in a result, whatever the bytes.
        QRandomGenerator rng(4242);
        const QByteArray valid = sequence({1, 2, 3, 1, 2, 3}) + kGoldenKel;
        for (int i = 0; i < 200; ++i) {
            QByteArray bytes = valid.left(int(rng.bounded(valid.size() + 1)));
            for (int flips = int(rng.bounded(4)); flips > 0 && !bytes.isEmpty(); --flips)
                bytes[int(rng.bounded(bytes.size()))] = char(rng.bounded(256));
            if (rng.bounded(2))
                bytes = QByteArray(143, char(rng.bounded(256))) + bytes;
            Recording rec;
            const auto result = rec.load(write(QStringLiteral("fuzz.tpx"), bytes));
            QCOMPARE(result.ok, result.error.isEmpty());
            if (result.ok) {
                QVERIFY(rec.frameCount() > 0);
                QVERIFY(rec.firstRecordOffset() + rec.parsedBytes() <= bytes.size());
                for (const RecordRef &r : rec.records())
                    QVERIFY(r.dataOffset + r.length + 2 <= bytes.size());
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestRecording)
#include "tst_recording.moc"
