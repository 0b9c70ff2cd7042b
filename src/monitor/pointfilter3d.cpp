#include "monitor/pointfilter3d.h"

#include "monitor/pixelpainter2d.h"

#include <QColor>

void PointFilter3D::setPoints(const QVector<TPatch::LayoutPixel> &pixels, const QVector<int> &pointPixels)
{
    m_pointKeys.resize(pointPixels.size());
    m_torvoverses.clear();
    for (qsizetype i = 0; i < pointPixels.size(); ++i) {
        const int p = pointPixels.at(i);
        const bool known = p >= 0 && p < pixels.size();
        m_pointKeys[i] = known ? key(pixels.at(p).groupIndex, pixels.at(p).torvoverseIndex) : key(-1, -1);
        m_torvoverses.insert(m_pointKeys[i]);
    }
    m_hidden.clear();
    m_highlight = -1;
}

void PointFilter3D::setAllVisible(bool visible)
{
    m_hidden = visible ? QSet<quint64>() : m_torvoverses;
}

void PointFilter3D::setGroupVisible(int group, bool visible)
{
    for (const quint64 k : std::as_const(m_torvoverses)) {
        if (int(k >> 32) != group)
            continue;
        if (visible)
            m_hidden.remove(k);
        else
            m_hidden.insert(k);
    }
}

void PointFilter3D::setTorvoverseVisible(int group, int torvoverse, bool visible)
{
    if (visible)
        m_hidden.remove(key(group, torvoverse));
    else
        m_hidden.insert(key(group, torvoverse));
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
        if (!m_hidden.isEmpty() && m_hidden.contains(k)) {
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
