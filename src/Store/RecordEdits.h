#pragma once

#include "Store/RecordKinds.h"
#include "Store/RecordList.h"
#include "Store/RecordSize.h"

/// Changes of a list of records, kept so that they can be taken back and done again. Each edit holds what the
/// list does not hold at the time: the earlier records while the edit is done, the later ones while it is
/// undone.
template <typename Record>
class RecordEdits
{
public:
    bool isEmpty() const { return m_edits.isEmpty(); }

    /// A record was added at this position.
    void inserted(qsizetype position)
    {
        if (!m_edits.isEmpty() && m_edits.last().isPresence && m_edits.last().records.isEmpty() &&
            m_edits.last().positions.last() + 1 == position)
            m_edits.last().positions.append(position);
        else
            m_edits.append({true, {position}, {}});
    }
    /// Records at these ascending positions were taken out.
    void removed(const QList<qsizetype> &positions, QList<Record> records)
    {
        m_edits.append({true, positions, std::move(records)});
    }
    /// The record at this position was another one before.
    void replaced(qsizetype position, Record before)
    {
        if (!m_edits.isEmpty() && !m_edits.last().isPresence) {
            Edit &last = m_edits.last();
            const auto known = std::ranges::lower_bound(last.positions, position);
            if (known == last.positions.end()) {
                last.positions.append(position);
                last.records.append(std::move(before));
                return;
            }
            if (*known == position)
                return;
        }
        m_edits.append({false, {position}, {std::move(before)}});
    }

    /// Adds edits that were made after these.
    void add(const RecordEdits &later)
    {
        for (const Edit &edit : later.m_edits) {
            if (edit.isPresence || edit.positions.size() != 1)
                m_edits.append(edit);
            else
                replaced(edit.positions.first(), edit.records.first());
        }
    }

    /// Takes the edits back, or does them again.
    /// @param changes gets what this does to the list
    template <typename Changes>
    void toggle(RecordList<Record> &list, bool undo, Changes &changes)
    {
        if (undo)
            for (auto edit = m_edits.rbegin(); edit != m_edits.rend(); ++edit)
                toggle(*edit, list, changes);
        else
            for (Edit &edit : m_edits)
                toggle(edit, list, changes);
    }

    /// Memory that the edits keep from being freed.
    qint64 bytes(const RecordList<Record> &list) const
    {
        qint64 bytes = 0;
        for (const Edit &edit : m_edits) {
            bytes += qint64(sizeof edit) + edit.positions.size() * qint64(sizeof(qsizetype)) +
                     edit.records.size() * qint64(sizeof(Record));
            for (qsizetype i = 0; i < edit.records.size(); ++i) {
                const bool isThere = !edit.isPresence && edit.positions.at(i) < list.size();
                bytes += RecordSize::unshared(edit.records.at(i),
                                              isThere ? &list.at(edit.positions.at(i)) : nullptr);
            }
        }
        return bytes;
    }

private:
    struct Edit {
        /// Whether records come and go by it; otherwise they are replaced.
        bool isPresence;
        QList<qsizetype> positions;
        QList<Record> records;
    };

    template <typename Changes>
    static void toggle(Edit &edit, RecordList<Record> &list, Changes &changes)
    {
        if (!edit.isPresence) {
            for (qsizetype i = 0; i < edit.positions.size(); ++i) {
                edit.records[i] = list.exchange(edit.positions.at(i), std::move(edit.records[i]));
                changes.replace(edit.records.at(i).id);
            }
        } else if (edit.records.isEmpty()) {
            edit.records = list.take(edit.positions);
            for (const Record &record : std::as_const(edit.records))
                changes.remove(record.id);
        } else {
            for (const Record &record : std::as_const(edit.records))
                changes.insert(record.id);
            list.insert(edit.positions, std::exchange(edit.records, {}));
        }
    }

    QList<Edit> m_edits;
};
