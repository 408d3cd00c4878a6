#pragma once

#include "Features/Databases/CsvReader.h"
#include "Models/DBRow.h"

#include <QLocale>

/// Makes records of what was read from a file.
namespace CsvRecords
{
/// What becomes of a file.
struct Plan {
    DatabaseTable table;
    /// The position of the property for each column of the file; -1 for a column that is left out.
    QList<qsizetype> propertyOf;
    Timestamp now;
    QLocale locale;
};

/// The records in the order of the file; nothing if it was cancelled. Their ids are null.
std::optional<QList<DBRow>> make(const CsvTable &file, const Plan &plan, const CsvReader::Progress &progress);
} // namespace CsvRecords
