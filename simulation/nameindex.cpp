#include "nameindex.h"

#include <QHash>

namespace Simulation {

void NameIndex::reserve(int count)
{
    size_t capacity = 16;
    while (capacity < size_t(count) * 2)
        capacity *= 2;
    if (capacity > m_slots.size())
        rehash(capacity);
}

bool NameIndex::insert(const QString& name, int value)
{
    // A negative value marks an empty slot.
    if (value < 0)
        return false;
    if (size_t(m_count + 1) * 2 > m_slots.size())
        rehash(m_slots.empty() ? 16 : m_slots.size() * 2);
    const uint hash = qHash(QStringView(name));
    Slot& slot = m_slots[find(QStringView(name), hash)];
    if (slot.value >= 0)
        return false;
    slot.name = name;
    slot.hash = hash;
    slot.value = value;
    ++m_count;
    return true;
}

int NameIndex::value(QStringView name, int fallback) const
{
    if (m_slots.empty())
        return fallback;
    const Slot& slot = m_slots[find(name, qHash(name))];
    return slot.value >= 0 ? slot.value : fallback;
}

size_t NameIndex::home(uint hash) const
{
    // qHash of names that differ only in their last digits differs only in a
    // few bits, and in a pattern: masking its low bits would pile them up in
    // runs. Multiplying by 2^64 / phi and taking the high bits spreads them.
    return size_t((quint64(hash) * 0x9E3779B97F4A7C15ULL) >> m_shift);
}

size_t NameIndex::find(QStringView name, uint hash) const
{
    const size_t mask = m_slots.size() - 1;
    for (size_t i = home(hash);; i = (i + 1) & mask) {
        const Slot& slot = m_slots[i];
        if (slot.value < 0 || (slot.hash == hash && QStringView(slot.name) == name))
            return i;
    }
}

void NameIndex::rehash(size_t capacity)
{
    std::vector<Slot> old;
    old.swap(m_slots);
    m_slots.resize(capacity);
    m_shift = 64;
    for (size_t c = capacity; c > 1; c /= 2)
        --m_shift;
    const size_t mask = capacity - 1;
    for (Slot& slot : old) {
        if (slot.value < 0)
            continue;
        size_t i = home(slot.hash);
        while (m_slots[i].value >= 0)
            i = (i + 1) & mask;
        m_slots[i] = std::move(slot);
    }
}

} // namespace Simulation
