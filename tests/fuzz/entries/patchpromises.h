#pragma once

#include "patch/patchloadresult.h"

#include <cstddef>

// What every patch reader promises about its result, checked for one target:
// a failure carries its error and no patch, a success no error and at least
// one group; every key derived from the patch can be computed.
void checkPatchPromises(const char *target, const TPatch::PatchLoadResult &result);

// Loads the bytes through the sniffing entry point as a file of that name and checks the result.
int fuzzPatchBytes(const char *target, const char *fileName, const unsigned char *data, std::size_t size);
