#include "Features/Databases/DBPlace.h"

#include "Features/Databases/DBValue.h"

#include <algorithm>

namespace
{
const DBProperty *find(const QList<DBProperty> &properties, const QUuid &id)
{
    const auto found = std::ranges::find(properties, id, &DBProperty::id);
    return found == properties.end() ? nullptr : &*found;
}
} // namespace

DBPlace::DBPlace(const QList<DBProperty> &properties, const DBView &view, const QTimeZone &zone,
                 const QLocale &locale)
    : m_properties(properties), m_filters(view.filters), m_zone(zone), m_order(locale)
{
    for (const DBSort &sort : view.sorts)
        if (find(properties, sort.propID))
            m_sorts.push_back({.key = DBRow::valueKey(sort.propID), .descending = sort.descending});
}

bool DBPlace::takes(const DBRow &row) const
{
    return std::ranges::all_of(m_filters, [&](const DBFilter &filter) {
        return DBEngine::matches(row, find(m_properties, filter.propID), filter, m_zone);
    });
}

bool DBPlace::comesFirst(const DBRow &a, const DBRow &b) const
{
    for (const Sort &sort : m_sorts) {
        const QString left = a.values.value(sort.key), right = b.values.value(sort.key);
        if (m_order.comesFirst(left, right, sort.descending))
            return true;
        if (m_order.comesFirst(right, left, sort.descending))
            return false;
    }
    return false;
}

void DBPlace::add(const DBRow &row)
{
    for (Sort &sort : m_sorts) {
        const QString value = row.values.value(sort.key);
        if (value.isEmpty())
            continue;
        bool &kind = DBValue::number(value) ? sort.hasNumbers : sort.hasTexts;
        kind = true;
    }
}

bool DBPlace::isOrder() const
{
    return std::ranges::none_of(m_sorts, [](const Sort &sort) { return sort.hasNumbers && sort.hasTexts; });
}
