#include "Features/Databases/ViewSettingsViewModel.h"

#include "Foundation/LineText.h"
#include "Store/DatabaseOperations.h"

#include <algorithm>
#include <utility>

ViewSettingsViewModel::ViewSettingsViewModel(QObject *parent) : ViewModel(parent)
{
    follow<DatabaseTable>();
}

void ViewSettingsViewModel::setTableID(const QUuid &tableID)
{
    if (std::exchange(m_tableID, tableID) == tableID)
        return;
    m_filterProperty.clear();
    m_filterValue.clear();
    emit formChanged();
    emit placeChanged();
    requestWholeRefresh();
}

void ViewSettingsViewModel::setViewID(const QUuid &viewID)
{
    if (std::exchange(m_viewID, viewID) == viewID)
        return;
    emit placeChanged();
    requestWholeRefresh();
}

QString ViewSettingsViewModel::propertyName(const QString &property) const
{
    const auto found = std::ranges::find(m_properties, property, &Choice::raw);
    return found == m_properties.end() ? QString() : found->label;
}

QString ViewSettingsViewModel::ruleName(const QUuid &property) const
{
    const QString name = propertyName(property.toString());
    return name.isEmpty() ? QStringLiteral("?") : name;
}

QString ViewSettingsViewModel::groupName() const
{
    return m_group.isEmpty() ? tr("None") : ruleName(QUuid(m_group));
}

void ViewSettingsViewModel::mutate(const QString &name, const std::function<void(DBView &)> &edit)
{
    DatabaseOperations::changeView(store(), m_tableID, m_viewID, name, edit);
    flush();
}

void ViewSettingsViewModel::setGroup(const QString &property)
{
    mutate(ActionText::tr("Change Grouping"), [&](DBView &view) {
        view.groupBy = property.isEmpty() ? std::nullopt : std::optional(QUuid(property));
    });
}

void ViewSettingsViewModel::setFilterProperty(const QString &property)
{
    if (std::exchange(m_filterProperty, property) != property)
        emit formChanged();
}

void ViewSettingsViewModel::setFilterOp(const QString &op)
{
    const auto value = enumFromRaw<FilterOp>(op);
    if (value && std::exchange(m_filterOp, *value) != *value)
        emit formChanged();
}

void ViewSettingsViewModel::setFilterValue(const QString &value)
{
    if (std::exchange(m_filterValue, value) != value)
        emit formChanged();
}

bool ViewSettingsViewModel::takesValue() const
{
    return m_filterOp != FilterOp::isEmpty && m_filterOp != FilterOp::isNotEmpty;
}

void ViewSettingsViewModel::addFilter()
{
    if (!canAddFilter())
        return;
    mutate(ActionText::tr("Add Filter"), [this](DBView &view) {
        view.filters.append({store().makeId(), QUuid(m_filterProperty), m_filterOp, m_filterValue});
    });
    setFilterValue({});
}

void ViewSettingsViewModel::removeFilter(const QUuid &filterID)
{
    mutate(ActionText::tr("Remove Filter"), [&](DBView &view) {
        view.filters.removeIf([&](const DBFilter &filter) { return filter.id == filterID; });
    });
}

void ViewSettingsViewModel::addSort(const QString &property)
{
    mutate(ActionText::tr("Add Sort"),
           [&](DBView &view) { view.sorts.append({store().makeId(), QUuid(property), false}); });
}

void ViewSettingsViewModel::toggleSort(const QUuid &sortID)
{
    mutate(ActionText::tr("Change Sort"), [&](DBView &view) {
        for (DBSort &sort : view.sorts)
            if (sort.id == sortID)
                sort.descending = !sort.descending;
    });
}

void ViewSettingsViewModel::removeSort(const QUuid &sortID)
{
    mutate(ActionText::tr("Remove Sort"),
           [&](DBView &view) { view.sorts.removeIf([&](const DBSort &sort) { return sort.id == sortID; }); });
}

void ViewSettingsViewModel::refresh(const ChangeSet &changes)
{
    if (!changes.of<DatabaseTable>().contains(m_tableID))
        return;
    const DatabaseTable *const table = store().list<DatabaseTable>().first(m_tableID);
    QList<Choice> properties;
    QList<ViewRuleRow> filters, sorts;
    QString group;
    if (table)
        for (const DBProperty &property : table->properties)
            properties.append({.raw = property.id.toString(),
                               .label = LineText::shownTitle(property.name),
                               .symbol = enumSymbol(property.type)});
    m_properties = std::move(properties);
    emit propertiesChanged();
    const DBView *view = nullptr;
    if (table)
        if (const auto found = std::ranges::find(table->views, m_viewID, &DBView::id);
            found != table->views.end())
            view = &*found;
    if (view) {
        for (const DBFilter &filter : view->filters)
            filters.append({filter.id, ruleName(filter.propID), enumLabel(filter.op), filter.value});
        for (const DBSort &sort : view->sorts)
            sorts.append(
                {sort.id, ruleName(sort.propID), sort.descending ? tr("descending") : tr("ascending"), {}});
        group = view->groupBy ? view->groupBy->toString() : QString();
    }
    m_filters.setRows(std::move(filters));
    m_sorts.setRows(std::move(sorts));
    m_group = group;
    emit viewChanged();
    emit formChanged();
}
