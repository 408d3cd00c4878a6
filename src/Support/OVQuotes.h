#pragma once

#include "Foundation/Timestamp.h"
#include "Support/Quotes.h"

#include <QList>

#include <optional>

class QRandomGenerator;

/// The forty quotes of the program, all from authors long in the public domain and found in their works.
namespace OVQuotes
{
const QList<Quote> &all();

/// Whole days since 2020-09-13 in the clock's time zone; 0 for all days before it.
qint64 dayIndex(Timestamp now, const QTimeZone &zone);

/// The quote that is shown on this day; it changes at local midnight and comes again after forty days.
const Quote &ofTheDay(Timestamp now, const QTimeZone &zone);

/// Any quote but the one excluded, each as likely as the others.
const Quote &random(const std::optional<Quote> &excluded, QRandomGenerator &generator);
} // namespace OVQuotes
