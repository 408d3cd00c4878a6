#pragma once

#include "Foundation/Timestamp.h"

#include <QDate>
#include <QStringList>

#include <optional>

/// What the texts stored in rows mean.
namespace DBValue
{
/// Blank, or the text "false" as it is written by an unchecked box.
bool isEmpty(const QString &value);
/// "true", "1", "yes" or "✓", case aside.
bool isChecked(const QString &value);
/// The chosen options of a multi-select value, trimmed, without empty ones.
QStringList options(const QString &value);
/// The day of a date value; nothing if it is none.
std::optional<QDate> date(const QString &value);
/// The moment of a text such as "2024-03-01T09:30:00+05:30" or "2024-03-01T04:00:00Z", case aside; nothing
/// for any other text.
std::optional<Timestamp> moment(const QString &value);
/// The share of a progress value, which is stored in percent, from 0 to 1; 0 if it is no number.
double progress(const QString &value);
/// The number that the whole text is, in the C locale and without surrounding blanks; nothing for any other
/// text. "nan" and "inf" are words here.
std::optional<double> number(const QString &value);
} // namespace DBValue
