#pragma once

#include <QString>

// The bundled demo GPS-Sync set (examples/gps/): one file per group of the
// demo patch (makeDemoPatch), named demo_<Group>.tpx as the sibling
// controller names them, two seconds at 40 fps of the demo animation, each
// file with its group's records in the patch's order and a truthful 143-byte
// block. Deterministic. Creates the folder when needed and overwrites the
// files; on failure returns false with the reason in *error.
bool writeDemoGpsSet(const QString &folder, QString *error);

constexpr int kDemoGpsFps = 40;
constexpr int kDemoGpsFrames = 80;
