#include "Features/Today/TodayViewModel.h"

#include "Features/Tasks/TaskFilters.h"
#include "Session/PageActions.h"
#include "Store/EventOperations.h"
#include "Store/PageOperations.h"
#include "Store/ProjectOperations.h"

namespace
{
constexpr qsizetype mostProjects = 4;
constexpr qsizetype mostPages = 5;
} // namespace

TodayViewModel::TodayViewModel(QObject *parent) : ViewModel(parent)
{
    follow<TaskItem, CalendarEvent, Project, Page>();
    followSettings();
    followDays();
}

void TodayViewModel::start()
{
    connect(&clock(), &Clock::ticked, this, &TodayViewModel::greet);
}

QString TodayViewModel::summary() const
{
    const auto counted = [](qsizetype count, const QString &one, const QString &many) {
        return (count == 1 ? one : many).arg(count);
    };
    return tr("%1 · %2 today")
        .arg(counted(m_taskCount, tr("%1 task"), tr("%1 tasks")),
             counted(m_eventCount, tr("%1 event"), tr("%1 events")));
}

QString TodayViewModel::percentText() const
{
    return QStringLiteral("%1%").arg(m_progress.percent);
}

QString TodayViewModel::progressText() const
{
    return tr("%1 of %2 tasks complete").arg(m_progress.done).arg(m_progress.total);
}

void TodayViewModel::setQuickNote(const QString &text)
{
    if (m_quickNote == text)
        return;
    m_quickNote = text;
    emit quickNoteChanged();
}

void TodayViewModel::saveNote()
{
    if (PageOperations::createNote(store(), m_quickNote))
        setQuickNote({});
}

void TodayViewModel::newPage()
{
    PageActions::create(store(), ui(), PageKind::page);
}

void TodayViewModel::newNote()
{
    PageActions::create(store(), ui(), PageKind::note);
}

void TodayViewModel::greet()
{
    const QDateTime now = toDateTime(clock().now(), clock().timeZone());
    const QString greeting = store().settings().greeting(now.time().hour());
    if (m_greeting == greeting)
        return;
    m_greeting = greeting;
    emit greetingChanged();
}

void TodayViewModel::refresh(const ChangeSet &changes)
{
    greet();
    if (changes.touches<TaskItem, CalendarEvent>())
        showDay();
    if (changes.touches<TaskItem, Project>())
        showProjects();
    if (changes.touches<Page>())
        showPages();
}

void TodayViewModel::showDay()
{
    const TaskDay day(clock());
    const QList<TaskItem> &tasks = store().tasks().all();
    const auto events = EventOperations::onDay(store(), clock().today());
    const auto todayTasks = TaskFilters::todayTasks(tasks, day);
    QList<ScheduleItem> schedule;
    QList<TaskRow> due;
    for (const CalendarEvent *const event : events)
        schedule.append(ScheduleItem::of(*event));
    for (const TaskItem *const task : todayTasks) {
        schedule.append(ScheduleItem::of(*task));
        if (task->status != TaskStatus::done)
            due.append(TaskRow::ofTask(*task, day));
    }
    m_schedule.setRows(std::move(schedule));
    m_dueTasks.setRows(std::move(due));
    m_taskCount = todayTasks.size();
    m_eventCount = events.size();
    emit dayChanged();
    m_progress = ProjectProgress(tasks);
    emit progressChanged();
}

void TodayViewModel::showProjects()
{
    QList<ProjectRow> rows;
    for (const Project &project : store().projects()) {
        if (project.isTemplate || project.status == ProjectStatus::completed)
            continue;
        rows.append(
            ProjectRow::of(project, ProjectOperations::progress(store(), project.id), clock().timeZone()));
        if (rows.size() == mostProjects)
            break;
    }
    m_projects.setRows(std::move(rows));
}

void TodayViewModel::showPages()
{
    QList<PageLine> rows;
    for (const Page *const page : PageOperations::recent(store()).mid(0, mostPages))
        rows.append(PageLine::of(*page, clock().today(), clock().timeZone()));
    m_recentPages.setRows(std::move(rows));
}
