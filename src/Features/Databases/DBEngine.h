#pragma once

#include "Models/DBRow.h"

#include <QLocale>
#include <QTimeZone>

#include <variant>

/// Rows that share a value; computed, never stored.
struct DBGroup {
    QString id;
    QString label;
    QList<const DBRow *> rows;

    bool operator==(const DBGroup &) const = default;
};

/// Pure functions that say which rows of a database a view shows, in which order and in which groups.
namespace DBEngine
{
using Rows = QList<const DBRow *>;

/// A value as "is before" and "is after" compare it: a day by its first moment, a number or a text.
using OrderingValue = std::variant<Timestamp, double, QString>;

/// The rows that match every filter, sorted by the view's sorts, of which the first counts most. Sorting is
/// stable in both directions. Filters and sorts of properties that are gone do nothing.
Rows applyView(const Rows &rows, const QList<DBProperty> &properties, const DBView &view,
               const QTimeZone &zone, const QLocale &locale = QLocale());

/// The rows by their value of the property: options in their order, then other values as they come, "No
/// value" last. Composed and decomposed forms of a text are one value. Without a property all rows make one
/// group.
QList<DBGroup> groupRows(const Rows &rows, const DBProperty *property);

/// The label of the group of empty values.
QString noValue();

/// One filter on one row; a filter on no property lets every row through.
bool matches(const DBRow &row, const DBProperty *property, const DBFilter &filter, const QTimeZone &zone);

/// The text as the property's type orders it; nothing if it doesn't parse.
std::optional<OrderingValue> comparable(const QString &text, const DBProperty &property,
                                        const QTimeZone &zone);

/// Whether `a` comes before `b` in a sort.
bool compare(const QString &a, const QString &b, bool descending, const QLocale &locale = QLocale());

/// The columns of a new database, with new ids.
QList<DBProperty> defaultProperties();
} // namespace DBEngine
