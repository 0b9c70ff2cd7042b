#include "patchpromises.h"

#include <cstdint>

// A file named .elm: always the ELM reader.
int fuzzElm(const std::uint8_t *data, std::size_t size)
{
    return fuzzPatchBytes("elm", "fuzz.elm", data, size);
}
