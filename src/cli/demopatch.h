#pragma once

#include "patch/patchdata.h"

// The bundled demo installation (examples/demo.tpatch): a small venue with a
// facade of LED matrices, a canopy of arcs, a stage with RGBW bars, a kinetic
// ball curtain and a two-layer cube, and floor strips. Deterministic: the same
// build always writes the same bytes.
TPatch::PatchData makeDemoPatch();
