#pragma once

// Counts the process's heap allocations by standing in for malloc and friends
// (glibc only): Qt's containers allocate through malloc, not operator new, so
// counting new alone would miss a detaching list. Link into a benchmark binary.
namespace AllocCounter {

bool available();
long long allocations(); // calls to malloc, calloc, realloc and the aligned forms so far
long long liveBytes();   // usable bytes currently allocated
long long peakBytes();   // largest liveBytes since the last resetPeak()
void resetPeak();

} // namespace AllocCounter
