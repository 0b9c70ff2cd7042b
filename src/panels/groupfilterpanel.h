#pragma once

#include "patch/patchdata.h"
#include "patch/pixellayout.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTreeWidget;
class QTreeWidgetItem;

// The "Groups" tab: the patch's groups and their torvoverses as a two-level
// checklist for hiding parts of the installation, one torvoverse selected to
// highlight it, and the Z layer that is drawn. It owns no patch data; the
// main window gives it the patch and the layout and listens to its signals.
//
// A group row counts its entries in the flat pixel list ("%1 px", kinetic
// items included, as they are drawn too); a torvoverse row shows its
// Port-Address only, so the column stays a column of addresses to scan.
// GUI thread only.
class GroupFilterPanel : public QWidget
{
    Q_OBJECT
public:
    // Item data roles, counted from Qt::UserRole.
    enum ItemRole {
        GroupIndexRole = Qt::UserRole + 1,
        TorvoverseIndexRole = Qt::UserRole + 2, // -1 on group rows
        PortAddressRole = Qt::UserRole + 3,
        GeneratedNameRole = Qt::UserRole + 4,
        GeneratedNumberRole = Qt::UserRole + 5,
        NetRole = Qt::UserRole + 6,
        SubNetRole = Qt::UserRole + 7,
        TargetIpRole = Qt::UserRole + 8,
    };

    explicit GroupFilterPanel(QWidget *parent = nullptr);

    void setPatch(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout);
    void clear();

    QTreeWidget *tree() const { return m_tree; }
    QLabel *layerLabel() const { return m_layerLabel; }
    void retranslateUi();

signals:
    void groupVisibilityChanged(int groupIndex, bool visible);
    void torvoverseVisibilityChanged(int groupIndex, int torvoIndex, bool visible);
    void allVisibilityChanged(bool visible);
    void visibleZChanged(int z); // -1: every layer
    void highlightTorvoverseChanged(int groupIndex, int torvoIndex); // -1, -1: none

public slots:
    void onItemChanged(QTreeWidgetItem *item, int column);
    void onSelectionChanged();
    void onShowAll();
    void onHideAll();

protected:
    void changeEvent(QEvent *event) override;

private:
    void setEveryCheckState(Qt::CheckState state);
    void showRowTexts(QTreeWidgetItem *item);
    void showLayerLabel();

    QLabel *m_title = nullptr;
    QTreeWidget *m_tree = nullptr;
    QPushButton *m_showAll = nullptr;
    QPushButton *m_hideAll = nullptr;
    QLabel *m_zLabel = nullptr;
    QSpinBox *m_zBox = nullptr;
    QCheckBox *m_allZ = nullptr;
    QLabel *m_layerLabel = nullptr;
    // Set while check states change under program control, so that the
    // tree's itemChanged does not emit row by row.
    bool m_guard = false;
    bool m_hasZ = false;
    int m_zMin = 0;
    int m_zMax = 0;
};
