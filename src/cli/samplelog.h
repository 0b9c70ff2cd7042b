#pragma once

#include "packetlog/packetrecord.h"

#include <vector>

// A short made-up session of the node on 192.0.2.1, as records: a console at
// 192.0.2.2 polls and sends ArtDmx to universes 0 to 3, the node replies, one
// reply fails with WSAENOBUFS and one is not sent because the device is
// offline. Deterministic (fixed times from 2026-01-01 00:00:00 UTC), for
// tests, examples and `talu-cli generate sample-log`.
std::vector<PacketLog::PacketRecord> makeSampleLog();

// An ArtDmx datagram: 18-byte header and channels bytes of data, each channel
// set to (fill + channel index) & 0xFF.
QByteArray makeArtDmx(quint16 portAddress, quint8 sequence, int channels, quint8 fill);
// An ArtPoll datagram (14 bytes) and our node's 239-byte ArtPollReply shape.
QByteArray makeArtPoll();
QByteArray makeArtPollReply(const char *shortName);
