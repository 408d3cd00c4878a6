#pragma once

#include "Foundation/EnumTable.h"

/// The fourteen screens that a person can show or hide, in the order of every list of modules.
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
        {OrvelModule::dashboard, "dashboard", u"Dashboard", "square.grid.2x2", "square.grid.2x2.fill"},
        {OrvelModule::today, "today", u"Today", "sun.max", "sun.max.fill"},
        {OrvelModule::focus, "focus", u"Focus", "timer", "timer"},
        {OrvelModule::tasks, "tasks", u"Tasks", "checkmark.square", "checkmark.square.fill"},
        {OrvelModule::calendar, "calendar", u"Calendar", "calendar", "calendar"},
        {OrvelModule::projects, "projects", u"Projects", "target", "target"},
        {OrvelModule::notes, "notes", u"Notes", "note.text", "note.text"},
        {OrvelModule::databases, "databases", u"Databases", "cylinder.split.1x2", "cylinder.split.1x2.fill"},
        {OrvelModule::code, "code", u"Code", "chevron.left.forwardslash.chevron.right",
         "chevron.left.forwardslash.chevron.right"},
        {OrvelModule::decks, "decks", u"Decks", "rectangle.on.rectangle", "rectangle.on.rectangle.fill"},
        {OrvelModule::habits, "habits", u"Habits", "flame", "flame.fill"},
        {OrvelModule::insights, "insights", u"Insights", "chart.line.uptrend.xyaxis",
         "chart.line.uptrend.xyaxis"},
        {OrvelModule::relax, "relax", u"Relax", "leaf", "leaf.fill"},
        {OrvelModule::reader, "reader", u"Reader", "book", "book.fill"},
    });
};

/// The one line that tells what a module is for.
constexpr std::u16string_view moduleBlurb(OrvelModule module)
{
    constexpr auto blurbs = std::to_array<std::u16string_view>({
        u"An at-a-glance home built from your data.",
        u"Schedule, due tasks and quick capture.",
        u"A pomodoro timer bound to a task.",
        u"Everything you need to get done.",
        u"Events, deadlines and task due dates.",
        u"Group tasks with progress and milestones.",
        u"Fast thoughts on the block editor.",
        u"Flexible tables with saved views.",
        u"A quiet editor for snippets and scripts.",
        u"Presentations, decks and exports that look designed.",
        u"Build routines and keep your streaks alive.",
        u"Charts of your work, focus and habits.",
        u"Loops of calm to help you unwind.",
        u"Read free classics, styled like paper.",
    });
    static_assert(blurbs.size() == EnumTable<OrvelModule>::cases.size());
    return blurbs.at(static_cast<std::size_t>(module));
}
