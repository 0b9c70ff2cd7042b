#include "panelpatch.h"
#include "panels/patchsummarypanel.h"
#include "patch/patchmessage.h"
#include "style/moxstyle.h"
#include "../monitor/monitortestdata.h"

#include <QLabel>
#include <QTableView>
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

// The universe table as the user reads it: one line per row, cells joined by
// "|", a "!" before a cell drawn in the warning colour.
QString tableText(const PatchSummaryPanel &panel, const QColor &warning)
{
    const QAbstractItemModel *model = panel.universeTable()->model();
    QStringList lines;
    QStringList head;
    for (int c = 0; c < model->columnCount(); ++c)
        head << model->headerData(c, Qt::Horizontal).toString();
    lines << head.join(QLatin1Char('|'));
    for (int r = 0; r < model->rowCount(); ++r) {
        QStringList cells;
        for (int c = 0; c < model->columnCount(); ++c) {
            const QModelIndex i = model->index(r, c);
            const bool warned = i.data(Qt::ForegroundRole).value<QColor>() == warning;
            cells << (warned ? QStringLiteral("!") : QString()) + i.data().toString();
        }
        lines << cells.join(QLatin1Char('|'));
    }
    return lines.join(QLatin1Char('\n'));
}

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
    PatchSummaryPanel panel(m_style);
    const QString invitation =
        QStringLiteral("<p style='color:%1'>Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to see its "
                       "structure, universe list and channel ranges.</p>")
            .arg(m_style.roleColour(MoxStyle::Muted).name());
    QCOMPARE(panel.stateLabel()->text(), QStringLiteral("No patch loaded."));
    QCOMPARE(panel.html(), invitation);
    panel.setPatch(basePatch(), baseLayout(), {});
    panel.clear();
    QCOMPARE(panel.html(), invitation);
    QCOMPARE(panel.universeModel()->rowCount(), 0);
    QVERIFY(panel.universeTable()->isHidden());
}

void TestPatchSummaryPanel::wholeSummaryOfANativePatch()
{
    PatchSummaryPanel panel(m_style);
    panel.setPatch(basePatch(), baseLayout(), {});
    const QString accent = m_style.roleColour(MoxStyle::Accent).name();
    const QString warning = m_style.roleColour(MoxStyle::WarningRole).name();
    const QString expected =
        QStringLiteral("<p><b style='color:%1'>Hall &amp; Stage</b><br>device ARTNET &nbsp;·&nbsp; format TPatch 1.2"
                       " &nbsp;·&nbsp; 512 ch limit</p>"
                       "<p>1 groups · 2 universes · 2 fixtures<br>4 pixels (2 drawable) · 0 kinetics<br>"
                       "1 px with white (W 2 · CW 1 · WW 0)</p>")
            .arg(accent);
    QCOMPARE(panel.html(), expected);
    QCOMPARE(panel.textView()->text(), expected);
    QVERIFY(panel.stateLabel()->isHidden());
    QCOMPARE(tableText(panel, QColor(warning)), QStringLiteral("port|net/sub/uni|pixels|channels|target IP\n"
                                                               "0x0012|0/1/2|2|1 - 6|10.0.0.1\n"
                                                               "0x0013|0/1/3|2|!508 - 513|10.0.0.9"));
    // Sorting by channels puts the overflowing universe where the user looks for it.
    panel.universeTable()->sortByColumn(UniverseTableModel::ChannelsColumn, Qt::DescendingOrder);
    QCOMPARE(panel.universeTable()->model()->index(0, 0).data().toString(), QStringLiteral("0x0013"));
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
        << QStringLiteral("|1 - 6|0.0.0.0") << QStringLiteral("10.0.0.1");
    QTest::newRow("channel limit 6 marks nothing at 6")
        << Mutation([](TPatch::PatchData &p, auto &) {
               p.selectedChLimit = 6;
               p.groups[0].torvoverses.removeLast();
           })
        << QStringLiteral("|1 - 6|") << QStringLiteral("!1 - 6");
    QTest::newRow("channel limit 5 marks 1 - 6")
        << Mutation([](TPatch::PatchData &p, auto &) { p.selectedChLimit = 5; })
        << QStringLiteral("|!1 - 6|") << QString();
    QTest::newRow("one channel, no range")
        << Mutation([](TPatch::PatchData &p, auto &) {
               p.groups[0].torvoverses[0].fixtures[0].leds.resize(1);
               p.groups[0].torvoverses[0].fixtures[0].leds[0].roles = {TPatch::RoleWhite};
           })
        << QStringLiteral("0x0012|0/1/2|1|1|10.0.0.1") << QString();
}

void TestPatchSummaryPanel::pieces()
{
    QFETCH(Mutation, mutate);
    QFETCH(QString, present);
    QFETCH(QString, absent);
    TPatch::PatchData patch = basePatch();
    QVector<TPatch::PatchMessage> warnings;
    mutate(patch, warnings);
    PatchSummaryPanel panel(m_style);
    panel.setPatch(patch, baseLayout(), warnings);
    const QString shown = panel.html() + QLatin1Char('\n')
                          + tableText(panel, m_style.roleColour(MoxStyle::WarningRole));
    if (!present.isEmpty())
        QVERIFY2(shown.contains(present), qPrintable(shown));
    if (!absent.isEmpty())
        QVERIFY2(!shown.contains(absent), qPrintable(shown));
}

void TestPatchSummaryPanel::themeChangeRecolours()
{
    MoxStyle style;
    PatchSummaryPanel panel(style);
    panel.setPatch(basePatch(), baseLayout(), {});
    const QString darkAccent = style.roleColour(MoxStyle::Accent).name();
    style.applyTheme(QStringLiteral("light"));
    const QString lightAccent = style.roleColour(MoxStyle::Accent).name();
    QVERIFY(darkAccent != lightAccent);
    QVERIFY(panel.html().contains(QStringLiteral("<b style='color:%1'>Hall").arg(lightAccent)));
}

QTEST_MAIN(TestPatchSummaryPanel)
#include "tst_patchsummarypanel.moc"
