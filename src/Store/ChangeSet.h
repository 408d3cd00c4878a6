#pragma once

#include "Store/RecordKinds.h"

#include <QSet>

#include <array>
#include <bitset>

/// What an action did to the records of one kind. An id stands in one of the sets at most.
struct RecordChanges {
    QSet<QUuid> inserted;
    QSet<QUuid> replaced;
    QSet<QUuid> removed;
    /// The whole list is another one; the sets are empty then.
    bool isReloaded = false;

    bool isEmpty() const
    {
        return !isReloaded && inserted.isEmpty() && replaced.isEmpty() && removed.isEmpty();
    }
    /// Whether something can have changed about this record.
    bool contains(const QUuid &id) const
    {
        return isReloaded || replaced.contains(id) || inserted.contains(id) || removed.contains(id);
    }
    /// Whether records only changed where they stand.
    bool isReplacedOnly() const { return !isReloaded && inserted.isEmpty() && removed.isEmpty(); }

    void insert(const QUuid &id)
    {
        if (removed.remove(id))
            replaced.insert(id);
        else
            inserted.insert(id);
    }
    void replace(const QUuid &id)
    {
        if (!inserted.contains(id))
            replaced.insert(id);
    }
    void remove(const QUuid &id)
    {
        if (inserted.remove(id))
            return;
        replaced.remove(id);
        removed.insert(id);
    }
    /// Adds what happened after these changes.
    void add(const RecordChanges &later)
    {
        if (isReloaded || later.isReloaded) {
            *this = {.isReloaded = true};
            return;
        }
        for (const QUuid &id : later.removed)
            remove(id);
        for (const QUuid &id : later.inserted)
            insert(id);
        for (const QUuid &id : later.replaced)
            replace(id);
    }
};

/// What one action changed: the records of each kind, and whether it changed the settings.
class ChangeSet
{
public:
    /// Everything is new.
    static ChangeSet reloaded()
    {
        ChangeSet changes;
        for (RecordChanges &kind : changes.m_kinds)
            kind.isReloaded = true;
        changes.settings = true;
        return changes;
    }

    template <typename Record>
    const RecordChanges &of() const
    {
        return m_kinds[RecordKinds::indexOf<Record>];
    }
    template <typename Record>
    RecordChanges &of()
    {
        return m_kinds[RecordKinds::indexOf<Record>];
    }
    template <typename... Record>
    bool touches() const
    {
        return (!of<Record>().isEmpty() || ...);
    }
    /// Whether it touches one of these kinds, told by their positions in `RecordKinds`.
    bool touchesAny(const std::bitset<RecordKinds::count> &kinds) const
    {
        for (std::size_t i = 0; i < m_kinds.size(); ++i)
            if (kinds[i] && !m_kinds[i].isEmpty())
                return true;
        return false;
    }
    bool isEmpty() const { return !settings && std::ranges::all_of(m_kinds, &RecordChanges::isEmpty); }
    void add(const ChangeSet &later)
    {
        settings |= later.settings;
        for (std::size_t i = 0; i < m_kinds.size(); ++i)
            m_kinds[i].add(later.m_kinds[i]);
    }

    bool settings = false;
    /// What the window tells of it, such as "Task deleted"; empty for nothing.
    QString message;

private:
    std::array<RecordChanges, RecordKinds::count> m_kinds;
};
