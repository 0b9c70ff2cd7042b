#include "panelpatch.h"
#include "panels/gpsgrouprow.h"
#include "panels/gpsplaybackpanel.h"
#include "panels/playbacktransport.h"
#include "panels/statuslabel.h"
#include "recording/gpspatchexpectation.h"
#include "style/moxstyle.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QToolButton>
#include <QtTest>

using PanelPatch::group;

namespace {

// Three groups: one with two drawable universes, one without pixels, one unnamed.
QVector<GpsPanelGroup> threeGroups()
{
    return {{QStringLiteral("Facade"), 2, true}, {QStringLiteral("Winches"), 1, false}, {QStringLiteral("Group 3"), 1, true}};
}

GpsCheck check(GpsCheck::Verdict verdict, const char *title)
{
    GpsCheck c;
    c.verdict = verdict;
    c.title = TPatch::PatchMessage(title);
    return c;
}

} // namespace

Q_DECLARE_METATYPE(GpsRowInfo)

class TestGpsPlaybackPanel : public QObject
{
    Q_OBJECT
private slots:
    void withoutGroupsShowsOnlyTheEmptyState();
    void rowsCaptionWhatThePatchExpects();
    void rowInformation_data();
    void rowInformation();
    void controlsEmitRequests();
    void frameLine_data();
    void frameLine();
    void reportColoursEachVerdict();
    void sixtyGroupsScroll();

private:
    MoxStyle m_style;
};

void TestGpsPlaybackPanel::withoutGroupsShowsOnlyTheEmptyState()
{
    GpsPlaybackPanel panel(m_style);
    panel.show();
    panel.setGroups({});
    QLabel *empty = panel.findChild<QLabel *>(QStringLiteral("gpsEmptyState"));
    QVERIFY(empty->isVisible());
    QCOMPARE(empty->text(), QStringLiteral("Load a patch first - the group list comes from it."));
    QVERIFY(panel.findChildren<GpsGroupRow *>().isEmpty());
    QCOMPARE(panel.setInformationLabel()->text(), QStringLiteral("No set loaded."));
    QCOMPARE(panel.fps(), 40);
    QCOMPARE(panel.findChild<QCheckBox *>(QStringLiteral("loopBox"))->text(),
             QStringLiteral("Loop the whole set (1 -> end -> 1)"));
    panel.setGroups(threeGroups());
    QVERIFY(!empty->isVisible());
    QCOMPARE(panel.findChildren<GpsGroupRow *>().size(), 3);
}

void TestGpsPlaybackPanel::rowsCaptionWhatThePatchExpects()
{
    GpsPlaybackPanel panel(m_style);
    panel.setGroups(threeGroups());
    const QString muted = m_style.roleColour(MoxStyle::Muted).name();
    const QString warning = m_style.roleColour(MoxStyle::WarningRole).name();
    QCOMPARE(panel.row(0)->captionLabel()->text(),
             QStringLiteral("<b>Facade</b>  <span style='color:%1;'>expects 2 universe(s)</span>").arg(muted));
    QCOMPARE(panel.row(1)->captionLabel()->text(),
             QStringLiteral("<b>Winches</b>  <span style='color:%1;'>no drawable pixels</span>").arg(warning));
    QCOMPARE(panel.row(0)->dotLabel()->text(),
             QStringLiteral("<span style='color:%1;'>&#9679;</span> ").arg(muted));
    // A group the patch leaves unnamed is captioned by its position.
    TPatch::PatchData patch;
    patch.groups = {group(QStringLiteral("A"), {{}}), group(QStringLiteral("B"), {{}}), group(QString(), {{}})};
    panel.setGroups(GpsPanelGroup::fromExpectation(GpsPatchExpectation::fromPatch(patch)));
    GpsGroupRow *row = panel.row(2);
    QVERIFY(row->captionLabel()->text().startsWith(QStringLiteral("<b>Group 3</b>")));
    QCOMPARE(row->pathEdit()->placeholderText(), QStringLiteral("Recording for \"Group 3\""));
    QCOMPARE(row->browseButton()->toolTip(), QStringLiteral("Browse for the recording of \"Group 3\""));
    QCOMPARE(row->browseButton()->text(), QStringLiteral("..."));
}

void TestGpsPlaybackPanel::rowInformation_data()
{
    QTest::addColumn<GpsRowInfo>("info");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("role");
    QTest::addColumn<int>("dot");
    GpsRowInfo usable;
    usable.state = GpsRowInfo::Usable;
    usable.fileName = QStringLiteral("show_Facade.tpx");
    usable.frames = 7200;
    usable.universesPerFrame = 2;
    usable.bytesPerFrame = 1100;
    GpsRowInfo short1 = usable;
    short1.universesPerFrame = 1;
    GpsRowInfo broken;
    broken.state = GpsRowInfo::Unusable;
    broken.error = TPatch::PatchMessage("File not found: %1", {QStringLiteral("show_Facade.tpx")});
    QTest::newRow("matches") << usable << "show_Facade.tpx - 7200 frames - 2 universe(s)/frame - 1100 B/frame"
                             << "normal" << int(MoxStyle::Success);
    QTest::newRow("differs") << short1
                             << "show_Facade.tpx - 7200 frames - 1 universe(s)/frame - 1100 B/frame (patch expects 2)"
                             << "warning" << int(MoxStyle::WarningRole);
    QTest::newRow("unusable") << broken << "File not found: show_Facade.tpx" << "error" << int(MoxStyle::ErrorRole);
    QTest::newRow("not loaded") << GpsRowInfo() << "" << "normal" << int(MoxStyle::Muted);
}

void TestGpsPlaybackPanel::rowInformation()
{
    QFETCH(GpsRowInfo, info);
    QFETCH(QString, text);
    QFETCH(QString, role);
    QFETCH(int, dot);
    GpsPlaybackPanel panel(m_style);
    panel.setGroups(threeGroups());
    panel.setRowInfo(0, info);
    QCOMPARE(panel.row(0)->infoLabel()->text(), text);
    QCOMPARE(panel.row(0)->infoLabel()->property("labelRole").toString(), role);
    QVERIFY(panel.row(0)->dotLabel()->text().contains(
        m_style.roleColour(MoxStyle::LabelRole(dot)).name()));
    panel.clearRowInfo();
    QCOMPARE(panel.row(0)->infoLabel()->text(), QString());
}

void TestGpsPlaybackPanel::controlsEmitRequests()
{
    GpsPlaybackPanel panel(m_style);
    panel.setGroups(threeGroups());
    QSignalSpy changed(&panel, &GpsPlaybackPanel::pathsChanged);
    panel.setPaths({QStringLiteral("/gps/a_Facade.tpx")}); // one signal for the list
    panel.setPaths({QStringLiteral("/gps/a_Facade.tpx"), QString()}); // nothing changed
    QCOMPARE(changed.count(), 1);
    QTest::keyClicks(panel.row(2)->pathEdit(), QStringLiteral("/gps/a_Group 3.tpx "));
    QCOMPARE(changed.count(), 20);
    QCOMPARE(panel.paths(), (QStringList{"/gps/a_Facade.tpx", "", "/gps/a_Group 3.tpx"}));
    QSignalSpy load(&panel, &GpsPlaybackPanel::loadAllRequested);
    QSignalSpy play(&panel, &GpsPlaybackPanel::playPauseRequested);
    QSignalSpy stop(&panel, &GpsPlaybackPanel::stopRequested);
    QSignalSpy loop(&panel, &GpsPlaybackPanel::loopChanged);
    auto *rewind = panel.findChild<QPushButton *>(QStringLiteral("rewindButton"));
    QTest::mouseClick(panel.findChild<QPushButton *>(QStringLiteral("loadSetButton")), Qt::LeftButton);
    QTest::mouseClick(panel.findChild<QPushButton *>(QStringLiteral("playPauseButton")), Qt::LeftButton);
    QTest::mouseClick(rewind, Qt::LeftButton);
    QTest::mouseClick(panel.findChild<QCheckBox *>(QStringLiteral("loopBox")), Qt::LeftButton);
    QCOMPARE(load.count(), 1);
    QCOMPARE(play.count(), 1);
    QCOMPARE(stop.count(), 1);
    QCOMPARE(loop.at(0).at(0).toBool(), false);
    QCOMPARE(rewind->toolTip(), QStringLiteral("Stop and return every file to its first frame"));
}

void TestGpsPlaybackPanel::frameLine_data()
{
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<int>("apart");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("role");
    QTest::newRow("no set") << false << 0 << "Frame 0 / 0" << "normal";
    QTest::newRow("in step") << true << 0
                             << "Frame 5 / 100  -  3 file(s) driven together  -  timestamps in step" << "normal";
    QTest::newRow("drift") << true << 2 << "Frame 5 / 100  -  3 file(s) driven together  -  timestamps 2 s apart"
                           << "error";
}

void TestGpsPlaybackPanel::frameLine()
{
    QFETCH(bool, loaded);
    QFETCH(int, apart);
    QFETCH(QString, text);
    QFETCH(QString, role);
    GpsPlaybackPanel panel(m_style);
    panel.setGroups(threeGroups());
    QSignalSpy seek(&panel, &GpsPlaybackPanel::seekRequested);
    panel.setSetInformation(loaded, 100, 3);
    panel.setFrame(5, apart);
    QLabel *line = panel.transport()->frameLabel();
    QCOMPARE(line->text(), text);
    QCOMPARE(line->property("labelRole").toString(), role);
    QCOMPARE(panel.setInformationLabel()->text(),
             loaded ? QStringLiteral("Set loaded: 3 recording(s), 100 frames each.") : QStringLiteral("No set loaded."));
    QVERIFY(seek.isEmpty());
}

void TestGpsPlaybackPanel::reportColoursEachVerdict()
{
    GpsPlaybackPanel panel(m_style);
    GpsVerification v;
    v.add(check(GpsCheck::Pass, "A patch is loaded"));
    v.add(check(GpsCheck::Warn, "Header frame count"));
    v.add(check(GpsCheck::Fail, "Timestamps in lockstep"));
    panel.setReport(v);
    const QString html = panel.reportView()->toHtml();
    const QString plain = panel.reportView()->toPlainText();
    for (const auto &[verdict, word, title] :
         {std::tuple{MoxStyle::Success, "PASS", "A patch is loaded"},
          std::tuple{MoxStyle::WarningRole, "WARN", "Header frame count"},
          std::tuple{MoxStyle::ErrorRole, "FAIL", "Timestamps in lockstep"}}) {
        // The view reads its non-breaking spaces out as plain ones: "%1  %2".
        QVERIFY(plain.contains(QLatin1String(word) + QLatin1String("  ") + QLatin1String(title)));
        QVERIFY(html.contains(m_style.roleColour(verdict).name()));
    }
    panel.clearReport();
    QVERIFY(panel.reportView()->toPlainText().isEmpty());
}

void TestGpsPlaybackPanel::sixtyGroupsScroll()
{
    GpsPlaybackPanel panel(m_style);
    QVector<GpsPanelGroup> groups;
    for (int i = 1; i <= 60; ++i)
        groups.append({QStringLiteral("Group %1").arg(i), 4, true});
    panel.setGroups(groups);
    panel.resize(380, 700);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCOMPARE(panel.groupCount(), 60);
    QScrollArea *rows = panel.findChild<QScrollArea *>(QStringLiteral("gpsRows"));
    QVERIFY(rows->verticalScrollBar()->maximum() > 0);
    // The panel still fits its window: the rows scroll instead of stretching it.
    QVERIFY(panel.minimumSizeHint().height() < 700);
}

QTEST_MAIN(TestGpsPlaybackPanel)
#include "tst_gpsplaybackpanel.moc"
