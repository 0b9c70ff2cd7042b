#include "live/captureconversion.h"

#include "artnet/artnetwire.h"
#include "packetlog/capturereader.h"
#include "recording/recordingwriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

CaptureConversion convertCapture(const QString &capturePath, const QString &outPath, int frameRate,
                                 int recordsPerFrame, std::optional<quint32> source)
{
    CaptureConversion result;
    QFile capture(capturePath);
    if (!capture.open(QIODevice::ReadOnly)) {
        result.error = QStringLiteral("Cannot open %1: %2").arg(capturePath, capture.errorString());
        return result;
    }
    const uchar *mapped = capture.map(0, capture.size());
    const QByteArray copy = mapped ? QByteArray() : capture.readAll();
    const QByteArrayView bytes = mapped ? QByteArrayView(mapped, capture.size()) : QByteArrayView(copy);

    const QString temporary = outPath + QStringLiteral(".part");
    QFile::remove(temporary);
    RecordingWriter writer;
    if (!writer.open(temporary, frameRate, recordsPerFrame)) {
        result.error = writer.lastError();
        return result;
    }
    ArtNet::DmxFlavour flavour = ArtNet::DmxFlavour::ArtNet;
    QString kelName;
    bool first = true;
    const PacketLog::LogLoadResult read = PacketLog::visitCapture(
        bytes, [&](const PacketLog::PacketRecord &record, QByteArrayView payload) {
            ++result.datagrams;
            if (record.dstPort != ArtNet::kDefaultPort || writer.failed())
                return;
            const ArtNet::ClassifiedDatagram c = ArtNet::classifyDatagram(payload);
            if (c.kind != ArtNet::DatagramKind::Dmx)
                return;
            if (source && record.srcIp != *source) {
                ++result.otherSenders;
                return;
            }
            // The record shape follows the sender's, as the live recorder's does.
            const QString name = c.flavour == ArtNet::DmxFlavour::Kel ? ArtNet::kelDeviceName(payload) : QString();
            if (first || c.flavour != flavour || name != kelName) {
                flavour = c.flavour;
                kelName = name;
                writer.setSource(RecordFlavour(flavour), kelName);
                first = false;
            }
            if (writer.writeAt(c.portAddress, payload.sliced(c.dataOffset, c.dataLength), record.timeNs))
                ++result.dmxPackets;
        });
    writer.close();
    for (const PacketLog::LogMessage &w : read.warnings)
        result.warnings << w.untranslatedText();
    result.records = writer.recordsWritten();
    result.frames = writer.framesWritten();
    if (!read.ok || writer.failed()) {
        result.error = !read.ok ? read.error.untranslatedText() : writer.failureReason();
        QFile::remove(temporary);
        return result;
    }
    QFile::remove(outPath);
    if (!QFile::rename(temporary, outPath)) {
        result.error = QStringLiteral("Cannot write %1.").arg(outPath);
        QFile::remove(temporary);
        return result;
    }
    result.ok = true;
    return result;
}
