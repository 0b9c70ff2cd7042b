#pragma once

#include "patch/layoutpixel.h"

#include <QRgb>
#include <QSet>
#include <QVector>

// The group filter as the 3D view applies it, with the 2D view's rules
// (PixelScene2D): a group is its torvoverses, so hiding a group hides each of
// them and showing one torvoverse again shows it; with a torvoverse
// highlighted every other point is drawn darker. Z layers are not filtered
// here: in 3D the layers stand apart in depth, which is what the view is for.
//
// Hidden points get a colour with alpha 0, which the 3D scene skips (the
// colour buffer's colours are always opaque). GUI thread, or any one thread
// per instance.
class PointFilter3D
{
public:
    // The (group, torvoverse) of each drawn point: pointPixels maps point
    // numbers to pixel numbers of the layout. Everything visible, no highlight.
    void setPoints(const QVector<TPatch::LayoutPixel> &pixels, const QVector<int> &pointPixels);

    void setAllVisible(bool visible);
    void setGroupVisible(int group, bool visible);
    void setTorvoverseVisible(int group, int torvoverse, bool visible);
    void setHighlight(int group, int torvoverse); // (-1, -1): none
    // Nothing hidden and nothing highlighted: colours pass through unchanged.
    bool isIdentity() const { return m_hidden.isEmpty() && m_highlight < 0; }

    // Writes the filtered colour of every point; in and out hold one colour per point.
    void apply(const QRgb *in, QRgb *out, qsizetype count) const;

private:
    static quint64 key(int group, int torvoverse) { return (quint64(quint32(group)) << 32) | quint32(torvoverse); }

    QVector<quint64> m_pointKeys; // per point: key(group, torvoverse)
    QSet<quint64> m_torvoverses;  // every key a point carries
    QSet<quint64> m_hidden;
    qint64 m_highlight = -1; // key of the highlighted torvoverse, -1 for none
};
