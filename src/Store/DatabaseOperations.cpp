#include "Store/DatabaseOperations.h"

void DatabaseOperations::create(WorkspaceStore &store, const DatabaseTable &table)
{
    const Action action(store, ActionText::tr("New Database"));
    store.add(table);
}

void DatabaseOperations::remove(WorkspaceStore &store, const QUuid &tableID)
{
    if (!store.list<DatabaseTable>().contains(tableID))
        return;
    const Action action(store, ActionText::tr("Delete Database"));
    action.setMessage(ActionText::tr("Database deleted"));
    QSet<QUuid> rowIDs;
    for (const DBRow *const row : rows(store, tableID))
        rowIDs.insert(row->id);
    store.erase<DBRow>(rowIDs);
    store.erase<DatabaseTable>(tableID);
}

std::optional<DBRow> DatabaseOperations::addRow(WorkspaceStore &store, const QUuid &tableID,
                                                const QMap<QString, QString> &values)
{
    if (!store.list<DatabaseTable>().contains(tableID))
        return std::nullopt;
    const Action action(store, ActionText::tr("New Row"));
    const Timestamp moment = store.now();
    const DBRow row{store.makeId(), tableID, values, secondsSince1970(moment), moment, moment};
    store.add(row);
    return row;
}

void DatabaseOperations::duplicateRow(WorkspaceStore &store, const QUuid &rowID)
{
    const DBRow *const original = store.list<DBRow>().first(rowID);
    if (!original)
        return;
    const Action action(store, ActionText::tr("Duplicate Row"));
    DBRow copy = *original;
    copy.id = store.makeId();
    copy.createdDate = copy.updatedDate = store.now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    store.add(copy);
}

void DatabaseOperations::removeRow(WorkspaceStore &store, const QUuid &rowID)
{
    const Action action(store, ActionText::tr("Delete Row"));
    action.setMessage(ActionText::tr("Row deleted"));
    store.erase<DBRow>(rowID);
}

void DatabaseOperations::setValue(WorkspaceStore &store, const QString &value, const QUuid &propertyID,
                                  const QUuid &rowID)
{
    const Action action(store, ActionText::tr("Change Value"));
    store.change<DBRow>(rowID, [&](DBRow &row) {
        row.values.insert(DBRow::valueKey(propertyID), value);
        row.updatedDate = store.now();
    });
}

QList<const DBRow *> DatabaseOperations::rows(const WorkspaceStore &store, const QUuid &tableID)
{
    return store.groups().rowsByTable.of(store.list<DBRow>(), tableID);
}
