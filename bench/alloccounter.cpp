#include "alloccounter.h"

#include <atomic>
#include <cstddef>
#include <cstdlib> // brings in glibc's feature macros

#ifdef __GLIBC__
#include <malloc.h>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *pointer, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
void __libc_free(void *pointer);
}

namespace {

std::atomic<long long> g_allocations{0};
std::atomic<long long> g_live{0};
std::atomic<long long> g_peak{0};

void track(void *p)
{
    if (!p)
        return;
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    const long long live = g_live.fetch_add(static_cast<long long>(malloc_usable_size(p))) +
                           static_cast<long long>(malloc_usable_size(p));
    long long peak = g_peak.load(std::memory_order_relaxed);
    while (live > peak && !g_peak.compare_exchange_weak(peak, live)) {
    }
}

void untrack(void *p)
{
    if (p)
        g_live.fetch_sub(static_cast<long long>(malloc_usable_size(p)));
}

} // namespace

extern "C" {

void *malloc(size_t size) noexcept
{
    void *p = __libc_malloc(size);
    track(p);
    return p;
}

void *calloc(size_t count, size_t size) noexcept
{
    void *p = __libc_calloc(count, size);
    track(p);
    return p;
}

void *realloc(void *pointer, size_t size) noexcept
{
    untrack(pointer);
    void *p = __libc_realloc(pointer, size);
    if (!p && size != 0 && pointer) {
        // Failed: the old block is still there.
        g_live.fetch_add(static_cast<long long>(malloc_usable_size(pointer)));
        return nullptr;
    }
    track(p);
    return p;
}

void *memalign(size_t alignment, size_t size) noexcept
{
    void *p = __libc_memalign(alignment, size);
    track(p);
    return p;
}

void *aligned_alloc(size_t alignment, size_t size) noexcept
{
    return memalign(alignment, size);
}

int posix_memalign(void **out, size_t alignment, size_t size) noexcept
{
    void *p = memalign(alignment, size);
    if (!p)
        return 12; // ENOMEM
    *out = p;
    return 0;
}

void free(void *pointer) noexcept
{
    untrack(pointer);
    __libc_free(pointer);
}

} // extern "C"

bool AllocCounter::available() { return true; }
long long AllocCounter::allocations() { return g_allocations.load(); }
long long AllocCounter::liveBytes() { return g_live.load(); }
long long AllocCounter::peakBytes() { return g_peak.load(); }
void AllocCounter::resetPeak() { g_peak.store(g_live.load()); }

#else

bool AllocCounter::available() { return false; }
long long AllocCounter::allocations() { return 0; }
long long AllocCounter::liveBytes() { return 0; }
long long AllocCounter::peakBytes() { return 0; }
void AllocCounter::resetPeak() {}

#endif
