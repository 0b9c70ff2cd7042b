#include "patch/patchdata.h"

namespace TPatch {

PatchCounts countPatch(const PatchData &patch)
{
    PatchCounts counts;
    counts.groups = patch.groups.size();
    for (const PatchGroup &group : patch.groups) {
        counts.torvoverses += group.torvoverses.size();
        for (const Torvoverse &torvoverse : group.torvoverses) {
            counts.fixtures += torvoverse.fixtures.size();
            for (const PatchFixture &fixture : torvoverse.fixtures) {
                counts.pixels += fixture.leds.size();
                counts.kinetics += fixture.kinetics.size();
            }
        }
    }
    return counts;
}

} // namespace TPatch
