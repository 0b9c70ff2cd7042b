#include "monitor/widgets/led3dview.h"

#include "monitor/model3d.h"
#include "monitor/widgets/led3drenderer.h"

#include <QGraphicsScene>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr QRgb kDark = 0xFF000000;

} // namespace

Led3DView::Led3DView(QWidget *parent) : QGraphicsView(parent)
{
    m_scene = new QGraphicsScene(this);
    m_renderer = new Led3DRenderer;
    m_scene->addItem(m_renderer);
    setScene(m_scene);
    setInteractive(true);
    setRenderHint(QPainter::Antialiasing, true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setBackgroundBrush(QColor(50, 50, 50));
    m_orbitTimer.setInterval(AutoOrbit3D::kIntervalMs);
    connect(&m_orbitTimer, &QTimer::timeout, this, &Led3DView::onAutoMovementTick);
    m_filterTimer.setSingleShot(true);
    m_filterTimer.setInterval(0);
    connect(&m_filterTimer, &QTimer::timeout, this, &Led3DView::showFilteredColours);
}

Camera3D &Led3DView::cam()
{
    return m_renderer->scene3d().camera();
}

const Camera3D &Led3DView::camera() const
{
    return m_renderer->scene3d().camera();
}

void Led3DView::repaint3d()
{
    m_renderer->update();
}

void Led3DView::setPatch(const TPatch::PixelLayout &layout)
{
    const Model3D model = buildModel3D(layout);
    m_pointPixels = model.pointPixels;
    m_kineticPixels = model.kineticPixels;
    m_pointColours = QVector<QRgb>(model.positions.size(), kDark);
    m_rawColours = m_pointColours;
    m_filter.setPoints(layout.pixels, m_pointPixels);
    m_kineticScratch = QVector<float>(model.kinetics.size(), 0.0f);
    m_renderer->scene3d().setModel(model.positions, model.kinetics, model.worldScale, model.ledRadius);
    fitCamera();
}

void Led3DView::setColours(const QVector<QRgb> &colours)
{
    QRgb *out = m_rawColours.data();
    for (qsizetype i = 0; i < m_pointPixels.size(); ++i) {
        const int p = m_pointPixels.at(i);
        out[i] = p >= 0 && p < colours.size() ? colours.at(p) : kDark;
    }
    showFilteredColours();
}

void Led3DView::showFilteredColours()
{
    if (m_filter.isIdentity())
        std::copy(m_rawColours.cbegin(), m_rawColours.cend(), m_pointColours.begin());
    else
        m_filter.apply(m_rawColours.constData(), m_pointColours.data(), m_pointColours.size());
    if (m_renderer->scene3d().setColours(m_pointColours))
        repaint3d();
}

void Led3DView::setAllVisible(bool visible)
{
    m_filter.setAllVisible(visible);
    m_filterTimer.start();
}

void Led3DView::setGroupVisible(int group, bool visible)
{
    m_filter.setGroupVisible(group, visible);
    m_filterTimer.start();
}

void Led3DView::setTorvoverseVisible(int group, int torvoverse, bool visible)
{
    m_filter.setTorvoverseVisible(group, torvoverse, visible);
    m_filterTimer.start();
}

void Led3DView::setHighlight(int group, int torvoverse)
{
    m_filter.setHighlight(group, torvoverse);
    m_filterTimer.start();
}

void Led3DView::setKinetics(const QVector<float> &kineticValues)
{
    float *out = m_kineticScratch.data();
    for (qsizetype i = 0; i < m_kineticPixels.size(); ++i) {
        const int p = m_kineticPixels.at(i);
        out[i] = p >= 0 && p < kineticValues.size() ? kineticValues.at(p) : 0.0f;
    }
    if (m_renderer->scene3d().setKineticValues(m_kineticScratch))
        repaint3d();
}

void Led3DView::setShowAxes(bool on)
{
    m_renderer->scene3d().setShowAxes(on);
    repaint3d();
}

void Led3DView::setFastDraw(bool on)
{
    m_renderer->scene3d().setFastDraw(on);
    repaint3d();
}

bool Led3DView::fastDraw() const
{
    return m_renderer->scene3d().fastDraw();
}

void Led3DView::setViewPreset(int preset)
{
    stopAutoOrbit();
    if (!cam().setPreset(preset))
        return;
    fitCamera();
}

void Led3DView::reset()
{
    stopAutoOrbit();
    cam().reset();
    fitCamera();
}

void Led3DView::fitCamera()
{
    m_renderer->scene3d().fit();
    repaint3d();
}

void Led3DView::startAutoOrbit()
{
    m_orbit.start(cam());
    m_orbitTimer.start();
}

void Led3DView::stopAutoOrbit()
{
    if (!m_orbitTimer.isActive())
        return;
    m_orbitTimer.stop();
    emit autoMovementStopped();
}

void Led3DView::onAutoMovementTick()
{
    m_orbit.tick(cam());
    repaint3d();
}

QImage Led3DView::snapshot()
{
    const QSize size = viewport()->size().expandedTo(QSize(1, 1));
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(50, 50, 50));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    render(&painter, QRectF(QPointF(0, 0), QSizeF(size)), QRect(QPoint(0, 0), size));
    return image;
}

void Led3DView::wheelEvent(QWheelEvent *event)
{
    cam().wheel(event->angleDelta().y(), event->position(), QSizeF(viewport()->size()));
    repaint3d();
    event->accept();
}

void Led3DView::mousePressEvent(QMouseEvent *event)
{
    stopAutoOrbit();
    m_lastPos = event->position().toPoint();
    m_dragButton = event->button();
    viewport()->setCursor(event->button() == Qt::MiddleButton ? Qt::ClosedHandCursor : Qt::CrossCursor);
    event->accept();
}

void Led3DView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint pos = event->position().toPoint();
    const QPoint d = pos - m_lastPos;
    m_lastPos = pos;
    if (m_dragButton == Qt::LeftButton && (event->buttons() & Qt::LeftButton)) {
        cam().pitch += d.y() * Camera3D::kDragRadians;
        cam().yaw += d.x() * Camera3D::kDragRadians;
        repaint3d();
    } else if (m_dragButton == Qt::MiddleButton && (event->buttons() & Qt::MiddleButton)) {
        cam().pan += QPointF(d);
        repaint3d();
    }
    event->accept();
}

void Led3DView::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragButton = Qt::NoButton;
    viewport()->unsetCursor();
    event->accept();
}

void Led3DView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    const QSize size = viewport()->size();
    if (size.width() <= 1 || size.height() <= 1)
        return;
    const QRectF rect(-size.width() / 2, -size.height() / 2, size.width(), size.height());
    m_scene->setSceneRect(rect);
    setSceneRect(rect);
    m_renderer->setViewRect(rect);
    fitCamera();
}
