#pragma once

#include "patch/patchdata.h"

namespace TPatch {

// The record order that one frame of a recording made from this patch
// carries: the sibling controller sends one ArtDmx per torvoverse per frame,
// walking the tree in order (group, then torvoverse). The recording reader
// matches files against the whole sequence; the GPS-Sync verifier against
// each group's slice, because a GPS-Sync file holds one group only.
struct FrameSlot
{
    quint16 portAddress = 0; // the 15-bit Port-Address the record carries on the wire
    int groupIndex = 0;
    int torvoverseIndex = 0; // within its group
};

struct FrameOrder
{
    QVector<FrameSlot> entries;
    // Slots of group g are entries[groupStart[g] .. groupStart[g + 1]); size is groups + 1.
    QVector<int> groupStart;

    int recordsPerFrame() const { return int(entries.size()); }
    int groupRecordCount(int group) const;
    QVector<quint16> universes() const;               // Port-Address per slot, whole frame
    QVector<quint16> groupUniverses(int group) const; // Port-Address per slot of one group
};

FrameOrder expectedFrameOrder(const PatchData &patch);

} // namespace TPatch
