#include "monitor/monitorrender.h"

#include "monitor/model3d.h"
#include "monitor/monitor3dscene.h"
#include "monitor/pixelpainter2d.h"
#include "monitor/view2dcamera.h"

#include <QPainter>

namespace MonitorRender {

namespace {

constexpr QRgb kDark = 0xFF000000;
const QColor kBackground2D(60, 60, 60);
const QColor kBackground3D(50, 50, 50);

} // namespace

QImage render2D(const TPatch::PixelLayout &layout, const QVector<QRgb> &colours, const QSize &size)
{
    if (size.width() < 1 || size.height() < 1)
        return {};
    QImage image(size, QImage::Format_RGB32);
    image.fill(kBackground2D);
    PixelScene2D scene;
    scene.setPixels(layout.pixels);
    View2DCamera camera;
    camera.viewport = size;
    if (!camera.fit(scene.bounds()))
        return image;
    QPainter painter(&image);
    painter.setTransform(camera.transform());
    QImage layer;
    paintPixels2D(painter, scene, colours, camera.visibleSceneRect(), Qt::white, &layer);
    return image;
}

QImage render3D(const TPatch::PixelLayout &layout, const QVector<QRgb> &colours, const QVector<float> &kineticValues,
                const QSize &size, const Options3D &options)
{
    if (size.width() < 1 || size.height() < 1)
        return {};
    QImage image(size, QImage::Format_RGB32);
    image.fill(kBackground3D);
    const Model3D model = buildModel3D(layout);
    Monitor3DScene scene;
    scene.setModel(model.positions, model.kinetics, model.worldScale, model.ledRadius);
    QVector<QRgb> pointColours(model.positions.size(), kDark);
    for (qsizetype i = 0; i < model.pointPixels.size(); ++i) {
        const int p = model.pointPixels.at(i);
        pointColours[i] = p >= 0 && p < colours.size() ? colours.at(p) : kDark;
    }
    scene.setColours(pointColours);
    QVector<float> values(model.kinetics.size(), 0.0f);
    for (qsizetype i = 0; i < model.kineticPixels.size(); ++i) {
        const int p = model.kineticPixels.at(i);
        values[i] = p >= 0 && p < kineticValues.size() ? kineticValues.at(p) : 0.0f;
    }
    scene.setKineticValues(values);
    scene.setFastDraw(options.fastDraw);
    scene.setShowAxes(options.showAxes);
    scene.camera().yaw = options.yaw;
    scene.camera().pitch = options.pitch;
    // The view's scene rectangle: centred on the origin, whole-pixel halves.
    scene.setViewRect(QRectF(-size.width() / 2, -size.height() / 2, size.width(), size.height()));
    scene.fit();
    QPainter painter(&image);
    painter.translate(size.width() / 2, size.height() / 2);
    scene.paint(painter);
    return image;
}

} // namespace MonitorRender
