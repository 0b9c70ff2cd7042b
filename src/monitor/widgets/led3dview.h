#pragma once

#include "monitor/camera3d.h"
#include "monitor/pointfilter3d.h"
#include "patch/pixellayout.h"

#include <QGraphicsView>
#include <QImage>
#include <QRgb>
#include <QTimer>

class Led3DRenderer;
class QGraphicsScene;

// The 3D monitor: a graphics view holding one Led3DRenderer. Left drag turns
// the model, middle drag pans, the wheel moves the camera, and the auto orbit
// swings it on a 30 ms timer until the mouse touches the view. Maps drawn
// points and kinetic items to pixel numbers so the colour buffer's lists can
// be handed over as they are. GUI thread only.
class Led3DView : public QGraphicsView
{
    Q_OBJECT
public:
    explicit Led3DView(QWidget *parent = nullptr);

    // Rebuilds the model from a layout (not kept); the camera keeps its angles.
    void setPatch(const TPatch::PixelLayout &layout);
    // The colour buffer's lists, indexed by pixel number.
    void setColours(const QVector<QRgb> &colours);
    void setKinetics(const QVector<float> &kineticValues);

    // The group filter's inputs (Z layers stay apart in depth and are all drawn).
    // Applied once when control returns to the event loop: unchecking a group
    // arrives as one call per torvoverse, and each pass touches every point.
    void setAllVisible(bool visible);
    void setGroupVisible(int group, bool visible);
    void setTorvoverseVisible(int group, int torvoverse, bool visible);
    void setHighlight(int group, int torvoverse);

    void setShowAxes(bool on);
    void setFastDraw(bool on);
    bool fastDraw() const;
    // Presets 0..5 (front, back, left, right, top, bottom).
    void setViewPreset(int preset);
    void reset();
    void fitCamera();
    void startAutoOrbit();
    void stopAutoOrbit();
    bool isAutoOrbitRunning() const { return m_orbitTimer.isActive(); }

    QImage snapshot();

    Led3DRenderer *renderer() const { return m_renderer; }
    const Camera3D &camera() const;
    const QVector<int> &pointPixels() const { return m_pointPixels; }
    const QVector<int> &kineticPixels() const { return m_kineticPixels; }

public slots:
    void onAutoMovementTick();

signals:
    void autoMovementStopped();

protected:
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    Camera3D &cam();
    void repaint3d();
    void showFilteredColours();

    QGraphicsScene *m_scene = nullptr;
    Led3DRenderer *m_renderer = nullptr;
    QTimer m_orbitTimer;
    AutoOrbit3D m_orbit;
    QPoint m_lastPos;
    Qt::MouseButton m_dragButton = Qt::NoButton;
    QVector<int> m_pointPixels;
    QVector<int> m_kineticPixels;
    PointFilter3D m_filter;
    QTimer m_filterTimer; // single shot, 0 ms: coalesces filter changes
    QVector<QRgb> m_rawColours;    // per point, as the colour buffer has them
    QVector<QRgb> m_pointColours;  // scratch, sized with the model: the filtered colours
    QVector<float> m_kineticScratch;
};
