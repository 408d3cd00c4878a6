#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>
#include <QUuid>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <functional>
#include <optional>

class Preferences;
class WorkspaceStore;
struct TaskItem;

/// What the session asks of the machine that it runs on. Tests put their own in its place.
struct Machine {
    /// Null keeps preferences only as long as the session lives.
    Preferences *preferences = nullptr;
    /// How long the machine has been running, from any moment on. Stands still while it sleeps.
    std::function<std::chrono::milliseconds()> uptime = [] {
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
    };
    /// Tells the user something wherever they are at the moment.
    std::function<void(const QString &title, const QString &text)> notify = [](auto &, auto &) {};
};

/// The countdown of one stretch of work, and how many were finished on a day. There is one in the session; it
/// counts only while the screen that opened it is shown.
///
/// Time is that in which the machine ran: neither a busy processor nor sleep changes what a session lasts.
class FocusTimer : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed FINAL)
    /// The time that remains, such as "24:59".
    Q_PROPERTY(QString timeText READ timeText NOTIFY changed FINAL)

public:
    static constexpr int defaultMinutes = 25;

    /// All outlive the timer.
    FocusTimer(WorkspaceStore &store, Preferences &preferences, Machine machine, QObject *parent = nullptr);

    /// The screen appears: begins the count of a new day, and puts a whole session of the default length on.
    void open(const QObject *screen);
    /// The screen goes, and a session under way with it, uncounted. Without effect if another has opened the
    /// timer since.
    void close(const QObject *screen);

    /// Starts, pauses or resumes.
    void toggleRunning();
    /// Counts a whole session, however long it really was, and notes it in the project of the linked task.
    void complete();
    void reset();
    /// Sets the length of a session; ignored while one runs.
    void setMinutes(int minutes);
    /// Null for no task.
    void setTaskID(const QUuid &id);

    bool isRunning() const { return m_startedAt.has_value(); }
    int minutes() const { return m_minutes; }
    /// Seconds.
    int remaining() const;
    /// Whether some of the session has passed.
    bool isBegun() const { return remaining() < m_minutes * 60; }
    /// From 0 to 1, between the seconds too.
    double progress() const;
    QString timeText() const;
    /// Minutes and seconds, such as "60:00"; hours are not split off.
    static QString timeText(int seconds);
    /// Counted on the day of the count.
    int sessions() const;
    /// Null if there is none or it is gone.
    const TaskItem *linkedTask() const;

    /// Has `changed` emitted each second of a session for this one. Without anyone watching, the timer sleeps
    /// until the session is over.
    void setWatched(const QObject *watcher, bool watched);

    /// Looks at the time now; else it does so by itself when a second is over.
    void check();

signals:
    void changed();
    /// The time of a session has run out.
    void finished();

private:
    std::chrono::milliseconds passed() const;
    void stop(std::chrono::milliseconds passed);
    void scheduleCheck();

    WorkspaceStore &m_store;
    Preferences &m_preferences;
    Machine m_machine;
    const QObject *m_screen = nullptr;
    int m_minutes = defaultMinutes;
    /// Of the session, until it was last started.
    std::chrono::milliseconds m_passed{0};
    /// Uptime when it was last started; nothing while it stands still.
    std::optional<std::chrono::milliseconds> m_startedAt;
    QUuid m_taskID;
    QSet<const QObject *> m_watchers;
    QTimer m_timer{this};
};
