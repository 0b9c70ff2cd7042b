#pragma once

#include <QStringList>

// talu-cli capture: captures Art-Net from a network adapter through the
// capture helper and writes it as a packet log or pcapng.
int runCaptureCommand(const QStringList &arguments);
