#include "patch/patchfile.h"

#include <QFile>
#include <QFileInfo>

namespace TPatch {

bool readPatchFile(const QString &path, QByteArray *bytes, PatchMessage *error)
{
    const QFileInfo info(path);
    QFile file(path);
    if (info.isDir() || !file.open(QIODevice::ReadOnly)) {
        const QString reason = info.isDir() ? QStringLiteral("it is a folder, not a file") : file.errorString();
        *error = PatchMessage(QT_TRANSLATE_NOOP("TPatch", "Could not open \"%1\": %2"), {info.fileName(), reason});
        return false;
    }
    *bytes = file.readAll();
    return true;
}

} // namespace TPatch
