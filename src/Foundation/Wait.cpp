#include "Foundation/Wait.h"

#include <QTimer>

#include <algorithm>
#include <utility>

#ifdef Q_OS_LINUX
#include <QSocketNotifier>

#include <sys/timerfd.h>
#include <unistd.h>
#endif

namespace
{
#ifdef Q_OS_LINUX
/// Qt's own timers stand still while the machine sleeps; this one does not. It dies once it has rung.
class SleeplessTimer : public QObject
{
public:
    SleeplessTimer(int descriptor, std::function<void()> then, QObject *owner)
        : QObject(owner),
          m_descriptor(descriptor),
          m_notifier(descriptor, QSocketNotifier::Read),
          m_then(std::move(then))
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, &SleeplessTimer::ring);
    }
    ~SleeplessTimer() override
    {
        m_notifier.setEnabled(false);
        ::close(m_descriptor);
    }

private:
    void ring()
    {
        m_notifier.setEnabled(false);
        deleteLater();
        // The callback may delete the owner, and this with it.
        const auto then = std::exchange(m_then, nullptr);
        then();
    }

    int m_descriptor;
    QSocketNotifier m_notifier;
    std::function<void()> m_then;
};

/// @returns the descriptor of a timer that is running, or -1
int startTimer(std::chrono::milliseconds time)
{
    const int descriptor = ::timerfd_create(CLOCK_BOOTTIME, TFD_CLOEXEC | TFD_NONBLOCK);
    // A time of zero would stop it.
    const auto nanoseconds = std::max(std::chrono::nanoseconds(1), std::chrono::nanoseconds(time));
    const auto seconds = std::chrono::floor<std::chrono::seconds>(nanoseconds);
    const itimerspec setting{{}, {seconds.count(), (nanoseconds - seconds).count()}};
    if (descriptor >= 0 && ::timerfd_settime(descriptor, 0, &setting, nullptr) == 0)
        return descriptor;
    if (descriptor >= 0)
        ::close(descriptor);
    return -1;
}
#endif
} // namespace

Wait systemWait()
{
    return [](std::chrono::milliseconds time, QObject *owner, std::function<void()> then) {
#ifdef Q_OS_LINUX
        if (const int descriptor = startTimer(time); descriptor >= 0) {
            new SleeplessTimer(descriptor, std::move(then), owner);
            return;
        }
#endif
        QTimer::singleShot(time, owner, std::move(then));
    };
}
