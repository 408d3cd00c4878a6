#include "Support/HabitDays.h"

#include "Support/OVDate.h"

#include <algorithm>

namespace
{
bool isDone(const Habit &habit, QDate day)
{
    return habit.completions.contains(OVDate::dayKey(day));
}

/// A day with its key, which goes back day by day faster than each key could be made anew.
class DayCursor
{
public:
    explicit DayCursor(QDate day) : m_day(day), m_key(OVDate::dayKey(day)) {}

    const QString &key() const { return m_key; }

    void stepBack()
    {
        m_day = m_day.addDays(-1);
        const qsizetype last = m_key.size() - 1;
        if (m_key.at(last) > u'1') {
            // Within a ten of days only the last figure changes.
            m_key[last] = QChar(char16_t(m_key.at(last).unicode() - 1));
            return;
        }
        m_key = OVDate::dayKey(m_day);
    }

private:
    QDate m_day;
    QString m_key;
};
} // namespace

// Day keys sort as their days do, so one walk from today to the past sees each day of the streak once.
qsizetype HabitDays::currentStreak(const Habit &habit, QDate today)
{
    DayCursor cursor(today);
    auto day = std::make_reverse_iterator(habit.completions.upper_bound(cursor.key()));
    const auto isAtCursor = [&] {
        // What is no day key may stand between two days.
        while (day != habit.completions.rend() && *day > cursor.key())
            ++day;
        return day != habit.completions.rend() && *day == cursor.key();
    };
    if (!isAtCursor())
        cursor.stepBack();
    qsizetype days = 0;
    for (; isAtCursor(); cursor.stepBack())
        ++days;
    return days;
}

qsizetype HabitDays::weeklyCount(const Habit &habit, QDate today)
{
    return std::ranges::count_if(OVDate::days(OVDate::startOfWeek(today), today),
                                 [&habit](QDate day) { return isDone(habit, day); });
}
