#pragma once

#include "packetlog/packetrecord.h"

#include <atomic>
#include <memory>

namespace PacketLog {

// A bounded single-producer, single-consumer queue of records between the
// journal (producer, GUI thread) and its spool thread (consumer). push()
// never waits: when the queue is full the record is refused, and the journal
// counts it as not spooled. Capacity is a power of two.
class SpoolQueue
{
public:
    explicit SpoolQueue(int capacity)
        : m_capacity(quint64(capacity)), m_mask(quint64(capacity) - 1), m_slots(new PacketRecord[size_t(capacity)]) {}

    // Producer thread only.
    bool push(const PacketRecord &record)
    {
        const quint64 head = m_head.load(std::memory_order_relaxed);
        if (head - m_tail.load(std::memory_order_acquire) >= m_capacity)
            return false;
        m_slots[head & m_mask] = record;
        m_head.store(head + 1, std::memory_order_release);
        return true;
    }

    // Consumer thread only: copies up to max records out, oldest first.
    int pop(PacketRecord *out, int max)
    {
        const quint64 tail = m_tail.load(std::memory_order_relaxed);
        const quint64 available = m_head.load(std::memory_order_acquire) - tail;
        const int n = int(std::min<quint64>(available, quint64(max)));
        for (int i = 0; i < n; ++i)
            out[i] = m_slots[(tail + quint64(i)) & m_mask];
        m_tail.store(tail + quint64(n), std::memory_order_release);
        return n;
    }

    bool isEmpty() const { return m_head.load(std::memory_order_acquire) == m_tail.load(std::memory_order_acquire); }

private:
    const quint64 m_capacity;
    const quint64 m_mask;
    std::unique_ptr<PacketRecord[]> m_slots;
    alignas(64) std::atomic<quint64> m_head{0};
    alignas(64) std::atomic<quint64> m_tail{0};
};

} // namespace PacketLog
