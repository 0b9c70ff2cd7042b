#include "patchpromises.h"

#include <cstdint>

// A file named .tpatch through the sniffing entry point: its content alone
// decides whether the native, MADRIX or ELM reader takes it.
int fuzzTPatch(const std::uint8_t *data, std::size_t size)
{
    return fuzzPatchBytes("tpatch", "fuzz.tpatch", data, size);
}
