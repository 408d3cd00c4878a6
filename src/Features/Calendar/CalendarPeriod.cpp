#include "Features/Calendar/CalendarPeriod.h"

#include "Support/OVDate.h"

QDate CalendarPeriod::stepped(CalendarMode mode, QDate cursor, int delta)
{
    const auto next = [&] {
        switch (mode) {
        case CalendarMode::month:
            return cursor.addMonths(delta);
        case CalendarMode::week:
            return cursor.addDays(7 * delta);
        case CalendarMode::day:
            return cursor.addDays(delta);
        case CalendarMode::agenda:
            return cursor.addDays(agendaDays * delta);
        }
        return cursor;
    }();
    return reaches(next) ? next : cursor;
}

bool CalendarPeriod::reaches(QDate day)
{
    return day.isValid() && day.year() >= 1 && day.year() <= 9999;
}

QString CalendarPeriod::label(CalendarMode mode, QDate cursor, QDate selected)
{
    switch (mode) {
    case CalendarMode::month:
        return OVDate::monthYear(cursor);
    case CalendarMode::week:
        return tr("Week of %1").arg(OVDate::medium(OVDate::startOfWeek(cursor)));
    case CalendarMode::day:
        return OVDate::longDate(selected);
    case CalendarMode::agenda:
        return tr("Agenda · next 30 days");
    }
    return {};
}

QList<QDate> CalendarPeriod::days(CalendarMode mode, QDate cursor, QDate selected)
{
    switch (mode) {
    case CalendarMode::month:
        return OVDate::days(OVDate::startOfWeek(OVDate::startOfMonth(cursor)),
                            OVDate::endOfWeek(OVDate::endOfMonth(cursor)));
    case CalendarMode::week:
        return OVDate::days(OVDate::startOfWeek(cursor), OVDate::endOfWeek(cursor));
    case CalendarMode::day:
        return {selected};
    case CalendarMode::agenda:
        return OVDate::days(cursor, cursor.addDays(agendaDays - 1));
    }
    return {};
}
