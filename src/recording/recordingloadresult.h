#pragma once

#include "patch/patchmessage.h"

// What Recording::load returns. The reader never throws: a failure is ok ==
// false with one error (and the Recording reset); warnings never stop a load.
// Messages are kept untranslated (context "TPatch") and translated when shown.
struct RecordingLoadResult
{
    bool ok = false;
    TPatch::PatchMessage error;
    QVector<TPatch::PatchMessage> warnings;
};
