#pragma once

#include "patch/patchdata.h"

#include <QString>
#include <QVector>

// Hand-made patches for the panel tests: groups of torvoverses, each with one
// fixture of RGB pixels, so names, addresses and channel ranges are chosen
// row by row.
namespace PanelPatch {

struct TorvoSpec
{
    QString name;
    int universe = 0;
    int subNet = 0;
    int net = 0;
    int pixels = 1;
    int firstAddress = 0; // zero-based start channel of the first pixel; pixels follow three channels apart
    QVector<qint32> targetIp{10, 0, 0, 1};
};

inline TPatch::Torvoverse torvoverse(const TorvoSpec &spec)
{
    TPatch::Torvoverse tv;
    tv.torvoverseName = spec.name;
    tv.universe = quint16(spec.universe);
    tv.subNet = quint8(spec.subNet);
    tv.Net = quint8(spec.net);
    tv.targetIP = spec.targetIp;
    TPatch::PatchFixture fixture;
    for (int i = 0; i < spec.pixels; ++i) {
        TPatch::LedRecord led;
        led.address = quint16(spec.firstAddress + 3 * i);
        led.roles = {TPatch::RoleRed, TPatch::RoleGreen, TPatch::RoleBlue};
        fixture.leds.append(led);
    }
    tv.fixtures.append(fixture);
    return tv;
}

inline TPatch::PatchGroup group(const QString &name, const QVector<TorvoSpec> &torvoverses)
{
    TPatch::PatchGroup g;
    g.groupName = name;
    for (const TorvoSpec &spec : torvoverses)
        g.torvoverses.append(torvoverse(spec));
    return g;
}

} // namespace PanelPatch
