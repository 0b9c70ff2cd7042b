#include "patch/patchloader.h"

#include "patch/elmreader.h"
#include "patch/madrixreader.h"
#include "patch/tpatchreader.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

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

PatchFormat sniffPatchFormat(const QString &fileName, const QByteArray &bytes)
{
    const QByteArrayView start = QByteArrayView(bytes).first(std::min<qsizetype>(bytes.size(), kSniffBytes));
    const QString lower = fileName.toLower();
    if (lower.endsWith(QLatin1StringView(".mpz")) || start.startsWith("\x1F\x8B") || start.contains("<madrix_patch"))
        return PatchFormat::Madrix;
    if (lower.endsWith(QLatin1StringView(".elm")) || lower.endsWith(QLatin1StringView(".elmbackup"))
        || (start.contains("<console") && start.contains("appVersion")))
        return PatchFormat::Elm;
    return PatchFormat::Native;
}

PatchFormat sniffPatchFormat(const QString &path)
{
    return sniffPatchFormat(path, head(path));
}

PatchLoadResult loadPatchData(const QByteArray &bytes, const QString &fileName, const QString &sourcePath)
{
    switch (sniffPatchFormat(fileName, bytes)) {
    case PatchFormat::Madrix:
        return parseMadrixPatch(bytes, fileName, sourcePath);
    case PatchFormat::Elm:
        return parseElmProject(bytes, fileName, sourcePath);
    case PatchFormat::Native:
        break;
    }
    return parseTPatch(bytes, fileName, sourcePath);
}

PatchLoadResult loadPatch(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) {
        // The reader the name points to says why, in its own words.
        switch (sniffPatchFormat(path, QByteArray())) {
        case PatchFormat::Madrix:
            return readMadrixPatch(path);
        case PatchFormat::Elm:
            return readElmProject(path);
        case PatchFormat::Native:
            break;
        }
        return readTPatch(path);
    }
    return loadPatchData(file.readAll(), QFileInfo(path).fileName(), path);
}

} // namespace TPatch
