#include "monitor/widgets/ledcanvasitem.h"

#include "monitor/pixelpainter2d.h"

#include <QStyleOptionGraphicsItem>

LedCanvasItem::LedCanvasItem()
{
    setFlag(QGraphicsItem::ItemUsesExtendedStyleOption, true); // for the exposed rectangle
}

void LedCanvasItem::setPixels(const QVector<TPatch::LayoutPixel> &pixels)
{
    prepareGeometryChange();
    m_scene.setPixels(pixels);
    update();
}

QRectF LedCanvasItem::boundingRect() const
{
    return m_scene.bounds();
}

void LedCanvasItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *)
{
    paintPixels2D(*painter, m_scene, colours(), option->exposedRect, m_outline, &m_layer);
}
