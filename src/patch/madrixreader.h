#pragma once

#include "patch/patchloadresult.h"

#include <QByteArray>
#include <QString>

namespace TPatch {

// Size of one MADRIX matrix voxel in scene units: a fixture at matrix position
// (x, y) with a w x h pixel grid gets the rectangle (0, 0, w x 10, h x 10) at
// scene position (x x 10, y x 10), so every pixel cell is a 10 x 10 square and
// the fixtures tile the scene the way they tile the MADRIX matrix.
constexpr double kMadrixVoxelSize = 10.0;

// Reads a MADRIX 5 patch (.mpz: plain or gzip-compressed XML) into one group
// "MADRIX" with one torvoverse per Port-Address (ascending). Never throws.
// Any thread; a document of several megabytes is parsed as two halves, the
// second on a thread of its own that ends before the call returns.
PatchLoadResult readMadrixPatch(const QString &path);

// The same from bytes already read; fileName names the file in messages.
PatchLoadResult parseMadrixPatch(const QByteArray &fileBytes, const QString &fileName,
                                 const QString &sourcePath);

} // namespace TPatch
