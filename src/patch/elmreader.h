#pragma once

#include "patch/patchloadresult.h"

#include <QByteArray>
#include <QString>

namespace TPatch {

// Reads an ENTTEC ELM project (.elm, or a .elmbackup of one) into one group per
// stage, one torvoverse per universe touched (ascending), and free-position
// fixtures whose pixels sit where ELM draws its LEDs. An ELM fixture whose
// channels run into further universes becomes one fixture per universe, each
// with its own pixels. Never throws. Any thread.
PatchLoadResult readElmProject(const QString &path);

// The same from bytes already read; fileName names the file in messages.
PatchLoadResult parseElmProject(const QByteArray &bytes, const QString &fileName, const QString &sourcePath);

} // namespace TPatch
