#include "panels/groupfilterpanel.h"

#include "patch/patchkeys.h"
#include "patch/tpatchreader.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

bool isTorvoverseRow(const QTreeWidgetItem *item)
{
    return item->data(0, GroupFilterPanel::TorvoverseIndexRole).toInt() >= 0;
}

} // namespace

GroupFilterPanel::GroupFilterPanel(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("GroupFilterPanel"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_title = new QLabel(this);
    layout->addWidget(m_title);

    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("groupTree"));
    m_tree->setColumnCount(2);
    m_tree->setUniformRowHeights(true);
    m_tree->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_tree->setMinimumHeight(160);
    layout->addWidget(m_tree, 1);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    m_showAll = new QPushButton(this);
    m_hideAll = new QPushButton(this);
    buttons->addWidget(m_showAll);
    buttons->addWidget(m_hideAll);
    buttons->addStretch(1);
    layout->addLayout(buttons);

    auto *zRow = new QHBoxLayout;
    zRow->setSpacing(6);
    m_zLabel = new QLabel(this);
    m_zBox = new QSpinBox(this);
    m_zBox->setObjectName(QStringLiteral("zLayerBox"));
    m_zLabel->setBuddy(m_zBox);
    m_allZ = new QCheckBox(this);
    m_allZ->setObjectName(QStringLiteral("allZBox"));
    zRow->addWidget(m_zLabel);
    zRow->addWidget(m_zBox);
    zRow->addWidget(m_allZ);
    zRow->addStretch(1);
    layout->addLayout(zRow);
    m_layerLabel = new QLabel(this);
    m_layerLabel->setObjectName(QStringLiteral("layerLabel"));
    m_layerLabel->setWordWrap(true);
    layout->addWidget(m_layerLabel);

    connect(m_tree, &QTreeWidget::itemChanged, this, &GroupFilterPanel::onItemChanged);
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &GroupFilterPanel::onSelectionChanged);
    connect(m_showAll, &QPushButton::clicked, this, &GroupFilterPanel::onShowAll);
    connect(m_hideAll, &QPushButton::clicked, this, &GroupFilterPanel::onHideAll);
    connect(m_allZ, &QCheckBox::toggled, this, [this](bool all) {
        m_zBox->setEnabled(!all);
        emit visibleZChanged(all ? -1 : m_zBox->value());
    });
    connect(m_zBox, &QSpinBox::valueChanged, this, [this](int z) {
        if (!m_guard && !m_allZ->isChecked())
            emit visibleZChanged(z);
    });
    clear();
    retranslateUi();
}

void GroupFilterPanel::retranslateUi()
{
    m_title->setText(tr("Groups & Universes"));
    m_tree->setHeaderLabels({tr("Name"), tr("Port addr.")});
    m_tree->setAccessibleName(tr("Groups & Universes"));
    m_showAll->setText(tr("Show all"));
    m_hideAll->setText(tr("Hide all"));
    m_zLabel->setText(tr("Z Layer"));
    m_zBox->setPrefix(tr("Z "));
    m_zBox->setToolTip(tr("Only pixels on this Z layer are drawn."));
    m_zBox->setAccessibleName(tr("Z Layer"));
    m_allZ->setText(tr("All Z"));
    m_allZ->setToolTip(tr("Draw every Z layer at once. Layers overlap in 2D, so this is a quick look rather than "
                          "an inspection view."));
    {
        const QScopedValueRollback<bool> guard(m_guard, true); // new texts are not check changes
        for (int g = 0; g < m_tree->topLevelItemCount(); ++g) {
            QTreeWidgetItem *group = m_tree->topLevelItem(g);
            showRowTexts(group);
            for (int t = 0; t < group->childCount(); ++t)
                showRowTexts(group->child(t));
        }
    }
    showLayerLabel();
}

void GroupFilterPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

// The translated parts of a row: generated names and the torvoverse tooltip.
void GroupFilterPanel::showRowTexts(QTreeWidgetItem *item)
{
    const bool torvoverse = isTorvoverseRow(item);
    if (item->data(0, GeneratedNameRole).toBool()) {
        const int number = item->data(0, GeneratedNumberRole).toInt();
        item->setText(0, torvoverse ? tr("Universe %1").arg(number) : tr("Group %1").arg(number));
    }
    if (torvoverse) {
        // The universe as entered, not its 4 bits on the wire: that is what the patch shows.
        const int universe = item->data(0, GeneratedNumberRole).toInt();
        item->setToolTip(0, tr("Net %1 / SubNet %2 / Universe %3\nTarget IP %4\nSelect to highlight this universe "
                               "on the monitor.")
                                .arg(item->data(0, NetRole).toInt())
                                .arg(item->data(0, SubNetRole).toInt())
                                .arg(universe)
                                .arg(item->data(0, TargetIpRole).toString()));
    }
}

void GroupFilterPanel::setPatch(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout)
{
    const QScopedValueRollback<bool> guard(m_guard, true);
    m_tree->clear();

    QVector<qint64> groupPixels(patch.groups.size(), 0);
    for (const TPatch::LayoutPixel &px : layout.pixels) {
        if (px.groupIndex >= 0 && px.groupIndex < groupPixels.size())
            ++groupPixels[px.groupIndex];
    }

    QList<QTreeWidgetItem *> groupItems;
    groupItems.reserve(patch.groups.size());
    constexpr Qt::ItemFlags kFlags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable;
    for (int g = 0; g < patch.groups.size(); ++g) {
        const TPatch::PatchGroup &group = patch.groups[g];
        auto *groupItem = new QTreeWidgetItem;
        groupItem->setFlags(kFlags);
        groupItem->setCheckState(0, Qt::Checked);
        groupItem->setData(0, GroupIndexRole, g);
        groupItem->setData(0, TorvoverseIndexRole, -1);
        groupItem->setData(0, GeneratedNameRole, group.groupName.isEmpty());
        groupItem->setData(0, GeneratedNumberRole, g + 1);
        groupItem->setText(0, group.groupName);
        groupItem->setText(1, tr("%1 px").arg(groupPixels[g]));
        QList<QTreeWidgetItem *> children;
        children.reserve(group.torvoverses.size());
        for (int t = 0; t < group.torvoverses.size(); ++t) {
            const TPatch::Torvoverse &tv = group.torvoverses[t];
            const quint16 port = TPatch::portAddress(tv);
            auto *item = new QTreeWidgetItem;
            item->setFlags(kFlags | Qt::ItemNeverHasChildren);
            item->setCheckState(0, Qt::Checked);
            item->setData(0, GroupIndexRole, g);
            item->setData(0, TorvoverseIndexRole, t);
            item->setData(0, PortAddressRole, port);
            item->setData(0, GeneratedNameRole, tv.torvoverseName.isEmpty());
            item->setData(0, GeneratedNumberRole, int(tv.universe));
            item->setData(0, NetRole, int(tv.Net));
            item->setData(0, SubNetRole, int(tv.subNet));
            item->setData(0, TargetIpRole, TPatch::targetIpText(tv));
            item->setText(0, tv.torvoverseName);
            item->setText(1, TPatch::formatPortAddress(port));
            showRowTexts(item);
            children.append(item);
        }
        groupItem->addChildren(children);
        showRowTexts(groupItem);
        groupItems.append(groupItem);
    }
    m_tree->addTopLevelItems(groupItems);
    m_tree->expandAll();

    m_hasZ = layout.zRange.seen;
    m_zMin = m_hasZ ? layout.zRange.min : 0;
    m_zMax = m_hasZ ? layout.zRange.max : 0;
    m_zBox->setRange(m_zMin, m_zMax);
    m_zBox->setValue(m_zMin);
    const bool layers = m_zMin < m_zMax;
    {
        const QSignalBlocker block(m_allZ);
        m_allZ->setChecked(false);
    }
    m_zBox->setEnabled(layers);
    m_allZ->setEnabled(layers);
    showLayerLabel();
    emit visibleZChanged(m_zMin);
}

void GroupFilterPanel::clear()
{
    const QScopedValueRollback<bool> guard(m_guard, true);
    m_tree->clear();
    m_zBox->setRange(0, 0);
    m_zBox->setValue(0);
    m_zBox->setEnabled(false);
    {
        const QSignalBlocker block(m_allZ);
        m_allZ->setChecked(false);
    }
    m_allZ->setEnabled(false);
    m_hasZ = false;
    m_zMin = m_zMax = 0;
    showLayerLabel();
}

void GroupFilterPanel::showLayerLabel()
{
    if (!m_hasZ)
        m_layerLabel->setText(QStringLiteral("-"));
    else if (m_zMax <= m_zMin)
        m_layerLabel->setText(tr("Single layer (Z %1).").arg(m_zMin));
    else
        m_layerLabel->setText(tr("Layers %1 - %2. Only the selected layer is drawn.").arg(m_zMin).arg(m_zMax));
}

void GroupFilterPanel::setEveryCheckState(Qt::CheckState state)
{
    const QScopedValueRollback<bool> guard(m_guard, true);
    for (int g = 0; g < m_tree->topLevelItemCount(); ++g) {
        QTreeWidgetItem *group = m_tree->topLevelItem(g);
        group->setCheckState(0, state);
        for (int t = 0; t < group->childCount(); ++t)
            group->child(t)->setCheckState(0, state);
    }
}

void GroupFilterPanel::onShowAll()
{
    setEveryCheckState(Qt::Checked);
    emit allVisibilityChanged(true);
}

void GroupFilterPanel::onHideAll()
{
    setEveryCheckState(Qt::Unchecked);
    emit allVisibilityChanged(false);
}

void GroupFilterPanel::onItemChanged(QTreeWidgetItem *item, int column)
{
    if (m_guard || column != 0 || !item)
        return;
    const bool visible = item->checkState(0) == Qt::Checked;
    const int groupIndex = item->data(0, GroupIndexRole).toInt();
    if (isTorvoverseRow(item)) {
        emit torvoverseVisibilityChanged(groupIndex, item->data(0, TorvoverseIndexRole).toInt(), visible);
        return;
    }
    {
        const QScopedValueRollback<bool> guard(m_guard, true);
        for (int i = 0; i < item->childCount(); ++i)
            item->child(i)->setCheckState(0, item->checkState(0));
    }
    emit groupVisibilityChanged(groupIndex, visible);
    for (int i = 0; i < item->childCount(); ++i)
        emit torvoverseVisibilityChanged(groupIndex, i, visible);
}

void GroupFilterPanel::onSelectionChanged()
{
    const QList<QTreeWidgetItem *> selected = m_tree->selectedItems();
    const QTreeWidgetItem *item = selected.value(0);
    if (item && isTorvoverseRow(item))
        emit highlightTorvoverseChanged(item->data(0, GroupIndexRole).toInt(),
                                        item->data(0, TorvoverseIndexRole).toInt());
    else
        emit highlightTorvoverseChanged(-1, -1);
}
