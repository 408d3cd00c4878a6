#pragma once

#include "Store/ChangeSet.h"
#include "Store/RecordList.h"

#include <functional>

/// Finds the records of a list that have one key, such as the tasks of a project, without walking the list.
/// It is made when it is first asked and kept up with each change.
template <typename Record, typename Key>
class RecordGroups
{
public:
    /// @param keyOf the key of a record; nothing if it belongs to no group
    explicit RecordGroups(std::function<std::optional<Key>(const Record &)> keyOf) : m_keyOf(std::move(keyOf))
    {
    }

    /// The records with this key in the order of the list. The pointers hold until the list changes.
    QList<const Record *> of(const RecordList<Record> &list, const Key &key)
    {
        if (!m_isMade)
            make(list);
        QList<qsizetype> positions;
        const QSet<QUuid> ids = m_ids.value(key);
        positions.reserve(ids.size());
        for (const QUuid &id : ids)
            positions.append(list.positionOf(id));
        std::ranges::sort(positions);
        QList<const Record *> records;
        records.reserve(positions.size());
        for (const qsizetype position : std::as_const(positions))
            records.append(&list.at(position));
        return records;
    }

    /// Has everything looked up anew, where what the keys depend on has changed.
    void forget()
    {
        m_ids.clear();
        m_keys.clear();
        m_isMade = false;
    }

    void insert(const Record &record)
    {
        if (m_isMade)
            put(record);
    }
    /// A record was replaced by this one with the same id.
    void replace(const Record &record)
    {
        remove(record.id);
        insert(record);
    }
    void remove(const QUuid &id)
    {
        if (m_isMade)
            take(id);
    }

    /// The same for many at once, where what they were is not known.
    void follow(const RecordList<Record> &list, const RecordChanges &changes)
    {
        if (!m_isMade || changes.isEmpty())
            return;
        if (changes.isReloaded)
            return forget();
        for (const QSet<QUuid> *ids : {&changes.removed, &changes.replaced})
            for (const QUuid &id : *ids)
                take(id);
        for (const QSet<QUuid> *ids : {&changes.replaced, &changes.inserted})
            for (const QUuid &id : *ids)
                put(*list.first(id));
    }

private:
    void make(const RecordList<Record> &list)
    {
        for (const Record &record : list)
            put(record);
        m_isMade = true;
    }
    void put(const Record &record)
    {
        if (const auto key = m_keyOf(record)) {
            m_ids[*key].insert(record.id);
            m_keys.insert(record.id, *key);
        }
    }
    void take(const QUuid &id)
    {
        const auto key = m_keys.find(id);
        if (key == m_keys.end())
            return;
        const auto group = m_ids.find(*key);
        group->remove(id);
        if (group->isEmpty())
            m_ids.erase(group);
        m_keys.erase(key);
    }

    std::function<std::optional<Key>(const Record &)> m_keyOf;
    QHash<Key, QSet<QUuid>> m_ids;
    QHash<QUuid, Key> m_keys;
    bool m_isMade = false;
};
