#include "panelpatch.h"
#include "panels/patchsummarypanel.h"
#include "patch/patchmessage.h"
#include "style/moxstyle.h"
#include "../monitor/monitortestdata.h"

#include <QLabel>
#include <QTextBrowser>
#include <QtTest>

#include <functional>

using PanelPatch::group;

namespace {

// One group with two torvoverses: "A" on Port-Address 0x0012 (channels 1-6)
// and an unnamed one on 0x0013 whose pixels run from channel 508 to 513.
TPatch::PatchData basePatch()
{
    TPatch::PatchData patch;
    patch.projectName = QStringLiteral("Hall & Stage");
    patch.device = 0;
    patch.selectedChLimit = 512;
    patch.formatLabel = QStringLiteral("TPatch 1.2");
    patch.groups = {group(QStringLiteral("Front"), {{QStringLiteral("A"), 2, 1, 0, 2, 0},
                                                    {QString(), 3, 1, 0, 2, 507, {10, 0, 0, 9}}})};
    return patch;
}

TPatch::PixelLayout baseLayout()
{
    TPatch::LayoutPixel white = MonitorTestData::square(0, 0, 5);
    white.roles = {TPatch::RoleRed, TPatch::RoleWhite, TPatch::RoleCoolWhite, TPatch::RoleWhite};
    TPatch::LayoutPixel kinetic = MonitorTestData::square(10, 0, 5);
    kinetic.isKinetic = true;
    return MonitorTestData::layoutOf({white, MonitorTestData::square(20, 0, 5), kinetic});
}

using Mutation = std::function<void(TPatch::PatchData &, QVector<TPatch::PatchMessage> &)>;

} // namespace

Q_DECLARE_METATYPE(Mutation)

class TestPatchSummaryPanel : public QObject
{
    Q_OBJECT
private slots:
    void withoutPatchInvitesToLoad();
    void wholeSummaryOfANativePatch();
    void pieces_data();
    void pieces();
    void themeChangeRecolours();

private:
    MoxStyle m_style;
};

void TestPatchSummaryPanel::withoutPatchInvitesToLoad()
{
    PatchSummaryPanel panel(&m_style);
    QCOMPARE(panel.stateLabel()->text(), QStringLiteral("No patch loaded."));
    QCOMPARE(panel.html(), QStringLiteral("<p style='color:%1'>Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to "
                                          "see its structure, universe list and channel ranges.</p>")
                               .arg(m_style.roleColour(MoxStyle::Muted).name()));
    panel.setPatch(basePatch(), baseLayout(), {});
    panel.clear();
    QVERIFY(panel.html().contains(QStringLiteral("Load a patch")));
    QVERIFY(panel.view()->toPlainText().startsWith(QStringLiteral("Load a patch")));
}

void TestPatchSummaryPanel::wholeSummaryOfANativePatch()
{
    PatchSummaryPanel panel(&m_style);
    panel.setPatch(basePatch(), baseLayout(), {});
    const QString accent = m_style.roleColour(MoxStyle::Accent).name();
    const QString warning = m_style.roleColour(MoxStyle::WarningRole).name();
    const QString expected =
        QStringLiteral("<p><b style='color:%1'>Hall &amp; Stage</b><br>device ARTNET &nbsp;·&nbsp; format TPatch 1.2"
                       " &nbsp;·&nbsp; 512 ch limit</p>"
                       "<p>1 groups · 2 universes · 2 fixtures<br>4 pixels (2 drawable) · 0 kinetics<br>"
                       "1 px with white (W 2 · CW 1 · WW 0)</p>"
                       "<p><b style='color:%1'>Universes</b><br><table cellspacing='0' cellpadding='2'><tr>"
                       "<td><i>port</i></td><td><i>net/sub/uni</i></td><td><i>pixels</i></td><td><i>channels</i></td>"
                       "<td><i>target IP</i></td></tr>"
                       "<tr><td>0x0012</td><td>0/1/2</td><td>2</td><td>1 - 6</td><td>10.0.0.1</td></tr>"
                       "<tr><td>0x0013</td><td>0/1/3</td><td>2</td><td style='color:%2'>508 - 513</td>"
                       "<td>10.0.0.9</td></tr></table></p>")
            .arg(accent, warning);
    QCOMPARE(panel.html(), expected);
    QVERIFY(!panel.stateLabel()->isVisible());
}

void TestPatchSummaryPanel::pieces_data()
{
    QTest::addColumn<Mutation>("mutate");
    QTest::addColumn<QString>("present");
    QTest::addColumn<QString>("absent");
    const auto none = [](TPatch::PatchData &, QVector<TPatch::PatchMessage> &) {};
    QTest::newRow("native: no hint") << Mutation(none) << QString() << QStringLiteral("Art-Net:");
    QTest::newRow("unnamed project") << Mutation([](TPatch::PatchData &p, auto &) { p.projectName.clear(); })
                                     << QStringLiteral("(unnamed project)</b>") << QString();
    QTest::newRow("known device") << Mutation([](TPatch::PatchData &p, auto &) { p.device = 3; })
                                  << QStringLiteral("device MIRRA &nbsp;") << QString();
    QTest::newRow("device 9") << Mutation([](TPatch::PatchData &p, auto &) { p.device = 9; })
                              << QStringLiteral("<br>Device #9 &nbsp;") << QStringLiteral("device ");
    QTest::newRow("imported") << Mutation([](TPatch::PatchData &p, auto &) { p.importedFrom = "show.mpz"; })
                              << QStringLiteral("format TPatch 1.2 &nbsp;·&nbsp; imported from show.mpz &nbsp;")
                              << QString();
    QTest::newRow("madrix hint")
        << Mutation([](TPatch::PatchData &p, auto &) { p.sourceKind = TPatch::SourceKind::Madrix; })
        << QStringLiteral("'>Art-Net: MADRIX universe N arrives here as Port-Address N-1. In the MADRIX Device "
                          "Manager, set the Universe of this tester's &quot;BindIdx N&quot; row to N.</p>")
        << QString();
    QTest::newRow("elm hint") << Mutation([](TPatch::PatchData &p, auto &) { p.sourceKind = TPatch::SourceKind::Elm; })
                              << QStringLiteral("'>Art-Net: the universes are taken from the ELM project as they are "
                                                "(ELM universe = Port-Address).</p>")
                              << QString();
    QTest::newRow("warnings in order")
        << Mutation([](auto &, QVector<TPatch::PatchMessage> &w) {
               w << TPatch::PatchMessage("first <one>") << TPatch::PatchMessage("second");
           })
        << QStringLiteral("'>Warnings</b><br>&bull; first &lt;one&gt;<br>&bull; second<br></p>") << QString();
    QTest::newRow("three-octet target")
        << Mutation([](TPatch::PatchData &p, auto &) { p.groups[0].torvoverses[0].targetIP = {10, 0, 0}; })
        << QStringLiteral("<td>1 - 6</td><td>0.0.0.0</td>") << QStringLiteral("10.0.0.1");
    QTest::newRow("channel limit 6 marks nothing at 6")
        << Mutation([](TPatch::PatchData &p, auto &) {
               p.selectedChLimit = 6;
               p.groups[0].torvoverses.removeLast();
           })
        << QStringLiteral("<td>1 - 6</td>") << QStringLiteral("style='color:%1'>1 - 6");
    QTest::newRow("channel limit 5 marks 1 - 6")
        << Mutation([](TPatch::PatchData &p, auto &) { p.selectedChLimit = 5; })
        << QStringLiteral("style='color:%1'>1 - 6</td>") << QString();
    QTest::newRow("one channel, no range")
        << Mutation([](TPatch::PatchData &p, auto &) {
               p.groups[0].torvoverses[0].fixtures[0].leds.resize(1);
               p.groups[0].torvoverses[0].fixtures[0].leds[0].roles = {TPatch::RoleWhite};
           })
        << QStringLiteral("<td>1</td><td>1</td><td>10.0.0.1") << QString();
}

void TestPatchSummaryPanel::pieces()
{
    QFETCH(Mutation, mutate);
    QFETCH(QString, present);
    QFETCH(QString, absent);
    TPatch::PatchData patch = basePatch();
    QVector<TPatch::PatchMessage> warnings;
    mutate(patch, warnings);
    PatchSummaryPanel panel(&m_style);
    panel.setPatch(patch, baseLayout(), warnings);
    const QString warning = m_style.roleColour(MoxStyle::WarningRole).name();
    if (!present.isEmpty())
        QVERIFY2(panel.html().contains(present.arg(warning)), qPrintable(panel.html()));
    if (!absent.isEmpty())
        QVERIFY2(!panel.html().contains(absent.arg(warning)), qPrintable(panel.html()));
}

void TestPatchSummaryPanel::themeChangeRecolours()
{
    MoxStyle style;
    PatchSummaryPanel panel(&style);
    panel.setPatch(basePatch(), baseLayout(), {});
    const QString darkAccent = style.roleColour(MoxStyle::Accent).name();
    style.applyTheme(QStringLiteral("light"));
    const QString lightAccent = style.roleColour(MoxStyle::Accent).name();
    QVERIFY(darkAccent != lightAccent);
    QVERIFY(panel.html().contains(QStringLiteral("<b style='color:%1'>Hall").arg(lightAccent)));
}

QTEST_MAIN(TestPatchSummaryPanel)
#include "tst_patchsummarypanel.moc"
