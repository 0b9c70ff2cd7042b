#pragma once

#include <QStringList>

// talu-cli render --patch PATCH [--view 2d|3d] [--white] [--size WxH] ... -o OUT.png
int runRenderCommand(const QStringList &arguments);
