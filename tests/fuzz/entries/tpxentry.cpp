#include "../fuzzentries.h"

#include "patch/patchdata.h"
#include "recording/recording.h"

#include <QByteArray>

#include <cstdint>

namespace {

// The patch the records are matched against: one group of three torvoverses
// at Port-Addresses 0, 1 and 2, the universes of the seed recordings.
TPatch::PatchData threeUniverses()
{
    TPatch::PatchData patch;
    TPatch::PatchGroup group;
    group.groupName = QStringLiteral("Fuzz");
    for (quint16 u = 0; u < 3; ++u) {
        TPatch::Torvoverse t;
        t.torvoverseName = QStringLiteral("U%1").arg(u);
        t.universe = u;
        group.torvoverses.append(t);
    }
    patch.groups.append(group);
    return patch;
}

// A load succeeds with at least one whole frame, and every slot of every
// frame references a record whose data and timestamp lie inside the file.
void checkRecording(const char *target, const std::uint8_t *data, std::size_t size, const TPatch::PatchData *patch)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    Recording recording;
    const RecordingLoadResult r = recording.loadData(bytes, QStringLiteral("fuzz.tpx"), patch);
    for (const auto &w : r.warnings)
        (void)w.untranslatedText();
    if (!r.ok) {
        FUZZ_PROMISE(target, !r.error.isEmpty());
        FUZZ_PROMISE(target, !recording.isLoaded());
        FUZZ_PROMISE(target, recording.frameCount() == 0);
        (void)r.error.untranslatedText();
        return;
    }
    FUZZ_PROMISE(target, r.error.isEmpty());
    FUZZ_PROMISE(target, recording.isLoaded());
    FUZZ_PROMISE(target, recording.frameCount() >= 1);
    FUZZ_PROMISE(target, recording.recordsPerFrame() >= 1);
    FUZZ_PROMISE(target, recording.frameCount() * recording.recordsPerFrame() <= recording.records().size());
    FUZZ_PROMISE(target, !recording.isGpsSync() || recording.gpsMetadataBlock().size() == 143);
    const qint64 fileSize = qint64(size);
    for (qint64 frame = 0; frame < recording.frameCount(); ++frame) {
        for (int slot = 0; slot < recording.recordsPerFrame(); ++slot) {
            const RecordRef ref = recording.recordAt(frame, slot);
            FUZZ_PROMISE(target, !ref.isNull());
            FUZZ_PROMISE(target, ref.headerSize == 18 || ref.headerSize == 30);
            FUZZ_PROMISE(target, ref.dataOffset >= ref.headerSize);
            FUZZ_PROMISE(target, ref.dataOffset + ref.length + 2 <= fileSize);
            FUZZ_PROMISE(target, recording.dataOf(ref).size() == ref.length);
            (void)recording.timestampOf(ref);
        }
        FUZZ_PROMISE(target, recording.frameRecords(frame).size() == recording.recordsPerFrame());
    }
    FUZZ_PROMISE(target, recording.recordAt(recording.frameCount(), 0).isNull());
    FUZZ_PROMISE(target, recording.frameRecords(-1).isEmpty());
    (void)recording.formatLabel();
}

} // namespace

int fuzzTpx(const std::uint8_t *data, std::size_t size)
{
    checkRecording("tpx", data, size, nullptr);
    return 0;
}

int fuzzTpxPatch(const std::uint8_t *data, std::size_t size)
{
    static const TPatch::PatchData patch = threeUniverses();
    checkRecording("tpxpatch", data, size, &patch);
    return 0;
}
