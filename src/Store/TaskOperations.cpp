#include "Store/TaskOperations.h"

namespace
{
/// Changes a task, with its dates kept in step: the completion date is there exactly while the task is done.
template <typename Edit>
void changeTask(WorkspaceStore &store, const QUuid &taskID, const QString &name, Edit edit)
{
    const Action action(store, name);
    store.change<TaskItem>(taskID, [&](TaskItem &task) {
        edit(task);
        task.updatedDate = store.now();
        if (task.status != TaskStatus::done)
            task.completedDate.reset();
        else if (!task.completedDate)
            task.completedDate = task.updatedDate;
    });
}
} // namespace

QUuid TaskOperations::create(WorkspaceStore &store, const QString &title, TaskPriority priority,
                             std::optional<Timestamp> dueDate)
{
    const Action action(store, ActionText::tr("New Task"));
    TaskItem task;
    task.id = store.makeId();
    task.title = title;
    task.priority = priority;
    task.dueDate = dueDate;
    task.createdDate = task.updatedDate = store.now();
    store.add(task);
    return task.id;
}

void TaskOperations::rename(WorkspaceStore &store, const QUuid &taskID, const QString &title)
{
    const TaskItem *const task = store.tasks().first(taskID);
    if (!task || task->title == title)
        return;
    const Action action(store, Typing{.text = {taskID, QStringLiteral("title")},
                                      .before = task->title,
                                      .after = title,
                                      .name = ActionText::tr("Rename Task")});
    store.change<TaskItem>(taskID, [&](TaskItem &task) {
        task.title = title;
        task.updatedDate = store.now();
    });
}

void TaskOperations::toggleDone(WorkspaceStore &store, const QUuid &taskID)
{
    changeTask(store, taskID, ActionText::tr("Change Status"), [](TaskItem &task) {
        task.status = task.status == TaskStatus::done ? TaskStatus::todo : TaskStatus::done;
    });
}

void TaskOperations::cycleStatus(WorkspaceStore &store, const QUuid &taskID)
{
    changeTask(store, taskID, ActionText::tr("Change Status"),
               [](TaskItem &task) { task.status = nextCase(task.status); });
}

void TaskOperations::setStatus(WorkspaceStore &store, const QUuid &taskID, TaskStatus status)
{
    changeTask(store, taskID, ActionText::tr("Change Status"),
               [status](TaskItem &task) { task.status = status; });
}

void TaskOperations::cyclePriority(WorkspaceStore &store, const QUuid &taskID)
{
    changeTask(store, taskID, ActionText::tr("Change Priority"),
               [](TaskItem &task) { task.priority = nextCase(task.priority); });
}

void TaskOperations::setPriority(WorkspaceStore &store, const QUuid &taskID, TaskPriority priority)
{
    changeTask(store, taskID, ActionText::tr("Change Priority"),
               [priority](TaskItem &task) { task.priority = priority; });
}

void TaskOperations::setDue(WorkspaceStore &store, const QUuid &taskID, std::optional<Timestamp> dueDate)
{
    const Action action(store,
                        dueDate ? ActionText::tr("Change Due Date") : ActionText::tr("Clear Due Date"));
    store.change<TaskItem>(taskID, [&](TaskItem &task) {
        task.dueDate = dueDate;
        task.updatedDate = store.now();
    });
}

void TaskOperations::remove(WorkspaceStore &store, const QUuid &taskID)
{
    const Action action(store, ActionText::tr("Delete Task"));
    action.setMessage(ActionText::tr("Task deleted"));
    store.erase<TaskItem>(taskID);
}

QList<const TaskItem *> TaskOperations::ofProject(const WorkspaceStore &store, const QUuid &projectID)
{
    return store.groups().tasksByProject.of(store.tasks(), projectID);
}
