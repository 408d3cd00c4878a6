#include "Models/Project.h"

#include <algorithm>

ProjectProgress::ProjectProgress(const QList<TaskItem> &tasks)
    : total(tasks.size()), done(std::ranges::count(tasks, TaskStatus::done, &TaskItem::status))
{
    if (total > 0)
        percent = (done * 200 + total) / (total * 2);
}
