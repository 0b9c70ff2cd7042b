#pragma once

#include <QStringList>

// talu-cli log FILE [--filter EXPR] [--export csv|text|pcapng|tlog -o OUT] [--json]
int runLogCommand(const QStringList &arguments);
