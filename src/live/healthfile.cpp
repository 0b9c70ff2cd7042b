#include "live/healthfile.h"

#include "artnet/artnetwire.h"
#include "packetlog/capturereader.h"
#include "recording/recording.h"
#include "recording/recordingloadresult.h"

#include <QCoreApplication>
#include <QFile>

namespace Health {

void analyseRecording(const Recording &recording, int frameRate, Analyser *analyser)
{
    const qint64 rate = qMax(1, frameRate);
    for (qint64 frame = 0; frame < recording.frameCount(); ++frame) {
        for (const RecordRef &r : recording.frameRecords(frame))
            if (!r.isNull())
                analyser->addDmx(frame * 1'000'000'000LL / rate, 0, 0, r.universe, 0, r.length);
    }
}

FileHealth analyseFile(const QString &path, int frameRate)
{
    FileHealth result;
    Analyser &analyser = result.analyser;
    const auto refuse = [&result](const QString &translated, const QString &english) {
        result.error = translated;
        result.untranslatedError = english;
        return std::move(result);
    };
    if (PacketLog::isCaptureFile(path)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return refuse(QCoreApplication::translate("Health", "Cannot open %1: %2").arg(path, file.errorString()),
                          QStringLiteral("Cannot open %1: %2").arg(path, file.errorString()));
        const QByteArray bytes = file.readAll();
        const PacketLog::LogLoadResult read = PacketLog::visitCapture(
            bytes, [&analyser](const PacketLog::PacketRecord &r, QByteArrayView payload) {
                if (r.dstPort != ArtNet::kDefaultPort || !r.isArtNet())
                    return;
                if (r.opcode == ArtNet::kOpSync) {
                    analyser.addSync(r.timeNs, r.srcIp, r.srcPort);
                    return;
                }
                const ArtNet::ClassifiedDatagram c = ArtNet::classifyDatagram(payload);
                if (c.kind == ArtNet::DatagramKind::Dmx)
                    analyser.addDmx(r.timeNs, r.srcIp, r.srcPort, c.portAddress, c.sequence, c.dataLength);
            });
        if (!read.ok)
            return refuse(read.error.text(), read.error.untranslatedText());
        for (const PacketLog::LogMessage &w : read.warnings)
            result.warnings.append(w.untranslatedText());
    } else {
        Recording recording;
        const RecordingLoadResult loaded = recording.load(path, nullptr, true);
        if (!loaded.ok)
            return refuse(loaded.error.text(), loaded.error.untranslatedText());
        analyseRecording(recording, frameRate, &analyser);
    }
    result.ok = true;
    return result;
}

} // namespace Health
