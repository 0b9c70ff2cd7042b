#pragma once

#include "patch/layoutpixel.h"

#include <QRectF>
#include <QSet>
#include <QVector>

#include <array>

// What the 2D monitor draws: each pixel's rectangle and outline, which pixels
// the group filter lets through (group, torvoverse, Z layer) and which
// torvoverse is highlighted. Indexed by pixel number; kinetic items keep their
// number but are never drawn in 2D. GUI thread, or any one thread per copy.
class PixelScene2D
{
public:
    struct Entry
    {
        QRectF rect;                      // bounding rectangle of the outline
        std::array<QPointF, 4> outline{}; // corners in drawing order
        qint32 group = 0;
        qint32 torvoverse = 0;
        quint16 z = 0;
        bool axisAligned = true; // draw rect, else the convex outline
        bool drawable = true;    // false for kinetic items
    };

    // Takes the geometry of a pixel list; everything visible, no highlight.
    void setPixels(const QVector<TPatch::LayoutPixel> &pixels);
    void clear();

    int pixelCount() const { return int(m_entries.size()); }
    const Entry &entry(int pixelNumber) const { return m_entries.at(pixelNumber); }
    // Union of the drawable pixels' rectangles; empty without any.
    QRectF bounds() const { return m_bounds; }

    // The group filter's inputs. visibleZ -1 shows every layer.
    void setAllVisible(bool visible);
    void setGroupVisible(int group, bool visible);
    void setTorvoverseVisible(int group, int torvoverse, bool visible);
    void setVisibleZ(int z);
    int visibleZ() const { return m_visibleZ; }
    // (-1, -1) highlights nothing.
    void setHighlight(int group, int torvoverse);
    bool hasHighlight() const { return m_highlightTorvoverse >= 0; }
    bool isHighlighted(const Entry &e) const
    {
        return e.group == m_highlightGroup && e.torvoverse == m_highlightTorvoverse;
    }

    // Pixel numbers drawn, in drawing order (pixel number order).
    const QVector<int> &visiblePixels() const { return m_visible; }
    // The visible pixels of the highlighted torvoverse, drawn after the rest.
    const QVector<int> &highlightedPixels() const { return m_highlighted; }

    // The pixel drawn on top at a scene point, or -1: highlighted pixels first
    // (they are painted last), then the latest in drawing order.
    int pixelAt(const QPointF &scenePoint) const;

private:
    static quint64 key(int group, int torvoverse) { return (quint64(quint32(group)) << 32) | quint32(torvoverse); }
    bool contains(const Entry &e, const QPointF &p) const;
    void rebuildVisible();

    QVector<Entry> m_entries;
    QRectF m_bounds;
    QSet<quint64> m_torvoverses; // every (group, torvoverse) present
    QSet<quint64> m_hiddenTorvoverses;
    int m_visibleZ = -1;
    int m_highlightGroup = -1;
    int m_highlightTorvoverse = -1;
    QVector<int> m_visible;
    QVector<int> m_highlighted;
};
