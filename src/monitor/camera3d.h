#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QVector>

// One drawn point of the 3D model and one kinetic item (base point and the
// current length of its line), in model units.
struct Point3
{
    float x = 0, y = 0, z = 0;
};
struct Kinetic3
{
    float x = 0, y = 0, z = 0, value = 0;
};

// The 3D monitor's camera: rotation about X (pitch) then Y (yaw), parallel
// projection whose scale is 300 / distance, and a screen offset. The distance
// only zooms; it also hides what is behind the camera. Plain value type.
struct Camera3D
{
    static constexpr double kDefaultPitch = 0.3;
    static constexpr double kDefaultYaw = 0.7;
    static constexpr double kDefaultDistance = 300.0;
    static constexpr double kMinDistance = 5.0;
    static constexpr double kMaxDistance = 15000.0;
    static constexpr double kProjection = 300.0;
    static constexpr double kFitFill = 0.88;      // the model fills 88 % of the limiting side
    static constexpr double kWheelStep = 20.0;    // distance per wheel notch (120 units)
    static constexpr double kDragRadians = 0.01;  // per pixel of a left-button drag
    static constexpr double kNearPlane = 1.0;     // drawn when z + distance exceeds it

    double pitch = kDefaultPitch; // radians
    double yaw = kDefaultYaw;     // radians
    double distance = kDefaultDistance;
    double worldScale = 1.0;
    QPointF pan; // screen offset of the model's origin from the view centre

    // Rotation with the trigonometry of one pose computed once.
    struct Rotation
    {
        double cp, sp, cq, sq;
        Point3 apply(double x, double y, double z) const
        {
            const double y1 = y * cp - z * sp;
            const double z1 = y * sp + z * cp;
            return Point3{float(x * cq + z1 * sq), float(y1), float(-x * sq + z1 * cq)};
        }
    };
    Rotation rotation() const;
    Point3 rotate(const Point3 &p) const { return rotation().apply(p.x, p.y, p.z); }

    double projectionScale() const { return kProjection / distance; } // s
    double pointScale() const { return worldScale * projectionScale(); } // k
    bool isVisible(const Point3 &rotated) const { return rotated.z + distance > kNearPlane; }
    // Screen position of a rotated point relative to the pan offset.
    QPointF project(const Point3 &rotated) const
    {
        const double k = pointScale();
        return QPointF(rotated.x * k, rotated.y * k);
    }

    // Fits points and kinetic lines into viewRect (88 % of the limiting side,
    // centred). Returns false and changes nothing when there is nothing with
    // an extent to fit.
    bool fit(const QVector<Point3> &points, const QVector<Kinetic3> &kinetics, const QRectF &viewRect);
    // One wheel event: angleDeltaY / 120 notches of kWheelStep, the point under
    // the cursor kept in place. cursor and viewport are in view pixels.
    void wheel(int angleDeltaY, const QPointF &cursor, const QSizeF &viewport);
    // Presets 0..5: front, back, left, right, top, bottom. Others are ignored.
    bool setPreset(int preset);
    void reset();
    static double clampDistance(double d);
};

// The auto orbit: swings pitch and yaw by up to 45 degrees around where they
// were when it started, on two incommensurate periods.
struct AutoOrbit3D
{
    static constexpr int kIntervalMs = 30;
    static constexpr double kPhaseStep = 0.02;

    double startPitch = 0;
    double startYaw = 0;
    double phase = 0;

    void start(const Camera3D &camera);
    void tick(Camera3D &camera);
};
