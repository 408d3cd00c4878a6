#pragma once

#include "Foundation/BadgeTone.h"
#include "Foundation/Timestamp.h"
#include "Models/DatabaseTable.h"

#include <QByteArrayView>
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
/// The tone of a choice by what its text speaks of, such as success for "Done".
BadgeTone tone(const QString &text);
/// What is written of a text that is typed or pasted into a cell of this type: numbers and progress keep only
/// their own characters.
QString typed(DBPropertyType type, const QString &text);
/// What a text from another program becomes in a property of this type: an option in its own spelling, a day
/// in the form of the file, "true" for a checked box. What the type can't hold stays as it is.
QString pasted(const DBProperty &property, const QString &text);
/// The chosen options with this one taken out, or put at their end if it was not among them.
QString toggled(const QString &value, const QString &option);
/// The number that the whole text is, in the C locale and without surrounding blanks; nothing for any other
/// text. "nan" and "inf" are words here.
std::optional<double> number(const QString &value);
/// The same of a text in UTF-8.
std::optional<double> number(QByteArrayView value);
} // namespace DBValue
