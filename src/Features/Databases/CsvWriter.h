#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

/// Writes comma-separated values (RFC 4180), as UTF-8 with its mark, by which spreadsheet programs know it.
namespace CsvWriter
{
QByteArray write(const QStringList &names, const QList<QStringList> &rows);
/// Writes one more row behind what is there.
void append(QByteArray &file, const QStringList &row);

/// The text as a spreadsheet program does not run it: with "'" before a beginning that would make it a
/// formula. Numbers are left as they are.
QString guarded(const QString &text);
/// Takes that back, of a text in UTF-8.
QByteArrayView unguarded(QByteArrayView text);
} // namespace CsvWriter
