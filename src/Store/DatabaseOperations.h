#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with databases and their rows. Each is an action; an unknown id does nothing.
namespace DatabaseOperations
{
void create(WorkspaceStore &store, const DatabaseTable &table);
/// Its rows go with it.
void remove(WorkspaceStore &store, const QUuid &tableID);
/// The row, or nothing for an unknown table.
std::optional<DBRow> addRow(WorkspaceStore &store, const QUuid &tableID,
                            const QMap<QString, QString> &values);
void duplicateRow(WorkspaceStore &store, const QUuid &rowID);
void removeRow(WorkspaceStore &store, const QUuid &rowID);
void setValue(WorkspaceStore &store, const QString &value, const QUuid &propertyID, const QUuid &rowID);

/// The rows of a table in the order of their creation.
QList<const DBRow *> rows(const WorkspaceStore &store, const QUuid &tableID);
} // namespace DatabaseOperations
