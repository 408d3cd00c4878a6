#include "Features/Today/ScheduleItem.h"

#include "Features/Calendar/DayItems.h"
#include "Foundation/LineText.h"

ScheduleItem ScheduleItem::of(const CalendarEvent &event)
{
    const DayItem item = DayItem::of(event);
    return {.id = event.id,
            .title = event.title,
            .timeText = item.timeLabel.value_or(tr("All-day")),
            .hasTime = item.timeLabel.has_value(),
            .kindText = enumLabel(event.kind).toLower(),
            .tone = item.tone};
}

ScheduleItem ScheduleItem::of(const TaskItem &task)
{
    return {.id = task.id,
            .title = task.title,
            .timeText = tr("All-day"),
            .kindText = tr("Task"),
            .isTask = true,
            .isDone = task.status == TaskStatus::done};
}

QString ScheduleItem::titleText() const
{
    return LineText::shownTitle(title);
}
