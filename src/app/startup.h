#pragma once

#include <QStringList>

#include <optional>

// "--apply-update" followed by at least two arguments hands the process over
// to the updater: returns the arguments after the flag. With the flag absent
// or fewer than two arguments after it, the program starts normally (nullopt).
std::optional<QStringList> updateHandOverArguments(const QStringList &arguments);

// The arguments a normal start parses: "--apply-update" and whatever follows
// it are the updater's and are left out, so a hand-over that falls short of
// two arguments starts normally instead of failing as an unknown option.
QStringList argumentsForNormalStart(const QStringList &arguments);
