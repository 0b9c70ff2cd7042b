#pragma once

#include "monitor/pixelcolourbuffer.h"
#include "patch/pixellayout.h"
#include "recording/recording.h"

// Shows one recorded frame the way playback does: every record of the frame
// is evaluated against the pixels patched on its Port-Address, and its bytes
// are kept for the DMX inspector. Frames past the end change nothing.
// GUI thread (the buffer's thread).
void applyRecordedFrame(PixelColourBuffer &buffer, const TPatch::PixelLayout &layout, const Recording &recording,
                        qint64 frame);
