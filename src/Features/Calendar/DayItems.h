#pragma once

#include "Foundation/BadgeTone.h"
#include "Store/WorkspaceStore.h"

#include <limits>

/// An event or a task as it stands on its day in the calendar.
struct DayItem {
    /// "e" or "t" and the id of the record.
    QString id;
    QString title;
    QString kindLabel;
    BadgeTone tone = BadgeTone::neutral;
    bool done = false;
    /// "09:30"; nothing for what has no time.
    std::optional<QString> timeLabel = {};
    /// Nothing for a task.
    std::optional<QUuid> eventID = {};
    QString notes = {};

    bool operator==(const DayItem &) const = default;

    static DayItem of(const CalendarEvent &event);
};

/// What stands on the days of a period: its events, found by the store's index, and the tasks that are due on
/// them. Tasks are walked over once for the whole period.
class DayItems
{
    Q_DECLARE_TR_FUNCTIONS(DayItems)

public:
    /// @param days one after the other
    DayItems(const WorkspaceStore &store, const QList<QDate> &days);

    /// All-day events, then timed ones by their time, then tasks.
    /// @param most as many of the first ones as are wanted
    QList<DayItem> on(QDate day, qsizetype most = std::numeric_limits<qsizetype>::max()) const;
    qsizetype countOn(QDate day) const;

private:
    const WorkspaceStore &m_store;
    QHash<QDate, QList<const TaskItem *>> m_tasks;
};
