#pragma once

#include "monitor/brushcycler.h"
#include "monitor/camera3d.h"
#include "monitor/dotstamps.h"

#include <QImage>
#include <QRectF>
#include <QRgb>
#include <QVector>

#include <vector>

class QPainter;

// Everything the 3D monitor paints: the model's points and kinetic items,
// their colours and lengths, the camera, the drawing options and the
// back-to-front drawing order. paint() draws into any painter whose origin is
// the view's centre; the 3D view's graphics item and headless rendering share
// it. GUI thread, or any one thread per instance.
class Monitor3DScene
{
public:
    // Replaces the model: every colour opaque white, every kinetic value 0.
    // The camera keeps its angles.
    void setModel(const QVector<Point3> &positions, const QVector<Kinetic3> &kinetics, double worldScale,
                  double ledRadius);
    // Replace the colours / kinetic values in place; ignored (false) when the
    // count differs from the model's. A colour with alpha 0 is not drawn.
    bool setColours(const QVector<QRgb> &colours);
    bool setKineticValues(const QVector<float> &values);

    int pointCount() const { return int(m_positions.size()); }
    int kineticCount() const { return int(m_kinetics.size()); }
    const QVector<Point3> &positions() const { return m_positions; }
    const QVector<Kinetic3> &kinetics() const { return m_kinetics; }
    const QVector<QRgb> &colours() const { return m_colours; }
    double ledRadius() const { return m_ledRadius; }

    Camera3D &camera() { return m_camera; }
    const Camera3D &camera() const { return m_camera; }
    bool fit() { return m_camera.fit(m_positions, m_kinetics, m_viewRect); }

    void setViewRect(const QRectF &rect) { m_viewRect = rect; }
    QRectF viewRect() const { return m_viewRect; }
    void setShowAxes(bool on) { m_showAxes = on; }
    bool showAxes() const { return m_showAxes; }
    void setFastDraw(bool on) { m_fastDraw = on; }
    bool fastDraw() const { return m_fastDraw; }

    // Point numbers far to near for the current angles; negative entries are
    // skipped, and an empty order paints in index order. Re-sorted by paint()
    // only when the angles changed.
    const QVector<int> &drawOrder() const { return m_drawOrder; }
    void updateDrawOrder();

    void paint(QPainter &painter);

private:
    bool ensureBackground();
    void paintBackground(QPainter &painter);
    template <typename DrawSquare>
    void forEachVisiblePoint(const QRectF &cull, DrawSquare draw);
    void paintPoints(QPainter &painter, double r, const QRectF &cull);
    void paintPointsDirect(QPainter &painter, double r, const QRectF &cull);
    void paintKinetics(QPainter &painter);
    void paintAxes(QPainter &painter);

    Camera3D m_camera;
    double m_ledRadius = 1.0;
    bool m_showAxes = false;
    bool m_fastDraw = false;
    QVector<Point3> m_positions;
    QVector<QRgb> m_colours;
    QVector<int> m_drawOrder;
    QVector<Kinetic3> m_kinetics;
    QRectF m_viewRect;

    // Sorting scratch, sized with the model so painting never allocates.
    std::vector<quint32> m_depthBucket;
    std::vector<int> m_bucketStart;
    double m_sortedPitch = 0;
    double m_sortedYaw = 0;
    bool m_orderValid = false;
    BrushCycler m_brush;
    QImage m_background; // the gradient, drawn once per size
    QImage m_layer;      // the picture drawn directly, kept between frames
    DotStamps m_dots;
};
