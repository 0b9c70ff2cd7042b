#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// A capture (pcap or pcapng, from Wireshark, tcpdump or our own capture) made
// into a .tpx recording: its ArtDmx packets to the Art-Net port, to any
// destination and optionally from one sender only, go through the recording
// writer in capture order with the capture's own timestamps as the clock, so
// frames form by the same rules as when the live stream is recorded.
// talu-cli convert and "Open Recording..." of a capture share it. Any thread.
struct CaptureConversion
{
    bool ok = false;
    QString error;        // English, as the writer and reader word it
    QStringList warnings; // where a damaged capture stopped, packets left out
    qint64 datagrams = 0; // UDP datagrams in the capture
    qint64 dmxPackets = 0; // ArtDmx (and KEL) packets written as records
    qint64 otherSenders = 0; // ArtDmx packets left out by the sender filter
    qint64 records = 0;
    qint64 frames = 0;
};

// Writes outPath whole (through a temporary file beside it, so a failure
// leaves any earlier file in place). recordsPerFrame > 0 frames by count (a
// patch's universes), else by repetition and pauses, as the live recorder does.
CaptureConversion convertCapture(const QString &capturePath, const QString &outPath, int frameRate,
                                 int recordsPerFrame, std::optional<quint32> source = std::nullopt);
