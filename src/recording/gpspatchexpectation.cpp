#include "recording/gpspatchexpectation.h"

#include "patch/frameorder.h"
#include "patch/pixellayout.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace {

void sortUnique(QVector<quint16> *values)
{
    std::sort(values->begin(), values->end());
    values->erase(std::unique(values->begin(), values->end()), values->end());
}

} // namespace

bool GpsGroupExpectation::slotAccepts(int slot, quint16 universe) const
{
    if (slot < 0 || slot >= portAddresses.size())
        return false;
    return universe == portAddresses.at(slot) || universe == recordUniverses.at(slot);
}

quint16 GpsGroupExpectation::toPortAddress(quint16 universe) const
{
    if (portAddresses.contains(universe))
        return universe;
    const qsizetype slot = recordUniverses.indexOf(universe);
    return slot >= 0 ? portAddresses.at(slot) : universe;
}

QString GpsPatchExpectation::groupCaption(const TPatch::PatchGroup &group, int index)
{
    if (!group.groupName.isEmpty())
        return group.groupName;
    return QCoreApplication::translate("TPatch", "Group %1").arg(index + 1);
}

GpsPatchExpectation GpsPatchExpectation::fromPatch(const TPatch::PatchData &patch)
{
    GpsPatchExpectation out;
    const TPatch::FrameOrder order = TPatch::expectedFrameOrder(patch);
    out.universes = order.universes();
    out.torvoverseCount = order.recordsPerFrame();
    sortUnique(&out.universes);

    for (int g = 0; g < patch.groups.size(); ++g) {
        GpsGroupExpectation group;
        group.name = groupCaption(patch.groups.at(g), g);
        group.portAddresses = order.groupUniverses(g);
        for (const TPatch::Torvoverse &t : patch.groups.at(g).torvoverses)
            group.recordUniverses.append(quint16((quint32(t.subNet) << 8) | t.universe));
        out.groups.append(group);
    }

    const TPatch::PixelLayout layout = TPatch::buildPixelLayout(patch);
    std::vector<bool> drawable(65536, false); // Port-Addresses are 16-bit
    for (const TPatch::LayoutPixel &p : layout.pixels) {
        if (p.isKinetic)
            continue;
        drawable[p.portAddress] = true;
        if (p.groupIndex >= 0 && p.groupIndex < out.groups.size())
            out.groups[p.groupIndex].hasDrawablePixels = true;
    }
    for (int u = 0; u < 65536; ++u)
        if (drawable[size_t(u)])
            out.drawableUniverses.append(quint16(u));
    return out;
}
