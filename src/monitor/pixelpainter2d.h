#pragma once

#include "monitor/pixelscene2d.h"

#include <QColor>
#include <QRgb>
#include <QVector>

class QImage;
class QPainter;

// Paints the visible pixels of a 2D scene into any painter already set to the
// view's transform; the live view and headless rendering share it. Pixels
// outside exposed (scene coordinates) are skipped. With a highlight, every
// other pixel is drawn darker and the highlighted ones last, in their own
// colour, outlined with outlineColour. colours is indexed by pixel number; a
// pixel beyond its end is dark. Allocates nothing per pixel.
// With a layer (kept by the caller between frames), an unrotated picture
// without highlight is composed in the layer and drawn with one blit: the
// same pixels, several times faster for large patches.
void paintPixels2D(QPainter &painter, const PixelScene2D &scene, const QVector<QRgb> &colours, const QRectF &exposed,
                   const QColor &outlineColour, QImage *layer = nullptr);

// How much darker the rest of the picture is drawn under a highlight
// (QColor::darker's factor).
constexpr int kHighlightDarkerFactor = 260;
