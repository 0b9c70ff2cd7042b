#include "monitor/dotstamps.h"

#include <algorithm>
#include <cmath>

namespace {

// Coverage of the unit pixel at (px, py) by the disc at (cx, cy); 0-255.
// Small discs from n x n samples; on a large one the rim is nearly straight
// across a pixel, and the distance of the pixel's centre from it is exact
// enough (n = 0).
quint8 coverage(double px, double py, double cx, double cy, double r, int n)
{
    if (n == 0) {
        const double d = std::hypot(px + 0.5 - cx, py + 0.5 - cy);
        return quint8(std::lround(std::clamp(r + 0.5 - d, 0.0, 1.0) * 255));
    }
    const double r2 = r * r;
    int inside = 0;
    for (int sy = 0; sy < n; ++sy) {
        const double dy = py + (sy + 0.5) / n - cy;
        for (int sx = 0; sx < n; ++sx) {
            const double dx = px + (sx + 0.5) / n - cx;
            inside += dx * dx + dy * dy <= r2;
        }
    }
    return quint8((inside * 255 + n * n / 2) / (n * n));
}

// Source over for an opaque colour with coverage a (1-254).
inline QRgb blend(QRgb src, QRgb dst, quint32 a)
{
    const quint32 b = 255 - a;
    quint32 rb = (src & 0xFF00FF) * a + (dst & 0xFF00FF) * b;
    rb = ((rb + ((rb >> 8) & 0xFF00FF) + 0x800080) >> 8) & 0xFF00FF;
    quint32 g = ((src >> 8) & 0xFF) * a + ((dst >> 8) & 0xFF) * b;
    g = ((g + (g >> 8) + 0x80) >> 8) & 0xFF;
    return 0xFF000000 | rb | (g << 8);
}

} // namespace

void DotStamps::prepare(double radius)
{
    radius = std::clamp(radius, 0.05, 512.0);
    if (radius == m_radius)
        return;
    m_radius = radius;
    // Finer positions and samples where a dot is small and every pixel shows;
    // a large dot's rim is long and needs fewer.
    m_steps = radius <= 8 ? 8 : 4;
    const int samples = radius <= 8 ? 8 : 0;
    m_size = int(std::ceil(2 * radius)) + 2;
    const size_t area = size_t(m_size) * size_t(m_size);
    m_masks.assign(area * size_t(m_steps * m_steps), 0);
    m_rowFirst.assign(size_t(m_size) * size_t(m_steps * m_steps), 0);
    m_rowEnd.assign(size_t(m_size) * size_t(m_steps * m_steps), 0);
    for (int my = 0; my < m_steps; ++my) {
        for (int mx = 0; mx < m_steps; ++mx) {
            const int index = my * m_steps + mx;
            quint8 *mask = m_masks.data() + area * size_t(index);
            // The disc's left edge sits mx / steps of a pixel into the mask.
            const double cx = radius + double(mx) / m_steps;
            const double cy = radius + double(my) / m_steps;
            for (int j = 0; j < m_size; ++j) {
                int first = m_size, end = 0;
                for (int i = 0; i < m_size; ++i) {
                    const quint8 c = coverage(i, j, cx, cy, radius, samples);
                    mask[j * m_size + i] = c;
                    if (c) {
                        first = std::min(first, i);
                        end = i + 1;
                    }
                }
                m_rowFirst[size_t(index * m_size + j)] = quint16(first);
                m_rowEnd[size_t(index * m_size + j)] = quint16(end);
            }
        }
    }
}

void DotStamps::stamp(QRgb *bits, qsizetype stride, int width, int height, double x, double y, QRgb colour) const
{
    // Off the picture (or not a number): nothing to draw, and no cast of a huge value.
    if (m_size == 0 || !(x > -m_size && y > -m_size && x < width + m_size && y < height + m_size))
        return;
    // The mask whose sub-pixel position is nearest the disc's top-left edge.
    const double left = (x - m_radius) * m_steps;
    const double top = (y - m_radius) * m_steps;
    const qint64 qx = qint64(std::floor(left + 0.5));
    const qint64 qy = qint64(std::floor(top + 0.5));
    const qint64 ox = qx >= 0 ? qx / m_steps : -((-qx + m_steps - 1) / m_steps);
    const qint64 oy = qy >= 0 ? qy / m_steps : -((-qy + m_steps - 1) / m_steps);
    const int mx = int(qx - ox * m_steps);
    const int my = int(qy - oy * m_steps);
    const int index = my * m_steps + mx;
    const quint8 *mask = m_masks.data() + size_t(m_size) * size_t(m_size) * size_t(index);
    const quint16 *rowFirst = m_rowFirst.data() + size_t(index * m_size);
    const quint16 *rowEnd = m_rowEnd.data() + size_t(index * m_size);
    colour |= 0xFF000000;
    const int j0 = int(std::max<qint64>(0, -oy));
    const int j1 = int(std::min<qint64>(m_size, height - oy));
    for (int j = j0; j < j1; ++j) {
        const int i0 = int(std::max<qint64>(rowFirst[j], -ox));
        const int i1 = int(std::min<qint64>(rowEnd[j], width - ox));
        QRgb *row = bits + (oy + j) * stride + ox;
        const quint8 *coverageRow = mask + j * m_size;
        for (int i = i0; i < i1; ++i) {
            const quint32 a = coverageRow[i];
            if (a == 255)
                row[i] = colour;
            else if (a != 0)
                row[i] = blend(colour, row[i], a);
        }
    }
}
