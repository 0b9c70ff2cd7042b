#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>

// Where the 2D monitor looks: the zoom scale and the scene point shown at the
// middle of the viewport. The view follows it exactly, so panning is free at
// any zoom and the maths is tested without a display. Plain value type; any
// thread may use its own copy.
struct View2DCamera
{
    static constexpr double kMinScale = 0.02;
    static constexpr double kMaxScale = 400.0;
    static constexpr double kZoomFactor = 1.15; // one wheel event, whatever its size
    static constexpr double kFitMargin = 1.04;  // 2 % of air on each side after a fit

    double scale = 1.0;
    QPointF centre; // scene point at the viewport's middle
    QSize viewport; // in device-independent pixels

    // The viewport's middle as the graphics view computes it (whole-pixel halves).
    QPointF viewCentre() const { return QPointF(viewport.width() / 2, viewport.height() / 2); }
    QPointF mapToScene(const QPointF &viewPoint) const;
    QPointF mapFromScene(const QPointF &scenePoint) const;
    // Scene to view, as a painter transform.
    QTransform transform() const;
    // The part of the scene the viewport shows.
    QRectF visibleSceneRect() const;

    // Fits bounds into the viewport with the margin; false (nothing changed)
    // for empty or non-finite bounds or a viewport of one pixel or less.
    bool fit(const QRectF &bounds);
    // One wheel event at viewPoint: false when the event is not handled (zero
    // delta). Zooms by kZoomFactor within the scale limits, keeping the scene
    // point under viewPoint in place; at a limit nothing changes.
    bool zoomAt(const QPointF &viewPoint, int angleDelta);
    // Moves the picture by a mouse movement in view pixels.
    void panBy(const QPointF &viewDelta);
};

// The scale a fit would choose, clamped to the limits; 0 when there is nothing
// to fit (see View2DCamera::fit).
double fitScale2D(const QRectF &bounds, const QSize &viewport);
// The scale after one wheel event of angleDelta (non-zero), clamped.
double wheelScale2D(double current, int angleDelta);
