#pragma once

#include "Features/Databases/DBEngine.h"
#include "Features/Databases/DBOrder.h"

#include <vector>

/// Where single rows stand in a view whose rows are in order already, so that a changed value moves its row
/// and not the table.
class DBPlace
{
public:
    DBPlace(const QList<DBProperty> &properties, const DBView &view, const QTimeZone &zone,
            const QLocale &locale = QLocale());

    /// Whether all filters take the row.
    bool takes(const DBRow &row) const;
    /// Whether the sorts put one row before the other.
    bool comesFirst(const DBRow &a, const DBRow &b) const;

    /// Takes note of the values by which a row of the view is sorted.
    void add(const DBRow &row);
    /// Whether `comesFirst` is an order over all rows that were added: numbers and texts in one property may
    /// make a circle, and then the place of a row depends on all others.
    bool isOrder() const;

private:
    struct Sort {
        QString key;
        bool descending = false;
        bool hasNumbers = false;
        bool hasTexts = false;
    };

    QList<DBProperty> m_properties;
    QList<DBFilter> m_filters;
    QTimeZone m_zone;
    DBOrder m_order;
    std::vector<Sort> m_sorts;
};
