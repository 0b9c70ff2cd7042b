#pragma once

#include <cstddef>
#include <cstdint>

// One entry per parser of untrusted bytes. The libFuzzer binaries
// (TALU_BUILD_FUZZ) and the regression test of the normal suite call the
// same entries, so every input that ever crashed is replayed exactly as it
// was found. An entry returns 0; a broken promise of the parser aborts.
struct FuzzTarget
{
    const char *name;
    int (*run)(const std::uint8_t *data, std::size_t size);
};

// Every target, in a fixed order.
const FuzzTarget *fuzzTargets(std::size_t *count);
// The target of that name, or nullptr.
const FuzzTarget *findFuzzTarget(const char *name);

// Makes the QCoreApplication that timers and events need, once, when the
// process has none (the libFuzzer binaries; the regression test has its own).
void ensureFuzzApplication();

// Aborts with a message when a parser breaks one of its own promises.
[[noreturn]] void fuzzPromiseBroken(const char *target, const char *what);
#define FUZZ_PROMISE(target, condition)                                                                      \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            fuzzPromiseBroken(target, #condition);                                                           \
    } while (false)
