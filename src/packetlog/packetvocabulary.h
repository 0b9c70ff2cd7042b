#pragma once

#include <QString>
#include <QtGlobal>

// The words and texts of the packet log: how a packet's send ended (outcome),
// why it was not sent (reason) and the Windows Sockets error of a failed send.
// Filter words are fixed; labels and explanations are translated in the
// context "PacketLog" unless a function is asked for the English source text
// (log files and talu-cli print English so scripts can match it).
// All functions are pure and may be called from any thread.
namespace PacketLog {

enum class Outcome : quint8 {
    Ok = 0,      // sent or received normally
    Failed = 1,  // the send call failed
    NotSent = 2, // abandoned before it was built or handed to the socket
    Partial = 3, // fewer bytes written than the datagram holds
};
constexpr int kOutcomeCount = 4;

// Reason codes are stored as a plain byte: files may carry codes this build
// does not know, and those must survive a round trip untouched.
enum Reason : quint8 {
    ReasonNone = 0,
    ReasonOffline = 1,
    ReasonTransferClosed = 2,
    ReasonTestMode = 3,
    ReasonNoSocket = 4,
    ReasonInvalidTarget = 5,
};
constexpr int kReasonCount = 6;

enum class Direction : quint8 { In = 0, Out = 1 };
enum class RecordSource : quint8 { Mox = 0, Capture = 1 };

// "ok", "failed", "notsent", "partial"; "unknown" for a code out of range.
QString outcomeWord(Outcome outcome);
// "SEND FAILED", "NOT SENT", "PARTIAL WRITE"; empty for Ok.
QString outcomeLabel(Outcome outcome, bool translate = true);
// Parses a filter word (case-insensitive); false when it is none of the four.
bool outcomeFromWord(const QString &word, Outcome *outcome);

// "none", "offline", ... ; "unknown" for a code of 6 or more.
QString reasonWord(quint8 reason);
// The explanation; empty for ReasonNone, "unknown" for codes without one.
QString reasonText(quint8 reason, bool translate = true);

// "WSAENOBUFS (10055)"; "none" for 0; "error 12345" for codes not in the table.
QString errorName(qint32 error, bool translate = true);
// What the error usually means on an Art-Net network; empty when we have no advice.
QString errorMeaning(qint32 error, bool translate = true);

QString directionWord(Direction direction); // "in", "out"
QString sourceWord(RecordSource source);    // "mox", "capture"

} // namespace PacketLog
