#include "recording/gpssetmember.h"

#include <QFileInfo>

QString GpsSetMember::fileName() const
{
    return QFileInfo(path).fileName();
}

void GpsSetMember::load(const TPatch::PatchData *patch)
{
    loadResult = RecordingLoadResult{};
    gpsSync = false;
    block = GpsMetadataBlock{};
    measuredFrameBytes = 0;
    frameCount = 0;
    recording->reset();
    if (path.isEmpty())
        return;
    // A folder given as a file would be "opened" by some platforms and read
    // as empty; say what it is instead.
    if (QFileInfo(path).isDir()) {
        loadResult.error = TPatch::PatchMessage(
            QT_TRANSLATE_NOOP("TPatch", "\"%1\" is a folder, not a recording."), {fileName()});
        return;
    }
    loadResult = recording->load(path, patch, true);
    if (!loadResult.ok)
        return;
    gpsSync = recording->isGpsSync();
    if (gpsSync)
        GpsMetadataBlock::parse(recording->gpsMetadataBlock(), &block);
    for (const RecordRef &r : recording->frameRecords(0))
        measuredFrameBytes += r.headerSize + r.length + RecordLayout::kTimestampSize;
    frameCount = recording->frameCount();
}
