#include "Store/DatabaseOperations.h"

namespace
{
void typeText(WorkspaceStore &store, const QUuid &tableID, const QString &field, QString DatabaseTable::*text,
              const QString &after)
{
    const DatabaseTable *const table = store.list<DatabaseTable>().first(tableID);
    if (!table || table->*text == after)
        return;
    const Action action(store, Typing{.text = {tableID, field}, .before = table->*text, .after = after});
    DatabaseOperations::change(store, tableID, {}, [&](DatabaseTable &changed) { changed.*text = after; });
}
/// The options of a value, which are parted by commas where there may be several, with their new names.
QString withNewNames(const QString &value, bool isList, const QHash<QString, QString> &renamed)
{
    if (!isList)
        return renamed.value(value, value);
    QStringList options;
    bool isChanged = false;
    for (const QString &piece : value.split(u',', Qt::SkipEmptyParts)) {
        const auto name = renamed.constFind(piece.trimmed());
        isChanged = isChanged || name != renamed.cend();
        const QString option = name == renamed.cend() ? piece.trimmed() : *name;
        if (!options.contains(option))
            options.append(option);
    }
    return isChanged ? options.join(u',') : value;
}
} // namespace

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

void DatabaseOperations::change(WorkspaceStore &store, const QUuid &tableID, const QString &name,
                                const std::function<void(DatabaseTable &)> &edit)
{
    const Action action(store, name);
    store.change<DatabaseTable>(tableID, [&](DatabaseTable &table) {
        const DatabaseTable before = table;
        edit(table);
        if (table != before)
            table.updatedDate = store.now();
    });
}

void DatabaseOperations::changeView(WorkspaceStore &store, const QUuid &tableID, const QUuid &viewID,
                                    const QString &name, const std::function<void(DBView &)> &edit)
{
    change(store, tableID, name, [&](DatabaseTable &table) {
        const auto view = std::ranges::find(table.views, viewID, &DBView::id);
        if (view != table.views.end())
            edit(*view);
    });
}

void DatabaseOperations::changeProperty(WorkspaceStore &store, const QUuid &tableID,
                                        const DBProperty &property, const QHash<QString, QString> &renamed)
{
    const Action action(store, ActionText::tr("Change Property"));
    // The values are still in the form of the type that it had.
    bool isList = property.type == DBPropertyType::multiselect;
    change(store, tableID, {}, [&](DatabaseTable &table) {
        isList |= std::ranges::any_of(table.properties, [&](const DBProperty &other) {
            return other.id == property.id && other.type == DBPropertyType::multiselect;
        });
        std::ranges::replace_if(
            table.properties, [&](const DBProperty &other) { return other.id == property.id; }, property);
        for (DBView &view : table.views)
            for (DBFilter &filter : view.filters)
                if (filter.propID == property.id)
                    filter.value = withNewNames(filter.value, isList, renamed);
    });
    if (renamed.isEmpty())
        return;
    const QString key = DBRow::valueKey(property.id);
    QHash<QUuid, QString> changed;
    for (const DBRow *const row : rows(store, tableID)) {
        const QString before = row->values.value(key);
        if (const QString after = withNewNames(before, isList, renamed); after != before)
            changed.insert(row->id, after);
    }
    for (auto value = changed.cbegin(); value != changed.cend(); ++value)
        setValues(store, {{key, *value}}, value.key());
}

void DatabaseOperations::typeName(WorkspaceStore &store, const QUuid &tableID, const QString &text)
{
    typeText(store, tableID, QStringLiteral("name"), &DatabaseTable::name, text);
}

void DatabaseOperations::typeDetails(WorkspaceStore &store, const QUuid &tableID, const QString &text)
{
    typeText(store, tableID, QStringLiteral("details"), &DatabaseTable::details, text);
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
    setValues(store, {{DBRow::valueKey(propertyID), value}}, rowID);
}

void DatabaseOperations::setValues(WorkspaceStore &store, const QMap<QString, QString> &values,
                                   const QUuid &rowID)
{
    const Action action(store, ActionText::tr("Change Value"));
    store.change<DBRow>(rowID, [&](DBRow &row) {
        for (auto value = values.begin(); value != values.end(); ++value)
            row.values.insert(value.key(), value.value());
        row.updatedDate = store.now();
    });
}

void DatabaseOperations::typeValue(WorkspaceStore &store, const QString &value, const QUuid &propertyID,
                                   const QUuid &rowID)
{
    const DBRow *const row = store.list<DBRow>().first(rowID);
    const QString key = DBRow::valueKey(propertyID);
    const QString before = row ? row->values.value(key) : QString();
    if (!row || before == value)
        return;
    const Action action(store, Typing{.text = {rowID, key},
                                      .before = before,
                                      .after = value,
                                      .name = ActionText::tr("Change Value"),
                                      .isOneStep = true});
    setValue(store, value, propertyID, rowID);
}

QList<const DBRow *> DatabaseOperations::rows(const WorkspaceStore &store, const QUuid &tableID)
{
    return store.groups().rowsByTable.of(store.list<DBRow>(), tableID);
}
