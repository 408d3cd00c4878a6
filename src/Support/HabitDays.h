#pragma once

#include "Models/Habit.h"

#include <QDate>

/// What the marked days of a habit add up to on a given day.
namespace HabitDays
{
/// Days in a row that are done, ending today or, while today is still open, yesterday.
qsizetype currentStreak(const Habit &habit, QDate today);
/// Days done in this week, from Sunday through today.
qsizetype weeklyCount(const Habit &habit, QDate today);
} // namespace HabitDays
