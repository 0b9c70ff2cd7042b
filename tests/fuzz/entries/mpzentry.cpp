#include "patchpromises.h"

#include <cstdint>

// A file named .mpz: always the MADRIX reader, plain XML or gzip.
int fuzzMpz(const std::uint8_t *data, std::size_t size)
{
    return fuzzPatchBytes("mpz", "fuzz.mpz", data, size);
}
