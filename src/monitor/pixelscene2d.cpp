#include "monitor/pixelscene2d.h"

void PixelScene2D::setPixels(const QVector<TPatch::LayoutPixel> &pixels)
{
    m_entries.clear();
    m_entries.reserve(pixels.size());
    m_bounds = QRectF();
    m_torvoverses.clear();
    bool first = true;
    for (const TPatch::LayoutPixel &p : pixels) {
        Entry e;
        e.rect = p.bounds;
        e.outline = p.outline;
        e.group = p.groupIndex;
        e.torvoverse = p.torvoverseIndex;
        e.z = p.z;
        e.axisAligned = p.isAxisAligned();
        e.drawable = !p.isKinetic;
        if (e.drawable) {
            m_bounds = first ? e.rect : m_bounds.united(e.rect);
            first = false;
        }
        m_torvoverses.insert(key(e.group, e.torvoverse));
        m_entries.append(e);
    }
    m_hiddenTorvoverses.clear();
    m_visibleZ = -1;
    m_highlightGroup = m_highlightTorvoverse = -1;
    rebuildVisible();
}

void PixelScene2D::clear()
{
    setPixels({});
}

void PixelScene2D::setAllVisible(bool visible)
{
    m_hiddenTorvoverses = visible ? QSet<quint64>() : m_torvoverses;
    rebuildVisible();
}

void PixelScene2D::setGroupVisible(int group, bool visible)
{
    // A group is its torvoverses: the filter panel checks or unchecks them all with it.
    for (const quint64 k : std::as_const(m_torvoverses)) {
        if (int(k >> 32) != group)
            continue;
        if (visible)
            m_hiddenTorvoverses.remove(k);
        else
            m_hiddenTorvoverses.insert(k);
    }
    rebuildVisible();
}

void PixelScene2D::setTorvoverseVisible(int group, int torvoverse, bool visible)
{
    if (visible)
        m_hiddenTorvoverses.remove(key(group, torvoverse));
    else
        m_hiddenTorvoverses.insert(key(group, torvoverse));
    rebuildVisible();
}

void PixelScene2D::setVisibleZ(int z)
{
    m_visibleZ = z < 0 ? -1 : z;
    rebuildVisible();
}

void PixelScene2D::setHighlight(int group, int torvoverse)
{
    if (group < 0 || torvoverse < 0)
        group = torvoverse = -1;
    m_highlightGroup = group;
    m_highlightTorvoverse = torvoverse;
    rebuildVisible();
}

void PixelScene2D::rebuildVisible()
{
    m_visible.clear();
    m_highlighted.clear();
    const bool anyHidden = !m_hiddenTorvoverses.isEmpty();
    for (int i = 0; i < m_entries.size(); ++i) {
        const Entry &e = m_entries.at(i);
        if (!e.drawable || (m_visibleZ >= 0 && e.z != m_visibleZ))
            continue;
        if (anyHidden && m_hiddenTorvoverses.contains(key(e.group, e.torvoverse)))
            continue;
        m_visible.append(i);
        if (hasHighlight() && isHighlighted(e))
            m_highlighted.append(i);
    }
}

bool PixelScene2D::contains(const Entry &e, const QPointF &p) const
{
    if (!e.rect.contains(p))
        return false;
    if (e.axisAligned)
        return true;
    // Crossing test on the quadrilateral: right for any simple outline.
    bool inside = false;
    for (int i = 0, j = 3; i < 4; j = i++) {
        const QPointF &a = e.outline[i];
        const QPointF &b = e.outline[j];
        if ((a.y() > p.y()) != (b.y() > p.y())
            && p.x() < (b.x() - a.x()) * (p.y() - a.y()) / (b.y() - a.y()) + a.x())
            inside = !inside;
    }
    return inside;
}

int PixelScene2D::pixelAt(const QPointF &scenePoint) const
{
    for (auto it = m_highlighted.crbegin(); it != m_highlighted.crend(); ++it) {
        if (contains(m_entries.at(*it), scenePoint))
            return *it;
    }
    for (auto it = m_visible.crbegin(); it != m_visible.crend(); ++it) {
        if (contains(m_entries.at(*it), scenePoint))
            return *it;
    }
    return -1;
}
