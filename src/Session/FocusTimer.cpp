#include "Session/FocusTimer.h"

#include "Store/ProjectOperations.h"
#include "Support/OVDate.h"
#include "Support/Preferences.h"

using namespace std::chrono;

namespace
{
const QString sessionsKey = QStringLiteral("orvel.focus.sessions");
const QString dayKey = QStringLiteral("orvel.focus.day");
// Longer ones are typing errors in a file; the limit keeps the arithmetic safe.
constexpr qint64 maxMinutes = 100'000;
} // namespace

FocusTimer::FocusTimer(WorkspaceStore &store, Preferences &preferences, Machine machine, QObject *parent)
    : QObject(parent), m_store(store), m_preferences(preferences), m_machine(std::move(machine))
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &FocusTimer::check);
}

void FocusTimer::open(const QObject *screen)
{
    m_screen = screen;
    const QString today = OVDate::dayKey(m_store.now(), m_store.clock().timeZone());
    if (m_preferences.value(dayKey).toString() != today) {
        m_preferences.setValue(dayKey, today);
        m_preferences.setValue(sessionsKey, 0);
    }
    m_minutes = int(std::clamp<qint64>(m_store.settings().defaultFocusMinutes, 0, maxMinutes));
    m_taskID = QUuid();
    stop(0ms);
}

void FocusTimer::close(const QObject *screen)
{
    m_watchers.remove(screen);
    if (m_screen != screen)
        return;
    m_screen = nullptr;
    m_taskID = QUuid();
    stop(0ms);
}

void FocusTimer::toggleRunning()
{
    if (isRunning()) {
        stop(passed());
        return;
    }
    if (remaining() == 0)
        m_passed = 0ms;
    m_startedAt = m_machine.uptime();
    scheduleCheck();
    emit changed();
}

void FocusTimer::complete()
{
    m_preferences.setValue(sessionsKey, sessions() + 1);
    if (const TaskItem *const task = linkedTask(); task && task->projectID)
        ProjectOperations::logActivity(m_store, *task->projectID, tr("Focused %1 minutes").arg(m_minutes),
                                       QStringLiteral("note"));
    stop(0ms);
}

void FocusTimer::reset()
{
    stop(0ms);
}

void FocusTimer::setMinutes(int minutes)
{
    if (isRunning())
        return;
    m_minutes = minutes;
    stop(0ms);
}

void FocusTimer::setTaskID(const QUuid &id)
{
    if (m_taskID == id)
        return;
    m_taskID = id;
    emit changed();
}

int FocusTimer::remaining() const
{
    return int(std::max<qint64>(0, m_minutes * 60 - floor<seconds>(passed()).count()));
}

double FocusTimer::progress() const
{
    if (m_minutes < 1)
        return 0;
    return std::min(1.0,
                    double(passed().count()) / double(milliseconds(std::chrono::minutes(m_minutes)).count()));
}

QString FocusTimer::timeText() const
{
    return timeText(remaining());
}

QString FocusTimer::timeText(int seconds)
{
    return QString::asprintf("%02d:%02d", seconds / 60, seconds % 60);
}

int FocusTimer::sessions() const
{
    return m_preferences.value(sessionsKey, 0).toInt();
}

const TaskItem *FocusTimer::linkedTask() const
{
    return m_store.tasks().first(m_taskID);
}

void FocusTimer::setWatched(const QObject *watcher, bool watched)
{
    const bool wasWatched = !m_watchers.isEmpty();
    if (watched)
        m_watchers.insert(watcher);
    else
        m_watchers.remove(watcher);
    if (wasWatched == !m_watchers.isEmpty())
        return;
    if (isRunning())
        check();
}

void FocusTimer::check()
{
    if (!isRunning())
        return;
    // The display rests at 00:00 for a second before the session is over.
    if (floor<seconds>(passed()) <= std::chrono::minutes(m_minutes)) {
        scheduleCheck();
        emit changed();
        return;
    }
    const int finishedMinutes = m_minutes;
    const TaskItem *const task = linkedTask();
    const QString title = task ? task->title : QString();
    complete();
    m_machine.notify(
        tr("Focus session done"),
        title.isEmpty()
            ? tr("%1 minutes of focus. Take a short break.").arg(finishedMinutes)
            : tr("%1 minutes on “%2”. Take a short break.").arg(QString::number(finishedMinutes), title));
    emit finished();
}

milliseconds FocusTimer::passed() const
{
    return m_passed + (m_startedAt ? std::max(0ms, m_machine.uptime() - *m_startedAt) : 0ms);
}

void FocusTimer::stop(milliseconds passed)
{
    m_startedAt.reset();
    m_passed = passed;
    m_timer.stop();
    emit changed();
}

void FocusTimer::scheduleCheck()
{
    const milliseconds passed = this->passed();
    const milliseconds nextSecond = floor<seconds>(passed) + 1s - passed;
    const milliseconds end = std::chrono::minutes(m_minutes) + 1s - passed;
    // Uptime and timer are rounded differently; a look too early would cost a second one.
    m_timer.start((m_watchers.isEmpty() ? std::min<milliseconds>(end, 1h) : nextSecond) + 1ms);
}
