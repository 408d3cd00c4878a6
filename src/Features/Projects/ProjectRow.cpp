#include "Features/Projects/ProjectRow.h"

#include "Foundation/LineText.h"
#include "Support/OVDate.h"

namespace
{
BadgeTone toneOf(ProjectStatus status)
{
    switch (status) {
    case ProjectStatus::planning:
        return BadgeTone::info;
    case ProjectStatus::inProgress:
        return BadgeTone::warning;
    case ProjectStatus::completed:
        return BadgeTone::success;
    case ProjectStatus::notStarted:
    case ProjectStatus::onHold:
        return BadgeTone::neutral;
    }
    return BadgeTone::neutral;
}
} // namespace

ProjectRow ProjectRow::of(const Project &project, const ProjectProgress &progress, const QTimeZone &zone)
{
    return {.id = project.id,
            .icon = project.icon,
            .name = project.name,
            .details = project.details,
            .status = project.status,
            .due = project.dueDate ? std::optional(OVDate::day(*project.dueDate, zone)) : std::nullopt,
            .isTemplate = project.isTemplate,
            .progress = progress};
}

Choice ProjectRow::choice(ProjectStatus status)
{
    Choice choice = Choice::of(status);
    choice.tone = int(toneOf(status));
    return choice;
}

QString ProjectRow::tasksText(const ProjectProgress &progress)
{
    return tr("%1/%2 tasks").arg(progress.done).arg(progress.total);
}

QString ProjectRow::nameText() const
{
    return LineText::shownTitle(name);
}

QString ProjectRow::detailsText() const
{
    return LineText::shown(details);
}

QString ProjectRow::dueText() const
{
    return due ? tr("due %1").arg(OVDate::medium(*due)) : QString();
}

QString ProjectRow::percentText(const ProjectProgress &progress)
{
    return tr("%1% complete").arg(progress.percent);
}

double ProjectRow::share(const ProjectProgress &progress)
{
    return double(progress.done) / double(std::max<qint64>(1, progress.total));
}
