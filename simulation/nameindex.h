#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace Simulation {

/*!
 * Feature names to their indexes, looked up by a view of the name. A look-up
 * by part of a longer text, such as a full name less its node map's prefix,
 * needs no string of its own, as QHash<QString, int> would.
 *
 * Open addressing with linear probing, kept at most half full. Names are held
 * as implicitly shared copies, so the index costs no text of its own.
 */
class NameIndex
{
public:
    void reserve(int count);
    //! Adds name -> value; false, and nothing changed, if the name is already there or value is negative.
    bool insert(const QString& name, int value);
    //! The value of name, or fallback if it isn't there.
    int value(QStringView name, int fallback = -1) const;
    bool contains(QStringView name) const { return value(name) >= 0; }
    int size() const { return m_count; }

private:
    struct Slot
    {
        QString name;
        uint hash = 0;
        int value = -1; //!< -1: empty
    };

    void rehash(size_t capacity);
    size_t home(uint hash) const;
    size_t find(QStringView name, uint hash) const;

    std::vector<Slot> m_slots; //!< a power of two in size, or empty
    int m_count = 0;
    int m_shift = 64; //!< 64 - log2 of the number of slots
};

} // namespace Simulation
