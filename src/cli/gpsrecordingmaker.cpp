#include "cli/gpsrecordingmaker.h"

#include "recording/recordflavour.h"

#include <QSaveFile>
#include <QtEndian>

#include <cstring>

using namespace RecordLayout;

GpsMetadataBlock gpsBlockFor(const GpsRecordingPlan &plan)
{
    GpsMetadataBlock block;
    block.frameCount = quint32(plan.frames);
    block.universeCount = quint8(std::min<qsizetype>(plan.universes.size(), 255));
    for (int i = 0; i < plan.lengths.size(); ++i) {
        const int size = kArtNetHeaderSize + plan.lengths.at(i) + kTimestampSize;
        block.frameByteSize += quint64(size);
        if (i < GpsMetadataBlock::kMaxUniverses)
            block.universeByteLength[size_t(i)] = quint16(size);
    }
    return block;
}

quint16 gpsFrameStamp(qint64 frame, int fps)
{
    return quint16(frame * fps / 1000);
}

QByteArray gpsFrameBytes(const GpsRecordingPlan &plan, qint64 frame, const GpsDataSource &source)
{
    QByteArray out;
    const quint16 stamp = gpsFrameStamp(frame, plan.fps);
    for (int slot = 0; slot < plan.universes.size(); ++slot) {
        const int length = std::clamp(plan.lengths.value(slot), 0, kMaxDmxLength);
        const qsizetype at = out.size();
        out.resize(at + kArtNetHeaderSize + length + kTimestampSize, '\0');
        char *p = out.data() + at;
        std::memcpy(p, "Art-Net", 8); // the ID with its zero byte
        qToLittleEndian<quint16>(kOpArtDmx, p + 8);
        p[11] = 14; // protocol version 14, high byte first
        qToLittleEndian<quint16>(plan.universes.at(slot), p + 14);
        qToBigEndian<quint16>(quint16(length), p + 16);
        if (source)
            source(frame, slot, p + kArtNetHeaderSize, length);
        qToLittleEndian<quint16>(stamp, p + kArtNetHeaderSize + length);
    }
    return out;
}

QByteArray gpsRecordingBytes(const GpsRecordingPlan &plan, const GpsDataSource &source)
{
    QByteArray out = gpsBlockFor(plan).toBytes();
    for (qint64 frame = 0; frame < plan.frames; ++frame)
        out += gpsFrameBytes(plan, frame, source);
    return out;
}

bool writeGpsRecording(const QString &path, const GpsRecordingPlan &plan, const GpsDataSource &source,
                       QString *error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        *error = file.errorString();
        return false;
    }
    // Written in chunks of about a mebibyte: a long file never sits in memory whole.
    QByteArray chunk = gpsBlockFor(plan).toBytes();
    for (qint64 frame = 0; frame < plan.frames; ++frame) {
        chunk += gpsFrameBytes(plan, frame, source);
        if (chunk.size() >= (1 << 20) || frame + 1 == plan.frames) {
            if (file.write(chunk) != chunk.size())
                break;
            chunk.clear();
        }
    }
    if (file.error() != QFileDevice::NoError || !file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}
