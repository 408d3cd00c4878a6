#pragma once

#include "DesignSystem/AccentShades.h"
#include "Foundation/KeyedListModel.h"
#include "Models/Habit.h"

#include <QDate>

/// One day of a habit's week.
struct HabitDay {
    Q_GADGET
    QML_ANONYMOUS
    /// The letter of the weekday.
    Q_PROPERTY(QString letter MEMBER letter FINAL)
    /// Date and state, as they are read out.
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(bool isDone MEMBER isDone FINAL)
    Q_PROPERTY(bool isToday MEMBER isToday FINAL)
    Q_PROPERTY(bool isFuture MEMBER isFuture FINAL)

public:
    /// The days from Sunday are 0 to 6, so that a new week changes them where they stand.
    int id = 0;
    QString letter;
    QString name;
    bool isDone = false;
    bool isToday = false;
    bool isFuture = false;

    bool operator==(const HabitDay &) const = default;
};

/// A row of the list: a habit, or below all the prompt for another one.
struct HabitRow {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString kind READ kind FINAL)
    Q_PROPERTY(QUuid habitID MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString emoji MEMBER emoji FINAL)
    Q_PROPERTY(AccentShades accent MEMBER accent FINAL)
    Q_PROPERTY(bool isDoneToday MEMBER isDoneToday FINAL)
    /// Days in a row.
    Q_PROPERTY(int streak MEMBER streak FINAL)
    /// Days a week.
    Q_PROPERTY(int target MEMBER target FINAL)
    /// "3/5 this week"
    Q_PROPERTY(QString weekText READ weekText FINAL)

public:
    QUuid id;
    bool isPrompt = false;
    QString name = {};
    QString emoji = {};
    AccentShades accent = {};
    bool isDoneToday = false;
    int streak = 0;
    int weeklyCount = 0;
    int target = 0;
    QList<HabitDay> days = {};
    static constexpr NestedList nestedList{"days", &HabitRow::days};

    bool operator==(const HabitRow &) const = default;

    static HabitRow of(const Habit &habit, QDate today);
    static HabitRow prompt();

    /// "habit" or "prompt", by which the view chooses the look of the row.
    QString kind() const;
    QString weekText() const;
};
