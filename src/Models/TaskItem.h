#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"

#include <QUuid>

#include <optional>

enum class TaskStatus { todo, inProgress, done };

template <>
struct EnumTable<TaskStatus> {
    static constexpr auto cases = std::to_array<EnumCase<TaskStatus>>({
        {TaskStatus::todo, "todo", QT_TRANSLATE_NOOP("EnumLabel", "To do"), "circle"},
        {TaskStatus::inProgress,
         "inProgress",
         QT_TRANSLATE_NOOP("EnumLabel", "In progress"),
         "circle.dotted",
         {},
         BadgeTone::warning},
        {TaskStatus::done,
         "done",
         QT_TRANSLATE_NOOP("EnumLabel", "Done"),
         "checkmark.circle.fill",
         {},
         BadgeTone::success},
    });
};

enum class TaskPriority { low, medium, high };

template <>
struct EnumTable<TaskPriority> {
    static constexpr auto cases = std::to_array<EnumCase<TaskPriority>>({
        {TaskPriority::low, "low", QT_TRANSLATE_NOOP("EnumLabel", "Low")},
        {TaskPriority::medium,
         "medium",
         QT_TRANSLATE_NOOP("EnumLabel", "Medium"),
         {},
         {},
         BadgeTone::warning},
        {TaskPriority::high, "high", QT_TRANSLATE_NOOP("EnumLabel", "High"), {}, {}, BadgeTone::danger},
    });
};

/// One task.
struct TaskItem {
    QUuid id;
    QString title;
    TaskStatus status = TaskStatus::todo;
    TaskPriority priority = TaskPriority::medium;
    std::optional<Timestamp> dueDate;
    std::optional<QUuid> projectID;
    QString notes;
    Timestamp createdDate;
    Timestamp updatedDate;
    /// Set exactly while the status is `done`, as long as the status is changed by the store's operations.
    std::optional<Timestamp> completedDate;

    bool operator==(const TaskItem &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &TaskItem::id},
                          Field{"title", &TaskItem::title},
                          Field{"status", &TaskItem::status},
                          Field{"priority", &TaskItem::priority},
                          Field{"dueDate", &TaskItem::dueDate},
                          Field{"projectID", &TaskItem::projectID},
                          Field{"notes", &TaskItem::notes},
                          Field{"createdDate", &TaskItem::createdDate},
                          Field{"updatedDate", &TaskItem::updatedDate},
                          Field{"completedDate", &TaskItem::completedDate}};
    }
};
