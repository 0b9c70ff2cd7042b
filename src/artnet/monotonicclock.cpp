#include "artnet/monotonicclock.h"

#include <chrono>

qint64 SteadyClock::nowNs() const
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}
