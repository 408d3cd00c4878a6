#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QList>
#include <QLocale>

#include <optional>

/// Days in the forms in which programs write them, such as "d.M.yyyy" and "MMM d, yyyy".
namespace CsvDays
{
/// The forms that are known. Where day and month can't be told apart, the locale's own order comes first.
QList<QByteArrayView> forms(const QLocale &locale);

/// The day that the whole text writes in this form. Names of months are English; years of two digits are
/// those from 1930 to 2029.
std::optional<QDate> parse(QByteArrayView text, QByteArrayView form);
} // namespace CsvDays
