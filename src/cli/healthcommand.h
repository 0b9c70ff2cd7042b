#pragma once

#include "live/healthanalyser.h"

#include <QJsonArray>
#include <QStringList>

// talu-cli health: network health per universe and source from a recording or capture.
int runHealthCommand(const QStringList &arguments);
// The universeHealth array of health and listen --json.
QJsonArray universeHealthJson(const QVector<Health::UniverseHealth> &universes);
