#pragma once

#include "Features/Calendar/DayItems.h"

/// A row of the day and the agenda: an item, or the date over the items of a day.
struct CalendarRow {
    Q_GADGET
    Q_PROPERTY(QString kind READ kindText FINAL)
    Q_PROPERTY(QString title READ title FINAL)
    Q_PROPERTY(QString notes READ notes FINAL)
    Q_PROPERTY(QString timeText READ timeText FINAL)
    Q_PROPERTY(QString kindLabel READ kindLabel FINAL)
    /// A `BadgeTone`.
    Q_PROPERTY(int tone READ tone FINAL)
    Q_PROPERTY(bool isDone READ isDone FINAL)
    /// Null for a task.
    Q_PROPERTY(QUuid eventID READ eventID FINAL)
    Q_PROPERTY(bool isEvent READ isEvent FINAL)
    Q_PROPERTY(bool isFirst MEMBER isFirst FINAL)
    Q_PROPERTY(bool isLast MEMBER isLast FINAL)
    /// Of a date.
    Q_PROPERTY(QString dateText READ dateText FINAL)
    Q_PROPERTY(bool isToday MEMBER isToday FINAL)

public:
    QDate day;
    /// Nothing for a date.
    std::optional<DayItem> item = {};
    bool isToday = false;
    /// The ends of the items of a day, which are drawn as one card.
    bool isFirst = false;
    bool isLast = false;

    bool operator==(const CalendarRow &) const = default;

    QString id() const;
    QString kindText() const;
    /// On one line, as short as can be shown.
    QString title() const;
    QString notes() const;
    QString timeText() const;
    QString kindLabel() const { return item ? item->kindLabel : QString(); }
    int tone() const { return item ? int(item->tone) : 0; }
    bool isDone() const { return item && item->done; }
    QUuid eventID() const { return item ? item->eventID.value_or(QUuid()) : QUuid(); }
    bool isEvent() const { return item && item->eventID; }
    QString dateText() const;
};
