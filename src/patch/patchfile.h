#pragma once

#include "patch/patchmessage.h"

#include <QByteArray>
#include <QString>

namespace TPatch {

// Reads a whole patch file for any reader. On failure returns false with
// "Could not open "%1": %2" (file name, the system's reason) in *error; a
// folder is refused too (QFile opens one "successfully" on some systems).
bool readPatchFile(const QString &path, QByteArray *bytes, PatchMessage *error);

} // namespace TPatch
