#include "gpstestset.h"

#include "recording/gpssyncset.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace GpsTest;

class TestGpsSyncSet : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void framesInPatchOrderAndStampDifferences();
    void controllerUniverseFieldPlaysOnItsPortAddress();
    void autoFillKeepsUnmatchedPathsAndPathChangesUnload();
    void aSetOfOne();

private:
    QString writeGroup(int group, const QByteArray &bytes)
    {
        return GpsTest::writeGroup(m_dir->path(), m_patch, group, bytes);
    }
    QStringList writeAll()
    {
        QStringList paths;
        for (int g = 0; g < m_patch.groups.size(); ++g)
            paths.append(writeGroup(g, fileBytes(m_patch, g)));
        return paths;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    TPatch::PatchData m_patch = GpsTest::patch();
};

void TestGpsSyncSet::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_patch = GpsTest::patch();
}

void TestGpsSyncSet::framesInPatchOrderAndStampDifferences()
{
    QStringList paths = writeAll();
    QByteArray roof = fileBytes(m_patch, 2);
    for (int r = 0; r < 3; ++r) // Roof's frame 12 two stamps ahead
        setStamp(&roof, 12 * 3 + r, quint16(gpsFrameStamp(12, 40) + 2));
    paths[2] = writeGroup(2, roof);
    GpsSyncSet set;
    QCOMPARE(set.timestampDifferenceAt(0), 0); // nothing loaded
    load(set, m_patch, paths);
    const QVector<GpsFrameRecord> frame = set.frame(7);
    QVector<quint16> universes;
    for (const GpsFrameRecord &r : frame)
        universes.append(r.portAddress);
    QCOMPARE(universes, QVector<quint16>({1, 2, 3, 4, 5, 6}));
    // Roof's second record of frame 7: the generator's pattern frame + slot + i.
    QCOMPARE(frame.at(4).data.size(), kLength);
    QCOMPARE(int(frame.at(4).data.at(2)), 7 + 1 + 2);
    QCOMPARE(set.universes(), QVector<quint16>({1, 2, 3, 4, 5, 6}));
    QCOMPARE(set.groupNames(), QStringList({"Front", "Back_Stage Left", "Roof"}));
    QCOMPARE(set.timestampDifferenceAt(11), 0);
    QCOMPARE(set.timestampDifferenceAt(12), 2);
    QCOMPARE(set.timestampDifferenceAt(13), 0);
}

void TestGpsSyncSet::controllerUniverseFieldPlaysOnItsPortAddress()
{
    m_patch.groups[0].torvoverses[1].subNet = 2; // universe 2 on Sub-Net 2: Port-Address 0x22
    QStringList paths = writeAll();
    GpsRecordingPlan s = plan(m_patch, 0);
    s.universes[1] = 0x202; // what the controller writes into the GPS record
    paths[0] = writeGroup(0, gpsRecordingBytes(s, pattern()));
    GpsSyncSet set;
    QCOMPARE(load(set, m_patch, paths).failures, 0);
    QCOMPARE(set.frame(0).at(1).portAddress, quint16(0x22));
    QCOMPARE(set.universes(), QVector<quint16>({1, 3, 4, 5, 6, 0x22}));
}

void TestGpsSyncSet::autoFillKeepsUnmatchedPathsAndPathChangesUnload()
{
    writeAll();
    GpsSyncSet set;
    set.setGroups(m_patch);
    set.setPaths({QString(), QStringLiteral("/elsewhere/back.tpx"), QString()});
    QFile::remove(QDir(m_dir->path()).filePath(QStringLiteral("show_Back_Stage Left.tpx")));
    QCOMPARE(set.autoFill(m_dir->path()), 2);
    QCOMPARE(QFileInfo(set.paths().at(0)).fileName(), QStringLiteral("show_Front.tpx"));
    QCOMPARE(set.paths().at(1), QStringLiteral("/elsewhere/back.tpx"));
    QCOMPARE(QFileInfo(set.paths().at(2)).fileName(), QStringLiteral("show_Roof.tpx"));

    QVERIFY(set.autoFill(QDir(m_dir->path()).filePath(QStringLiteral("missing"))) == 0);
    QStringList paths = set.paths();
    paths[1] = writeGroup(1, fileBytes(m_patch, 1));
    set.setPaths(paths);
    set.load(&m_patch);
    QVERIFY(set.isLoaded());
    set.setPaths(paths);
    QVERIFY(!set.isLoaded());
    QCOMPARE(set.frameCount(), 0);
    QVERIFY(set.frame(0).isEmpty());
}

void TestGpsSyncSet::aSetOfOne()
{
    m_patch.groups.remove(1, 2);
    GpsSyncSet set;
    const GpsVerification &v = load(set, m_patch, {writeGroup(0, fileBytes(m_patch, 0))});
    QCOMPARE(v.failures + v.warnings, 0);
    QCOMPARE(v.summary.untranslatedText(),
             QStringLiteral("1 group(s) - 20 frames - structure and sync verified"));
    QCOMPARE(set.frame(19).size(), 2);
}

QTEST_GUILESS_MAIN(TestGpsSyncSet)
#include "tst_gpssyncset.moc"
