#include "Features/Tasks/TaskDay.h"

#include "Support/OVDate.h"

TaskDay::TaskDay(const Clock &clock)
    : m_zone(clock.timeZone()),
      m_now(clock.now()),
      m_today(OVDate::startOfDay(clock.today(), m_zone)),
      m_tomorrow(OVDate::startOfDay(clock.today().addDays(1), m_zone)),
      m_inAWeek(OVDate::startOfDay(clock.today().addDays(7), m_zone))
{
}

QString TaskDay::label(Timestamp due) const
{
    QString &label = m_labels[due.time_since_epoch().count()];
    if (label.isEmpty())
        label = isToday(due) ? tr("Today") : OVDate::medium(OVDate::day(due, m_zone));
    return label;
}
