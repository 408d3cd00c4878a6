#include "Store/Questions.h"
#include "Store/WorkspaceStore.h"

DatabaseTable WorkspaceStore::newDatabase(const DatabaseTable &table)
{
    add(table);
    return table;
}

void WorkspaceStore::deleteDatabase(const QUuid &tableID)
{
    if (!databases().first(tableID))
        return;
    remove<DBRow>(Questions::ids(rows(), [&](const DBRow &row) { return row.tableID == tableID; }));
    erase<DatabaseTable>(tableID);
}

std::optional<DBRow> WorkspaceStore::addRow(const QUuid &tableID, const QMap<QString, QString> &values)
{
    if (!databases().first(tableID))
        return std::nullopt;
    const Timestamp moment = now();
    const DBRow row{m_options.makeId(), tableID, values, secondsSince1970(moment), moment, moment};
    add(row);
    return row;
}

void WorkspaceStore::duplicateRow(const QUuid &rowID)
{
    const DBRow *const original = rows().first(rowID);
    if (!original)
        return;
    DBRow copy = *original;
    copy.id = m_options.makeId();
    copy.createdDate = copy.updatedDate = now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    add(copy);
}

void WorkspaceStore::setValue(const QString &value, const QUuid &propertyID, const QUuid &rowID)
{
    change<DBRow>(rowID, [&](DBRow &row) {
        row.values.insert(DBRow::valueKey(propertyID), value);
        row.updatedDate = now();
    });
}

WorkspaceStore::Found<DBRow> WorkspaceStore::rowsIn(const QUuid &tableID) const
{
    return Questions::where(rows(), [&tableID](const DBRow &row) { return row.tableID == tableID; });
}
