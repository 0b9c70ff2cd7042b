#pragma once

#include <QStringList>

// talu-cli patch FILE [--json]
int runPatchCommand(const QStringList &arguments);
