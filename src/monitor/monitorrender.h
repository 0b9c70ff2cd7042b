#pragma once

#include "patch/pixellayout.h"

#include <QImage>
#include <QRgb>
#include <QSize>
#include <QVector>

// One monitor picture without a display, fitted as the views fit after a
// patch load: the same scene, camera and painting code as the 2D and 3D
// views. colours and kineticValues are the colour buffer's lists (indexed by
// pixel number). A size below 1 x 1 gives a null image.
namespace MonitorRender {

QImage render2D(const TPatch::PixelLayout &layout, const QVector<QRgb> &colours, const QSize &size);

struct Options3D
{
    double yaw = 0.7;   // radians
    double pitch = 0.3; // radians
    bool fastDraw = false;
    bool showAxes = false;
};
QImage render3D(const TPatch::PixelLayout &layout, const QVector<QRgb> &colours, const QVector<float> &kineticValues,
                const QSize &size, const Options3D &options);

} // namespace MonitorRender
