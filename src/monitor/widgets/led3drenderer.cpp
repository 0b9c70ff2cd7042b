#include "monitor/widgets/led3drenderer.h"

void Led3DRenderer::setViewRect(const QRectF &rect)
{
    prepareGeometryChange();
    m_scene.setViewRect(rect);
}

void Led3DRenderer::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    m_scene.paint(*painter);
}
