#pragma once

#include "patch/patchdata.h"

#include <QPointF>
#include <QRectF>

namespace TPatch {

// Where the records of a grid fixture sit before the fixture's rectangle is
// fitted around them, measured in grid steps: one step is one cell, so a
// record's cell is the 1 x 1 square centred on its step position.
//
// Straight and matrix fixtures: a record sits at (posX, posY). The fixture's
// counts, offsets and dims are the same for every record of the fixture, so
// after the layout fits the records' extent into the rectangle they could only
// shift or pad all cells alike; they do not move cells. posZ is the record's
// layer: layers lie on top of each other in the plane (the group filter shows
// one layer at a time; the 3D view spreads them by z).
//
// Arc fixtures: record k = posX of n = max(countX, largest posX + 1) sits at
// angle a = start + (end - start) * (k + 0.5) / n, the end taken 360 degrees
// further when it is not beyond the start, so that two half arcs of n pixels
// join into an evenly spaced ring. Angles count counter-clockwise on screen
// from 3 o'clock, as the sibling controller's editor draws them (0 to 180 is
// the upper half). The radius is arcRadius scene units at the editor's cell
// height of resizeFactor x 3 units, i.e. arcRadius / (3 x resizeFactor) steps;
// each posY row lies one step further out.
//
// The layout scales x steps by rectangle width / extent and y steps by
// rectangle height / extent, so a fixture looks as it did in the editor when
// its rectangle has the aspect of its cells' extent: square cells, round arcs.
// The editor keeps its rectangles that way; gridCellBounds() gives the extent
// for our own generators.
class GridPlacement
{
public:
    explicit GridPlacement(const PatchFixture &fixture);

    // False when the fixture's numbers (arc radius or angles) cannot place anything.
    bool isValid() const { return m_valid; }
    // Step position of one record of the fixture (kinetics and leds alike).
    QPointF stepPosition(const LedRecord &record) const;

private:
    bool m_valid = true;
    bool m_isArc = false;
    double m_radiusSteps = 0;
    double m_startRad = 0;
    double m_sweepRad = 0;
    int m_arcCount = 1;
};

// The union of the cells of all records of a grid fixture, in steps; an empty
// rectangle when the fixture has no records or cannot be placed. A generator
// that wants c scene units per cell sets rect to this rectangle's size times c.
QRectF gridCellBounds(const PatchFixture &fixture);

} // namespace TPatch
