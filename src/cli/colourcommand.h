#pragma once

#include <QStringList>

// talu-cli colour: evaluates one pixel against a universe's bytes the way the
// monitor does and prints the colour.
int runColourCommand(const QStringList &arguments);
