#pragma once

#include "patch/layoutpixel.h"
#include "patch/patchdata.h"
#include "patch/patchmessage.h"

#include <QHash>
#include <QRectF>
#include <QVector>

namespace TPatch {

struct ZRange
{
    bool seen = false; // false when no pixel was placed
    int min = 0;
    int max = 0;
};

// What the layout makes of a patch: the flat pixel list in tree order (per
// fixture its kinetics first, then its leds), the scene rectangle, the Z
// range, the per-universe and per-device pixel numbers and the layout
// warnings. Built once per load and read-only afterwards; any thread may read it.
struct PixelLayout
{
    QVector<LayoutPixel> pixels;
    QRectF sceneRect; // union of all bounds; empty when there are no pixels
    ZRange zRange;
    QHash<quint16, QVector<int>> portAddressPixels; // pixel numbers, ascending
    QHash<quint64, QVector<int>> deviceKeyPixels;   // pixel numbers, ascending
    QVector<PatchMessage> warnings;

    // The pixel numbers patched to a universe; an empty list for an unknown one.
    const QVector<int> &pixelsForPortAddress(quint16 portAddress) const;
    const QVector<int> &pixelsForDeviceKey(quint64 deviceKey) const;
    // Entries that are colour pixels (not kinetic items): the summary's "drawable".
    qint64 drawablePixelCount() const;
};

// The pure layout step: patch in, layout out. Never throws; fixtures without a
// layout add nothing, and pixels whose numbers cannot be drawn (not finite,
// collapsed by a degenerate warp) are left out while the rest is kept.
PixelLayout buildPixelLayout(const PatchData &patch);

// The overlap check on a finished pixel list: fixtures whose colour pixels
// cover the same rounded rectangle on the same lowest layer hide each other.
// Returns the warning, or an empty message when nothing overlaps.
PatchMessage overlapWarning(const QVector<LayoutPixel> &pixels);

} // namespace TPatch
