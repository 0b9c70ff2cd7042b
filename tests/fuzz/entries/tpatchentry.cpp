#include "../fuzzentries.h"

#include "patch/patchkeys.h"
#include "patch/tpatchreader.h"

#include <QByteArray>
#include <QString>

// The native reader on arbitrary bytes: a result comes back, never an
// exception; a failure carries its error and no patch, a success no error.
int fuzzTPatch(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const TPatch::PatchLoadResult r =
        TPatch::parseTPatch(bytes, QStringLiteral("fuzz.tpatch"), QStringLiteral("/fuzz/fuzz.tpatch"));
    if (r.ok) {
        FUZZ_PROMISE("tpatch", r.error.isEmpty());
        FUZZ_PROMISE("tpatch", !r.patch.groups.isEmpty());
        for (const auto &g : r.patch.groups)
            for (const auto &t : g.torvoverses) {
                FUZZ_PROMISE("tpatch", t.targetIP.size() == 4);
                (void)TPatch::portAddress(t);
                (void)TPatch::deviceKey(t);
                for (const auto &f : t.fixtures)
                    for (const auto &k : f.kinetics)
                        (void)TPatch::kineticChannel(k);
            }
        for (const auto &w : r.warnings)
            (void)w.untranslatedText();
    } else {
        FUZZ_PROMISE("tpatch", !r.error.isEmpty());
        FUZZ_PROMISE("tpatch", r.patch.groups.isEmpty());
        (void)r.error.untranslatedText();
    }
    return 0;
}
