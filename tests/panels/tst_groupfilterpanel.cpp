#include "panelpatch.h"
#include "panels/groupfilterpanel.h"
#include "../monitor/monitortestdata.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest>

using PanelPatch::group;

namespace {

// Front: two named torvoverses; the second group has no name and one unnamed torvoverse.
TPatch::PatchData twoGroupPatch()
{
    TPatch::PatchData patch;
    patch.groups = {group(QStringLiteral("Front"), {{QStringLiteral("Left"), 10, 2, 1, 2},
                                                    {QStringLiteral("Right"), 4, 2, 1, 1}}),
                    group(QString(), {{QString(), 21, 0, 0, 1, 0, {192, 168, 1}}})};
    return patch;
}

// One group-0 pixel per layer, and a group-1 pixel on the first layer.
TPatch::PixelLayout layoutWithLayers(const QVector<int> &zs)
{
    QVector<TPatch::LayoutPixel> pixels;
    for (int i = 0; i < zs.size(); ++i)
        pixels << MonitorTestData::square(i * 10, 0, 8, 0, 0, zs.at(i));
    pixels << MonitorTestData::square(0, 20, 8, 1, 0, zs.constFirst());
    return MonitorTestData::layoutOf(pixels);
}

// Every signal the panel emits, as words in emission order.
QStringList *recordSignals(GroupFilterPanel &panel)
{
    auto *log = new QStringList;
    QObject::connect(&panel, &QObject::destroyed, [log] { delete log; });
    const auto word = [](bool v) { return v ? QStringLiteral("on") : QStringLiteral("off"); };
    QObject::connect(&panel, &GroupFilterPanel::groupVisibilityChanged, [=](int g, bool v) {
        log->append(QStringLiteral("group %1 %2").arg(g).arg(word(v)));
    });
    QObject::connect(&panel, &GroupFilterPanel::torvoverseVisibilityChanged, [=](int g, int t, bool v) {
        log->append(QStringLiteral("torvo %1 %2 %3").arg(g).arg(t).arg(word(v)));
    });
    QObject::connect(&panel, &GroupFilterPanel::allVisibilityChanged,
                     [=](bool v) { log->append(QStringLiteral("all %1").arg(word(v))); });
    QObject::connect(&panel, &GroupFilterPanel::visibleZChanged,
                     [=](int z) { log->append(QStringLiteral("z %1").arg(z)); });
    QObject::connect(&panel, &GroupFilterPanel::highlightTorvoverseChanged, [=](int g, int t) {
        log->append(QStringLiteral("highlight %1 %2").arg(g).arg(t));
    });
    return log;
}

// Every row's check box in tree order: "+" checked, "-" unchecked, "~" partly.
QString checks(QTreeWidget *tree)
{
    QString out;
    for (QTreeWidgetItemIterator it(tree); *it; ++it)
        out += QLatin1Char("-~+"[(*it)->checkState(0)]);
    return out;
}

QCheckBox *allZ(GroupFilterPanel &panel)
{
    return panel.findChild<QCheckBox *>(QStringLiteral("allZBox"));
}

QSpinBox *zBox(GroupFilterPanel &panel)
{
    return panel.findChild<QSpinBox *>(QStringLiteral("zLayerBox"));
}

QPushButton *button(GroupFilterPanel &panel, const QString &text)
{
    for (QPushButton *b : panel.findChildren<QPushButton *>()) {
        if (b->text() == text)
            return b;
    }
    return nullptr;
}

// A click in the address column selects the row without touching its check box.
void clickRow(QTreeWidget *tree, QTreeWidgetItem *item)
{
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center() + QPoint(60, 0));
}

} // namespace

class TestGroupFilterPanel : public QObject
{
    Q_OBJECT
private slots:
    void rowsShowNamesAddressesAndTooltips();
    void layerControlsFollowTheZRange_data();
    void layerControlsFollowTheZRange();
    void checkBoxesEmitWhatChanged();
    void selectionHighlightsTorvoverseRowsOnly();
    void layerChoiceAndClear();
};

void TestGroupFilterPanel::rowsShowNamesAddressesAndTooltips()
{
    GroupFilterPanel panel;
    panel.setPatch(twoGroupPatch(), layoutWithLayers({0, 0, 0}));
    QTreeWidget *tree = panel.tree();
    QCOMPARE(tree->headerItem()->text(0), QStringLiteral("Name"));
    QCOMPARE(tree->headerItem()->text(1), QStringLiteral("Port addr."));
    QCOMPARE(tree->topLevelItemCount(), 2);
    QTreeWidgetItem *front = tree->topLevelItem(0);
    QTreeWidgetItem *unnamed = tree->topLevelItem(1);
    QVERIFY(front->isExpanded() && unnamed->isExpanded());
    struct Row
    {
        QTreeWidgetItem *item;
        QString name, column1;
        int group, torvo;
        bool generated;
        int number;
    };
    const Row rows[] = {
        {front, "Front", "3 px", 0, -1, false, 1},
        {front->child(0), "Left", "0x012A", 0, 0, false, 10},
        {front->child(1), "Right", "0x0124", 0, 1, false, 4},
        {unnamed, "Group 2", "1 px", 1, -1, true, 2},
        {unnamed->child(0), "Universe 21", "0x0005", 1, 0, true, 21}, // only 4 bits of 21 reach the wire
    };
    for (const Row &r : rows) {
        QCOMPARE(r.item->text(0), r.name);
        QCOMPARE(r.item->text(1), r.column1);
        QCOMPARE(r.item->checkState(0), Qt::Checked);
        QVERIFY(r.item->flags() & Qt::ItemIsUserCheckable);
        QCOMPARE(r.item->data(0, GroupFilterPanel::GroupIndexRole).toInt(), r.group);
        QCOMPARE(r.item->data(0, GroupFilterPanel::TorvoverseIndexRole).toInt(), r.torvo);
        QCOMPARE(r.item->data(0, GroupFilterPanel::GeneratedNameRole).toBool(), r.generated);
        QCOMPARE(r.item->data(0, GroupFilterPanel::GeneratedNumberRole).toInt(), r.number);
    }
    QCOMPARE(front->child(0)->data(0, GroupFilterPanel::NetRole).toInt(), 1);
    QCOMPARE(front->child(0)->data(0, GroupFilterPanel::SubNetRole).toInt(), 2);
    QCOMPARE(front->child(0)->toolTip(0), QStringLiteral("Net 1 / SubNet 2 / Universe 10\nTarget IP 10.0.0.1\n"
                                                         "Select to highlight this universe on the monitor."));
    // Fewer than four octets: the address is unknown.
    QCOMPARE(unnamed->child(0)->data(0, GroupFilterPanel::TargetIpRole).toString(), QStringLiteral("0.0.0.0"));
}

void TestGroupFilterPanel::layerControlsFollowTheZRange_data()
{
    QTest::addColumn<QVector<int>>("zs");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("firstZ");
    QTest::addColumn<QString>("label");
    QTest::newRow("one layer") << QVector<int>{3, 3} << false << 3 << QStringLiteral("Single layer (Z 3).");
    QTest::newRow("three layers") << QVector<int>{1, 2, 3} << true << 1
                                  << QStringLiteral("Layers 1 - 3. Only the selected layer is drawn.");
}

void TestGroupFilterPanel::layerControlsFollowTheZRange()
{
    QFETCH(QVector<int>, zs);
    QFETCH(bool, enabled);
    QFETCH(int, firstZ);
    QFETCH(QString, label);
    GroupFilterPanel panel;
    QStringList *log = recordSignals(panel);
    panel.setPatch(twoGroupPatch(), layoutWithLayers(zs));
    QCOMPARE(*log, QStringList{QStringLiteral("z %1").arg(firstZ)});
    QCOMPARE(zBox(panel)->value(), firstZ);
    QCOMPARE(zBox(panel)->text(), QStringLiteral("Z %1").arg(firstZ));
    QCOMPARE(zBox(panel)->isEnabled(), enabled);
    QCOMPARE(allZ(panel)->isEnabled(), enabled);
    QVERIFY(!allZ(panel)->isChecked());
    QCOMPARE(panel.layerLabel()->text(), label);
}

void TestGroupFilterPanel::checkBoxesEmitWhatChanged()
{
    GroupFilterPanel panel;
    panel.setPatch(twoGroupPatch(), layoutWithLayers({0}));
    panel.show();
    QTreeWidget *tree = panel.tree();
    tree->setCurrentItem(tree->topLevelItem(0));
    QStringList *log = recordSignals(panel);
    // Space toggles the current row's check box: a group emits once, then once per torvoverse.
    QTest::keyClick(tree, Qt::Key_Space);
    QCOMPARE(*log, (QStringList{"group 0 off", "torvo 0 0 off", "torvo 0 1 off"}));
    QCOMPARE(checks(tree), QStringLiteral("---++"));
    // Show all and hide all set every box with one signal.
    log->clear();
    QTest::mouseClick(button(panel, QStringLiteral("Show all")), Qt::LeftButton);
    QCOMPARE(checks(tree), QStringLiteral("+++++"));
    QTest::mouseClick(button(panel, QStringLiteral("Hide all")), Qt::LeftButton);
    QCOMPARE(checks(tree), QStringLiteral("-----"));
    QTest::mouseClick(button(panel, QStringLiteral("Show all")), Qt::LeftButton);
    QCOMPARE(*log, (QStringList{"all on", "all off", "all on"}));
    // A torvoverse emits alone and leaves its group checked.
    tree->setCurrentItem(tree->topLevelItem(0)->child(1));
    log->clear();
    QTest::keyClick(tree, Qt::Key_Space);
    QCOMPARE(*log, QStringList{"torvo 0 1 off"});
    QCOMPARE(checks(tree), QStringLiteral("++-++"));
}

void TestGroupFilterPanel::selectionHighlightsTorvoverseRowsOnly()
{
    GroupFilterPanel panel;
    panel.resize(400, 400);
    panel.setPatch(twoGroupPatch(), layoutWithLayers({0}));
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QTreeWidget *tree = panel.tree();
    QStringList *log = recordSignals(panel);
    clickRow(tree, tree->topLevelItem(1)->child(0));
    clickRow(tree, tree->topLevelItem(0));
    clickRow(tree, tree->topLevelItem(0)->child(1));
    tree->clearSelection();
    QCOMPARE(*log, (QStringList{"highlight 1 0", "highlight -1 -1", "highlight 0 1", "highlight -1 -1"}));
    QCOMPARE(checks(tree), QStringLiteral("+++++")); // selecting never changes what is visible
}

void TestGroupFilterPanel::layerChoiceAndClear()
{
    GroupFilterPanel panel;
    panel.setPatch(twoGroupPatch(), layoutWithLayers({0, 1, 2}));
    panel.show();
    QStringList *log = recordSignals(panel);
    QTest::keyClick(zBox(panel), Qt::Key_Up);
    QTest::mouseClick(allZ(panel), Qt::LeftButton);
    QVERIFY(!zBox(panel)->isEnabled());
    QTest::mouseClick(allZ(panel), Qt::LeftButton);
    QVERIFY(zBox(panel)->isEnabled());
    QTest::mouseClick(allZ(panel), Qt::LeftButton);
    QVERIFY(allZ(panel)->isChecked());
    QCOMPARE(*log, (QStringList{"z 1", "z -1", "z 1", "z -1"}));
    // Clearing empties everything and emits nothing.
    panel.clear();
    QCOMPARE(log->size(), 4);
    QCOMPARE(panel.tree()->topLevelItemCount(), 0);
    QCOMPARE(panel.layerLabel()->text(), QStringLiteral("-"));
    QVERIFY(!zBox(panel)->isEnabled());
    QCOMPARE(zBox(panel)->value(), 0);
    QVERIFY(!allZ(panel)->isEnabled() && !allZ(panel)->isChecked());
}

QTEST_MAIN(TestGroupFilterPanel)
#include "tst_groupfilterpanel.moc"
