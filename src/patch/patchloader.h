#pragma once

#include "patch/patchloadresult.h"

#include <QByteArray>
#include <QString>

namespace TPatch {

enum class PatchFormat { Madrix, Elm, Native };

// Chooses the reader for a file: MADRIX by extension or content (gzip
// signature or "<madrix_patch" in the first 512 bytes), then ELM by extension
// or content ("<console" and "appVersion"), otherwise native. A file that
// cannot be opened here falls through; the chosen reader reports it.
PatchFormat sniffPatchFormat(const QString &path);
// The same choice from the file's name and its bytes (only the first 512 are looked at).
PatchFormat sniffPatchFormat(const QString &fileName, const QByteArray &bytes);

// The one entry point for loading any patch. Callable from any thread.
PatchLoadResult loadPatch(const QString &path);

// The same on bytes already read: sniffs fileName and bytes as loadPatch
// sniffs a file and hands them to the chosen reader. fileName names the file
// in messages; sourcePath is what the patch records as its source.
PatchLoadResult loadPatchData(const QByteArray &bytes, const QString &fileName, const QString &sourcePath);

} // namespace TPatch
