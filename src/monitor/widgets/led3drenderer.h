#pragma once

#include "monitor/monitor3dscene.h"

#include <QGraphicsItem>

// The one graphics item of the 3D monitor: holds the model, the camera and
// the colours (in a Monitor3DScene) and paints everything in one paint call.
// Its area is the view's scene rectangle, centred on the origin.
// GUI thread only.
class Led3DRenderer : public QGraphicsItem
{
public:
    Monitor3DScene &scene3d() { return m_scene; }
    const Monitor3DScene &scene3d() const { return m_scene; }
    void setViewRect(const QRectF &rect);

    QRectF boundingRect() const override { return m_scene.viewRect(); }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    Monitor3DScene m_scene;
};
