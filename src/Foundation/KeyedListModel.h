#pragma once

#include "Foundation/RowChanges.h"

#include <QAbstractListModel>
#include <QMetaProperty>

#include <memory>

/// A row of a list as a screen shows it: a gadget whose properties are the roles, with an id and
/// `operator==`.
template <typename Row>
concept KeyedRow = requires(const Row &row) {
    Row::staticMetaObject;
    { row.id } -> std::convertible_to<QUuid>;
    { row == row } -> std::convertible_to<bool>;
};

/// A list model that is given its next rows as a whole and tells views the difference as the fewest removes,
/// moves, inserts and role changes by id, so that delegates keep their focus, caret and animation. It never
/// resets and never costs more than O(n log n).
///
/// The roles are the properties of the row's gadget, by their names.
template <KeyedRow Row>
class KeyedListModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : (m_changes ? m_changes->count() : int(m_rows.size()));
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
            return {};
        const QMetaProperty property = Row::staticMetaObject.property(role - firstRole);
        return property.isValid() ? property.readOnGadget(&rowAt(index.row())) : QVariant();
    }

    QHash<int, QByteArray> roleNames() const override
    {
        QHash<int, QByteArray> names;
        for (int i = 0; i < Row::staticMetaObject.propertyCount(); ++i)
            names.insert(firstRole + i, Row::staticMetaObject.property(i).name());
        return names;
    }

    const QList<Row> &rows() const { return m_rows; }

    /// The row with this id; nothing if it is not in the list.
    const Row *find(const QUuid &id) const
    {
        for (const Row &row : m_rows)
            if (row.id == id)
                return &row;
        return nullptr;
    }

    /// Changes the row with this id where it stands; the edit keeps its id. Without such a row it does
    /// nothing.
    template <typename Edit>
    void changeRow(const QUuid &id, Edit edit)
    {
        const auto found = std::ranges::find(m_rows, id, &Row::id);
        if (found == m_rows.end())
            return;
        Row next = *found;
        edit(next);
        const QList<int> roles = changedRoles(*found, next);
        if (roles.isEmpty())
            return;
        const QModelIndex place = index(int(found - m_rows.begin()));
        *found = std::move(next);
        emit dataChanged(place, place, roles);
    }

    /// Replaces the rows. Ids have to be unique; of several rows with one id the first is taken.
    void setRows(QList<Row> next)
    {
        if (!sameIds(next)) {
            dropRepeatedIds(next);
            changeOrder(next);
        }
        changeRows(std::move(next));
    }

    /// Changes the contents of the row with this id, in O(n) of comparing ids alone; without one it does
    /// nothing.
    void updateRow(Row next)
    {
        const auto found = std::ranges::find(m_rows, next.id, &Row::id);
        if (found != m_rows.end())
            changeRow(int(found - m_rows.begin()), std::move(next));
    }

private:
    static constexpr int firstRole = Qt::UserRole + 1;

    const Row &rowAt(int row) const
    {
        if (!m_changes)
            return m_rows[row];
        const RowChanges::Slot slot = m_changes->slotAt(row);
        return slot.isOld ? m_rows[slot.index] : (*m_next)[slot.index];
    }

    bool sameIds(const QList<Row> &next) const
    {
        return std::ranges::equal(m_rows, next, {}, &Row::id, &Row::id);
    }

    static void dropRepeatedIds(QList<Row> &rows)
    {
        QSet<QUuid> seen;
        seen.reserve(rows.size());
        rows.removeIf([&seen](const Row &row) {
            const auto before = seen.size();
            seen.insert(row.id);
            return seen.size() == before;
        });
    }

    static QList<QUuid> idsOf(const QList<Row> &rows)
    {
        QList<QUuid> ids;
        ids.reserve(rows.size());
        for (const Row &row : rows)
            ids.append(row.id);
        return ids;
    }

    /// Announces removes, moves and inserts; afterwards the rows stand in their new order, kept ones with
    /// their old contents.
    void changeOrder(const QList<Row> &next)
    {
        m_changes = std::make_unique<RowChanges>(idsOf(m_rows), idsOf(next));
        m_next = &next;
        while (const auto range = m_changes->nextRemoval()) {
            beginRemoveRows({}, range->first, range->last);
            m_changes->apply();
            endRemoveRows();
        }
        while (const auto move = m_changes->nextMove()) {
            beginMoveRows({}, move->from, move->from, {}, move->before);
            m_changes->apply();
            endMoveRows();
        }
        while (const auto range = m_changes->nextInsertion()) {
            beginInsertRows({}, range->first, range->last);
            m_changes->apply();
            endInsertRows();
        }
        QList<Row> rows = next;
        for (int i = 0; i < rows.size(); ++i)
            if (const auto old = m_changes->oldIndexOf(i))
                rows[i] = m_rows[*old];
        m_rows = std::move(rows);
        m_changes.reset();
        m_next = nullptr;
    }

    void changeRows(QList<Row> next)
    {
        for (int i = 0; i < next.size(); ++i)
            changeRow(i, std::move(next[i]));
    }

    void changeRow(int row, Row next)
    {
        if (m_rows[row] == next)
            return;
        const QList<int> roles = changedRoles(m_rows[row], next);
        m_rows[row] = std::move(next);
        emit dataChanged(index(row), index(row), roles);
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
    /// Set only while a change of order is being announced.
    std::unique_ptr<RowChanges> m_changes;
    const QList<Row> *m_next = nullptr;
};
