#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QUuid>

/// The records of one kind in the order of insertion. Finding and replacing one by its id is O(1).
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
        if (m_isIndexed && !m_index.contains(record.id))
            m_index.insert(record.id, m_records.size());
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
        m_records.removeIf([&ids](const Record &record) { return ids.contains(record.id); });
        forgetIndex();
    }

private:
    qsizetype indexOf(const QUuid &id) const
    {
        if (!m_isIndexed)
            buildIndex();
        return m_index.value(id, -1);
    }

    bool hasRepeatedIds() const { return m_index.size() != m_records.size(); }

    // Built when something is looked up, so that loading a large workspace doesn't wait for it.
    void buildIndex() const
    {
        m_index.reserve(m_records.size());
        for (qsizetype i = 0; i < m_records.size(); ++i)
            if (!m_index.contains(m_records.at(i).id))
                m_index.insert(m_records.at(i).id, i);
        m_isIndexed = true;
    }

    void forgetIndex()
    {
        m_index.clear();
        m_isIndexed = false;
    }

    QList<Record> m_records;
    mutable QHash<QUuid, qsizetype> m_index;
    mutable bool m_isIndexed = false;
};
