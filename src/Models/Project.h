#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"
#include "Models/TaskItem.h"

#include <QList>
#include <QUuid>

#include <optional>

enum class ProjectStatus { notStarted, planning, inProgress, onHold, completed };

template <>
struct EnumTable<ProjectStatus> {
    static constexpr auto cases = std::to_array<EnumCase<ProjectStatus>>({
        {ProjectStatus::notStarted, "notStarted", QT_TRANSLATE_NOOP("EnumLabel", "Not started")},
        {ProjectStatus::planning, "planning", QT_TRANSLATE_NOOP("EnumLabel", "Planning")},
        {ProjectStatus::inProgress, "inProgress", QT_TRANSLATE_NOOP("EnumLabel", "In progress")},
        {ProjectStatus::onHold, "onHold", QT_TRANSLATE_NOOP("EnumLabel", "On hold")},
        {ProjectStatus::completed, "completed", QT_TRANSLATE_NOOP("EnumLabel", "Completed")},
    });
};

/// A step of a project.
struct Milestone {
    QUuid id;
    QString title;
    bool done = false;

    bool operator==(const Milestone &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Milestone::id}, Field{"title", &Milestone::title},
                          Field{"done", &Milestone::done}};
    }
};

/// A group of tasks with milestones.
struct Project {
    QUuid id;
    QString name;
    QString icon;
    QString details;
    ProjectStatus status = ProjectStatus::notStarted;
    std::optional<Timestamp> dueDate;
    /// A project kept as a template for others.
    bool isTemplate = false;
    /// Cover of the project card.
    std::optional<QString> cover;
    QList<Milestone> milestones;
    Timestamp createdDate;
    Timestamp updatedDate;

    bool operator==(const Project &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Project::id},
                          Field{"name", &Project::name},
                          Field{"icon", &Project::icon},
                          Field{"details", &Project::details},
                          Field{"status", &Project::status},
                          Field{"dueDate", &Project::dueDate},
                          Field{"isTemplate", &Project::isTemplate},
                          Field{"cover", &Project::cover},
                          Field{"milestones", &Project::milestones},
                          Field{"createdDate", &Project::createdDate},
                          Field{"updatedDate", &Project::updatedDate}};
    }
};

/// How far a project has come, counted from its tasks; all zero without tasks.
struct ProjectProgress {
    qint64 total = 0;
    qint64 done = 0;
    /// Rounded to the nearest whole number, halves up.
    qint64 percent = 0;

    ProjectProgress() = default;
    explicit ProjectProgress(const QList<TaskItem> &tasks);

    bool operator==(const ProjectProgress &) const = default;
};
