#pragma once

#include "live/healthanalyser.h"

#include <QString>
#include <QStringList>

class Recording;

namespace Health {

// The health of a file: the analyser fed with it, or why it could not be read.
struct FileHealth
{
    bool ok = false;
    QString error;             // translated, for the window
    QString untranslatedError; // English, for talu-cli
    QStringList warnings;      // English: what the capture reader skipped
    Analyser analyser;         // over the whole file (fps: packets over the file's span)
};

// Feeds a capture's Art-Net packets to port 6454 (ArtDmx with their senders and
// sequence numbers, ArtSync) or a recording's records (one sender, no
// numbers, frame n at n / frameRate s) to an analyser. Never throws.
FileHealth analyseFile(const QString &path, int frameRate);
// A recording already loaded, the same way.
void analyseRecording(const Recording &recording, int frameRate, Analyser *analyser);

} // namespace Health
