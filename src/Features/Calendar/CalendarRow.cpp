#include "Features/Calendar/CalendarRow.h"

#include "Foundation/LineText.h"
#include "Support/OVDate.h"

QString CalendarRow::id() const
{
    return item ? item->id : OVDate::dayKey(day);
}

QString CalendarRow::kindText() const
{
    return item ? QStringLiteral("item") : QStringLiteral("date");
}

QString CalendarRow::title() const
{
    return item ? LineText::shown(item->title) : QString();
}

QString CalendarRow::notes() const
{
    return item ? LineText::shown(item->notes.trimmed()) : QString();
}

QString CalendarRow::timeText() const
{
    return item ? item->timeLabel.value_or(QString()) : QString();
}

QString CalendarRow::dateText() const
{
    return OVDate::weekdayLongDay(day);
}
