#pragma once

#include "packetlog/logloadresult.h"

#include <QByteArrayView>

namespace PacketLog {

// Reads a capture made by Wireshark, tcpdump or our own pcapng export into
// records, so it can be filtered like our own log. Every UDP-over-IPv4 packet
// becomes a record with source "capture" (or "mox" when it comes from the
// "talu" interface of our own export); other packets are counted in skipped.
// Link types: Ethernet (with VLAN tags), raw IPv4, BSD loopback, Linux cooked
// v1 and v2. Never throws; a damaged or cut file yields what was whole with a
// warning naming the packet and byte where reading stopped. Any thread.
LogLoadResult readPcap(QByteArrayView bytes);
LogLoadResult readPcapng(QByteArrayView bytes);

bool isPcap(QByteArrayView bytes);
bool isPcapng(QByteArrayView bytes);

} // namespace PacketLog
