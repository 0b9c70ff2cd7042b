#pragma once

#include <QStringList>

// talu-cli recording FILE [--patch PATCH] [--quiet] [--json]
int runRecordingCommand(const QStringList &arguments);
