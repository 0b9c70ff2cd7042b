#include "gpstestset.h"

#include "recording/gpscheck.h"
#include "recording/gpssyncset.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace GpsTest;

namespace {

enum Fault
{
    Clean, NoPatch, MissingFile, SamePathTwice, NotOnDisk, Garbage, Folder, NoGpsBlock, ExtraUniverse,
    NoDrawable, SwappedOrder, ControllerUniverseField, WrongFrameByteSize, WrongUniverseByteLength,
    AbsurdBlock, TrailingRecord, ThreeFramesShort, StaleHeaderCount, DriftBetweenFiles, OneApartInsideFrame,
    UncoveredUniverse, SharedUniverse
};

// Builds the set for a fault: the clean set with one thing wrong.
struct Built
{
    TPatch::PatchData patch = GpsTest::patch();
    QStringList paths;
};

Built build(Fault fault, const QString &dir)
{
    Built b;
    if (fault == NoDrawable)
        b.patch = GpsTest::patch(false);
    // Roof's first torvoverse: Sub-Net 1, universe 4 → Port-Address 0x14.
    if (fault == ControllerUniverseField)
        b.patch.groups[2].torvoverses[0].subNet = 1;
    QVector<QByteArray> files;
    for (int g = 0; g < b.patch.groups.size(); ++g) {
        GpsRecordingPlan s = plan(b.patch, g);
        if (fault == ExtraUniverse && g == 0) {
            s.universes.append(7);
            s.lengths.append(kLength);
        }
        if (fault == SwappedOrder && g == 0)
            std::swap(s.universes[0], s.universes[1]);
        if (fault == ControllerUniverseField && g == 2)
            s.universes[0] = 0x104; // (subNet << 8) | universe, as the controller writes a GPS record
        if (fault == UncoveredUniverse && g == 2)
            s.universes[2] = 9;
        if (fault == SharedUniverse && g == 1)
            s.universes[0] = 1;
        if (fault == ThreeFramesShort && g == 1)
            s.frames = kFrames - 3;
        files.append(gpsRecordingBytes(s, pattern()));
    }
    QByteArray &roof = files[2];
    if (fault == NoGpsBlock)
        roof.remove(0, 143);
    if (fault == WrongFrameByteSize)
        qToLittleEndian<quint64>(3 * kRecordSize + 1, roof.data());
    if (fault == WrongUniverseByteLength) // entry 1; frameByteSize stays right
        qToLittleEndian<quint16>(kRecordSize + 2, roof.data() + 13 + 2);
    if (fault == AbsurdBlock) { // every field at its largest; the reader falls back to the detected period
        qToLittleEndian<quint64>(~quint64(0), roof.data());
        qToLittleEndian<quint32>(~quint32(0), roof.data() + 8);
        roof[12] = char(0xFF);
        roof.replace(13, 128, QByteArray(128, char(0xFF)));
    }
    if (fault == TrailingRecord)
        roof += roof.mid(recordOffset(0), kRecordSize);
    if (fault == StaleHeaderCount)
        qToLittleEndian<quint32>(0, roof.data() + 8);
    // Drift: from frame 10 on, Roof is two stamps ahead.
    for (int f = 10; fault == DriftBetweenFiles && f < kFrames; ++f)
        for (int r = 0; r < 3; ++r)
            setStamp(&roof, f * 3 + r, quint16(gpsFrameStamp(f, 40) + 2));
    if (fault == OneApartInsideFrame) // every file agrees on frame 5's first record; Roof's last is one later
        setStamp(&roof, 5 * 3 + 2, quint16(gpsFrameStamp(5, 40) + 1));
    for (int g = 0; g < files.size(); ++g)
        b.paths.append(writeGroup(dir, b.patch, g, files.at(g)));
    if (fault == MissingFile)
        b.paths[2].clear();
    if (fault == SamePathTwice)
        b.paths[1] = b.paths[0];
    if (fault == NotOnDisk)
        b.paths[2] = QDir(dir).filePath(QStringLiteral("gone.tpx"));
    if (fault == Garbage)
        write(b.paths[2], QByteArray("PK\x03\x04 this is a zip file, not a recording"));
    if (fault == Folder) {
        QDir(dir).mkdir(QStringLiteral("folder.tpx"));
        b.paths[2] = QDir(dir).filePath(QStringLiteral("folder.tpx"));
    }
    return b;
}

const GpsCheck *findCheck(const GpsVerification &v, const QString &title)
{
    for (const GpsCheck &c : v.checks)
        if (c.title.untranslatedText() == title)
            return &c;
    return nullptr;
}

QString report(const GpsVerification &v)
{
    QString out;
    for (const GpsCheck &c : v.checks)
        out += GpsCheck::verdictWord(c.verdict) + QStringLiteral("  ") + c.title.untranslatedText() + u'\n' +
               c.untranslatedDetailText() + u'\n';
    return out;
}

} // namespace

class TestGpsVerifier : public QObject
{
    Q_OBJECT

private slots:
    void cleanSetPassesEveryCheck();
    void findings_data();
    void findings();
    void longListsAreCut();
    void damagedFilesNeverCrash();

private:
    QTemporaryDir m_dir;
};

void TestGpsVerifier::cleanSetPassesEveryCheck()
{
    const Built b = build(Clean, m_dir.path());
    GpsSyncSet set;
    const GpsVerification &v = load(set, b.patch, b.paths);
    QStringList titles;
    for (const GpsCheck &c : v.checks) {
        QCOMPARE(c.verdict, GpsCheck::Pass);
        titles.append(c.title.untranslatedText());
    }
    QCOMPARE(titles,
             QStringList({
                 QStringLiteral("3 group(s), 3 recording(s) supplied"),
                 QStringLiteral("All 3 file(s) carry the 143-byte GPS metadata block"),
                 QStringLiteral("Universe count per frame matches the patch in every group"),
                 QStringLiteral("Record order inside a frame matches the patch in every group"),
                 QStringLiteral("Frame byte size in the header matches the packets on disk"),
                 QStringLiteral("Every frame occupies exactly the same number of bytes"),
                 QStringLiteral("All 3 recording(s) are exactly 20 frame(s) long"),
                 QStringLiteral("Frame count in the header matches the packets on disk"),
                 QStringLiteral("Timestamps are in lockstep across all 3 file(s), over all 20 frame(s)"),
                 QStringLiteral("The set covers all 6 torvoverse(s) in the patch"),
             }));
    QCOMPARE(v.checks.first().untranslatedDetailText(),
             QStringLiteral(
                 "Front = show_Front.tpx\nBack_Stage Left = show_Back_Stage Left.tpx\nRoof = show_Roof.tpx"));
    QCOMPARE(v.summary.untranslatedText(),
             QStringLiteral("3 group(s) - 20 frames - structure and sync verified"));
    QVERIFY(set.isLoaded());
    QCOMPARE(set.frameCount(), 20);
}

void TestGpsVerifier::findings_data()
{
    QTest::addColumn<int>("fault");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("detail"); // a part of the detail
    QTest::addColumn<QString>("summary");

    const auto armed = [](int failures, int warnings, int frames = 20) {
        return QStringLiteral(
                   "3 group(s) - %1 frames - %2 failure(s), %3 warning(s); playback is enabled so you "
                   "can see them")
            .arg(frames)
            .arg(failures)
            .arg(warnings);
    };
    const QString armedWithFailure = armed(1, 0);
    const QString armedWithWarning = armed(0, 1);
    const QString noFrame = QStringLiteral("The set holds no complete frame.");

    QTest::newRow("no patch") << int(NoPatch) << "No patch loaded" << 2
                              << "A GPS-Sync set is defined by the patch: one recording per group. Load a "
                                 ".tpatch first."
                              << "No patch loaded.";
    QTest::newRow("a group without a file")
        << int(MissingFile) << "1 of 3 group(s) have no recording" << 2
        << "A GPS-Sync show is only complete when every group has its own file. Missing: Roof"
        << "1 recording(s) still missing.";
    // Front's file also fails Back's universe count and order, and shares its universes.
    QTest::newRow("same path twice") << int(SamePathTwice)
                                     << "The same file is assigned to more than one group" << 2
                                     << "show_Front.tpx (Front, Back_Stage Left). Each group has its own "
                                        "recording"
                                     << armed(3, 2);
    QTest::newRow("file not on disk")
        << int(NotOnDisk) << "gone.tpx: file cannot be read" << 2 << "Could not open \"gone.tpx\"" << noFrame;
    QTest::newRow("another format") << int(Garbage) << "show_Roof.tpx: file cannot be read" << 2
                                    << "does not start with an Art-Net or KEL DMX record" << noFrame;
    QTest::newRow("a folder") << int(Folder) << "folder.tpx: file cannot be read" << 2
                              << "\"folder.tpx\" is a folder, not a recording." << noFrame;
    QTest::newRow("no GPS block") << int(NoGpsBlock) << "1 file(s) are not GPS-Sync recordings" << 2
                                  << "show_Roof.tpx - these files begin directly with an Art-Net packet"
                                  << armedWithFailure;
    QTest::newRow("extra universe")
        << int(ExtraUniverse) << "Universe count per frame does not match the patch" << 2
        << "Front: file has 3, patch expects 2. The recording was made from a different patch"
        << armedWithFailure;
    QTest::newRow("nothing drawable")
        << int(NoDrawable) << "Patch has no drawable universes to compare against" << 1
        << "nothing verifies that their universe layout matches this patch." << armedWithWarning;
    QTest::newRow("swapped order") << int(SwappedOrder)
                                   << "Record order inside a frame does not match the patch" << 2
                                   << "Front (record 1 is universe 0x0002, patch expects 0x0001; expected "
                                      "order 0x0001, 0x0002). Every pixel"
                                   << armedWithFailure;
    QTest::newRow("controller's universe field")
        << int(ControllerUniverseField) << "Record order inside a frame matches the patch in every group" << 0
        << ""
        << "3 group(s) - 20 frames - structure and sync verified";
    QTest::newRow("frameByteSize off by one")
        << int(WrongFrameByteSize) << "Frame byte size in the header is wrong" << 2
        << "show_Roof.tpx: header says 97 bytes per frame, the file measures 96; show_Roof.tpx: "
           "universeByteLength sums to 96 but frameByteSize says 97. A GPS device seeks"
        << armedWithFailure;
    QTest::newRow("one universeByteLength entry")
        << int(WrongUniverseByteLength) << "Frame byte size in the header is wrong" << 2
        << "show_Roof.tpx: universeByteLength sums to 98 but frameByteSize says 96. A GPS"
        << armedWithFailure;
    QTest::newRow("absurd block")
        << int(AbsurdBlock) << "Frame byte size in the header is wrong" << 2
        << "show_Roof.tpx: header says 18446744073709551615 bytes per frame, the file measures 96; "
           "show_Roof.tpx: universeByteLength sums to 4194240 but frameByteSize says 18446744073709551615."
        << armed(1, 1);
    QTest::newRow("a trailing record")
        << int(TrailingRecord) << "Some files carry bytes that do not form a whole frame" << 1
        << "show_Roof.tpx: 1952 usable byte(s), 1920 expected for 20 frame(s). The recording was cut short"
        << armedWithWarning;
    QTest::newRow("three frames short")
        << int(ThreeFramesShort) << "Recordings differ in length by 3 frame(s)" << 2
        << "show_Front.tpx: 20; show_Back_Stage Left.tpx: 17; show_Roof.tpx: 20. GPS devices stay locked by "
           "frame index, so the show falls apart as soon as the shortest file ends. Playback here stops at "
           "frame 17."
        << armed(1, 0, 17);
    QTest::newRow("stale header count")
        << int(StaleHeaderCount) << "Frame count in the header is out of date" << 1
        << "show_Roof.tpx: header says 0, file holds 20. MOX writes this number" << armedWithWarning;
    QTest::newRow("drift between files")
        << int(DriftBetweenFiles) << "Timestamps drift by up to 2 s between files" << 2
        << "First seen at frame 10. MOX stamps every group" << armedWithFailure;
    // One apart inside a frame of one file: the spread across files includes that file's own two stamps.
    QTest::newRow("one apart inside a frame")
        << int(OneApartInsideFrame) << "Timestamps drift by up to 1 s between files" << 2
        << "First seen at frame 5." << armedWithFailure;
    QTest::newRow("a universe not covered")
        << int(UncoveredUniverse) << "The set carries 5 universe(s); the patch has 6" << 1
        << "Pixels with no record behind them stay dark for the whole run." << armed(1, 1);
    QTest::newRow("a shared universe")
        << int(SharedUniverse) << "Two or more groups share a universe" << 1
        << "Universe(s) 0x0001. Two files write the same pixels and the last one drawn wins." << armed(1, 2);
}

void TestGpsVerifier::findings()
{
    QFETCH(int, fault);
    QFETCH(QString, title);
    QFETCH(int, verdict);
    QFETCH(QString, detail);
    QFETCH(QString, summary);

    QTemporaryDir dir;
    const Built b = build(Fault(fault), dir.path());
    GpsSyncSet set;
    const GpsVerification &v = load(set, b.patch, b.paths, fault != NoPatch);
    const GpsCheck *c = findCheck(v, title);
    QVERIFY2(c, qPrintable(report(v)));
    QCOMPARE(int(c->verdict), verdict);
    QVERIFY2(c->untranslatedDetailText().contains(detail), qPrintable(c->untranslatedDetailText()));
    QCOMPARE(v.summary.untranslatedText(), summary);
    QCOMPARE(set.isLoaded(), v.frameCount > 0);

    if (fault == NoPatch || fault == MissingFile) { // nothing else can be judged, nothing plays
        QCOMPARE(v.checks.size(), 1);
        QVERIFY(!set.isLoaded() && set.frame(0).isEmpty());
    }
    if (fault == SamePathTwice) // both groups still load
        QVERIFY(set.member(0).isReadable() && set.member(1).isReadable());
    if (fault == ThreeFramesShort) { // armed all the same, on the shortest file
        QCOMPARE(v.failures, 1);
        QCOMPARE(set.frameCount(), kFrames - 3);
        QCOMPARE(set.frame(kFrames - 4).size(), 6);
        QVERIFY(set.frame(kFrames - 3).isEmpty());
        QVERIFY(set.frame(-1).isEmpty());
    }
    if (fault == NotOnDisk || fault == Garbage || fault == Folder) {
        // One bad member never stops the checks of the others.
        QCOMPARE(v.unreadableSummary.untranslatedText(), QStringLiteral("1 of 3 file(s) could not be read."));
        QVERIFY(findCheck(v, QStringLiteral("All 2 file(s) carry the 143-byte GPS metadata block")));
        QVERIFY(findCheck(v, QStringLiteral("All 2 recording(s) are exactly 20 frame(s) long")));
    }
}

void TestGpsVerifier::longListsAreCut()
{
    GpsCheck c;
    c.detail = TPatch::PatchMessage("%1. Then %2.", {qint64(7)});
    for (int i = 0; i < 11; ++i)
        c.items.append(TPatch::PatchMessage("%1", {qint64(i)}));
    QCOMPARE(c.untranslatedDetailText(), QStringLiteral("0; 1; 2; 3; 4; 5; 6; 7 (+3 more). Then 7."));
    c.items.resize(GpsCheck::kMaxListedItems);
    QCOMPARE(c.untranslatedDetailText(), QStringLiteral("0; 1; 2; 3; 4; 5; 6; 7. Then 7."));
    c.listStyle = GpsCheck::ListStyle::Lines;
    c.items.resize(11);
    QCOMPARE(c.untranslatedDetailText().count(u'\n'), 10);
}

// Random damage anywhere in a member (block, headers, lengths, stamps, a cut
// end): every outcome is a report, never a crash (the sanitizers watch).
void TestGpsVerifier::damagedFilesNeverCrash()
{
    QTemporaryDir dir;
    const Built clean = build(Clean, dir.path());
    const QByteArray roof = TestFiles::read(clean.paths.at(2));
    QVERIFY(!roof.isEmpty());
    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes = roof;
        for (int n = random.bounded(1, 8); n > 0; --n)
            bytes[random.bounded(int(bytes.size()))] = char(random.bounded(256));
        if (round % 3 == 0)
            bytes.truncate(random.bounded(int(bytes.size())));
        QVERIFY(!write(clean.paths.at(2), bytes).isEmpty());
        GpsSyncSet set;
        const GpsVerification &v = load(set, clean.patch, clean.paths);
        QVERIFY(!v.checks.isEmpty() && !v.summary.isEmpty());
        for (qint64 f = 0; f < set.frameCount(); ++f)
            for (const GpsFrameRecord &r : set.frame(f))
                QVERIFY(r.data.size() <= 512);
        set.timestampDifferenceAt(set.frameCount() - 1);
    }
}

QTEST_GUILESS_MAIN(TestGpsVerifier)
#include "tst_gpsverifier.moc"
