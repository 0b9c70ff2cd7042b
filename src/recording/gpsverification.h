#pragma once

#include "recording/gpscheck.h"

#include <QVector>

// The outcome of verifying a GPS-Sync set: the findings in check order, their
// tallies, the frame count every member can play, and the one-line summary.
struct GpsVerification
{
    QVector<GpsCheck> checks;
    int failures = 0;
    int warnings = 0;
    qint64 frameCount = 0;                  // the shortest member's frame count (0 with an unreadable member)
    TPatch::PatchMessage summary;           // "... structure and sync verified" and its siblings
    TPatch::PatchMessage unreadableSummary; // "%1 of %2 file(s) could not be read.", or empty
    bool armable = false;                   // every member has at least one complete frame

    void add(GpsCheck check)
    {
        failures += check.verdict == GpsCheck::Fail;
        warnings += check.verdict == GpsCheck::Warn;
        checks.append(std::move(check));
    }
    GpsCheck::Verdict worst() const
    {
        return failures ? GpsCheck::Fail : warnings ? GpsCheck::Warn : GpsCheck::Pass;
    }
};
