#pragma once

#include <QStringList>

// talu-cli gps-verify: verifies a GPS-Sync set (one .tpx per group) against a
// patch, found in a folder by the <name>_<Group>.tpx rule or given group by group.
int runGpsVerifyCommand(const QStringList &arguments);
