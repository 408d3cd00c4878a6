#pragma once

#include "Foundation/EnumTable.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>

/// How the calendar lays out days.
enum class CalendarMode { month, week, day, agenda };

template <>
struct EnumTable<CalendarMode> {
    static constexpr auto cases = std::to_array<EnumCase<CalendarMode>>({
        {CalendarMode::month, "month", QT_TRANSLATE_NOOP("EnumLabel", "month")},
        {CalendarMode::week, "week", QT_TRANSLATE_NOOP("EnumLabel", "week")},
        {CalendarMode::day, "day", QT_TRANSLATE_NOOP("EnumLabel", "day")},
        {CalendarMode::agenda, "agenda", QT_TRANSLATE_NOOP("EnumLabel", "agenda")},
    });
};

/// The days that the calendar shows at once. The cursor is a day of the month or week shown, and the first
/// day of the agenda.
class CalendarPeriod
{
    Q_DECLARE_TR_FUNCTIONS(CalendarPeriod)

public:
    static constexpr int agendaDays = 30;

    /// The cursor so many periods away; the same day where the calendar ends.
    static QDate stepped(CalendarMode mode, QDate cursor, int delta);
    /// Whether the calendar reaches this day: the years 1 to 9999, which the file can hold.
    static bool reaches(QDate day);

    /// What stands over the days; the day mode shows the selected one.
    static QString label(CalendarMode mode, QDate cursor, QDate selected);
    /// All days shown. Of a month these are whole weeks.
    static QList<QDate> days(CalendarMode mode, QDate cursor, QDate selected);
};
