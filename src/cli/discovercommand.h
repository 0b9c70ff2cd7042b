#pragma once

#include <QStringList>

// talu-cli discover: the nodes on the network, as the Node Discovery window shows them.
int runDiscoverCommand(const QStringList &arguments);
