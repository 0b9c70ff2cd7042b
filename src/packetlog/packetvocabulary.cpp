#include "packetlog/packetvocabulary.h"

#include <QCoreApplication>

namespace PacketLog {

namespace {

constexpr char kContext[] = "PacketLog";

QString tr(const char *source, bool translate)
{
    if (!source || !*source)
        return {};
    return translate ? QCoreApplication::translate(kContext, source) : QString::fromUtf8(source);
}

const char *const kOutcomeWords[kOutcomeCount] = {"ok", "failed", "notsent", "partial"};
const char *const kOutcomeLabels[kOutcomeCount] = {
    nullptr,
    QT_TRANSLATE_NOOP("PacketLog", "SEND FAILED"),
    QT_TRANSLATE_NOOP("PacketLog", "NOT SENT"),
    QT_TRANSLATE_NOOP("PacketLog", "PARTIAL WRITE"),
};

const char *const kReasonWords[kReasonCount] = {"none",     "offline",  "transferclosed",
                                                "testmode", "nosocket", "invalidtarget"};
const char *const kReasonTexts[kReasonCount] = {
    nullptr,
    QT_TRANSLATE_NOOP("PacketLog", "device offline (no ArtPollReply within the liveness window)"),
    QT_TRANSLATE_NOOP("PacketLog", "output is closed (udpTransferOpen = false)"),
    QT_TRANSLATE_NOOP("PacketLog", "Device Manager test broadcast is active"),
    QT_TRANSLATE_NOOP("PacketLog", "socket unavailable (adapter is being switched)"),
    QT_TRANSLATE_NOOP("PacketLog", "target address could not be resolved"),
};

struct SocketError
{
    qint32 code;
    const char *name; // fixed, never translated
    const char *meaning;
};

const SocketError kSocketErrors[] = {
    {10013, "WSAEACCES (10013)",
     QT_TRANSLATE_NOOP("PacketLog", "Access denied. A broadcast address was used on a socket that does not have "
                                    "SO_BROADCAST enabled.")},
    {10040, "WSAEMSGSIZE (10040)",
     QT_TRANSLATE_NOOP("PacketLog", "The datagram is larger than the maximum the transport supports. Check the "
                                    "channel count and the interface MTU.")},
    {10047, "WSAEAFNOSUPPORT (10047)", nullptr},
    {10049, "WSAEADDRNOTAVAIL (10049)",
     QT_TRANSLATE_NOOP("PacketLog", "The requested address is not valid in this context. The adapter may have lost "
                                    "its IP address.")},
    {10050, "WSAENETDOWN (10050)",
     QT_TRANSLATE_NOOP("PacketLog", "The network is down. The adapter is disconnected or disabled.")},
    {10051, "WSAENETUNREACH (10051)",
     QT_TRANSLATE_NOOP("PacketLog", "The network is unreachable. There is no route from the selected adapter to "
                                    "this destination.")},
    {10054, "WSAECONNRESET (10054)",
     QT_TRANSLATE_NOOP("PacketLog", "The remote host reset the connection. An earlier packet triggered an ICMP "
                                    "port-unreachable reply, which means nothing is listening on the destination "
                                    "port.")},
    {10055, "WSAENOBUFS (10055)",
     QT_TRANSLATE_NOOP("PacketLog", "No buffer space available. The send queue is full: the interface cannot drain "
                                    "packets as fast as they are being produced, or the destination MAC has not been "
                                    "resolved and datagrams are piling up waiting for ARP. Lowering the frame rate or "
                                    "checking the link usually resolves it.")},
    {10060, "WSAETIMEDOUT (10060)", nullptr},
    {10064, "WSAEHOSTDOWN (10064)", QT_TRANSLATE_NOOP("PacketLog", "The destination host is down.")},
    {10065, "WSAEHOSTUNREACH (10065)",
     QT_TRANSLATE_NOOP("PacketLog", "No route to host. ARP could not resolve the destination MAC address, so the "
                                    "frame was never built. This is the usual cause when nothing appears on the wire "
                                    "at all.")},
};

const SocketError *findError(qint32 code)
{
    for (const SocketError &e : kSocketErrors) {
        if (e.code == code)
            return &e;
    }
    return nullptr;
}

} // namespace

QString outcomeWord(Outcome outcome)
{
    const int i = int(outcome);
    return i < kOutcomeCount ? QString::fromLatin1(kOutcomeWords[i]) : QStringLiteral("unknown");
}

QString outcomeLabel(Outcome outcome, bool translate)
{
    const int i = int(outcome);
    if (i >= kOutcomeCount)
        return tr(QT_TRANSLATE_NOOP("PacketLog", "unknown"), translate);
    return tr(kOutcomeLabels[i], translate);
}

bool outcomeFromWord(const QString &word, Outcome *outcome)
{
    for (int i = 0; i < kOutcomeCount; ++i) {
        if (word.compare(QLatin1StringView(kOutcomeWords[i]), Qt::CaseInsensitive) == 0) {
            *outcome = Outcome(i);
            return true;
        }
    }
    return false;
}

QString reasonWord(quint8 reason)
{
    return reason < kReasonCount ? QString::fromLatin1(kReasonWords[reason]) : QStringLiteral("unknown");
}

QString reasonText(quint8 reason, bool translate)
{
    if (reason >= kReasonCount)
        return tr(QT_TRANSLATE_NOOP("PacketLog", "unknown"), translate);
    return tr(kReasonTexts[reason], translate);
}

QString errorName(qint32 error, bool translate)
{
    if (error == 0)
        return tr(QT_TRANSLATE_NOOP("PacketLog", "none"), translate);
    if (const SocketError *e = findError(error))
        return QString::fromLatin1(e->name);
    return tr(QT_TRANSLATE_NOOP("PacketLog", "error %1"), translate).arg(error);
}

QString errorMeaning(qint32 error, bool translate)
{
    const SocketError *e = findError(error);
    return e ? tr(e->meaning, translate) : QString();
}

QString directionWord(Direction direction)
{
    return direction == Direction::Out ? QStringLiteral("out") : QStringLiteral("in");
}

QString sourceWord(RecordSource source)
{
    return source == RecordSource::Capture ? QStringLiteral("capture") : QStringLiteral("mox");
}

} // namespace PacketLog
