#pragma once

#include <QStringList>

// talu-cli convert: a capture made into a .tpx recording.
int runConvertCommand(const QStringList &arguments);
// talu-cli diff: two recordings (or captures) compared frame by frame.
int runDiffCommand(const QStringList &arguments);
