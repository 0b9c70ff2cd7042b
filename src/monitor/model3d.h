#pragma once

#include "monitor/camera3d.h"
#include "patch/pixellayout.h"

#include <QVector>

// The 3D model of a laid-out patch: the 2D plan lies in the X-Y plane (Y down,
// as on screen, so the front preset shows the 2D picture), Z layers are
// stacked along Z and kinetic lines grow along +Z. The plan is scaled so its
// longer side spans kModelExtent units, which keeps a kinetic item's 50-unit
// line in proportion whatever units the patch uses.
struct Model3D
{
    static constexpr double kModelExtent = 200.0;
    static constexpr double kLayerSpacing = 20.0; // model units between Z layers
    static constexpr double kDotFill = 0.45;      // dot radius as a share of the cell's shorter side

    QVector<Point3> positions;   // one per drawn (colour) pixel
    QVector<Kinetic3> kinetics;  // one per kinetic item, value 0
    QVector<int> pointPixels;    // drawn point -> pixel number
    QVector<int> kineticPixels;  // kinetic item -> pixel number
    // View units per model unit. Large enough that a fitted camera stands
    // well outside the model (distance > half its depth) on screens up to 8K
    // wide, so the near plane never cuts a fitted picture.
    double worldScale = 10.0;
    double ledRadius = 1.0; // screen radius at projection scale 1
};

// Builds the model from a pixel list; non-finite entries are left out.
Model3D buildModel3D(const TPatch::PixelLayout &layout);
