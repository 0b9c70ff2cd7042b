#include "monitor/model3d.h"

#include <algorithm>
#include <cmath>

namespace {

bool finite(const QRectF &r)
{
    return std::isfinite(r.x()) && std::isfinite(r.y()) && std::isfinite(r.width()) && std::isfinite(r.height());
}

} // namespace

Model3D buildModel3D(const TPatch::PixelLayout &layout)
{
    Model3D model;
    QRectF extent;
    bool first = true;
    for (const TPatch::LayoutPixel &p : layout.pixels) {
        if (!finite(p.bounds))
            continue;
        extent = first ? p.bounds : extent.united(p.bounds);
        first = false;
    }
    if (first)
        return model;
    const double longest = std::max(extent.width(), extent.height());
    const double scale = longest > 1e-9 ? Model3D::kModelExtent / longest : 1.0;
    const QPointF centre = extent.center();
    const double zMiddle = layout.zRange.seen ? (double(layout.zRange.min) + layout.zRange.max) / 2 : 0.0;

    // A sample of cell sizes is enough for one dot radius.
    std::vector<double> sides;
    const qsizetype stride = std::max<qsizetype>(1, layout.pixels.size() / 2048);
    for (qsizetype i = 0; i < layout.pixels.size(); ++i) {
        const TPatch::LayoutPixel &p = layout.pixels.at(i);
        if (!finite(p.bounds))
            continue;
        const Point3 point{float((p.centre.x() - centre.x()) * scale), float((p.centre.y() - centre.y()) * scale),
                           float((p.z - zMiddle) * Model3D::kLayerSpacing)};
        if (p.isKinetic) {
            model.kinetics.append(Kinetic3{point.x, point.y, point.z, 0.0f});
            model.kineticPixels.append(int(i));
        } else {
            model.positions.append(point);
            model.pointPixels.append(int(i));
            if (i % stride == 0)
                sides.push_back(std::min(p.bounds.width(), p.bounds.height()));
        }
    }
    if (!sides.empty()) {
        std::nth_element(sides.begin(), sides.begin() + qsizetype(sides.size() / 2), sides.end());
        const double side = sides[sides.size() / 2] * scale;
        if (side > 0 && std::isfinite(side))
            model.ledRadius = side * Model3D::kDotFill * model.worldScale;
    }
    return model;
}
