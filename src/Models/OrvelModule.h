#pragma once

#include "Foundation/EnumTable.h"

/// The fourteen screens that a user can show or hide, in the order of every list of modules.
enum class OrvelModule {
    dashboard,
    today,
    focus,
    tasks,
    calendar,
    projects,
    notes,
    databases,
    code,
    decks,
    habits,
    insights,
    relax,
    reader
};

/// The label is the module's title.
template <>
struct EnumTable<OrvelModule> {
    static constexpr auto cases = std::to_array<EnumCase<OrvelModule>>({
        {OrvelModule::dashboard, "dashboard", QT_TRANSLATE_NOOP("EnumLabel", "Dashboard"), "square.grid.2x2",
         "square.grid.2x2.fill"},
        {OrvelModule::today, "today", QT_TRANSLATE_NOOP("EnumLabel", "Today"), "sun.max", "sun.max.fill"},
        {OrvelModule::focus, "focus", QT_TRANSLATE_NOOP("EnumLabel", "Focus"), "timer", "timer"},
        {OrvelModule::tasks, "tasks", QT_TRANSLATE_NOOP("EnumLabel", "Tasks"), "checkmark.square",
         "checkmark.square.fill"},
        {OrvelModule::calendar, "calendar", QT_TRANSLATE_NOOP("EnumLabel", "Calendar"), "calendar",
         "calendar"},
        {OrvelModule::projects, "projects", QT_TRANSLATE_NOOP("EnumLabel", "Projects"), "target", "target"},
        {OrvelModule::notes, "notes", QT_TRANSLATE_NOOP("EnumLabel", "Notes"), "note.text", "note.text"},
        {OrvelModule::databases, "databases", QT_TRANSLATE_NOOP("EnumLabel", "Databases"),
         "cylinder.split.1x2", "cylinder.split.1x2.fill"},
        {OrvelModule::code, "code", QT_TRANSLATE_NOOP("EnumLabel", "Code"),
         "chevron.left.forwardslash.chevron.right", "chevron.left.forwardslash.chevron.right"},
        {OrvelModule::decks, "decks", QT_TRANSLATE_NOOP("EnumLabel", "Decks"), "rectangle.on.rectangle",
         "rectangle.on.rectangle.fill"},
        {OrvelModule::habits, "habits", QT_TRANSLATE_NOOP("EnumLabel", "Habits"), "flame", "flame.fill"},
        {OrvelModule::insights, "insights", QT_TRANSLATE_NOOP("EnumLabel", "Insights"),
         "chart.line.uptrend.xyaxis", "chart.line.uptrend.xyaxis"},
        {OrvelModule::relax, "relax", QT_TRANSLATE_NOOP("EnumLabel", "Relax"), "leaf", "leaf.fill"},
        {OrvelModule::reader, "reader", QT_TRANSLATE_NOOP("EnumLabel", "Reader"), "book", "book.fill"},
    });
};

/// The one line that tells what a module is for.
inline QString moduleBlurb(OrvelModule module)
{
    static constexpr auto blurbs = std::to_array<const char *>({
        QT_TRANSLATE_NOOP("moduleBlurb", "An at-a-glance home built from your data."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Schedule, due tasks and quick capture."),
        QT_TRANSLATE_NOOP("moduleBlurb", "A pomodoro timer bound to a task."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Everything you need to get done."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Events, deadlines and task due dates."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Group tasks with progress and milestones."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Fast thoughts on the block editor."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Flexible tables with saved views."),
        QT_TRANSLATE_NOOP("moduleBlurb", "A quiet editor for snippets and scripts."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Presentations, decks and exports that look designed."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Build routines and keep your streaks alive."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Charts of your work, focus and habits."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Loops of calm to help you unwind."),
        QT_TRANSLATE_NOOP("moduleBlurb", "Read free classics, styled like paper."),
    });
    static_assert(blurbs.size() == EnumTable<OrvelModule>::cases.size());
    return QCoreApplication::translate("moduleBlurb", blurbs.at(static_cast<std::size_t>(module)));
}
