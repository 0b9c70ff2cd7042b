#include "monitor/widgets/ledmonitorview.h"

#include "monitor/pixeltexts.h"
#include "monitor/widgets/ledcanvasitem.h"

#include <QGraphicsScene>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

const QColor kBackground(60, 60, 60); // the same dark monitor in every theme

} // namespace

LedMonitorView::LedMonitorView(QWidget *parent) : QGraphicsView(parent)
{
    m_scene = new QGraphicsScene(this);
    m_canvas = new LedCanvasItem;
    m_scene->addItem(m_canvas); // the scene owns the item
    setScene(m_scene);
    setRenderHint(QPainter::Antialiasing, false);
    setDragMode(QGraphicsView::NoDrag);
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::NoAnchor);
    setViewportUpdateMode(QGraphicsView::SmartViewportUpdate);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignCenter);
    setMouseTracking(true);
    setBackgroundBrush(kBackground);
    m_canvas->setOutlineColour(palette().color(QPalette::Highlight));
    m_camera.viewport = viewport()->size();
    applyCamera();
}

void LedMonitorView::setPatch(const TPatch::PatchData *patch, const TPatch::PixelLayout *layout)
{
    m_patch = patch;
    m_layout = layout;
    m_canvas->setPixels(layout ? layout->pixels : QVector<TPatch::LayoutPixel>());
    m_scene->setSceneRect(m_canvas->scene2d().bounds());
    m_camera.scale = 1.0;
    m_camera.centre = m_canvas->scene2d().bounds().center();
    setHovered(-1);
    applyCamera();
}

void LedMonitorView::setColours(const QVector<QRgb> *colours)
{
    m_canvas->setColours(colours);
    refresh();
}

void LedMonitorView::refresh()
{
    m_canvas->update();
}

void LedMonitorView::setAllVisible(bool visible)
{
    m_canvas->scene2d().setAllVisible(visible);
    refresh();
}

void LedMonitorView::setGroupVisible(int group, bool visible)
{
    m_canvas->scene2d().setGroupVisible(group, visible);
    refresh();
}

void LedMonitorView::setTorvoverseVisible(int group, int torvoverse, bool visible)
{
    m_canvas->scene2d().setTorvoverseVisible(group, torvoverse, visible);
    refresh();
}

void LedMonitorView::setVisibleZ(int z)
{
    m_canvas->scene2d().setVisibleZ(z);
    refresh();
}

void LedMonitorView::setHighlight(int group, int torvoverse)
{
    m_canvas->scene2d().setHighlight(group, torvoverse);
    refresh();
}

void LedMonitorView::fitToView()
{
    // The picture stays fitted through resizes (a patch loaded before the
    // window shows, a hidden tab, a maximised window) until the user zooms or pans.
    m_keepFitted = true;
    m_camera.viewport = viewport()->size();
    if (m_camera.fit(m_canvas->scene2d().bounds()))
        applyCamera();
}

QImage LedMonitorView::snapshot()
{
    const QSize size = viewport()->size().expandedTo(QSize(1, 1));
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(kBackground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    render(&painter, QRectF(QPointF(0, 0), QSizeF(size)), QRect(QPoint(0, 0), size));
    return image;
}

QString LedMonitorView::pixelToolTip(int pixelNumber) const
{
    if (!m_patch || !m_layout)
        return {};
    return PixelTexts::toolTip(*m_patch, *m_layout, pixelNumber);
}

void LedMonitorView::applyCamera()
{
    // The camera decides what is shown; the graphics view's own scrolling is
    // pinned to it by a view scene rectangle just inside the visible area,
    // which the view then centres (it never scrolls a scene that fits). The
    // view scrolls by whole pixels, truncating toward zero, so the camera is
    // snapped to a whole-pixel offset and the rectangle aims half a pixel
    // beyond it: the view then shows exactly the camera's mapping.
    const double scale = m_camera.scale;
    const QPointF half = m_camera.viewCentre();
    const double nx = std::round(m_camera.centre.x() * scale - half.x());
    const double ny = std::round(m_camera.centre.y() * scale - half.y());
    m_camera.centre = QPointF((nx + half.x()) / scale, (ny + half.y()) / scale);
    const QPointF aim((nx + (nx < 0 ? -0.5 : 0.5) + half.x()) / scale, (ny + (ny < 0 ? -0.5 : 0.5) + half.y()) / scale);
    const QSizeF inside(std::max(0, m_camera.viewport.width() - 2) / scale,
                        std::max(0, m_camera.viewport.height() - 2) / scale);
    setTransform(QTransform::fromScale(scale, scale));
    setSceneRect(QRectF(aim - QPointF(inside.width() / 2, inside.height() / 2), inside));
}

void LedMonitorView::setHovered(int pixelNumber)
{
    if (pixelNumber == m_hovered)
        return;
    m_hovered = pixelNumber;
    setToolTip(pixelNumber < 0 ? QString() : pixelToolTip(pixelNumber));
    emit cellHovered(pixelNumber);
}

void LedMonitorView::wheelEvent(QWheelEvent *event)
{
    const int delta = event->angleDelta().y() != 0 ? event->angleDelta().y() : event->angleDelta().x();
    m_camera.viewport = viewport()->size();
    if (!m_camera.zoomAt(event->position(), delta)) {
        event->ignore();
        return;
    }
    m_keepFitted = false;
    applyCamera();
    event->accept();
}

void LedMonitorView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        m_panning = true;
        m_lastPos = event->position().toPoint();
        viewport()->setCursor(Qt::ClosedHandCursor);
        event->accept();
        return;
    }
    QGraphicsView::mousePressEvent(event);
}

void LedMonitorView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint pos = event->position().toPoint();
    if (m_panning) {
        m_camera.panBy(QPointF(pos - m_lastPos));
        m_keepFitted = m_keepFitted && pos == m_lastPos;
        m_lastPos = pos;
        applyCamera();
        event->accept();
        return;
    }
    setHovered(m_canvas->scene2d().pixelAt(mapToScene(pos)));
    QGraphicsView::mouseMoveEvent(event);
}

void LedMonitorView::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_panning && (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton)) {
        m_panning = false;
        viewport()->unsetCursor();
        event->accept();
        return;
    }
    QGraphicsView::mouseReleaseEvent(event);
}

void LedMonitorView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    m_camera.viewport = viewport()->size();
    if (m_keepFitted)
        m_camera.fit(m_canvas->scene2d().bounds());
    applyCamera();
}

void LedMonitorView::leaveEvent(QEvent *event)
{
    if (!m_panning)
        setHovered(-1);
    QGraphicsView::leaveEvent(event);
}
