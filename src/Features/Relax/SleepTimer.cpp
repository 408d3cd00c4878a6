#include "Features/Relax/SleepTimer.h"

#include <ctime>

using namespace std::chrono_literals;

std::chrono::milliseconds SleepTimer::machineTime()
{
    timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::seconds(time.tv_sec) +
                                                                 std::chrono::nanoseconds(time.tv_nsec));
}

SleepTimer::SleepTimer(QObject *parent) : QObject(parent)
{
    m_ticks.setInterval(1s);
    m_ticks.setTimerType(Qt::PreciseTimer);
    connect(&m_ticks, &QTimer::timeout, this, &SleepTimer::tick);
}

void SleepTimer::start(std::chrono::minutes duration)
{
    m_end = m_now() + duration;
    m_ticks.start();
    m_secondsLeft = 0;
    tick();
}

void SleepTimer::stop()
{
    if (!m_end)
        return;
    m_end.reset();
    m_ticks.stop();
    m_secondsLeft = 0;
    emit changed();
}

void SleepTimer::tick()
{
    if (!m_end)
        return;
    const auto left = *m_end - m_now();
    if (left <= 0ms) {
        stop();
        emit finished();
        return;
    }
    const int seconds = int(std::chrono::ceil<std::chrono::seconds>(left).count());
    if (seconds == m_secondsLeft)
        return;
    m_secondsLeft = seconds;
    emit changed();
}
