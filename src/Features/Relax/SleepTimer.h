#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

/// Counts down to the end of a rest. It goes by a clock that nobody can set and that goes on while the
/// machine is suspended.
class SleepTimer : public QObject
{
    Q_OBJECT

public:
    using Now = std::function<std::chrono::milliseconds()>;

    /// The time since the machine was started, suspended or not.
    static std::chrono::milliseconds machineTime();

    explicit SleepTimer(QObject *parent = nullptr);

    /// For tests.
    void setNow(Now now) { m_now = std::move(now); }

    bool isRunning() const { return m_end.has_value(); }
    /// Whole seconds, rounded up; 0 while it does not run.
    int secondsLeft() const { return m_secondsLeft; }
    /// Starts anew, in the place of what was running.
    void start(std::chrono::minutes duration);
    void stop();
    /// Looks at the clock, as it does each second.
    void tick();

signals:
    void changed();
    void finished();

private:
    Now m_now = &SleepTimer::machineTime;
    std::optional<std::chrono::milliseconds> m_end;
    int m_secondsLeft = 0;
    QTimer m_ticks;
};
