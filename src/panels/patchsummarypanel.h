#pragma once

#include "patch/patchdata.h"
#include "patch/patchmessage.h"
#include "patch/pixellayout.h"
#include "panels/universetablemodel.h"

#include <QVector>
#include <QWidget>

class MoxStyle;
class QLabel;
class QSortFilterProxyModel;
class QTableView;

// The "Patch" tab: a read-only summary of the loaded patch: project and
// device, counts, white-channel use, how its universes reach this program over
// Art-Net and the import warnings as rich text, then the universe table.
// Rebuilt whole on every patch, language and theme change, from figures taken
// once per patch (the patch itself is not kept).
//
// The universe table is a table view over UniverseTableModel, not an HTML
// table: laying out an HTML table of 2,048 universes takes the text engine
// most of a second, a model draws only the rows in sight and sorts by any
// column (by channels, to find the ranges that overflow). Its columns and cell
// texts are the ones the HTML table would have.
//
// Choices left open: channels are shown as DMX users count them, from 1; a
// torvoverse's range runs from its lowest start channel to the last slot any
// pixel or kinetic item uses, and its cell takes the warning colour when that
// end lies past the patch's channel limit or past 512. The colours are the
// theme's accent (project, headings), muted (hints) and warning roles.
// GUI thread only.
class PatchSummaryPanel : public QWidget
{
    Q_OBJECT
public:
    struct Summary
    {
        QString projectName;
        qint32 device = 0;
        qint32 selectedChLimit = 512;
        QString formatLabel;
        QString importedFrom;
        TPatch::SourceKind sourceKind = TPatch::SourceKind::Native;
        TPatch::PatchCounts counts;
        qint64 drawablePixels = 0;
        qint64 pixelsWithWhite = 0;
        qint64 whiteSlots = 0, coolWhiteSlots = 0, warmWhiteSlots = 0;
        QVector<TPatch::PatchMessage> warnings;
        QVector<UniverseTableModel::Row> universes;
        // The last channel a range may reach: the patch's limit, never past 512.
        int channelLimit() const;
    };
    // The figures the summary shows; any thread.
    static Summary summarise(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout,
                             const QVector<TPatch::PatchMessage> &warnings);

    // style: the theme engine (not owned); it outlives the panel.
    explicit PatchSummaryPanel(const MoxStyle &style, QWidget *parent = nullptr);

    void setPatch(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout,
                  const QVector<TPatch::PatchMessage> &warnings);
    void clear();

    // The rich text shown now (everything but the universe table).
    QString html() const { return m_html; }
    QLabel *textView() const { return m_text; }
    QTableView *universeTable() const { return m_table; }
    const UniverseTableModel *universeModel() const { return m_model; }
    QLabel *stateLabel() const { return m_state; }
    void retranslateUi();

protected:
    void changeEvent(QEvent *event) override;

private:
    QString buildHtml() const;

    const MoxStyle *m_style = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_state = nullptr;
    QLabel *m_text = nullptr;
    QLabel *m_tableTitle = nullptr;
    QTableView *m_table = nullptr;
    UniverseTableModel *m_model = nullptr;
    QSortFilterProxyModel *m_sorted = nullptr;
    bool m_hasPatch = false;
    Summary m_summary;
    QString m_html;
};
