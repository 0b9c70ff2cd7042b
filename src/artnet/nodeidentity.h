#pragma once

#include <QString>

#include <array>

// How this node introduces itself in its ArtPollReply.
struct NodeIdentity
{
    QString shortName = QStringLiteral("TorvaneTester");
    QString longName = QStringLiteral("Torvane Art-Net Tester");
    quint16 estaCode = 0x7476;
    quint16 oemCode = 0x0000;
    // Net and Sub-Net go into a reply page that has no universe of its own.
    quint8 net = 0;
    quint8 subNet = 0;
    // A locally administered address: the node is not a hardware device.
    std::array<quint8, 6> mac{{0x02, 0x54, 0x56, 0x00, 0x00, 0x01}};
};
