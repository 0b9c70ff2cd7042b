#pragma once

#include "patch/patchdata.h"
#include "patch/patchmessage.h"

namespace TPatch {

// What every patch reader returns. Readers never throw: a failure is ok ==
// false with one error, and the patch left empty.
struct PatchLoadResult
{
    bool ok = false;
    PatchMessage error;
    QVector<PatchMessage> warnings;
    PatchData patch;
};

} // namespace TPatch
