#pragma once

#include "Features/Databases/CsvReader.h"
#include "Models/DBRow.h"

#include <QLocale>

/// What becomes of the columns of a file in a database.
namespace CsvColumns
{
/// Most options that a select is given by itself.
inline constexpr qsizetype maxOptions = 20;
/// Most options where the user has chosen such a type; other values stay in the records without one.
inline constexpr qsizetype maxChosenOptions = 500;

/// Properties for the columns, without ids: named by the first row, of the type that all values agree on.
QList<DBProperty> guess(const CsvTable &table, const QLocale &locale = QLocale());

/// The property with another type, and the options that this type needs.
DBProperty withType(const DBProperty &property, DBPropertyType type, const CsvTable &table, qsizetype column);

/// The property of this name, case aside, for each column of the file; -1 where there is none.
QList<qsizetype> match(const QStringList &names, const QList<DBProperty> &properties);

/// Turns texts of a column into values of a property, knowing in which form all of them write their days.
class Converter
{
public:
    Converter(const DBProperty &property, const CsvTable &table, qsizetype column,
              const QLocale &locale = QLocale());

    QString value(const QString &text) const;

private:
    DBProperty m_property;
    QString m_dateForm;
};
} // namespace CsvColumns
