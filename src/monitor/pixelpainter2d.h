#pragma once

#include "monitor/pixelscene2d.h"

#include <QColor>
#include <QRgb>
#include <QVector>

class QPainter;

// Paints the visible pixels of a 2D scene into any painter already set to the
// view's transform; the live view and headless rendering share it. Pixels
// outside exposed (scene coordinates) are skipped. With a highlight, every
// other pixel is drawn darker and the highlighted ones last, in their own
// colour, outlined with outlineColour. colours is indexed by pixel number; a
// pixel beyond its end is dark. Allocates nothing per pixel.
void paintPixels2D(QPainter &painter, const PixelScene2D &scene, const QVector<QRgb> &colours, const QRectF &exposed,
                   const QColor &outlineColour);

// How much darker the rest of the picture is drawn under a highlight
// (QColor::darker's factor).
constexpr int kHighlightDarkerFactor = 260;
