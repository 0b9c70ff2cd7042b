#pragma once

#include <QStringList>

// talu-cli filter EXPR [--json]
int runFilterCommand(const QStringList &arguments);
