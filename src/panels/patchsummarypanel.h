#pragma once

#include "patch/patchdata.h"
#include "patch/patchmessage.h"
#include "patch/pixellayout.h"

#include <QVector>
#include <QWidget>

class MoxStyle;
class QLabel;
class QTextBrowser;

// The "Patch" tab: one read-only rich-text summary of the loaded patch:
// project and device, counts, white-channel use, how its universes reach this
// program over Art-Net, the import warnings and the universe table. Rebuilt
// whole on every patch, language and theme change, from figures taken once
// per patch (the patch itself is not kept).
//
// Choices left open: channels are shown as DMX users count them, from 1; a
// torvoverse's range runs from its lowest start channel to the last slot any
// pixel or kinetic item uses, and its cell takes the warning colour when that
// end lies past the patch's channel limit or past 512. The colours are the
// theme's accent (project), muted (hints) and warning roles. GUI thread only.
class PatchSummaryPanel : public QWidget
{
    Q_OBJECT
public:
    // What one universe-table row shows.
    struct UniverseRow
    {
        quint16 portAddress = 0;
        int net = 0, subNet = 0, universe = 0;
        qint64 pixels = 0;
        int firstChannel = 0; // 1-based; 0 when nothing is patched
        int lastChannel = 0;
        QString targetIp;
    };
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
        QVector<UniverseRow> universes;
    };
    // The figures the summary shows; any thread.
    static Summary summarise(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout,
                             const QVector<TPatch::PatchMessage> &warnings);

    explicit PatchSummaryPanel(const MoxStyle *style, QWidget *parent = nullptr);

    void setPatch(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout,
                  const QVector<TPatch::PatchMessage> &warnings);
    void clear();

    // The HTML shown now.
    QString html() const { return m_html; }
    QTextBrowser *view() const { return m_view; }
    QLabel *stateLabel() const { return m_state; }
    void retranslateUi();

protected:
    void changeEvent(QEvent *event) override;

private:
    QString buildHtml() const;

    const MoxStyle *m_style = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_state = nullptr;
    QTextBrowser *m_view = nullptr;
    bool m_hasPatch = false;
    Summary m_summary;
    QString m_html;
};
