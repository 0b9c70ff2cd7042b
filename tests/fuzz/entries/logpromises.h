#pragma once

#include "packetlog/logloadresult.h"

#include <cstddef>

// What every packet log reader promises about its result, checked for one
// target: ok exactly when there is no error, and every record is one our own
// .tlog holds unchanged (kept bytes within the record and the datagram, codes
// in range). Each record's Info text is built, as the packet list would.
void checkLogPromises(const char *target, const PacketLog::LogLoadResult &result, std::size_t inputSize);
