#pragma once

#include "Foundation/Clock.h"

#include <QTimer>

#include <functional>

/// The machine's clock. It looks at the day at local midnight and at least once a minute, which also catches
/// a machine that has slept and a changed time zone.
class SystemClock : public Clock
{
    Q_OBJECT

public:
    /// Where the moment and the time zone come from.
    struct Source {
        std::function<Timestamp()> now;
        std::function<QTimeZone()> timeZone;
    };

    explicit SystemClock(QObject *parent = nullptr);
    explicit SystemClock(Source source, QObject *parent = nullptr);

    Timestamp now() const override;
    QTimeZone timeZone() const override;

    /// Looks at the day at once; the application calls it when it wakes or becomes active.
    void check();

    /// How long the clock sleeps before it looks again: until local midnight, a minute at most.
    std::chrono::milliseconds untilNextLook() const;

private:
    Source m_source;
    QTimer m_timer;
    QTimeZone m_timeZone;
    QDate m_day;
};
