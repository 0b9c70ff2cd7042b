#pragma once

#include <QStringList>

#include <optional>

// "--apply-update" followed by at least two arguments hands the process over
// to the updater: returns the arguments after the flag. With the flag absent
// or fewer than two arguments after it, the program starts normally (nullopt).
std::optional<QStringList> updateHandOverArguments(const QStringList &arguments);
