#include "Foundation/SystemClock.h"

#include <QDateTime>

using namespace std::chrono;

SystemClock::SystemClock(QObject *parent)
    : SystemClock({[] { return floor<milliseconds>(system_clock::now()); }, &QTimeZone::systemTimeZone},
                  parent)
{
}

SystemClock::SystemClock(Source source, QObject *parent)
    : Clock(parent), m_source(std::move(source)), m_timeZone(m_source.timeZone()), m_day(today())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &SystemClock::check);
    m_timer.start(untilNextLook());
}

Timestamp SystemClock::now() const
{
    return m_source.now();
}

QTimeZone SystemClock::timeZone() const
{
    return m_timeZone;
}

void SystemClock::check()
{
    const QTimeZone zone = m_source.timeZone();
    const bool zoneChanged = zone != m_timeZone;
    m_timeZone = zone;
    const QDate day = today();
    const bool dayHasChanged = day != m_day;
    m_day = day;
    m_timer.start(untilNextLook());
    if (zoneChanged || dayHasChanged)
        emit dayChanged();
    emit ticked();
}

milliseconds SystemClock::untilNextLook() const
{
    const QDateTime midnight = m_day.addDays(1).startOfDay(m_timeZone);
    const auto remaining = milliseconds(midnight.toMSecsSinceEpoch()) - now().time_since_epoch();
    return std::clamp<milliseconds>(remaining, milliseconds(1), minutes(1));
}
