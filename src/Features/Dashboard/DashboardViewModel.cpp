#include "Features/Dashboard/DashboardViewModel.h"

#include "Features/Tasks/TaskFilters.h"
#include "Session/PageActions.h"
#include "Store/EventOperations.h"
#include "Store/HabitOperations.h"
#include "Store/PageOperations.h"
#include "Support/OVDate.h"
#include "Support/OVQuotes.h"

namespace
{
using enum DashboardTile::Kind;

constexpr qsizetype mostDueTasks = 5;
constexpr qsizetype fewPages = 5;
constexpr qsizetype morePages = 20;
} // namespace

DashboardViewModel::DashboardViewModel(QObject *parent, QRandomGenerator *random)
    : ViewModel(parent), m_random(random), m_pageLimit(fewPages)
{
    follow<TaskItem, CalendarEvent, Habit, Page>();
    followDays();
    m_tiles.setRows({{openTasks}, {dueToday}, {eventsToday}, {habitsDone}});
}

void DashboardViewModel::start()
{
    connect(&ui(), &UIState::randomQuoteChanged, this, &DashboardViewModel::showQuote);
}

QString DashboardViewModel::dateText() const
{
    return session() ? OVDate::longDate(clock().today()) : QString();
}

void DashboardViewModel::shuffleQuote()
{
    ui().setRandomQuote(OVQuotes::random(m_quote, *m_random));
}

QString DashboardViewModel::moreText(qsizetype count)
{
    return count > 0 ? tr("%1 more").arg(count) : QString();
}

QString DashboardViewModel::progressText() const
{
    return tr("%1 of %2 complete").arg(m_progress.done).arg(m_progress.total);
}

void DashboardViewModel::setLibraryTab(const QString &tab)
{
    const auto value = enumFromRaw<LibraryTab>(tab);
    if (!value || *value == m_libraryTab)
        return;
    m_libraryTab = *value;
    m_pageLimit = fewPages;
    showLibrary();
    emit libraryTabChanged();
}

void DashboardViewModel::showMorePages()
{
    m_pageLimit += morePages;
    showLibrary();
}

QString DashboardViewModel::emptyLibraryText() const
{
    return m_libraryTab == LibraryTab::recent ? tr("No pages yet.") : tr("No favourites yet.");
}

void DashboardViewModel::newPage()
{
    PageActions::create(store(), ui(), PageKind::page);
}

void DashboardViewModel::refresh(const ChangeSet &changes)
{
    if (changes.of<TaskItem>().isReloaded) {
        showQuote();
        emit dayChanged();
    }
    if (changes.touches<TaskItem>())
        showTasks();
    if (changes.touches<CalendarEvent>())
        showEvents();
    if (changes.touches<Habit>())
        setCount(habitsDone, HabitOperations::doneToday(store()));
    if (changes.touches<Page>())
        showLibrary();
}

void DashboardViewModel::showQuote()
{
    const auto &shuffled = ui().randomQuote();
    const Quote &quote = shuffled ? *shuffled : OVQuotes::ofTheDay(clock().now(), clock().timeZone());
    if (m_quote == quote)
        return;
    m_quote = quote;
    emit quoteChanged();
}

void DashboardViewModel::showTasks()
{
    const TaskDay day(clock());
    const QList<TaskItem> &tasks = store().tasks().all();
    const auto due = TaskFilters::filteredOpen(tasks, TaskFilter::today, day);
    QList<TaskRow> rows;
    for (const TaskItem *const task : due.mid(0, mostDueTasks))
        rows.append(TaskRow::ofTask(*task, day));
    m_dueTasks.setRows(std::move(rows));
    m_dueCount = due.size();
    m_progress = ProjectProgress(tasks);
    setCount(openTasks, m_progress.total - m_progress.done);
    setCount(dueToday, m_dueCount);
    emit tasksChanged();
}

void DashboardViewModel::showEvents()
{
    QList<ScheduleItem> rows;
    for (const CalendarEvent *const event : EventOperations::onDay(store(), clock().today()))
        rows.append(ScheduleItem::of(*event));
    setCount(eventsToday, rows.size());
    m_events.setRows(std::move(rows));
}

void DashboardViewModel::showLibrary()
{
    const auto pages = m_libraryTab == LibraryTab::recent ? PageOperations::recent(store())
                                                          : PageOperations::recentFavorites(store());
    QList<PageLine> rows;
    for (const Page *const page : pages.mid(0, m_pageLimit))
        rows.append(PageLine::of(*page, clock().today(), clock().timeZone()));
    m_library.setRows(std::move(rows));
    m_pageCount = pages.size();
    emit libraryChanged();
}

void DashboardViewModel::setCount(DashboardTile::Kind kind, qsizetype count)
{
    m_tiles.changeRow(kind, [count](DashboardTile &tile) { tile.count = count; });
}
