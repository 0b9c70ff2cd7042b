#pragma once

#include "patch/orderednames.h"
#include "patch/patchdata.h"
#include "patch/patchloadresult.h"

namespace TPatch {

// What the two importers (ELM, MADRIX) say alike, worded once: their empty
// result, the warnings both give, and reading their file. Each warning adds
// nothing for a count of 0 or no names.
PatchLoadResult emptyImportResult(const char *formatLabel, SourceKind kind, const QString &sourcePath);
void warnIgnoredChannels(const OrderedNames &channels, QVector<PatchMessage> &warnings);
void warnPast512(qint64 fixtures, QVector<PatchMessage> &warnings);
void warnBadUniverse(qint64 fixtures, QVector<PatchMessage> &warnings);
void warnIncomplete(qint64 fixtures, QVector<PatchMessage> &warnings);
// "\"NAME\" contains no DMX fixtures that can be shown."
PatchMessage nothingToShow(const QString &fileName);

using ImportParser = PatchLoadResult (*)(const QByteArray &bytes, const QString &fileName, const QString &sourcePath);
// Reads path and hands its bytes to parse; a file that cannot be read gives the empty result with the reason.
PatchLoadResult readImport(const QString &path, ImportParser parse, const char *formatLabel, SourceKind kind);

} // namespace TPatch
