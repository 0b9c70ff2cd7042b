#include "packetlog/textexport.h"

#include <QDateTime>

namespace PacketLog {

namespace {

QString hex4(quint16 v) { return QStringLiteral("0x") + QStringLiteral("%1").arg(v, 4, 16, QLatin1Char('0')).toUpper(); }

QDateTime utcOf(qint64 timeNs)
{
    // Floor division so times before 1970 still split into a second and a positive fraction.
    const qint64 ms = timeNs >= 0 ? timeNs / 1000000 : -((-timeNs + 999999) / 1000000);
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
}

QString microseconds(qint64 timeNs)
{
    const qint64 us = ((timeNs % 1000000000) + 1000000000) % 1000000000 / 1000;
    return QStringLiteral("%1").arg(us, 6, 10, QLatin1Char('0'));
}

QString csvField(const QString &text)
{
    if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) && !text.contains(QLatin1Char('\n')))
        return text;
    QString quoted = text;
    quoted.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

} // namespace

QString formatRecordTime(qint64 timeNs)
{
    return utcOf(timeNs).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.")) + microseconds(timeNs);
}

QString recordLine(const PacketRecord &r)
{
    return QStringLiteral("%1  %2  %3 -> %4  %5  %6")
        .arg(formatRecordTime(r.timeNs), directionWord(r.direction).leftJustified(3),
             QStringLiteral("%1:%2").arg(ipv4Text(r.srcIp)).arg(r.srcPort),
             QStringLiteral("%1:%2").arg(ipv4Text(r.dstIp)).arg(r.dstPort))
        .arg(r.length, 5)
        .arg(r.info());
}

QByteArray exportText(const std::vector<PacketRecord> &records)
{
    QByteArray out;
    for (const PacketRecord &r : records) {
        out += recordLine(r).toUtf8();
        out += '\n';
    }
    return out;
}

QByteArray exportCsv(const std::vector<PacketRecord> &records)
{
    QByteArray out("time,direction,source,source port,destination,destination port,length,opcode,universe,"
                   "sequence,outcome,reason,error,origin,info\n");
    for (const PacketRecord &r : records) {
        const QString time = utcOf(r.timeNs).toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.")) + microseconds(r.timeNs)
                           + QLatin1Char('Z');
        const QStringList fields{
            time,
            directionWord(r.direction),
            ipv4Text(r.srcIp),
            QString::number(r.srcPort),
            ipv4Text(r.dstIp),
            QString::number(r.dstPort),
            QString::number(r.length),
            r.isArtNet() ? hex4(r.opcode) : QString(),
            r.isDmx() ? hex4(r.portAddress) : QString(),
            r.isDmx() ? QString::number(r.sequence) : QString(),
            outcomeWord(r.outcome),
            reasonWord(r.reason),
            QString::number(r.error),
            sourceWord(r.source),
            csvField(r.info()),
        };
        out += fields.join(QLatin1Char(',')).toUtf8();
        out += '\n';
    }
    return out;
}

} // namespace PacketLog
