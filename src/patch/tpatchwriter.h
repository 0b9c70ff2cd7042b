#pragma once

#include "patch/patchdata.h"

#include <QByteArray>

namespace TPatch {

// Writes a patch in the sibling controller's .tpatch JSON shape. The program
// itself never saves patches; this serves our sample generators (demo data,
// tests, benchmarks, fuzz seeds), and reading its output back gives the same tree.
QByteArray writeTPatch(const PatchData &patch);

} // namespace TPatch
