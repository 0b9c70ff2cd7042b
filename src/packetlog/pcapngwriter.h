#pragma once

#include "packetlog/logmessage.h"
#include "packetlog/packetrecord.h"

#include <QIODevice>

#include <vector>

namespace PacketLog {

// Writes records as a pcapng capture that Wireshark and its tools read: one
// Ethernet/IPv4/UDP frame per record with its real time (nanosecond
// resolution). Two interfaces: "talu" for our own socket's records and
// "capture" for captured ones, so reading the file back restores the source.
// Direction goes in the standard packet flags (inbound/outbound); a send that
// did not end well carries a comment such as
// "SEND FAILED WSAENOBUFS (10055); talu outcome=failed reason=0 error=10055",
// which Wireshark shows and our reader parses. Only the kept first bytes of
// each datagram exist, so frames longer than that are written truncated with
// their full original length, as a capture with a short snap length would be.
// Any thread; the device is the caller's.
bool writePcapng(const std::vector<PacketRecord> &records, QIODevice *out, LogMessage *error);

// The comment marker our reader looks for.
constexpr char kPcapngCommentTag[] = "talu outcome=";

} // namespace PacketLog
