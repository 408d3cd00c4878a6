#pragma once

#include "Foundation/NestedModels.h"
#include "Foundation/RowChanges.h"

#include <QAbstractListModel>
#include <QHash>
#include <QMetaProperty>

#include <algorithm>
#include <memory>

/// A list model that is given its next rows as a whole and tells views the difference as the fewest removes,
/// moves, inserts and role changes by id, so that delegates keep their focus, caret and animation. It never
/// resets and never costs more than O(n log n).
///
/// The roles are the properties of the row's gadget, by their names. What no role shows changes without a
/// signal. A list that a row owns is a KeyedListModel as well, which lives as long as its row and changes in
/// place.
template <KeyedRow Row>
class KeyedListModel : public QAbstractListModel
{
public:
    using Key = RowKey<Row>;
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override
    {
        if (parent.isValid())
            return 0;
        return int(m_rows.size()) + (m_changes ? m_changes->count() - m_changed.oldCount : 0);
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
            return {};
        if constexpr (OwnsList<Row>)
            if (role == nestedRole())
                return QVariant::fromValue(m_nested.modelOf(rowAt(index.row())));
        const QMetaProperty property = Row::staticMetaObject.property(role - firstRole);
        return property.isValid() ? property.readOnGadget(&rowAt(index.row())) : QVariant();
    }

    QHash<int, QByteArray> roleNames() const override
    {
        QHash<int, QByteArray> names;
        for (int i = 0; i < Row::staticMetaObject.propertyCount(); ++i)
            names.insert(firstRole + i, Row::staticMetaObject.property(i).name());
        if constexpr (OwnsList<Row>)
            names.insert(nestedRole(), Row::nestedList.role);
        return names;
    }

    const QList<Row> &rows() const { return m_rows; }

    /// The row with this id; nothing if it is not in the list. Of many rows in turn, each is found in O(1).
    const Row *find(const Key &id) const
    {
        const int row = indexOf(id);
        return row < 0 ? nullptr : &m_rows.at(row);
    }

    /// Changes the row with this id where it stands; the edit keeps its id. Without such a row it does
    /// nothing.
    template <typename Edit>
    void changeRow(const Key &id, Edit edit)
    {
        const int row = indexOf(id);
        if (row < 0)
            return;
        Row next = m_rows.at(row);
        edit(next);
        announce(row, row, assign(row, std::move(next)));
    }

    /// Changes the contents of the row with the id of this one; without one it does nothing.
    void updateRow(Row next)
    {
        if (const int row = indexOf(idOf(next)); row >= 0)
            announce(row, row, assign(row, std::move(next)));
    }

    /// Replaces the rows. Ids have to be unique; of several rows with one id the first is taken.
    void setRows(QList<Row> next)
    {
        Span changed = changedSpan(next);
        if (repeatsIds(next, changed)) {
            dropRepeatedIds(next);
            changed = changedSpan(next);
        }
        if (changed.oldCount > 0 || changed.nextCount > 0)
            changeOrder(next, changed);
        changeContents(std::move(next));
    }

private:
    /// The rows between those at the start and at the end that stay as they are.
    struct Span {
        qsizetype first = 0;
        qsizetype oldCount = 0;
        qsizetype nextCount = 0;
    };

    static constexpr int firstRole = Qt::UserRole + 1;
    /// An attached view takes time for each step that grows with the number of steps before it.
    static constexpr int maxSteps = 1000;
    static int nestedRole() { return firstRole + Row::staticMetaObject.propertyCount(); }

    static Key idOf(const Row &row) { return std::invoke(&Row::id, row); }
    static bool haveSameId(const Row &a, const Row &b) { return idOf(a) == idOf(b); }

    const Row &rowAt(qsizetype row) const
    {
        if (!m_changes || row < m_changed.first)
            return m_rows.at(row);
        row -= m_changed.first;
        if (row >= m_changes->count())
            return m_rows.at(m_changed.first + m_changed.oldCount + row - m_changes->count());
        const RowChanges::Slot slot = m_changes->slotAt(int(row));
        return (slot.isOld ? m_rows : *m_next).at(m_changed.first + slot.index);
    }

    void forgetNested([[maybe_unused]] int first, [[maybe_unused]] int last)
    {
        if constexpr (OwnsList<Row>)
            for (int row = first; row <= last; ++row)
                m_nested.forget(rowAt(row));
    }

    int indexOf(const Key &id) const
    {
        if (m_index.isEmpty() && !std::exchange(m_isSearched, true)) {
            // An index is worth its making only if more than this is looked for.
            const auto found = std::ranges::find(m_rows, id, idOf);
            return found == m_rows.end() ? -1 : int(found - m_rows.begin());
        }
        if (m_index.isEmpty()) {
            m_index.reserve(m_rows.size());
            for (int row = 0; row < m_rows.size(); ++row)
                m_index.insert(idOf(m_rows.at(row)), row);
        }
        return m_index.value(id, -1);
    }

    Span changedSpan(const QList<Row> &next) const
    {
        const auto start = std::ranges::mismatch(m_rows, next, haveSameId);
        const auto end = std::mismatch(m_rows.crbegin(), std::make_reverse_iterator(start.in1),
                                       next.crbegin(), std::make_reverse_iterator(start.in2), haveSameId);
        return {start.in1 - m_rows.begin(), end.first.base() - start.in1, end.second.base() - start.in2};
    }

    /// Whether a row of the span has the id of another row.
    static bool repeatsIds(const QList<Row> &rows, const Span &span)
    {
        const qsizetype last = span.first + span.nextCount - 1;
        QSet<Key> ids;
        ids.reserve(span.nextCount);
        for (qsizetype row = span.first; row <= last; ++row)
            ids.insert(idOf(rows.at(row)));
        const auto isTaken = [&ids](const Row &row) { return ids.contains(idOf(row)); };
        return ids.size() < span.nextCount ||
               (span.nextCount > 0 && (std::any_of(rows.begin(), rows.begin() + span.first, isTaken) ||
                                       std::any_of(rows.begin() + last + 1, rows.end(), isTaken)));
    }

    static void dropRepeatedIds(QList<Row> &rows)
    {
        QSet<Key> seen;
        seen.reserve(rows.size());
        rows.removeIf([&seen](const Row &row) {
            const auto before = seen.size();
            seen.insert(idOf(row));
            return seen.size() == before;
        });
    }

    std::vector<int> oldIndexOf(const QList<Row> &next, const Span &changed) const
    {
        QHash<Key, int> old;
        old.reserve(changed.oldCount);
        for (int i = 0; i < changed.oldCount; ++i)
            old.insert(idOf(m_rows.at(changed.first + i)), i);
        std::vector<int> indexes(std::size_t(changed.nextCount));
        for (int i = 0; i < changed.nextCount; ++i)
            indexes[std::size_t(i)] = old.value(idOf(next.at(changed.first + i)), -1);
        return indexes;
    }

    /// Announces removes, moves and inserts; afterwards the rows stand in their new order, kept ones with
    /// their old contents.
    void changeOrder(const QList<Row> &next, const Span &changed)
    {
        m_changes = std::make_unique<RowChanges>(int(changed.oldCount), oldIndexOf(next, changed));
        if (m_changes->stepCount() > maxSteps)
            m_changes = std::make_unique<RowChanges>(int(changed.oldCount),
                                                     std::vector<int>(std::size_t(changed.nextCount), -1));
        m_changed = changed;
        m_next = &next;
        const int first = int(changed.first);
        while (const auto range = m_changes->nextRemoval()) {
            beginRemoveRows({}, first + range->first, first + range->last);
            forgetNested(first + range->first, first + range->last);
            m_changes->apply();
            endRemoveRows();
        }
        while (const auto move = m_changes->nextMove()) {
            beginMoveRows({}, first + move->from, first + move->from, {}, first + move->before);
            m_changes->apply();
            endMoveRows();
        }
        while (const auto range = m_changes->nextInsertion()) {
            beginInsertRows({}, first + range->first, first + range->last);
            m_changes->apply();
            endInsertRows();
        }
        putInOrder(next);
    }

    void putInOrder(const QList<Row> &next)
    {
        QList<Row> changed;
        changed.reserve(m_changed.nextCount);
        for (qsizetype i = 0; i < m_changed.nextCount; ++i) {
            if (const auto old = m_changes->oldIndexOf(int(i)))
                changed.append(std::move(m_rows[m_changed.first + *old]));
            else
                changed.append(next.at(m_changed.first + i));
        }
        const qsizetype added = m_changed.nextCount - m_changed.oldCount;
        if (added > 0)
            m_rows.insert(m_changed.first, added, Row());
        else
            m_rows.remove(m_changed.first, -added);
        std::ranges::move(changed, m_rows.begin() + m_changed.first);
        m_changes.reset();
        m_next = nullptr;
        m_index.clear();
        m_isSearched = false;
    }

    void changeContents(QList<Row> next)
    {
        int first = 0;
        QList<int> roles;
        for (int row = 0; row < next.size(); ++row) {
            const QList<int> changed = assign(row, std::move(next[row]));
            if (changed == roles)
                continue;
            announce(first, row - 1, roles);
            first = row;
            roles = changed;
        }
        announce(first, int(next.size()) - 1, roles);
    }

    /// The roles that changed.
    QList<int> assign(int row, Row next)
    {
        if (m_rows.at(row) == next)
            return {};
        Row &old = m_rows[row];
        const QList<int> roles = changedRoles(old, next);
        old = std::move(next);
        if constexpr (OwnsList<Row>)
            m_nested.update(old);
        return roles;
    }

    void announce(int first, int last, const QList<int> &roles)
    {
        if (!roles.isEmpty())
            emit dataChanged(index(first), index(last), roles);
    }

    static QList<int> changedRoles(const Row &before, const Row &after)
    {
        QList<int> roles;
        for (int i = 0; i < Row::staticMetaObject.propertyCount(); ++i) {
            const QMetaProperty property = Row::staticMetaObject.property(i);
            if (property.readOnGadget(&before) != property.readOnGadget(&after))
                roles.append(firstRole + i);
        }
        return roles;
    }

    QList<Row> m_rows;
    mutable QHash<Key, int> m_index;
    mutable bool m_isSearched = false;
    [[no_unique_address]] NestedModels<Row> m_nested;
    /// Set only while a change of order is being announced.
    std::unique_ptr<RowChanges> m_changes;
    Span m_changed;
    const QList<Row> *m_next = nullptr;
};
