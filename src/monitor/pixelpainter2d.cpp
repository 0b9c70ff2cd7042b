#include "monitor/pixelpainter2d.h"

#include "monitor/brushcycler.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>

#include <algorithm>

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

// Without a highlight on an unrotated device: rectangles are written
// straight into a picture of the exposed area (rounded as the raster engine
// rounds a rectangle fill), turned pixels are filled by a painter on the same
// picture in between, so drawing order holds, and the painter gets one blit.
// False when the device or transform does not allow it.
bool paintDirect(QPainter &painter, const PixelScene2D &scene, const QVector<QRgb> &colours, const QRectF &exposed,
                 QImage &layer)
{
    const QTransform device = painter.deviceTransform();
    if (device.type() > QTransform::TxScale || device.m11() <= 0 || device.m22() <= 0 || !painter.device())
        return false;
    bool invertible = false;
    const QTransform rest = painter.worldTransform().inverted(&invertible) * device;
    if (!invertible || rest.type() > QTransform::TxTranslate)
        return false;
    // The picture actually painted on, in device pixels: a widget is painted
    // into its window's backing store, at an offset there.
    const QPaintDevice *target = painter.paintEngine() ? painter.paintEngine()->paintDevice() : painter.device();
    if (!target)
        return false;
    const QRect deviceRect(0, 0, target->width(), target->height());
    const QRect area = device.mapRect(exposed).toAlignedRect() & deviceRect;
    if (area.isEmpty())
        return true;
    if (qint64(area.width()) * area.height() > (qint64(1) << 26))
        return false;
    if (layer.size() != area.size() || layer.format() != QImage::Format_ARGB32_Premultiplied)
        layer = QImage(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QRgb *bits = reinterpret_cast<QRgb *>(layer.bits());
    const qsizetype stride = layer.bytesPerLine() / qsizetype(sizeof(QRgb));
    const int width = area.width();
    const int height = area.height();
    const double sx = device.m11(), sy = device.m22();
    const double dx = device.dx() - area.left(), dy = device.dy() - area.top();
    const double left = exposed.left(), right = exposed.right(), top = exposed.top(), bottom = exposed.bottom();
    QPainter polygons;
    BrushCycler brush;
    for (const int p : scene.visiblePixels()) {
        const PixelScene2D::Entry &e = scene.entry(p);
        const QRectF &r = e.rect;
        if (r.right() < left || r.left() > right || r.bottom() < top || r.top() > bottom || r.isEmpty())
            continue;
        const QRgb colour = colourOf(colours, p) | 0xFF000000;
        if (!e.axisAligned) {
            if (!polygons.isActive()) {
                polygons.begin(&layer);
                polygons.setRenderHints(painter.renderHints());
                polygons.setPen(Qt::NoPen);
                polygons.setTransform(device * QTransform::fromTranslate(-area.left(), -area.top()));
            }
            brush.set(polygons, colour);
            polygons.drawConvexPolygon(e.outline.data(), int(e.outline.size()));
            continue;
        }
        const int x1 = std::max(qRound(r.left() * sx + dx), 0);
        const int x2 = std::min(qRound(r.right() * sx + dx), width);
        const int y1 = std::max(qRound(r.top() * sy + dy), 0);
        const int y2 = std::min(qRound(r.bottom() * sy + dy), height);
        if (x1 >= x2 || y1 >= y2)
            continue; // outside the device, or thinner than the rounding keeps
        for (int row = y1; row < y2; ++row)
            std::fill(bits + row * stride + x1, bits + row * stride + x2, colour);
    }
    if (polygons.isActive())
        polygons.end();
    painter.save();
    painter.setWorldTransform(QTransform());
    painter.drawImage(QPointF(area.topLeft()) - QPointF(rest.dx(), rest.dy()), layer);
    painter.restore();
    return true;
}

} // namespace

void paintPixels2D(QPainter &painter, const PixelScene2D &scene, const QVector<QRgb> &colours, const QRectF &exposed,
                   const QColor &outlineColour, QImage *layer)
{
    if (layer && !scene.hasHighlight() && paintDirect(painter, scene, colours, exposed, *layer))
        return;
    painter.setPen(Qt::NoPen);
    BrushCycler brush;
    const bool highlight = scene.hasHighlight();
    QRgb lastSource = 0;
    QRgb lastDarker = 0;
    bool haveDarker = false;
    const double left = exposed.left(), right = exposed.right(), top = exposed.top(), bottom = exposed.bottom();
    for (const int p : scene.visiblePixels()) {
        const PixelScene2D::Entry &e = scene.entry(p);
        const QRectF &r = e.rect;
        if (r.right() < left || r.left() > right || r.bottom() < top || r.top() > bottom || r.isEmpty())
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
            painter.fillRect(e.rect, QColor(colour)); // colours are opaque: the cheap conversion
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
