#include "patchpromises.h"

#include "../fuzzentries.h"

#include "patch/patchkeys.h"
#include "patch/patchloader.h"

#include <QByteArray>
#include <QString>

void checkPatchPromises(const char *target, const TPatch::PatchLoadResult &r)
{
    if (!r.ok) {
        FUZZ_PROMISE(target, !r.error.isEmpty());
        FUZZ_PROMISE(target, r.patch.groups.isEmpty());
        (void)r.error.untranslatedText();
        return;
    }
    FUZZ_PROMISE(target, r.error.isEmpty());
    FUZZ_PROMISE(target, !r.patch.groups.isEmpty());
    for (const auto &g : r.patch.groups) {
        for (const auto &t : g.torvoverses) {
            FUZZ_PROMISE(target, t.targetIP.size() == 4);
            (void)TPatch::portAddress(t);
            (void)TPatch::deviceKey(t);
            for (const auto &f : t.fixtures) {
                for (const auto &k : f.kinetics)
                    (void)TPatch::kineticChannel(k);
                // Free-position pixels come with at most one rotation each.
                FUZZ_PROMISE(target, f.pixelRotations.size() <= f.pixelPoints.size());
            }
        }
    }
    for (const auto &w : r.warnings)
        (void)w.untranslatedText();
}

int fuzzPatchBytes(const char *target, const char *fileName, const unsigned char *data, std::size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString name = QString::fromLatin1(fileName);
    checkPatchPromises(target, TPatch::loadPatchData(bytes, name, QStringLiteral("/fuzz/") + name));
    return 0;
}
