#include "patch/importwarnings.h"

#include "patch/patchfile.h"

#include <QFileInfo>

namespace TPatch {

PatchLoadResult emptyImportResult(const char *formatLabel, SourceKind kind, const QString &sourcePath)
{
    PatchLoadResult result;
    result.patch.formatLabel = QString::fromLatin1(formatLabel);
    result.patch.sourceKind = kind;
    result.patch.sourcePath = sourcePath;
    return result;
}

void warnIgnoredChannels(const OrderedNames &channels, QVector<PatchMessage> &warnings)
{
    if (!channels.isEmpty())
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "Color channels the tester cannot show yet were ignored: %1"),
            {channels.joined()}));
}

void warnPast512(qint64 fixtures, QVector<PatchMessage> &warnings)
{
    if (fixtures > 0)
        warnings.append(
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) run past DMX channel 512 of their "
                                                     "universe; channels beyond 512 are not shown."),
                         {fixtures}));
}

void warnBadUniverse(qint64 fixtures, QVector<PatchMessage> &warnings)
{
    if (fixtures > 0)
        warnings.append(
            PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) use a universe that does not fit an "
                                                     "Art-Net Port-Address and were skipped."),
                         {fixtures}));
}

void warnIncomplete(qint64 fixtures, QVector<PatchMessage> &warnings)
{
    if (fixtures > 0)
        warnings.append(PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "%1 fixture(s) are incomplete in the file and were skipped."), {fixtures}));
}

PatchMessage nothingToShow(const QString &fileName)
{
    return PatchMessage(QT_TRANSLATE_NOOP("TPatch", "\"%1\" contains no DMX fixtures that can be shown."),
                        {fileName});
}

PatchLoadResult readImport(const QString &path, ImportParser parse, const char *formatLabel, SourceKind kind)
{
    QByteArray bytes;
    PatchMessage error;
    if (!readPatchFile(path, &bytes, &error)) {
        PatchLoadResult result = emptyImportResult(formatLabel, kind, path);
        result.error = error;
        return result;
    }
    return parse(bytes, QFileInfo(path).fileName(), path);
}

} // namespace TPatch
