#pragma once

#include "patch/patchdata.h"
#include "patch/pixellayout.h"

#include <QRgb>
#include <QString>

// The texts the monitor shows for one pixel, translated when called (context
// "LedMonitorView" for the tooltip, "MainWindow" for the status hint).
namespace PixelTexts {

// "R", "G", "B", "W", "CW", "WW"; empty for no role.
QString roleName(quint8 role);
// The hover tooltip, rich text with names HTML-escaped; empty for a pixel
// number outside the layout.
QString toolTip(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout, int pixelNumber);
// The monitor bar's hint for the pixel under the mouse, with its colour.
QString hoverHint(const TPatch::PatchData &patch, const TPatch::PixelLayout &layout, int pixelNumber, QRgb colour);

} // namespace PixelTexts
