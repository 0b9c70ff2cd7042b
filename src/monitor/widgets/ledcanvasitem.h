#pragma once

#include "monitor/pixelscene2d.h"

#include <QColor>
#include <QGraphicsItem>
#include <QImage>
#include <QRgb>
#include <QVector>

// The one graphics item of the 2D monitor: paints every visible pixel itself
// (one item instead of one per pixel keeps large patches fast). Holds the
// pixel scene and reads the colour list it is given without copying it.
// GUI thread only.
class LedCanvasItem : public QGraphicsItem
{
public:
    LedCanvasItem();

    PixelScene2D &scene2d() { return m_scene; }
    const PixelScene2D &scene2d() const { return m_scene; }
    void setPixels(const QVector<TPatch::LayoutPixel> &pixels);
    // The colour list is not owned and must outlive the item or be replaced.
    void setColours(const QVector<QRgb> *colours) { m_colours = colours; }
    const QVector<QRgb> &colours() const { return m_colours ? *m_colours : m_none; }
    void setOutlineColour(const QColor &colour) { m_outline = colour; }

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    PixelScene2D m_scene;
    const QVector<QRgb> *m_colours = nullptr;
    const QVector<QRgb> m_none;
    QColor m_outline = Qt::white;
    QImage m_layer; // the painting's scratch picture, kept between frames
};
