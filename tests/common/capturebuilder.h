#pragma once

// Capture files built byte by byte, as other tools write them: pcap headers,
// link-layer frames, IPv4 and UDP. Checksums are left zero; readers do not check them.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>

namespace TestCapture {

inline QByteArray be16(quint16 v)
{
    const char b[2] = {char(v >> 8), char(v)};
    return QByteArray(b, 2);
}
inline QByteArray le32(quint32 v)
{
    const char b[4] = {char(v), char(v >> 8), char(v >> 16), char(v >> 24)};
    return QByteArray(b, 4);
}
inline QByteArray be32(quint32 v) { return be16(quint16(v >> 16)) + be16(quint16(v)); }

// IPv4 (no options, checksum left zero: readers do not check it) + UDP + payload.
inline QByteArray ipUdp(const QByteArray &payload, quint8 protocol = 17, quint16 fragment = 0,
                        quint16 destinationPort = 6455)
{
    return QByteArray("\x45\x00", 2) + be16(quint16(28 + payload.size())) // version/IHL, TOS, total length
         + QByteArray("\x00\x01", 2) + be16(fragment)                     // id, flags/fragment offset
         + QByteArray("\x40", 1) + QByteArray(1, char(protocol)) + QByteArray(2, '\0') // TTL, protocol, checksum
         + be32(0xC0000202) + be32(0xC0000201)                           // 192.0.2.2 -> 192.0.2.1
         + be16(6454) + be16(destinationPort) + be16(quint16(8 + payload.size())) + QByteArray(2, '\0') // UDP
         + payload;
}

inline QByteArray ethernet(const QByteArray &ip, bool vlan = false)
{
    QByteArray frame = QByteArray(6, char(0xFF)) + QByteArray("\x02\x00\xC0\x00\x02\x02", 6);
    if (vlan)
        frame += QByteArray("\x81\x00\x00\x05", 4); // 802.1Q tag, VLAN 5
    return frame + QByteArray("\x08\x00", 2) + ip;
}

// A little-endian microsecond pcap with one link type and the given frames, one second apart.
inline QByteArray pcap(quint32 linkType, const QList<QByteArray> &frames)
{
    QByteArray file = le32(0xA1B2C3D4) + QByteArray("\x02\x00\x04\x00", 4) + QByteArray(8, '\0') + le32(65535)
                    + le32(linkType);
    quint32 second = 1767225600;
    for (const QByteArray &f : frames)
        file += le32(second++) + le32(250) + le32(quint32(f.size())) + le32(quint32(f.size())) + f;
    return file;
}

// A stand-in for the capture helper in `folder`: a shell script running
// `script`, in which $PCAP names a file holding `capture`. Returns its path
// (set TALU_CAPTURE_HELPER to it).
inline QString standInHelper(const QString &folder, const QByteArray &capture, const QString &script)
{
    const QString data = QDir(folder).filePath(QStringLiteral("stand-in.pcap"));
    const QString helper = QDir(folder).filePath(QStringLiteral("talu-capture"));
    QFile file(data);
    if (!file.open(QIODevice::WriteOnly) || file.write(capture) != capture.size())
        return {};
    file.close();
    QFile sh(helper);
    if (!sh.open(QIODevice::WriteOnly))
        return {};
    sh.write(QStringLiteral("#!/bin/sh\nPCAP='%1'\n%2\n").arg(data, script).toUtf8());
    sh.close();
    sh.setPermissions(sh.permissions() | QFileDevice::ExeOwner);
    return helper;
}

} // namespace TestCapture
