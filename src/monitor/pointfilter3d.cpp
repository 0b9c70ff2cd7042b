#include "monitor/pointfilter3d.h"

#include "monitor/pixelpainter2d.h"

#include <QColor>

void PointFilter3D::setPoints(const QVector<TPatch::LayoutPixel> &pixels, const QVector<int> &pointPixels)
{
    m_pointKeys.resize(pointPixels.size());
    m_pointGroups.resize(pointPixels.size());
    m_allGroups.clear();
    for (qsizetype i = 0; i < pointPixels.size(); ++i) {
        const int p = pointPixels.at(i);
        const bool known = p >= 0 && p < pixels.size();
        const int group = known ? pixels.at(p).groupIndex : -1;
        m_pointGroups[i] = group;
        m_pointKeys[i] = known ? key(group, pixels.at(p).torvoverseIndex) : key(-1, -1);
        m_allGroups.insert(group);
    }
    m_hiddenGroups.clear();
    m_hiddenTorvoverses.clear();
    m_highlight = -1;
}

void PointFilter3D::setAllVisible(bool visible)
{
    m_hiddenTorvoverses.clear();
    m_hiddenGroups = visible ? QSet<int>() : m_allGroups;
}

void PointFilter3D::setGroupVisible(int group, bool visible)
{
    if (visible)
        m_hiddenGroups.remove(group);
    else
        m_hiddenGroups.insert(group);
}

void PointFilter3D::setTorvoverseVisible(int group, int torvoverse, bool visible)
{
    if (visible)
        m_hiddenTorvoverses.remove(key(group, torvoverse));
    else
        m_hiddenTorvoverses.insert(key(group, torvoverse));
}

void PointFilter3D::setHighlight(int group, int torvoverse)
{
    m_highlight = torvoverse < 0 ? -1 : qint64(key(group, torvoverse));
}

void PointFilter3D::apply(const QRgb *in, QRgb *out, qsizetype count) const
{
    const qsizetype n = std::min<qsizetype>(count, m_pointKeys.size());
    QRgb lastIn = 0, lastDarker = 0;
    bool haveDarker = false;
    for (qsizetype i = 0; i < n; ++i) {
        const quint64 k = m_pointKeys.at(i);
        if (m_hiddenGroups.contains(m_pointGroups.at(i)) || m_hiddenTorvoverses.contains(k)) {
            out[i] = 0; // alpha 0: not drawn
            continue;
        }
        if (m_highlight < 0 || qint64(k) == m_highlight) {
            out[i] = in[i];
            continue;
        }
        // Neighbouring points often share a colour: darken each colour once.
        if (!haveDarker || in[i] != lastIn) {
            lastIn = in[i];
            lastDarker = QColor::fromRgb(in[i]).darker(kHighlightDarkerFactor).rgba();
            haveDarker = true;
        }
        out[i] = lastDarker;
    }
    for (qsizetype i = n; i < count; ++i)
        out[i] = in[i];
}
