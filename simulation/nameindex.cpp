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

size_t NameIndex::find(QStringView name, uint hash) const
{
    const size_t mask = m_slots.size() - 1;
    for (size_t i = hash & mask;; i = (i + 1) & mask) {
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
    const size_t mask = capacity - 1;
    for (Slot& slot : old) {
        if (slot.value < 0)
            continue;
        size_t i = slot.hash & mask;
        while (m_slots[i].value >= 0)
            i = (i + 1) & mask;
        m_slots[i] = std::move(slot);
    }
}

} // namespace Simulation
