#include "patch/patchloader.h"

#include "patch/elmreader.h"
#include "patch/madrixreader.h"
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
        return readMadrixPatch(path);
    case PatchFormat::Elm:
        return readElmProject(path);
    case PatchFormat::Native:
        break;
    }
    return readTPatch(path);
}

} // namespace TPatch
