#pragma once

#include "patch/patchloadresult.h"

namespace TPatch {

// Reads the sibling controller's native .tpatch JSON. Never throws: the three
// fatal cases (cannot open, not a JSON object, no groups) come back as the
// result's error; wrong types and out-of-range values fall back to defaults.
// Callable from any thread.
PatchLoadResult readTPatch(const QString &path);

// Same, on bytes already read; fileName names the file in messages.
PatchLoadResult parseTPatch(const QByteArray &bytes, const QString &fileName, const QString &sourcePath);

// "0x%1": a Port-Address as four zero-padded upper-case hexadecimal digits.
QString formatPortAddress(quint16 portAddress);

} // namespace TPatch
