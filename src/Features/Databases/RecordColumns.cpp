#include "Features/Databases/RecordsViewModel.h"
#include "Store/DatabaseOperations.h"

void RecordsViewModel::editProperty(int column)
{
    if (column >= 0 && column < m_columns.size())
        emit propertyEditRequested(m_columns.at(column).property.id);
}

void RecordsViewModel::sortBy(int column, bool descending)
{
    if (column < 0 || column >= m_columns.size())
        return;
    const QUuid property = m_columns.at(column).property.id;
    DatabaseOperations::changeView(
        store(), m_tableID, m_viewID, ActionText::tr("Add Sort"), [&](DBView &view) {
            view.sorts.removeIf([&](const DBSort &sort) { return sort.propID == property; });
            view.sorts.prepend({store().makeId(), property, descending});
        });
    flush();
}

bool RecordsViewModel::canMoveColumn(int column, int places) const
{
    // The first column names the records and stays where it is.
    return column > 0 && column < m_columns.size() && column + places > 0 &&
           column + places < m_columns.size();
}

void RecordsViewModel::moveColumn(int column, int places)
{
    if (!canMoveColumn(column, places))
        return;
    // In the order shown, so that another text never becomes the first one and thereby the title.
    QList<DBProperty> properties;
    for (const RecordColumn &shown : std::as_const(m_columns))
        properties.append(shown.property);
    properties.move(column, column + places);
    DatabaseOperations::change(store(), m_tableID, ActionText::tr("Move Property"),
                               [&](DatabaseTable &table) { table.properties = properties; });
    flush();
}

void RecordsViewModel::removeColumn(int column)
{
    if (column < 0 || column >= m_columns.size())
        return;
    const QUuid removed = m_columns.at(column).property.id;
    {
        const Action action(store(), ActionText::tr("Delete Property"));
        action.setMessage(ActionText::tr("Property deleted"));
        DatabaseOperations::change(store(), m_tableID, {}, [&](DatabaseTable &table) {
            table.properties.removeIf([&](const DBProperty &property) { return property.id == removed; });
        });
    }
    flush();
}
