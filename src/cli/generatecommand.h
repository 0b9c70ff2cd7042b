#pragma once

#include <QStringList>

// talu-cli generate demo-patch OUT
int runGenerateCommand(const QStringList &arguments);
