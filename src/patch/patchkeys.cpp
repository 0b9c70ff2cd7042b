#include "patch/patchkeys.h"

#include <QCoreApplication>

namespace TPatch {

quint16 portAddress(const Torvoverse &t)
{
    return quint16((quint16(t.Net) << 8) | (quint16(t.subNet) << 4) | (t.universe & 0xF));
}

quint64 deviceKey(const Torvoverse &t)
{
    quint64 ip = 0;
    if (t.targetIP.size() >= 4) {
        for (int i = 0; i < 4; ++i)
            ip = (ip << 8) | (quint32(t.targetIP.at(i)) & 0xFF);
    }
    const quint32 low = (quint32(t.Net) << 16) | (quint32(t.subNet) << 8) | quint32(t.universe);
    return (ip << 32) | low;
}

KineticChannel kineticChannel(const LedRecord &record)
{
    KineticChannel result;
    int offset = 0;
    for (const KineticStructure &s : record.structures) {
        if (s.channel == 0)
            continue;
        if (s.role == kKineticPositionRole) {
            result.hasChannel = true;
            result.channel = quint16(record.address + offset);
            result.is16Bit = s.is16Bit;
            break;
        }
        offset += s.is16Bit ? 2 : 1;
    }
    return result;
}

QString deviceName(qint32 device)
{
    static const char *const kNames[] = {"ARTNET", "KEL6S", "KEL8", "MIRRA", "TOVA", "BRENO", "CALDO", "RUSKA"};
    if (device >= 0 && device < qint32(std::size(kNames)))
        return QString::fromLatin1(kNames[device]);
    return QCoreApplication::translate("TPatch", "Device #%1").arg(device);
}

} // namespace TPatch

QString TPatch::targetIpText(const Torvoverse &torvoverse)
{
    const QVector<qint32> &ip = torvoverse.targetIP;
    if (ip.size() < 4)
        return QStringLiteral("0.0.0.0");
    return QStringLiteral("%1.%2.%3.%4").arg(ip[0]).arg(ip[1]).arg(ip[2]).arg(ip[3]);
}
