#pragma once

#include <QString>
#include <QVector>

namespace PacketLog {

// One example of the help shown beside the filter line, with its note
// (what it means or which values it takes; empty when none).
struct FilterHelpExample
{
    QString example;
    QString note;
};

// The examples in the order the help lists them. Notes are translated in the
// context "PacketLog" unless asked for English. Any thread.
QVector<FilterHelpExample> filterHelpExamples(bool translate = true);
// The closing lines: connectives, operators, bare words, mox.* names.
QStringList filterHelpLines(bool translate = true);

} // namespace PacketLog
