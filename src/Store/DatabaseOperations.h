#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with databases and their rows. Each is an action; an unknown id does nothing.
namespace DatabaseOperations
{
void create(WorkspaceStore &store, const DatabaseTable &table);
/// Its rows go with it.
void remove(WorkspaceStore &store, const QUuid &tableID);
/// Lets the edit change a copy of the table, which then takes its place. An edit that leaves it as it is
/// changes nothing.
/// @param name how the Edit menu calls it
void change(WorkspaceStore &store, const QUuid &tableID, const QString &name,
            const std::function<void(DatabaseTable &)> &edit);
/// The same for one of its views.
void changeView(WorkspaceStore &store, const QUuid &tableID, const QUuid &viewID, const QString &name,
                const std::function<void(DBView &)> &edit);
/// Gives a property another name, type or options. Records that hold a renamed option, and filters that ask
/// for it, take its new name.
/// @param renamed the new text of each renamed option by the old one
void changeProperty(WorkspaceStore &store, const QUuid &tableID, const DBProperty &property,
                    const QHash<QString, QString> &renamed);
/// Takes a name or a description as it is typed.
void typeName(WorkspaceStore &store, const QUuid &tableID, const QString &text);
void typeDetails(WorkspaceStore &store, const QUuid &tableID, const QString &text);

/// The row, or nothing for an unknown table.
std::optional<DBRow> addRow(WorkspaceStore &store, const QUuid &tableID,
                            const QMap<QString, QString> &values);
void duplicateRow(WorkspaceStore &store, const QUuid &rowID);
void removeRow(WorkspaceStore &store, const QUuid &rowID);
void setValue(WorkspaceStore &store, const QString &value, const QUuid &propertyID, const QUuid &rowID);
/// The same for several values, by their keys in the row.
void setValues(WorkspaceStore &store, const QMap<QString, QString> &values, const QUuid &rowID);
/// Takes a value as it is typed. All that is typed without an interruption (`WorkspaceStore::endTyping`) is
/// one undo step.
void typeValue(WorkspaceStore &store, const QString &value, const QUuid &propertyID, const QUuid &rowID);

/// The rows of a table in the order of their creation.
QList<const DBRow *> rows(const WorkspaceStore &store, const QUuid &tableID);
} // namespace DatabaseOperations
