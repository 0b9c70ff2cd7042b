#pragma once

#include "patch/patchdata.h"

namespace TPatch {

// The 15-bit Art-Net Port-Address: (Net << 8) | (Sub-Net << 4) | (universe & 0xF).
// Universes above 15 lose their high bits here, which is what reaches the wire.
quint16 portAddress(const Torvoverse &torvoverse);

// Tells apart devices that share a Port-Address: the target IP big-endian in
// the high 32 bits (0 when fewer than four octets are known) and
// (Net << 16) | (Sub-Net << 8) | full 16-bit universe in the low 32 bits.
quint64 deviceKey(const Torvoverse &torvoverse);

struct KineticChannel
{
    bool hasChannel = false;
    quint16 channel = 0;
    bool is16Bit = false;

    bool operator==(const KineticChannel &o) const
    {
        return hasChannel == o.hasChannel && channel == o.channel && is16Bit == o.is16Bit;
    }
};

// The DMX channel that carries a kinetic item's position: the structures are
// walked in order with a running offset; channel 0 entries are gaps that do not
// count, the position role ends the walk, any other entry moves the offset by
// its width (1, or 2 when 16-bit).
KineticChannel kineticChannel(const LedRecord &record);

// The target IP as the panels show it, "10.0.0.1"; "0.0.0.0" when fewer than
// four octets are known.
QString targetIpText(const Torvoverse &torvoverse);

// The device family name for PatchData::device: "ARTNET", "KEL6S", ... or
// "Device #%1" for codes outside the known list.
QString deviceName(qint32 device);

} // namespace TPatch
