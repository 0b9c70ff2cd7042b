#pragma once

#include "patch/patchdata.h"

#include <QRectF>
#include <QString>

#include <algorithm>

// A large installation for the benchmarks that fill panels or run the window:
// `universes` RGB matrices spread over `groups` groups, `pixels` pixels in all,
// evenly. Past 170 pixels a universe's channels are used again, as mirrored
// strips driven from one universe do.
inline TPatch::PatchData makeLargePatch(int groups, int universes, int pixels)
{
    using namespace TPatch;
    PatchData patch;
    patch.projectName = QStringLiteral("Stadium bowl");
    patch.formatLabel = QStringLiteral("TPatch");
    for (int g = 0; g < groups; ++g) {
        PatchGroup group;
        group.groupName = QStringLiteral("Section %1").arg(g + 1);
        patch.groups.append(group);
    }
    int placed = 0;
    for (int u = 0; u < universes; ++u) {
        Torvoverse t;
        t.torvoverseName = QStringLiteral("Uni %1").arg(u);
        t.universe = quint16(u & 0xF);
        t.subNet = quint8((u >> 4) & 0xF);
        t.Net = quint8(u >> 8);
        t.targetIP = {10, 0, qint32(u / 256), qint32(u % 256)};
        PatchFixture f;
        const int count = (pixels - placed) / (universes - u);
        for (int i = 0; i < count; ++i) {
            LedRecord r;
            r.posX = quint16(i % 17);
            r.posY = quint16(i / 17);
            r.address = quint16((3 * i) % 510);
            r.roles = {RoleRed, RoleGreen, RoleBlue};
            f.leds.append(r);
        }
        placed += count;
        f.hasLayout = true;
        f.countX = 17;
        f.countY = quint16((count + 16) / 17);
        f.scenePosX = (u % 64) * 180.0;
        f.scenePosY = (u / 64) * 110.0;
        f.rect = QRectF(0, 0, 170, 10.0 * f.countY);
        t.fixtures.append(f);
        patch.groups[u * groups / universes].torvoverses.append(t);
    }
    return patch;
}
