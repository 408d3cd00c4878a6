#pragma once

#include "Features/Databases/CsvTable.h"

#include <QByteArray>

#include <expected>
#include <functional>

/// Reads comma-separated values (RFC 4180): UTF-8 with or without its mark, UTF-16, or else Windows-1252;
/// commas, semicolons or tabs, whichever divides the first row into most cells.
namespace CsvReader
{
/// Told the share that is done, 0 to 1; false cancels.
using Progress = std::function<bool(double)>;

/// Fails with the sentence that the user will see, which is empty if it was cancelled. Cells beyond the names
/// are dropped, missing ones are empty.
std::expected<CsvTable, QString> read(const QByteArray &file, const Progress &progress);

/// The character between the cells of the text.
char separatorOf(QByteArrayView text);
} // namespace CsvReader
