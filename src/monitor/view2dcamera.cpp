#include "monitor/view2dcamera.h"

#include <algorithm>
#include <cmath>

namespace {

bool finite(const QRectF &r)
{
    return std::isfinite(r.x()) && std::isfinite(r.y()) && std::isfinite(r.width()) && std::isfinite(r.height());
}

} // namespace

QPointF View2DCamera::mapToScene(const QPointF &viewPoint) const
{
    return centre + (viewPoint - viewCentre()) / scale;
}

QPointF View2DCamera::mapFromScene(const QPointF &scenePoint) const
{
    return (scenePoint - centre) * scale + viewCentre();
}

QTransform View2DCamera::transform() const
{
    const QPointF offset = viewCentre() - centre * scale;
    return QTransform(scale, 0, 0, scale, offset.x(), offset.y());
}

QRectF View2DCamera::visibleSceneRect() const
{
    return QRectF(mapToScene(QPointF(0, 0)), mapToScene(QPointF(viewport.width(), viewport.height())));
}

double fitScale2D(const QRectF &bounds, const QSize &viewport)
{
    if (!finite(bounds) || (bounds.width() <= 0 && bounds.height() <= 0))
        return 0;
    if (viewport.width() <= 1 || viewport.height() <= 1)
        return 0;
    // A side without extent (a single row of zero height) does not limit the scale.
    double scale = View2DCamera::kMaxScale;
    if (bounds.width() > 0)
        scale = std::min(scale, viewport.width() / (bounds.width() * View2DCamera::kFitMargin));
    if (bounds.height() > 0)
        scale = std::min(scale, viewport.height() / (bounds.height() * View2DCamera::kFitMargin));
    return std::clamp(scale, View2DCamera::kMinScale, View2DCamera::kMaxScale);
}

double wheelScale2D(double current, int angleDelta)
{
    const double factor = angleDelta > 0 ? View2DCamera::kZoomFactor : 1.0 / View2DCamera::kZoomFactor;
    return std::clamp(current * factor, View2DCamera::kMinScale, View2DCamera::kMaxScale);
}

bool View2DCamera::fit(const QRectF &bounds)
{
    const double s = fitScale2D(bounds, viewport);
    if (s <= 0)
        return false;
    scale = s;
    centre = bounds.center();
    return true;
}

bool View2DCamera::zoomAt(const QPointF &viewPoint, int angleDelta)
{
    if (angleDelta == 0)
        return false;
    const double next = wheelScale2D(scale, angleDelta);
    if (std::abs(next - scale) <= 1e-12 * std::abs(scale))
        return true; // at a limit: accepted, nothing moves
    const QPointF anchor = mapToScene(viewPoint);
    scale = next;
    centre += anchor - mapToScene(viewPoint);
    return true;
}

void View2DCamera::panBy(const QPointF &viewDelta)
{
    centre -= viewDelta / scale;
}
