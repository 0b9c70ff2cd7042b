#pragma once

#include "patch/patchdata.h"
#include "patch/patchkeys.h"

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <array>

namespace TPatch {

// One entry of the flat pixel list: a placed colour pixel or kinetic item with
// everything the monitor views, the colour evaluation and the hover texts read.
// Every outline is a quadrilateral (a grid cell or a free-position square), so
// it is kept inline: half a million pixels would otherwise mean half a million
// small heap blocks.
struct LayoutPixel
{
    std::array<QPointF, 4> outline; // scene coordinates, corners in drawing order
    QRectF bounds;                  // bounding rectangle of the outline
    QPointF centre;                 // centre of bounds
    quint64 deviceKey = 0;
    qint32 groupIndex = 0;
    qint32 torvoverseIndex = 0; // within its group
    qint32 fixtureIndex = 0;    // within its torvoverse
    quint16 z = 0;              // the record's posZ
    quint16 portAddress = 0;
    quint16 startChannel = 0; // the record's address: zero-based offset into the universe's data
    std::array<quint8, kSlotCount> roles{};
    KineticChannel kineticChannel; // meaningful for kinetic items only
    bool isKinetic = false;

    QPolygonF polygon() const { return QPolygonF(QList<QPointF>(outline.cbegin(), outline.cend())); }
    // True when the outline is its own bounding rectangle (no rotation, shear
    // or warp): the 2D view then draws a rectangle instead of a polygon.
    bool isAxisAligned() const;
};

} // namespace TPatch
