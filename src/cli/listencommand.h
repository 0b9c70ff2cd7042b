#pragma once

#include <QStringList>

// talu-cli listen [--address A] [--port N] [--universes LIST | --patch FILE]
//                 [--short-name S] [--long-name L] [--seconds N] [--json]
int runListenCommand(const QStringList &arguments);
