#pragma once

#include "patch/patchdata.h"

#include <QString>
#include <QVector>

// What a GPS-Sync set has to look like for one patch: per group the records
// one frame of its file carries, in order, and which universes carry
// drawable pixels.
//
// Record order: the sibling controller sends one ArtDmx per torvoverse per
// frame in tree order (TPatch::expectedFrameOrder); a GPS-Sync file holds its
// group's slice of that order.
//
// Universe field: on the wire a record carries the 15-bit Port-Address, but
// the sibling controller writes the universe field of a GPS record as
// (subNet << 8) | universe, with the universe as entered. For the usual patch
// (Net 0, Sub-Net 0, universes 0 to 15) the two are the same number. We
// accept either form in a slot and count a record written in the controller's
// form as the slot's Port-Address, so a file made by the controller and a
// file made from the wire both verify, and coverage and sharing are judged on
// Port-Addresses.
struct GpsGroupExpectation
{
    QString name;                     // the group's caption ("Group 3" for a group without a name)
    QVector<quint16> portAddresses;   // per record slot of a frame, as on the wire
    QVector<quint16> recordUniverses; // per record slot, as the controller writes a GPS record
    bool hasDrawablePixels = false;

    int recordCount() const { return int(portAddresses.size()); }
    // Whether a record's universe field fits slot i in either form.
    bool slotAccepts(int slot, quint16 universe) const;
    // The Port-Address a record's universe field stands for in this group:
    // the slot's Port-Address when it is written in the controller's form,
    // else the value itself.
    quint16 toPortAddress(quint16 universe) const;
};

struct GpsPatchExpectation
{
    QVector<GpsGroupExpectation> groups;
    QVector<quint16> universes; // distinct Port-Addresses of every torvoverse, ascending
    int torvoverseCount = 0;
    QVector<quint16> drawableUniverses; // distinct Port-Addresses with at least one colour pixel, ascending

    // Builds the expectation, laying the patch out once for the drawable universes. Any thread.
    static GpsPatchExpectation fromPatch(const TPatch::PatchData &patch);
    // "Group %1" (1-based) for a group without a name, as the panel captions it.
    static QString groupCaption(const TPatch::PatchGroup &group, int index);
};
