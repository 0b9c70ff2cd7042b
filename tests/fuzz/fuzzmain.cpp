// libFuzzer driver for one target, chosen at build time (TALU_FUZZ_TARGET).
#include "fuzzentries.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const FuzzTarget *target = [] {
        const FuzzTarget *t = findFuzzTarget(TALU_FUZZ_TARGET);
        if (!t) {
            std::fprintf(stderr, "unknown fuzz target %s\n", TALU_FUZZ_TARGET);
            std::abort();
        }
        return t;
    }();
    return target->run(data, size);
}
