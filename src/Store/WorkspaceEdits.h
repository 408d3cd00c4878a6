#pragma once

/// The edits that `WorkspaceStore` declares, for every kind of record. Include WorkspaceStore.h instead.

template <typename Record>
void WorkspaceStore::add(const Record &record)
{
    const Action action(*this, QString());
    auto &list = std::get<RecordList<Record>>(m_lists);
    list.append(record);
    touch<Record>(record.id).inserted(list.size() - 1);
    m_action.changes.of<Record>().insert(record.id);
    m_groups.insert(record);
}

template <typename Record, typename Edit>
void WorkspaceStore::change(const QUuid &id, Edit edit)
{
    const Action action(*this, QString());
    auto &list = std::get<RecordList<Record>>(m_lists);
    for (const qsizetype position : list.positionsOf({id})) {
        Record record = list.at(position);
        edit(record);
        if (record == list.at(position))
            continue;
        touch<Record>(id).replaced(position, list.exchange(position, std::move(record)));
        m_action.changes.of<Record>().replace(id);
        m_groups.replace(list.at(position));
    }
}

template <typename Record>
void WorkspaceStore::erase(const QSet<QUuid> &ids)
{
    const Action action(*this, QString());
    auto &list = std::get<RecordList<Record>>(m_lists);
    const QList<qsizetype> positions = list.positionsOf(ids);
    if (positions.isEmpty())
        return;
    QList<Record> removed = list.take(positions);
    for (const Record &record : std::as_const(removed)) {
        m_action.changes.of<Record>().remove(record.id);
        m_groups.remove(record);
    }
    touch<Record>(*ids.begin()).removed(positions, std::move(removed));
}
