#include "Features/Projects/ActivityLine.h"

#include "Foundation/LineText.h"
#include "Support/OVDate.h"

ActivityLine ActivityLine::of(const Activity &activity, QDate today, const QTimeZone &zone)
{
    return {activity.id, activity.text, OVDate::day(activity.date, zone), today};
}

QString ActivityLine::shownText() const
{
    return LineText::shown(text);
}

QString ActivityLine::dateText() const
{
    return OVDate::relative(day, today);
}
