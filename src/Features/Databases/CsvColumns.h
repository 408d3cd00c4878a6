#pragma once

#include "Features/Databases/CsvReader.h"
#include "Models/DBRow.h"

#include <QLocale>

#include <array>

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

    /// @param text in UTF-8
    QString value(QByteArrayView text);

private:
    static constexpr qsizetype maxKnownSize = 24;

    /// A short text that has come before. Columns of few values share their strings by it.
    struct Known {
        std::array<char, std::size_t(maxKnownSize)> text{};
        qsizetype size = 0;
        QString value;
    };

    QString made(QByteArrayView text) const;

    DBProperty m_property;
    QByteArrayView m_dateForm;
    std::array<Known, 1024> m_known;
};
} // namespace CsvColumns
