#include "monitor/camera3d.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kMinExtent = 1e-6;

struct Preset
{
    double pitch, yaw;
};
constexpr Preset kPresets[] = {{0, 0}, {0, kPi}, {0, kPi / 2}, {0, -kPi / 2}, {-kPi / 2, 0}, {kPi / 2, 0}};

} // namespace

Camera3D::Rotation Camera3D::rotation() const
{
    return Rotation{std::cos(pitch), std::sin(pitch), std::cos(yaw), std::sin(yaw)};
}

double Camera3D::clampDistance(double d)
{
    if (std::isnan(d))
        return kDefaultDistance;
    return std::clamp(d, kMinDistance, kMaxDistance);
}

bool Camera3D::fit(const QVector<Point3> &points, const QVector<Kinetic3> &kinetics, const QRectF &viewRect)
{
    if (points.isEmpty() && kinetics.isEmpty())
        return false;
    const Rotation r = rotation();
    double minX = HUGE_VAL, maxX = -HUGE_VAL, minY = HUGE_VAL, maxY = -HUGE_VAL;
    auto take = [&](double x, double y, double z) {
        const Point3 p = r.apply(x, y, z);
        if (!std::isfinite(p.x) || !std::isfinite(p.y))
            return;
        minX = std::min(minX, double(p.x));
        maxX = std::max(maxX, double(p.x));
        minY = std::min(minY, double(p.y));
        maxY = std::max(maxY, double(p.y));
    };
    for (const Point3 &p : points)
        take(p.x, p.y, p.z);
    for (const Kinetic3 &k : kinetics) {
        take(k.x, k.y, k.z);
        take(k.x, k.y, double(k.z) + k.value);
    }
    if (minX > maxX)
        return false;
    const double w = maxX - minX;
    const double h = maxY - minY;
    double needed = HUGE_VAL;
    if (w > kMinExtent)
        needed = viewRect.width() * kFitFill / w;
    if (h > kMinExtent)
        needed = std::min(needed, viewRect.height() * kFitFill / h);
    if (needed == HUGE_VAL)
        return false; // a single point: nothing to size by
    needed = std::min(needed, 1e9);
    if (!(needed > 1e-9))
        return false;
    distance = clampDistance(worldScale * kProjection / needed);
    const double k = worldScale * kProjection / distance;
    pan = -QPointF((minX + maxX) / 2, (minY + maxY) / 2) * k;
    return true;
}

void Camera3D::wheel(int angleDeltaY, const QPointF &cursor, const QSizeF &viewport)
{
    const double notches = angleDeltaY * 0.125 / 15.0;
    const double oldS = projectionScale();
    distance = clampDistance(distance - notches * kWheelStep);
    const double newS = projectionScale();
    const QPointF c = cursor - QPointF(viewport.width() / 2, viewport.height() / 2);
    const QPointF m = (c - pan) / oldS;
    pan = c - newS * m;
}

bool Camera3D::setPreset(int preset)
{
    if (preset < 0 || preset >= int(std::size(kPresets)))
        return false;
    pitch = kPresets[preset].pitch;
    yaw = kPresets[preset].yaw;
    return true;
}

void Camera3D::reset()
{
    pitch = kDefaultPitch;
    yaw = kDefaultYaw;
    distance = kDefaultDistance;
    pan = QPointF();
}

void AutoOrbit3D::start(const Camera3D &camera)
{
    startPitch = camera.pitch;
    startYaw = camera.yaw;
    phase = 0;
}

void AutoOrbit3D::tick(Camera3D &camera)
{
    phase += kPhaseStep;
    camera.pitch = startPitch + std::sin(phase) * (kPi / 4);
    camera.yaw = startYaw + std::sin(0.7 * phase + 1.5) * (kPi / 4);
}
