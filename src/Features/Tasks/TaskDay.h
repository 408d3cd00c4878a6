#pragma once

#include "Foundation/Clock.h"

#include <QCoreApplication>
#include <QHash>

/// The present as due dates are judged by it: its moments are worked out once for a whole list, since asking
/// a time zone costs far more than comparing.
class TaskDay
{
    Q_DECLARE_TR_FUNCTIONS(TaskDay)

public:
    explicit TaskDay(const Clock &clock);

    bool isToday(Timestamp due) const { return due >= m_today && due < m_tomorrow; }
    bool isPast(Timestamp due) const { return due < m_today; }
    /// From this moment until the start of the day in a week, that moment included.
    bool isUpcoming(Timestamp due) const { return due > m_now && due <= m_inAWeek; }
    /// "Today", or the day without its year.
    QString label(Timestamp due) const;
    /// The moment from which on `isUpcoming` is judged, which moves on within the day.
    void setNow(Timestamp now) { m_now = now; }

private:
    QTimeZone m_zone;
    Timestamp m_now;
    Timestamp m_today;
    Timestamp m_tomorrow;
    Timestamp m_inAWeek;
    /// Working out a label costs far more than finding it again, and many tasks are due together.
    mutable QHash<qint64, QString> m_labels;
};
