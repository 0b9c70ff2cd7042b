#pragma once

#include "patch/patchdata.h"

#include <QString>
#include <QVector>

// Hand-made patches for the panel tests: groups of torvoverses, each with one
// fixture of RGB pixels, so names, addresses and channel ranges are chosen
// row by row.
namespace PanelPatch {

struct TorvoverseRow
{
    QString name;
    int universe = 0;
    int subNet = 0;
    int net = 0;
    int pixels = 1;
    int firstAddress = 0; // zero-based start channel of the first pixel; pixels follow three channels apart
    QVector<qint32> targetIp{10, 0, 0, 1};
};

inline TPatch::Torvoverse torvoverse(const TorvoverseRow &row)
{
    TPatch::Torvoverse tv;
    tv.torvoverseName = row.name;
    tv.universe = quint16(row.universe);
    tv.subNet = quint8(row.subNet);
    tv.Net = quint8(row.net);
    tv.targetIP = row.targetIp;
    TPatch::PatchFixture fixture;
    for (int i = 0; i < row.pixels; ++i) {
        TPatch::LedRecord led;
        led.address = quint16(row.firstAddress + 3 * i);
        led.roles = {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue};
        fixture.leds.append(led);
    }
    tv.fixtures.append(fixture);
    return tv;
}

inline TPatch::PatchGroup group(const QString &name, const QVector<TorvoverseRow> &torvoverses)
{
    TPatch::PatchGroup g;
    g.groupName = name;
    for (const TorvoverseRow &row : torvoverses)
        g.torvoverses.append(torvoverse(row));
    return g;
}

} // namespace PanelPatch
