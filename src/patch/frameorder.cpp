#include "patch/frameorder.h"

#include "patch/patchkeys.h"

namespace TPatch {

int FrameOrder::groupRecordCount(int group) const
{
    if (group < 0 || group + 1 >= groupStart.size())
        return 0;
    return groupStart.at(group + 1) - groupStart.at(group);
}

QVector<quint16> FrameOrder::universes() const
{
    QVector<quint16> out;
    out.reserve(entries.size());
    for (const FrameSlot &s : entries)
        out.append(s.portAddress);
    return out;
}

QVector<quint16> FrameOrder::groupUniverses(int group) const
{
    QVector<quint16> out;
    const int count = groupRecordCount(group);
    out.reserve(count);
    for (int i = 0; i < count; ++i)
        out.append(entries.at(groupStart.at(group) + i).portAddress);
    return out;
}

FrameOrder expectedFrameOrder(const PatchData &patch)
{
    FrameOrder order;
    order.groupStart.reserve(patch.groups.size() + 1);
    for (int g = 0; g < patch.groups.size(); ++g) {
        order.groupStart.append(int(order.entries.size()));
        const auto &torvoverses = patch.groups.at(g).torvoverses;
        for (int t = 0; t < torvoverses.size(); ++t)
            order.entries.append(FrameSlot{portAddress(torvoverses.at(t)), g, t});
    }
    order.groupStart.append(int(order.entries.size()));
    return order;
}

} // namespace TPatch
