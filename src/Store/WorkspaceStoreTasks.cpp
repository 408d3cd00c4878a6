#include "Store/Questions.h"
#include "Store/WorkspaceStore.h"

namespace
{
/// Keeps the completion date in step with the status.
void stampCompletion(TaskItem &task, Timestamp now)
{
    if (task.status != TaskStatus::done)
        task.completedDate.reset();
    else if (!task.completedDate)
        task.completedDate = now;
}
} // namespace

QUuid WorkspaceStore::newTask(const QString &title, TaskPriority priority, std::optional<Timestamp> dueDate)
{
    TaskItem task;
    task.id = m_options.makeId();
    task.title = title;
    task.priority = priority;
    task.dueDate = dueDate;
    task.createdDate = task.updatedDate = now();
    add(task);
    return task.id;
}

template <typename Edit>
void WorkspaceStore::changeTask(const QUuid &taskID, Edit edit)
{
    change<TaskItem>(taskID, [&](TaskItem &task) {
        edit(task);
        task.updatedDate = now();
        stampCompletion(task, task.updatedDate);
    });
}

void WorkspaceStore::renameTask(const QUuid &taskID, const QString &title)
{
    change<TaskItem>(taskID, [&](TaskItem &task) {
        task.title = title;
        task.updatedDate = now();
    });
}

void WorkspaceStore::toggleTaskDone(const QUuid &taskID)
{
    changeTask(taskID, [](TaskItem &task) {
        task.status = task.status == TaskStatus::done ? TaskStatus::todo : TaskStatus::done;
    });
}

void WorkspaceStore::cycleTaskStatus(const QUuid &taskID)
{
    changeTask(taskID, [](TaskItem &task) { task.status = nextCase(task.status); });
}

void WorkspaceStore::setTaskStatus(const QUuid &taskID, TaskStatus status)
{
    changeTask(taskID, [status](TaskItem &task) { task.status = status; });
}

void WorkspaceStore::cycleTaskPriority(const QUuid &taskID)
{
    changeTask(taskID, [](TaskItem &task) { task.priority = nextCase(task.priority); });
}

void WorkspaceStore::setTaskPriority(const QUuid &taskID, TaskPriority priority)
{
    changeTask(taskID, [priority](TaskItem &task) { task.priority = priority; });
}

void WorkspaceStore::setTaskDue(const QUuid &taskID, std::optional<Timestamp> dueDate)
{
    change<TaskItem>(taskID, [&](TaskItem &task) {
        task.dueDate = dueDate;
        task.updatedDate = now();
    });
}

WorkspaceStore::Found<TaskItem> WorkspaceStore::openTasks() const
{
    return Questions::where(tasks(), [](const TaskItem &task) { return task.status != TaskStatus::done; });
}

WorkspaceStore::Found<TaskItem> WorkspaceStore::doneTasks() const
{
    return Questions::where(tasks(), [](const TaskItem &task) { return task.status == TaskStatus::done; });
}

WorkspaceStore::Found<TaskItem> WorkspaceStore::tasksIn(const QUuid &projectID) const
{
    return Questions::where(tasks(),
                            [&projectID](const TaskItem &task) { return task.projectID == projectID; });
}
