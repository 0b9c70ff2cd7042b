#pragma once

#include "patch/patchloadresult.h"

namespace TPatch {

enum class PatchFormat { Madrix, Elm, Native };

// Chooses the reader for a path: MADRIX by extension or content (gzip
// signature or "<madrix_patch" in the first 512 bytes), then ELM by extension
// or content ("<console" and "appVersion"), otherwise native. A file that
// cannot be opened here falls through; the chosen reader reports it.
PatchFormat sniffPatchFormat(const QString &path);

// The one entry point for loading any patch. Callable from any thread.
PatchLoadResult loadPatch(const QString &path);

} // namespace TPatch
