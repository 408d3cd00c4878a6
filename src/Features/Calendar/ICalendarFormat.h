#pragma once

#include <QString>
#include <QTimeZone>

#include <libical/ical.h>
#include <memory>

/// What reading and writing iCalendar files share.
namespace ICalendarFormat
{
struct Free {
    void operator()(icalcomponent *component) const { icalcomponent_free(component); }
    void operator()(icalparser *parser) const { icalparser_free(parser); }
    void operator()(icalrecur_iterator *iterator) const { icalrecur_iterator_free(iterator); }
    void operator()(char *text) const { icalmemory_free_buffer(text); }
};
using Component = std::unique_ptr<icalcomponent, Free>;
using Parser = std::unique_ptr<icalparser, Free>;
using Repetition = std::unique_ptr<icalrecur_iterator, Free>;
using Text = std::unique_ptr<char, Free>;

/// Keeps the moment of an event of this program, of which a calendar tells the day only.
inline constexpr char momentProperty[] = "X-ORVEL-MOMENT";

icaltimetype dateOf(QDate day);
icaltimetype utcOf(const QDateTime &moment);
/// The date and time as they are written, whatever the time zone; invalid for no date.
QDateTime written(const icaltimetype &time, const QTimeZone &zone);
bool isReadable(const icaltimetype &time);
/// The date and time as they are written.
QString keyOf(const icaltimetype &time);
icalproperty *first(icalcomponent *component, icalproperty_kind kind);
/// The text of the first property of this kind; empty for none.
QString textOf(icalcomponent *component, icalproperty_kind kind);
} // namespace ICalendarFormat
