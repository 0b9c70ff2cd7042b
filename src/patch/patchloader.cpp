#include "patch/patchloader.h"

#include "patch/tpatchreader.h"

#include <QFile>
#include <QFileInfo>

namespace TPatch {

namespace {

constexpr qint64 kSniffBytes = 512;

QByteArray head(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(kSniffBytes);
}

// Until the MADRIX and ELM importers exist, such files are refused in plain words
// rather than being fed to the JSON reader, which would call them invalid.
PatchLoadResult notYetSupported(const QString &path, const char *label, SourceKind kind)
{
    PatchLoadResult result;
    result.patch.formatLabel = QString::fromLatin1(label);
    result.patch.sourceKind = kind;
    result.error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "\"%1\" is a %2; this version cannot import it yet."),
                                {QFileInfo(path).fileName(), result.patch.formatLabel});
    return result;
}

} // namespace

PatchFormat sniffPatchFormat(const QString &path)
{
    const QByteArray bytes = head(path);
    const QString lower = path.toLower();
    if (lower.endsWith(QLatin1StringView(".mpz")) || bytes.startsWith("\x1F\x8B") || bytes.contains("<madrix_patch"))
        return PatchFormat::Madrix;
    if (lower.endsWith(QLatin1StringView(".elm")) || lower.endsWith(QLatin1StringView(".elmbackup"))
        || (bytes.contains("<console") && bytes.contains("appVersion")))
        return PatchFormat::Elm;
    return PatchFormat::Native;
}

PatchLoadResult loadPatch(const QString &path)
{
    switch (sniffPatchFormat(path)) {
    case PatchFormat::Madrix:
        return notYetSupported(path, "MADRIX 5 patch (.mpz)", SourceKind::Madrix);
    case PatchFormat::Elm:
        return notYetSupported(path, "ENTTEC ELM project (.elm)", SourceKind::Elm);
    case PatchFormat::Native:
        break;
    }
    return readTPatch(path);
}

} // namespace TPatch
