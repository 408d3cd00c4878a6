#pragma once

#include "Features/Tasks/TaskDay.h"
#include "Foundation/Choice.h"
#include "Models/TaskItem.h"

#include <QObject>

/// A row of the task list as it is shown: a task, or the header over the completed ones.
struct TaskRow {
    Q_GADGET
    Q_PROPERTY(QString kind READ kindText FINAL)
    Q_PROPERTY(QUuid taskID MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    /// Choices, as menus and badges show them.
    Q_PROPERTY(Choice status READ statusChoice FINAL)
    Q_PROPERTY(Choice priority READ priorityChoice FINAL)
    Q_PROPERTY(bool isDone READ isDone FINAL)
    Q_PROPERTY(QDateTime due READ dueDateTime FINAL)
    Q_PROPERTY(QString dueText MEMBER dueText FINAL)
    Q_PROPERTY(bool isOverdue MEMBER isOverdue FINAL)
    Q_PROPERTY(bool isFirst MEMBER isFirst FINAL)
    Q_PROPERTY(bool isLast MEMBER isLast FINAL)
    Q_PROPERTY(int count MEMBER count FINAL)

public:
    enum class Kind { task, completedHeader };

    QUuid id;
    Kind kind = Kind::task;
    QString title = {};
    TaskStatus status = TaskStatus::todo;
    TaskPriority priority = TaskPriority::medium;
    std::optional<Timestamp> due = {};
    /// Empty for a task without a due date.
    QString dueText = {};
    bool isOverdue = false;
    /// The ends of a run of tasks, which is drawn as one card.
    bool isFirst = false;
    bool isLast = false;
    /// Of the header: how many tasks are completed.
    int count = 0;

    bool operator==(const TaskRow &) const = default;

    static TaskRow ofTask(const TaskItem &task, const TaskDay &day);
    static TaskRow completedHeader(qsizetype count);

    /// The kind's name, by which the view chooses the look of the row.
    QString kindText() const;
    Choice statusChoice() const { return Choice::of(status); }
    Choice priorityChoice() const { return Choice::of(priority); }
    bool isDone() const { return status == TaskStatus::done; }
    /// Invalid for a task without a due date.
    QDateTime dueDateTime() const;
};

template <>
struct EnumTable<TaskRow::Kind> {
    static constexpr auto cases = std::to_array<EnumCase<TaskRow::Kind>>({
        {TaskRow::Kind::task, "task"},
        {TaskRow::Kind::completedHeader, "completedHeader"},
    });
};
