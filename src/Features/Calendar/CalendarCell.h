#pragma once

#include "Features/Calendar/DayItems.h"
#include "Foundation/KeyedListModel.h"

/// An item in the cell of a day. It is known by its place there, so that going to another month changes what
/// the cells show and makes none anew.
struct CalendarChip {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)
    /// A `BadgeTone`.
    Q_PROPERTY(int tone MEMBER tone FINAL)
    Q_PROPERTY(bool isDone MEMBER isDone FINAL)

public:
    int id = 0;
    QString title;
    int tone = 0;
    bool isDone = false;

    bool operator==(const CalendarChip &) const = default;
};

/// A day in a grid of days, known by its place there.
struct CalendarCell {
    Q_GADGET
    /// "23", or with its weekday.
    Q_PROPERTY(QString number MEMBER number FINAL)
    /// The day and how much stands on it, for assistive technology.
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(bool isInPeriod MEMBER isInPeriod FINAL)
    Q_PROPERTY(bool isToday MEMBER isToday FINAL)
    Q_PROPERTY(bool isSelected MEMBER isSelected FINAL)
    /// "3 more"; empty where everything shows.
    Q_PROPERTY(QString moreText MEMBER moreText FINAL)

public:
    int id = 0;
    QDate day;
    QString number;
    QString label;
    bool isInPeriod = true;
    bool isToday = false;
    bool isSelected = false;
    QString moreText;
    QList<CalendarChip> chips;

    static constexpr NestedList nestedList{"chips", &CalendarCell::chips};

    bool operator==(const CalendarCell &) const = default;
};
