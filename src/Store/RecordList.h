#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QUuid>

#include <algorithm>
#include <numeric>

/// The records of one kind in the order of insertion. Finding and replacing one by its id is O(1), and O(log
/// n) in the number of records that were removed so far.
///
/// Ids should be unique but nothing enforces it in a file: with several records of one id, `first` gives the
/// first, while `replace` and `remove` reach them all.
template <typename Record>
class RecordList
{
public:
    RecordList() = default;
    explicit RecordList(QList<Record> records) : m_records(std::move(records)) {}

    const QList<Record> &all() const { return m_records; }
    qsizetype size() const { return m_records.size(); }
    bool isEmpty() const { return m_records.isEmpty(); }
    auto begin() const { return m_records.cbegin(); }
    auto end() const { return m_records.cend(); }

    /// The first record with this id, or null. The pointer holds until the list changes.
    const Record *first(const QUuid &id) const
    {
        const qsizetype index = indexOf(id);
        return index < 0 ? nullptr : &m_records.at(index);
    }

    void append(Record record)
    {
        if (m_isIndexed) {
            if (!m_index.contains(record.id))
                m_index.insert(record.id, m_nextSerial);
            m_serials.append(m_nextSerial++);
        }
        m_records.append(std::move(record));
    }

    /// Puts the record in the place of those with its id; without one it does nothing.
    void replace(const Record &record)
    {
        const qsizetype index = indexOf(record.id);
        if (index < 0)
            return;
        m_records[index] = record;
        if (!hasRepeatedIds())
            return;
        for (qsizetype i = index + 1; i < m_records.size(); ++i)
            if (m_records.at(i).id == record.id)
                m_records[i] = record;
    }

    void remove(const QSet<QUuid> &ids)
    {
        if (!m_isIndexed || hasRepeatedIds()) {
            m_records.removeIf([&ids](const Record &record) { return ids.contains(record.id); });
            forgetIndex();
            return;
        }
        QList<qsizetype> indexes;
        for (const QUuid &id : ids)
            if (const qsizetype index = indexOf(id); index >= 0)
                indexes.append(index);
        std::ranges::sort(indexes);
        for (const QUuid &id : ids)
            m_index.remove(id);
        removeAt(m_records, indexes);
        removeAt(m_serials, indexes);
    }

private:
    template <typename Value>
    static void removeAt(QList<Value> &values, const QList<qsizetype> &sortedIndexes)
    {
        if (sortedIndexes.isEmpty())
            return;
        auto end = values.begin() + sortedIndexes.first();
        for (qsizetype i = 0; i < sortedIndexes.size(); ++i) {
            const auto next = i + 1 < sortedIndexes.size() ? sortedIndexes[i + 1] : values.size();
            end = std::move(values.begin() + sortedIndexes[i] + 1, values.begin() + next, end);
        }
        values.erase(end, values.end());
    }

    qsizetype indexOf(const QUuid &id) const
    {
        if (!m_isIndexed)
            buildIndex();
        const auto found = m_index.constFind(id);
        if (found == m_index.cend())
            return -1;
        // Removals move a record towards the front, by at most one place each.
        const qsizetype removals = m_nextSerial - m_serials.size();
        const auto first = m_serials.cbegin() + std::max(*found - removals, qsizetype(0));
        const auto end = m_serials.cbegin() + std::min(*found + 1, m_serials.size());
        return std::lower_bound(first, end, *found) - m_serials.cbegin();
    }

    bool hasRepeatedIds() const { return m_index.size() != m_records.size(); }

    // Built when something is looked up, so that loading a large workspace doesn't wait for it.
    void buildIndex() const
    {
        m_nextSerial = m_records.size();
        m_serials.resize(m_nextSerial);
        std::iota(m_serials.begin(), m_serials.end(), 0);
        m_index.reserve(m_nextSerial);
        for (qsizetype i = 0; i < m_nextSerial; ++i)
            if (!m_index.contains(m_records.at(i).id))
                m_index.insert(m_records.at(i).id, i);
        m_isIndexed = true;
    }

    void forgetIndex()
    {
        m_index.clear();
        m_serials.clear();
        m_isIndexed = false;
    }

    QList<Record> m_records;
    /// The serial number of each record, growing with its place, so that removing one leaves the numbers of
    /// the others, which the index holds, as they are.
    mutable QList<qsizetype> m_serials;
    mutable QHash<QUuid, qsizetype> m_index;
    mutable qsizetype m_nextSerial = 0;
    mutable bool m_isIndexed = false;
};
