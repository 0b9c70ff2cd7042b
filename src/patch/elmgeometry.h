#pragma once

#include <QPointF>
#include <QVector>

namespace TPatch {

// Where ELM shows a fixture's LEDs: spread evenly by length along the polyline
// through the points ("line") or along a Catmull-Rom curve through them
// ("curve"), around the closed shape when loop is set. Open shapes put the
// first and last LED on the end points; closed ones space all LEDs equally
// around. angles receives the direction of travel at each LED in degrees.
QVector<QPointF> elmLedPositions(const QVector<QPointF> &points, int ledCount, bool curve, bool loop,
                                 QVector<double> *angles = nullptr);

} // namespace TPatch
