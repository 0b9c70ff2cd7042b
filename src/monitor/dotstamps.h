#pragma once

#include <QRgb>
#include <QtGlobal>

#include <vector>

// Anti-aliased round dots of one radius, stamped into a 32-bit image instead
// of filled one by one through a painter: a coverage mask (0-255 per pixel,
// the area of the pixel the disc covers) for each sub-pixel position of the
// centre, built once per radius. A dot then costs a copy of its inner pixels
// and a blend of its rim, which is what the raster engine's anti-aliased
// ellipse does, without its per-call setup. Any thread; not shared.
class DotStamps
{
public:
    // Builds the masks for this radius (pixels), unless they are built already.
    void prepare(double radius);
    double radius() const { return m_radius; }

    // Draws one opaque dot centred at (x, y), image pixel units (pixel (i, j)
    // covers [i, i+1) x [j, j+1)), clipped to width x height.
    void stamp(QRgb *bits, qsizetype stride, int width, int height, double x, double y, QRgb colour) const;

private:
    double m_radius = -1;
    int m_steps = 1;  // sub-pixel positions per axis
    int m_size = 0;   // a mask is m_size x m_size pixels
    std::vector<quint8> m_masks;          // m_steps * m_steps masks
    std::vector<quint16> m_rowFirst;      // per mask row: first pixel with coverage,
    std::vector<quint16> m_rowEnd;        // and one past the last
};
