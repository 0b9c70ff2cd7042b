#pragma once

#include "patch/patchdata.h"
#include "recording/gpspatchexpectation.h"
#include "recording/gpssetmember.h"
#include "recording/gpsverification.h"

#include <vector>

// Checks a GPS-Sync set against the patch it was recorded from and reports
// check by check. The checks run in a fixed order:
//  1 a patch is loaded          2 every group has a file     3 what was supplied
//  4 no file serves two groups  5 every file can be read     6 every file has the GPS block
//  7 records per frame          8 record order in frame 0     9 frameByteSize
// 10 whole frames only         11 equal lengths             12 header frame count
// 13 timestamps in lockstep    14 universes covered         15 universes shared
// and end with a one-line summary. Checks 1 and 2 stop the run when they fail
// (nothing can be judged without the patch or with files missing). A file
// that cannot be read becomes a finding of its own and the other files are
// still checked; checks 9 and 12 judge only files that carry the GPS block
// and are left out when none does.
//
// Threads: GUI thread (it loads the files); never throws.
class GpsVerifier
{
public:
    // members holds one entry per patch group, in group order, with the paths
    // set (empty for a group without a file); the verifier names them after
    // the groups, loads them and checks them.
    static GpsVerification verify(const TPatch::PatchData *patch, std::vector<GpsSetMember> *members);
    // The same with the patch's expectation already built (it lays the patch out).
    static GpsVerification verify(const TPatch::PatchData *patch, const GpsPatchExpectation &expected,
                                  std::vector<GpsSetMember> *members);
};
