#pragma once

#include "Store/RecordList.h"

#include <algorithm>
#include <functional>

/// The building blocks of the store's questions. Sorting is stable, so records with equal keys keep the order
/// of the list.
namespace Questions
{
template <typename Record, typename Condition>
QList<const Record *> where(const RecordList<Record> &list, Condition condition)
{
    QList<const Record *> found;
    for (const Record &record : list)
        if (std::invoke(condition, record))
            found.append(&record);
    return found;
}

template <typename Record, typename Condition>
QList<QUuid> ids(const RecordList<Record> &list, Condition condition)
{
    QList<QUuid> found;
    for (const Record &record : list)
        if (std::invoke(condition, record))
            found.append(record.id);
    return found;
}

template <typename Record, typename Key>
QList<const Record *> ascending(QList<const Record *> records, Key key)
{
    std::ranges::stable_sort(records, std::less(),
                             [key](const Record *record) { return std::invoke(key, *record); });
    return records;
}

template <typename Record, typename Key>
QList<const Record *> newestFirst(QList<const Record *> records, Key key)
{
    std::ranges::stable_sort(records, std::greater(),
                             [key](const Record *record) { return std::invoke(key, *record); });
    return records;
}
} // namespace Questions
