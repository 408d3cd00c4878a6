#pragma once

#include "Foundation/Clock.h"

/// A clock that stands still until a test moves it. It starts on Friday 2026-03-13 at 09:30 UTC.
class ManualClock : public Clock
{
public:
    explicit ManualClock(const QTimeZone &zone = QTimeZone::utc()) : m_timeZone(zone) {}

    Timestamp now() const override { return m_now; }
    QTimeZone timeZone() const override { return m_timeZone; }

    /// Moves the clock and announces that, and a new day if it has become one.
    void setNow(Timestamp now)
    {
        const QDate before = today();
        m_now = now;
        if (today() != before)
            emit dayChanged();
        emit ticked();
    }
    void advance(std::chrono::milliseconds by) { setNow(m_now + by); }
    void setTimeZone(const QTimeZone &zone)
    {
        m_timeZone = zone;
        emit dayChanged();
    }

private:
    Timestamp m_now = Timestamp(std::chrono::milliseconds(1773394200000));
    QTimeZone m_timeZone;
};
