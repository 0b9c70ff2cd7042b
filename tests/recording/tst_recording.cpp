#include "patch/patchdata.h"
#include "recording/gpsmetadatablock.h"
#include "recording/recording.h"
#include "testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// One plain ArtDmx record: "Art-Net\0", OpCode 0x5000 (little-endian), protocol version 14, sequence 7
// (not read), physical, Port-Address 0x0102 (SubUni 0x02, Net 0x01), length 2 (big-endian), two slots,
// timestamp 0x0304 (little-endian).
const QByteArray kGoldenArtNet = QByteArray::fromHex("4172742d4e657400 0050 000e 07 00 0201 0002 ff80 0403");
// One KEL record: a prefix we do not interpret, device name "KEL6S-A" zero-padded to 10 bytes, "Art-Net\0",
// OpCode 0x5300, protocol version, sequence, physical, Port-Address 5, length 3, three slots, stamp 1.
const QByteArray kGoldenKel =
    QByteArray::fromHex("0100 4b454c36532d41000000 4172742d4e657400 0053 000e0000 0500 0003 010203 0100");

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

// One group on these universes; no group at all for none.
TPatch::PatchData patchOf(const QVector<int> &universes)
{
    TPatch::PatchData patch;
    TPatch::PatchGroup group;
    for (int u : universes) {
        TPatch::Torvoverse t;
        t.universe = quint16(u);
        group.torvoverses.append(t);
    }
    if (!universes.isEmpty())
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
    "so pixels outside that group stay dark. Use the GPS Mirra tab to play a full set of group files together.");

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
    // Files of whole records: the first record, its slots, the last record's stamp and the label.
    void goldenFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("records");
        QTest::addColumn<QVector<int>>("first"); // data offset, length, Port-Address, header size
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<int>("lastStamp");
        QTest::addColumn<QString>("label");
        QByteArray unnamed = kGoldenKel;
        unnamed.replace(2, 10, QByteArray(10, '\0'));
        QTest::newRow("Art-Net") << kGoldenArtNet << 1 << QVector<int>{18, 2, 0x0102, 18}
                                 << QByteArray("\xff\x80", 2) << 0x0304 << "Art-Net";
        QTest::newRow("smallest record, 20 bytes")
            << artDmx(7, 0, 9) << 1 << QVector<int>{18, 0, 7, 18} << QByteArray() << 9 << "Art-Net";
        QTest::newRow("KEL") << kGoldenKel + kGoldenKel << 2 << QVector<int>{30, 3, 5, 30}
                             << QByteArray("\1\2\3", 3) << 1 << "KEL (KEL6S-A)";
        QTest::newRow("KEL without a name")
            << unnamed << 1 << QVector<int>{30, 3, 5, 30} << QByteArray("\1\2\3", 3) << 1 << "KEL";
    }
    void goldenFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, records);
        QFETCH(QVector<int>, first);
        QFETCH(QByteArray, data);
        QFETCH(int, lastStamp);
        QFETCH(QString, label);
        Recording rec;
        const auto result = rec.load(write(QStringLiteral("golden.tpx"), bytes));
        QVERIFY(result.ok);
        QVERIFY(result.warnings.isEmpty());
        QCOMPARE(rec.records().size(), records);
        const RecordRef ref = rec.recordAt(0, 0);
        QCOMPARE(ref, (RecordRef{first[0], quint16(first[1]), quint16(first[2]), first[3]}));
        QCOMPARE(rec.dataOf(ref), QByteArrayView(data));
        QCOMPARE(rec.timestampOf(rec.records().constLast()), quint16(lastStamp));
        QCOMPARE(rec.formatLabel(), label);
        const bool kel = label.startsWith(QLatin1String("KEL"));
        QCOMPARE(rec.flavour(), kel ? RecordFlavour::Kel : RecordFlavour::ArtNet);
        QCOMPARE(rec.kelDeviceName(), kel && label.size() > 3 ? label.mid(5, label.size() - 6) : QString());
        QCOMPARE(rec.universes(), QVector<quint16>{quint16(first[2])});
        QCOMPARE(rec.parsedBytes(), qint64(bytes.size()));
        QCOMPARE(rec.frameCount(), records);
        QCOMPARE(rec.firstRecordOffset(), 0);
        QVERIFY(!rec.isGpsSync());
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
        for (const QString &name : {QStringLiteral("missing.tpx"), QStringLiteral("folder.tpx")}) {
            const auto result = Recording().load(m_dir.filePath(name));
            QVERIFY(!result.ok);
            const QString prefix = QStringLiteral("Could not open \"%1\": ").arg(name);
            QVERIFY(result.error.untranslatedText().startsWith(prefix));
        }
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
        QVERIFY(!rec.matchesPatch()); // no patch given
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
        QVector<int> longFrame, atLimit; // 5000 distinct universes twice: the period lies beyond 4096
        for (int i = 0; i < 2 * 5000; ++i)
            longFrame.append(i % 5000);
        for (int i = 0; i < 3 * 4096; ++i)
            atLimit.append(i % 4096);
        QTest::newRow("beyond 4096") << longFrame << 10000;
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
        QTest::addColumn<QVector<int>>("patch"); // torvoverse universes on Net 0 / Sub-Net 0: Port-Addresses
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
        const QVector<int> p{1, 2, 3};
        QTest::newRow("matches with a partial frame")
            << sequence({1, 2, 3, 1, 2, 3, 1, 2}) << p << true << 3 << 2
            << QStringList{QStringLiteral("2 trailing record(s) do not form a complete frame and are ignored.")};
        QTest::newRow("matches exactly") << sequence({1, 2, 3, 1, 2, 3}) << p << true << 3 << 2 << QStringList();
        QTest::newRow("other layout") << sequence({1, 2, 1, 2}) << p << false << 2 << 2 << mismatch(2);
        QTest::newRow("shorter than one frame") << sequence({1, 2}) << p << false << 2 << 1 << mismatch(2);
        QTest::newRow("wrong trailing record")
            << sequence({1, 2, 3, 1, 2, 3, 1, 3}) << p << false << 8 << 1 << mismatch(8);
        QTest::newRow("empty patch") << sequence({1, 2, 1, 2}) << QVector<int>() << false << 2 << 2
                                     << QStringList();
        // Arbitrary bytes in front of the first record make a GPS-Sync file: it never matches a patch.
        QTest::newRow("GPS-Sync") << QByteArray(143, 'x') + sequence({1, 2, 1, 2}) << QVector<int>{1, 2} << false
                                  << 2 << 2 << QStringList{kGpsWarning};
    }
    void patchMatch()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QVector<int>, patch);
        QFETCH(bool, matches);
        QFETCH(int, recordsPerFrame);
        QFETCH(int, frames);
        QFETCH(QStringList, warnings);
        const TPatch::PatchData patchData = patchOf(patch);
        Recording rec;
        const auto result = rec.load(write(QStringLiteral("patch.tpx"), bytes), &patchData);
        QVERIFY(result.ok);
        QCOMPARE(rec.matchesPatch(), matches);
        QCOMPARE(rec.recordsPerFrame(), recordsPerFrame);
        QCOMPARE(rec.frameCount(), frames);
        QCOMPARE(texts(result.warnings), warnings);
    }

    void framesAndLookups()
    {
        QByteArray bytes;
        for (int f = 0; f < 4; ++f)
            bytes += artDmx(10, 2, quint16(f)) + artDmx(11, 2, quint16(f));
        Recording rec;
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

        // The same bytes from memory load as the file did.
        Recording fromBytes;
        QVERIFY(fromBytes.loadData(bytes, QStringLiteral("same.tpx")).ok);
        QCOMPARE(fromBytes.path(), QStringLiteral("same.tpx"));
        QCOMPARE(fromBytes.records(), rec.records());
        QCOMPARE(fromBytes.frameCount(), rec.frameCount());
        QCOMPARE(fromBytes.timestampOf(fromBytes.recordAt(2, 1)), quint16(2));
        const RecordingLoadResult tooSmall = fromBytes.loadData(bytes.left(10), QStringLiteral("cut.tpx"));
        QCOMPARE(tooSmall.error.untranslatedText(),
                 QStringLiteral("\"cut.tpx\" is too small to contain a single record."));
        QVERIFY(!fromBytes.isLoaded());

        QVERIFY(rec.load(write(QStringLiteral("sorted.tpx"), sequence({0x0203, 7, 0x0100, 7}))).ok);
        QCOMPARE(rec.universes(), (QVector<quint16>{7, 0x0100, 0x0203}));
    }

    void randomBytesNeverCrash()
    {
        // Random cuts and damage of a valid file, with or without a block in front: always a result.
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
