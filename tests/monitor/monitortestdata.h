#pragma once

#include "patch/pixellayout.h"

#include <QVector>

// Hand-made pixel lists for the monitor tests: squares at scene positions,
// with the tree indices, layer and universe the filters and maps look at.
namespace MonitorTestData {

inline TPatch::LayoutPixel square(double x, double y, double side, int group = 0, int torvoverse = 0, int z = 0,
                                  quint16 portAddress = 0, quint16 start = 0)
{
    TPatch::LayoutPixel p;
    p.outline = {QPointF(x, y), QPointF(x + side, y), QPointF(x + side, y + side), QPointF(x, y + side)};
    p.bounds = QRectF(x, y, side, side);
    p.centre = p.bounds.center();
    p.groupIndex = group;
    p.torvoverseIndex = torvoverse;
    p.z = quint16(z);
    p.portAddress = portAddress;
    p.startChannel = start;
    p.roles = {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue};
    return p;
}

// A diamond (a square turned by 45 degrees) centred on (cx, cy).
inline TPatch::LayoutPixel diamond(double cx, double cy, double half)
{
    TPatch::LayoutPixel p = square(cx - half, cy - half, 2 * half);
    p.outline = {QPointF(cx, cy - half), QPointF(cx + half, cy), QPointF(cx, cy + half), QPointF(cx - half, cy)};
    return p;
}

inline TPatch::PixelLayout layoutOf(const QVector<TPatch::LayoutPixel> &pixels)
{
    TPatch::PixelLayout layout;
    layout.pixels = pixels;
    for (int i = 0; i < pixels.size(); ++i) {
        layout.sceneRect = i == 0 ? pixels.at(i).bounds : layout.sceneRect.united(pixels.at(i).bounds);
        layout.portAddressPixels[pixels.at(i).portAddress].append(i);
        layout.zRange.min = layout.zRange.seen ? std::min<int>(layout.zRange.min, pixels.at(i).z) : pixels.at(i).z;
        layout.zRange.max = layout.zRange.seen ? std::max<int>(layout.zRange.max, pixels.at(i).z) : pixels.at(i).z;
        layout.zRange.seen = true;
    }
    return layout;
}

} // namespace MonitorTestData
