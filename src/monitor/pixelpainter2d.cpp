#include "monitor/pixelpainter2d.h"

#include "monitor/brushcycler.h"

#include <QPainter>
#include <QPen>

namespace {

constexpr QRgb kDark = 0xFF000000;

QRgb colourOf(const QVector<QRgb> &colours, int pixelNumber)
{
    return pixelNumber < colours.size() ? colours.at(pixelNumber) : kDark;
}

void drawShape(QPainter &painter, const PixelScene2D::Entry &e)
{
    if (e.axisAligned)
        painter.drawRect(e.rect);
    else
        painter.drawConvexPolygon(e.outline.data(), int(e.outline.size()));
}

} // namespace

void paintPixels2D(QPainter &painter, const PixelScene2D &scene, const QVector<QRgb> &colours, const QRectF &exposed,
                   const QColor &outlineColour)
{
    painter.setPen(Qt::NoPen);
    BrushCycler brush;
    const bool highlight = scene.hasHighlight();
    QRgb lastSource = 0;
    QRgb lastDarker = 0;
    bool haveDarker = false;
    for (const int p : scene.visiblePixels()) {
        const PixelScene2D::Entry &e = scene.entry(p);
        if (!e.rect.intersects(exposed))
            continue;
        if (highlight && scene.isHighlighted(e))
            continue; // drawn last, below
        QRgb colour = colourOf(colours, p);
        if (highlight) {
            // Neighbours mostly share a colour: darken once per run.
            if (!haveDarker || colour != lastSource) {
                lastSource = colour;
                lastDarker = QColor::fromRgb(colour).darker(kHighlightDarkerFactor).rgba();
                haveDarker = true;
            }
            colour = lastDarker;
        }
        if (e.axisAligned) {
            // The raster engine fills a solid rectangle without touching the brush.
            painter.fillRect(e.rect, QColor::fromRgba(colour));
        } else {
            brush.set(painter, colour);
            painter.drawConvexPolygon(e.outline.data(), int(e.outline.size()));
        }
    }
    if (highlight && !scene.highlightedPixels().isEmpty()) {
        painter.setPen(QPen(outlineColour, 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        brush.invalidate();
        for (const int p : scene.highlightedPixels()) {
            const PixelScene2D::Entry &e = scene.entry(p);
            if (!e.rect.intersects(exposed))
                continue;
            brush.set(painter, colourOf(colours, p));
            drawShape(painter, e);
        }
    }
    painter.setPen(Qt::NoPen);
}
