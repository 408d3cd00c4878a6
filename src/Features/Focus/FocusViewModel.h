#pragma once

#include "Features/Focus/FocusTaskRow.h"
#include "Foundation/Choice.h"
#include "Foundation/KeyedListModel.h"
#include "Session/FocusTimer.h"
#include "Session/ViewModel.h"

/// What the Focus screen shows of the session's timer. The timer runs as long as this exists.
class FocusViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Whether the count is visible to the user.
    Q_PROPERTY(bool watched MEMBER m_watched WRITE setWatched NOTIFY watchedChanged FINAL)

    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed FINAL)
    /// The time that remains, such as "24:59".
    Q_PROPERTY(QString timeText READ timeText NOTIFY changed FINAL)
    Q_PROPERTY(QString stateText READ stateText NOTIFY changed FINAL)
    /// Of the time that has passed, from 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)
    /// The button that starts, pauses and resumes.
    Q_PROPERTY(QString primaryText READ primaryText NOTIFY changed FINAL)
    Q_PROPERTY(QString primarySymbol READ primarySymbol NOTIFY changed FINAL)
    Q_PROPERTY(bool canLog READ canLog NOTIFY changed FINAL)

    /// Minutes.
    Q_PROPERTY(QList<int> presets READ presets CONSTANT FINAL)
    Q_PROPERTY(int minutes READ minutes NOTIFY changed FINAL)

    Q_PROPERTY(bool hasTask READ hasTask NOTIFY taskChanged FINAL)
    Q_PROPERTY(QString taskTitle READ taskTitle NOTIFY taskChanged FINAL)
    Q_PROPERTY(Choice taskStatus READ taskStatus NOTIFY taskChanged FINAL)
    /// The open tasks, as `FocusTaskRow`s.
    Q_PROPERTY(QAbstractItemModel *tasks READ tasks CONSTANT FINAL)
    Q_PROPERTY(bool hasTasks READ hasTasks NOTIFY taskChanged FINAL)
    /// Of the linked task among the open ones; -1 for none.
    Q_PROPERTY(int taskIndex READ taskIndex NOTIFY taskChanged FINAL)

    Q_PROPERTY(QString sessionsText READ sessionsText NOTIFY changed FINAL)
    Q_PROPERTY(QString minutesText READ minutesText NOTIFY changed FINAL)
    Q_PROPERTY(QString defaultText READ defaultText NOTIFY changed FINAL)

public:
    explicit FocusViewModel(QObject *parent = nullptr);
    ~FocusViewModel() override;

    void setWatched(bool watched);
    bool isRunning() const { return m_timer && m_timer->isRunning(); }
    QString timeText() const { return m_timer ? m_timer->timeText() : QString(); }
    QString stateText() const;
    double progress() const { return m_timer ? m_timer->progress() : 0; }
    QString primaryText() const;
    QString primarySymbol() const;
    bool canLog() const { return isBegun() || isRunning(); }

    static QList<int> presets() { return {15, 25, 45, 60}; }
    int minutes() const { return m_timer ? m_timer->minutes() : 0; }

    bool hasTask() const { return task() != nullptr; }
    QString taskTitle() const;
    Choice taskStatus() const;
    QAbstractItemModel *tasks() { return &m_tasks; }
    bool hasTasks() const { return !m_tasks.rows().isEmpty(); }
    int taskIndex() const;

    QString sessionsText() const { return QString::number(sessions()); }
    /// As if each of today's sessions had had the present length.
    QString minutesText() const { return QString::number(qint64(sessions()) * minutes()); }
    QString defaultText() const;

    Q_INVOKABLE void toggleRunning() { m_timer->toggleRunning(); }
    Q_INVOKABLE void reset() { m_timer->reset(); }
    /// Counts the session before its time is over, if it has begun.
    Q_INVOKABLE void logSession();
    /// @param preset index into the presets; ignored while a session runs
    Q_INVOKABLE void choosePreset(int preset);
    /// @param index of an open task
    Q_INVOKABLE void linkTask(int index);
    Q_INVOKABLE void unlinkTask() { m_timer->setTaskID({}); }
    /// Looks at the progress between two seconds.
    Q_INVOKABLE void glide() { emit progressChanged(); }

signals:
    void watchedChanged();
    void changed();
    void progressChanged();
    void taskChanged();

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;

private:
    bool isBegun() const { return m_timer && m_timer->isBegun(); }
    int sessions() const { return m_timer ? m_timer->sessions() : 0; }
    const TaskItem *task() const { return m_timer ? m_timer->linkedTask() : nullptr; }

    /// Null until the session is there.
    FocusTimer *m_timer = nullptr;
    bool m_watched = false;
    KeyedListModel<FocusTaskRow> m_tasks;
};
