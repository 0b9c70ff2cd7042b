#pragma once

#include <QtGlobal>

// A snapshot of the node's live counters, as the broadcast panel and
// `talu-cli listen` show them. Counters restart at every start of the node.
struct NodeStats
{
    quint64 dmxPackets = 0;
    quint64 artPolls = 0;
    quint64 ignored = 0;
    quint64 sequenceErrors = 0;
    double packetsPerSecond = 0.0;
    qint64 msSinceLastDmx = -1; // -1: no DMX since the node started
};
