#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QUuid>

/// The records of one kind in the order of insertion. Finding one by its id is O(1).
///
/// Ids should be unique but nothing enforces it in a file: with several records of one id, `first` gives the
/// first, while `positionsOf` gives them all.
template <typename Record>
class RecordList
{
public:
    RecordList() = default;
    explicit RecordList(QList<Record> records) : m_records(std::move(records)) {}

    const QList<Record> &all() const { return m_records; }
    const Record &at(qsizetype position) const { return m_records.at(position); }
    qsizetype size() const { return m_records.size(); }
    bool isEmpty() const { return m_records.isEmpty(); }
    auto begin() const { return m_records.cbegin(); }
    auto end() const { return m_records.cend(); }

    /// The first record with this id, or null. The pointer holds until the list changes.
    const Record *first(const QUuid &id) const
    {
        const qsizetype position = positionOf(id);
        return position < 0 ? nullptr : &m_records.at(position);
    }
    bool contains(const QUuid &id) const { return positionOf(id) >= 0; }

    /// The position of the first record with this id, or -1.
    qsizetype positionOf(const QUuid &id) const
    {
        if (!m_isIndexed)
            buildIndex();
        const auto found = m_index.find(id);
        if (found == m_index.end())
            return -1;
        const auto isAt = [&](qsizetype position) {
            return position >= 0 && position < m_records.size() && m_records.at(position).id == id;
        };
        for (qsizetype offset = 0; offset <= m_maxShift; ++offset)
            for (const qsizetype position : {*found - offset, *found + offset})
                if (isAt(position))
                    return *found = position;
        Q_UNREACHABLE();
    }

    /// The positions of all records with these ids, ascending.
    QList<qsizetype> positionsOf(const QSet<QUuid> &ids) const
    {
        QList<qsizetype> positions;
        if (ids.size() < 16 && !hasRepeatedIds()) {
            for (const QUuid &id : ids)
                if (const qsizetype position = positionOf(id); position >= 0)
                    positions.append(position);
            std::ranges::sort(positions);
            return positions;
        }
        for (qsizetype i = 0; i < m_records.size(); ++i)
            if (ids.contains(m_records.at(i).id))
                positions.append(i);
        return positions;
    }

    /// Puts a record, which keeps the id of the one that it replaces, at this position; returns the old one.
    Record exchange(qsizetype position, Record record)
    {
        return std::exchange(m_records[position], std::move(record));
    }

    /// Takes the records at these ascending positions out.
    QList<Record> take(const QList<qsizetype> &positions)
    {
        QList<Record> taken;
        taken.reserve(positions.size());
        prepareShift(positions);
        if (positions.size() == 1) {
            taken.append(m_records.takeAt(positions.first()));
        } else if (!positions.isEmpty()) {
            qsizetype next = 0;
            qsizetype kept = positions.first();
            for (qsizetype i = kept; i < m_records.size(); ++i) {
                if (next < positions.size() && positions.at(next) == i) {
                    taken.append(std::move(m_records[i]));
                    ++next;
                } else {
                    m_records[kept++] = std::move(m_records[i]);
                }
            }
            m_records.resize(kept);
        }
        if (m_isIndexed)
            for (const Record &record : std::as_const(taken))
                m_index.remove(record.id);
        return taken;
    }

    /// Puts records in, so that afterwards each stands at its position; positions ascend.
    void insert(const QList<qsizetype> &positions, QList<Record> records)
    {
        if (positions.isEmpty())
            return;
        if (positions.first() < m_records.size())
            prepareShift(positions);
        const bool wasIndexed = m_isIndexed;
        for (qsizetype i = 0; wasIndexed && i < positions.size(); ++i) {
            if (m_index.contains(records.at(i).id))
                forgetIndex();
            if (!m_isIndexed)
                break;
            m_index.insert(records.at(i).id, positions.at(i));
        }
        if (positions.size() == 1) {
            m_records.insert(positions.first(), std::move(records.first()));
            return;
        }
        qsizetype from = m_records.size();
        qsizetype next = positions.size();
        m_records.resize(m_records.size() + positions.size());
        for (qsizetype to = m_records.size() - 1; next > 0; --to) {
            if (positions.at(next - 1) == to)
                m_records[to] = std::move(records[--next]);
            else
                m_records[to] = std::move(m_records[--from]);
        }
    }

    void append(Record record)
    {
        if (m_isIndexed && !m_index.contains(record.id))
            m_index.insert(record.id, m_records.size());
        else if (m_maxShift > 0)
            forgetIndex();
        m_records.append(std::move(record));
    }

private:
    bool hasRepeatedIds() const
    {
        if (!m_isIndexed)
            buildIndex();
        return m_index.size() != m_records.size();
    }

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
        m_maxShift = 0;
    }

    /// Positions in the index may be wrong by as many places as records came or went before them. They are
    /// put right when they are asked for, and only after many such changes all at once.
    void prepareShift(const QList<qsizetype> &positions)
    {
        static constexpr qsizetype longestSearch = 500;
        if (!m_isIndexed)
            return;
        const bool isAtEnd = !positions.isEmpty() && positions.last() == m_records.size() - 1 &&
                             positions.last() - positions.first() == positions.size() - 1;
        if (!isAtEnd)
            m_maxShift += positions.size();
        if (m_maxShift > longestSearch || hasRepeatedIds())
            forgetIndex();
    }

    QList<Record> m_records;
    mutable QHash<QUuid, qsizetype> m_index;
    qsizetype m_maxShift = 0;
    mutable bool m_isIndexed = false;
};
