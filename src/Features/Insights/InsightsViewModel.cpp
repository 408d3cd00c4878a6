#include "Features/Insights/InsightsViewModel.h"

#include "Store/HabitOperations.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>
#include <QQuickItemGrabResult>
#include <QQuickWindow>

namespace
{
QString number(qint64 value)
{
    return QLocale(QLocale::English).toString(value);
}

/// A chart of nothing but zeros says less than a word on that.
QList<ChartPoint> unlessZero(QList<ChartPoint> points)
{
    return InsightsPoints::isAllZero(points) ? QList<ChartPoint>() : std::move(points);
}
} // namespace

InsightsViewModel::InsightsViewModel(QObject *parent) : ViewModel(parent)
{
    follow<TaskItem, Page, CalendarEvent, Project, Habit>();
    followDays();
}

QString InsightsViewModel::tasksDoneText() const
{
    return number(m_tasks.all().done);
}

QString InsightsViewModel::completionText() const
{
    return tr("%1%").arg(m_tasks.all().percent());
}

QString InsightsViewModel::pagesText() const
{
    return number(m_pageCount);
}

QString InsightsViewModel::streakText() const
{
    return number(m_bestStreak);
}

void InsightsViewModel::copyNumbers(const QString &labelHeading, const QString &valueHeading,
                                    const QList<ChartPoint> &points)
{
    QGuiApplication::clipboard()->setText(InsightsPoints::table(labelHeading, valueHeading, points));
}

void InsightsViewModel::copyPicture(QQuickItem *item)
{
    if (!item || !item->window())
        return;
    const QSizeF size = item->size() * item->window()->effectiveDevicePixelRatio();
    const QSharedPointer<QQuickItemGrabResult> picture = item->grabToImage(size.toSize());
    if (!picture)
        return;
    connect(picture.data(), &QQuickItemGrabResult::ready, this, [this, picture] {
        QGuiApplication::clipboard()->setImage(picture->image());
        emit pictureCopied();
    });
}

void InsightsViewModel::refresh(const ChangeSet &changes)
{
    const bool isNewDay = std::exchange(m_day, clock().today()) != clock().today();
    const bool tasksChanged = isNewDay || changes.touches<TaskItem>();
    if (tasksChanged)
        countTasks();
    if (isNewDay || changes.touches<Page>())
        countPages();
    if (isNewDay || changes.touches<CalendarEvent>())
        countEvents();
    if (tasksChanged || changes.touches<Project>())
        countProjects();
    if (isNewDay || changes.touches<Habit>())
        countHabits();
}

void InsightsViewModel::countTasks()
{
    m_tasks = InsightsQueries::tasks(store().tasks().all(), m_day, clock().timeZone());
    m_statuses = unlessZero(InsightsPoints::ofStatuses(m_tasks));
    m_completions = unlessZero(InsightsPoints::ofDays(m_tasks.completions));
    emit tasksChanged();
}

void InsightsViewModel::countPages()
{
    m_pageCount = store().pages().size();
    m_pages = unlessZero(
        InsightsPoints::ofDays(InsightsQueries::pages(store().pages().all(), m_day, clock().timeZone())));
    emit pagesChanged();
}

void InsightsViewModel::countEvents()
{
    m_events = unlessZero(InsightsPoints::ofMonths(
        InsightsQueries::events(store().list<CalendarEvent>().all(), m_day, clock().timeZone())));
    emit eventsChanged();
}

void InsightsViewModel::countProjects()
{
    m_projects =
        InsightsPoints::ofProjects(InsightsQueries::projects(store().projects().all(), m_tasks.byProject));
    emit projectsChanged();
}

void InsightsViewModel::countHabits()
{
    const RecordList<Habit> &habits = store().list<Habit>();
    m_bestStreak = HabitOperations::bestStreak(store());
    m_habits = InsightsPoints::ofHabits(habits.all(), m_day);
    m_habitAccents.clear();
    for (const Habit &habit : habits)
        m_habitAccents.append(AccentShades::of(habit.accent));
    emit habitsChanged();
}
