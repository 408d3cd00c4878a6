#pragma once

#include "Foundation/BadgeTone.h"
#include "Models/CalendarEvent.h"
#include "Models/TaskItem.h"

#include <QCoreApplication>

/// One line of what a day holds: an event, or a task that is due.
struct ScheduleItem {
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(ScheduleItem)
    Q_PROPERTY(QString title READ titleText FINAL)
    /// "09:30", or "All-day".
    Q_PROPERTY(QString timeText MEMBER timeText FINAL)
    Q_PROPERTY(bool hasTime MEMBER hasTime FINAL)
    Q_PROPERTY(QString kindText MEMBER kindText FINAL)
    /// A `BadgeTone`.
    Q_PROPERTY(int tone READ toneNumber FINAL)
    Q_PROPERTY(bool isTask MEMBER isTask FINAL)
    Q_PROPERTY(bool isDone MEMBER isDone FINAL)

public:
    QUuid id;
    QString title;
    QString timeText;
    bool hasTime = false;
    QString kindText;
    BadgeTone tone = BadgeTone::neutral;
    bool isTask = false;
    bool isDone = false;

    bool operator==(const ScheduleItem &) const = default;

    static ScheduleItem of(const CalendarEvent &event);
    static ScheduleItem of(const TaskItem &task);

    QString titleText() const;
    int toneNumber() const { return int(tone); }
};
