#include "packetlog/filterhelp.h"

#include <QCoreApplication>

namespace PacketLog {

namespace {

QString tr(const char *source, bool translate)
{
    if (!source)
        return {};
    return translate ? QCoreApplication::translate("PacketLog", source) : QString::fromUtf8(source);
}

} // namespace

QVector<FilterHelpExample> filterHelpExamples(bool translate)
{
    static const struct { const char *example; const char *note; } kExamples[] = {
        {"ip.src == 192.168.1.50", nullptr},
        {"ip.dst == 192.168.1.50", nullptr},
        {"ip.addr == 192.168.1.50", QT_TRANSLATE_NOOP("PacketLog", "source or destination")},
        {"udp.port == 6454", nullptr},
        {"udp.srcport == 6454", nullptr},
        {"udp.dstport == 6454", nullptr},
        {"frame.len > 100", nullptr},
        {"artnet.opcode == artdmx", "artpoll, artpollreply, kel, 0x5000"},
        {"artnet.universe == 0", nullptr},
        {"talu.outcome == failed", "ok, failed, notsent, partial"},
        {"talu.reason == offline", "transferclosed, testmode, nosocket, invalidtarget"},
        {"talu.error == 10055", nullptr},
        {"talu.dir == in", nullptr},
        {"talu.source == talu", "capture"},
    };
    QVector<FilterHelpExample> out;
    for (const auto &e : kExamples) {
        // Value lists are filter words, the same in every language; only prose is translated.
        const bool prose = e.note && QByteArrayView(e.note) == QByteArrayView("source or destination");
        out.append({QString::fromLatin1(e.example), prose ? tr(e.note, translate) : QString::fromLatin1(e.note)});
    }
    return out;
}

QStringList filterHelpLines(bool translate)
{
    return {
        tr(QT_TRANSLATE_NOOP("PacketLog", "Connectives:  &&  and   ||  or   !  not   ( )"), translate),
        tr(QT_TRANSLATE_NOOP("PacketLog", "Operators:    ==  !=  >  <  >=  <=  contains"), translate),
        tr(QT_TRANSLATE_NOOP("PacketLog", "A word typed without a field name is searched in the Info column."), translate),
        tr(QT_TRANSLATE_NOOP("PacketLog", "Torvane MOX's mox.* field names work as well."), translate),
    };
}

} // namespace PacketLog
