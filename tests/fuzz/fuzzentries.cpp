#include "fuzzentries.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

int fuzzTPatch(const std::uint8_t *data, std::size_t size);

namespace {

const FuzzTarget kTargets[] = {
    {"tpatch", fuzzTPatch},
};

} // namespace

const FuzzTarget *fuzzTargets(std::size_t *count)
{
    *count = sizeof(kTargets) / sizeof(kTargets[0]);
    return kTargets;
}

const FuzzTarget *findFuzzTarget(const char *name)
{
    for (const FuzzTarget &t : kTargets) {
        if (std::strcmp(t.name, name) == 0)
            return &t;
    }
    return nullptr;
}

void fuzzPromiseBroken(const char *target, const char *what)
{
    std::fprintf(stderr, "fuzz target %s: promise broken: %s\n", target, what);
    std::abort();
}
