#include "Features/Databases/DBEngine.h"

#include "Features/Databases/DBOrder.h"
#include "Features/Databases/DBValue.h"
#include "Support/OVDate.h"

#include <algorithm>
#include <compare>
#include <numeric>

namespace
{
QString composed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}

/// Compares by Unicode scalars, which UTF-16 units do not do beyond the basic plane.
int compareScalars(const QString &a, const QString &b)
{
    const QList<uint> left = composed(a).toUcs4(), right = composed(b).toUcs4();
    const auto order =
        std::lexicographical_compare_three_way(left.begin(), left.end(), right.begin(), right.end());
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

int compareValues(const DBEngine::OrderingValue &a, const DBEngine::OrderingValue &b)
{
    if (const auto *text = std::get_if<QString>(&a))
        return compareScalars(*text, std::get<QString>(b));
    return a < b ? -1 : (b < a ? 1 : 0);
}

/// A filter with all that does not depend on the row made ready once.
class PreparedFilter
{
public:
    PreparedFilter(const DBFilter &filter, const DBProperty &property, const QTimeZone &zone)
        : m_op(filter.op),
          m_property(property),
          m_zone(zone),
          m_key(DBRow::valueKey(property.id)),
          m_text(filter.value.toLower()),
          m_composed(composed(m_text)),
          m_isChecked(DBValue::isChecked(m_text))
    {
        if (m_op == FilterOp::before || m_op == FilterOp::after)
            m_comparable = DBEngine::comparable(m_text, property, zone);
    }

    bool matches(const DBRow &row) const
    {
        const QString value = row.values.value(m_key).toLower();
        switch (m_op) {
        case FilterOp::isExactly:
            return isExactly(value);
        case FilterOp::isNot:
            return !isExactly(value);
        case FilterOp::contains:
            return !m_composed.isEmpty() && composed(value).contains(m_composed);
        case FilterOp::isEmpty:
            return DBValue::isEmpty(value);
        case FilterOp::isNotEmpty:
            return !DBValue::isEmpty(value);
        case FilterOp::before:
            return !value.isEmpty() && order(value) < 0;
        case FilterOp::after:
            return !value.isEmpty() && order(value) > 0;
        }
        return true;
    }

private:
    bool isExactly(const QString &value) const
    {
        if (m_property.type == DBPropertyType::checkbox)
            return DBValue::isChecked(value) == m_isChecked;
        return composed(value) == m_composed;
    }

    int order(const QString &value) const
    {
        const auto own = DBEngine::comparable(value, m_property, m_zone);
        return own && m_comparable ? compareValues(*own, *m_comparable) : compareScalars(value, m_text);
    }

    FilterOp m_op;
    DBProperty m_property;
    QTimeZone m_zone;
    QString m_key;
    QString m_text;
    QString m_composed;
    bool m_isChecked;
    std::optional<DBEngine::OrderingValue> m_comparable;
};

const DBProperty *find(const QList<DBProperty> &properties, const QUuid &id)
{
    const auto found = std::ranges::find(properties, id, &DBProperty::id);
    return found == properties.end() ? nullptr : &*found;
}

/// Places of the rows under one sort; lower comes first.
QList<int> ranks(const DBEngine::Rows &rows, const DBSort &sort, const DBOrder &order)
{
    const QString key = DBRow::valueKey(sort.propID);
    QList<QString> values;
    values.reserve(rows.size());
    for (const DBRow *row : rows)
        values.append(row->values.value(key));
    QList<int> ranks = order.ranks(values);
    if (sort.descending)
        for (int &rank : ranks)
            rank = -rank;
    return ranks;
}

DBEngine::Rows sorted(const DBEngine::Rows &rows, const QList<DBSort> &sorts, const QLocale &locale)
{
    const DBOrder order(locale);
    std::vector<QList<int>> ranksBySort;
    for (const DBSort &sort : sorts)
        ranksBySort.push_back(ranks(rows, sort, order));
    QList<int> places(rows.size());
    std::iota(places.begin(), places.end(), 0);
    std::ranges::stable_sort(places, [&ranksBySort](int a, int b) {
        for (const QList<int> &ranks : ranksBySort)
            if (ranks[a] != ranks[b])
                return ranks[a] < ranks[b];
        return false;
    });
    DBEngine::Rows result;
    result.reserve(rows.size());
    for (const int place : places)
        result.append(rows[place]);
    return result;
}
} // namespace

DBEngine::Rows DBEngine::applyView(const Rows &rows, const QList<DBProperty> &properties, const DBView &view,
                                   const QTimeZone &zone, const QLocale &locale)
{
    std::vector<PreparedFilter> filters;
    for (const DBFilter &filter : view.filters)
        if (const DBProperty *property = find(properties, filter.propID))
            filters.emplace_back(filter, *property, zone);
    Rows visible = rows;
    if (!filters.empty())
        visible.removeIf([&filters](const DBRow *row) {
            return !std::ranges::all_of(filters,
                                        [row](const PreparedFilter &filter) { return filter.matches(*row); });
        });

    QList<DBSort> sorts = view.sorts;
    sorts.removeIf([&properties](const DBSort &sort) { return !find(properties, sort.propID); });
    return sorts.isEmpty() ? visible : sorted(visible, sorts, locale);
}

QList<DBGroup> DBEngine::groupRows(const Rows &rows, const DBProperty *property)
{
    if (!property)
        return {{QStringLiteral("__all__"), QStringLiteral("All"), rows}};
    const QString noValue = DBEngine::noValue();
    const QString valueKey = DBRow::valueKey(property->id);
    QList<DBGroup> groups;
    QHash<QString, qsizetype> indexOf;
    for (const DBRow *row : rows) {
        const QString value = row->values.value(valueKey);
        const QString key = DBValue::isEmpty(value) ? noValue : composed(value);
        auto index = indexOf.constFind(key);
        if (index == indexOf.cend()) {
            index = indexOf.insert(key, groups.size());
            groups.append({key, key, {}});
        }
        groups[*index].rows.append(row);
    }
    if (property->options.isEmpty())
        return groups;
    QHash<QString, qsizetype> positionOf;
    for (const QString &option : property->options)
        if (!positionOf.contains(composed(option)))
            positionOf.insert(composed(option), positionOf.size());
    const auto position = [&](const DBGroup &group) {
        if (group.id == noValue)
            return property->options.size() + 1;
        return positionOf.value(group.id, property->options.size());
    };
    std::ranges::stable_sort(groups, std::less(), position);
    return groups;
}

QString DBEngine::noValue()
{
    return QStringLiteral("No value");
}

bool DBEngine::matches(const DBRow &row, const DBProperty *property, const DBFilter &filter,
                       const QTimeZone &zone)
{
    return !property || PreparedFilter(filter, *property, zone).matches(row);
}

std::optional<DBEngine::OrderingValue> DBEngine::comparable(const QString &text, const DBProperty &property,
                                                            const QTimeZone &zone)
{
    switch (property.type) {
    case DBPropertyType::number:
    case DBPropertyType::progress:
        return DBValue::number(text);
    case DBPropertyType::date:
        if (const auto day = DBValue::date(text))
            return OVDate::startOfDay(*day, zone);
        return DBValue::moment(text);
    default:
        return text;
    }
}

bool DBEngine::compare(const QString &a, const QString &b, bool descending, const QLocale &locale)
{
    return DBOrder(locale).comesFirst(a, b, descending);
}

QList<DBProperty> DBEngine::defaultProperties()
{
    return {{QUuid::createUuid(), QStringLiteral("Name"), DBPropertyType::text, {}},
            {QUuid::createUuid(),
             QStringLiteral("Status"),
             DBPropertyType::select,
             {QStringLiteral("Not started"), QStringLiteral("In progress"), QStringLiteral("Done")}},
            {QUuid::createUuid(), QStringLiteral("Date"), DBPropertyType::date, {}}};
}
