#pragma once

#include <QtGlobal>

// A monotonic nanosecond clock. The node reads time only through this, so
// tests can step time to check the rate window and the "ms since" figures.
class MonotonicClock
{
public:
    virtual ~MonotonicClock() = default;
    virtual qint64 nowNs() const = 0;
};

// The system's monotonic clock.
class SteadyClock final : public MonotonicClock
{
public:
    qint64 nowNs() const override;
};
