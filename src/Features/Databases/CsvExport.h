#pragma once

#include "Models/DBRow.h"

#include <QLocale>
#include <QTimeZone>

#include <expected>
#include <functional>

/// Writes records of a database to a file.
namespace CsvExport
{
/// What is written. It shares the records with the store and can be handed to another thread.
struct Source {
    QUuid tableID;
    QList<DBProperty> properties;
    /// Of all databases.
    QList<DBRow> records;
    /// Says which records are written in which order.
    DBView view;
    QTimeZone zone;
    QLocale locale;
};

/// Told the share that is done, 0 to 1; false cancels.
using Progress = std::function<bool(double)>;

/// Writes the file as a whole or not at all. Fails with the sentence that the user will see, which is empty
/// if it was cancelled.
std::expected<void, QString> write(const Source &source, const QString &path, const Progress &progress);
} // namespace CsvExport
