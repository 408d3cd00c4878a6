#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with habits. Each is an action; an unknown id does nothing.
namespace HabitOperations
{
/// Days a week that a goal can ask for.
inline constexpr qint64 maxTarget = 7;

/// A habit with no days done yet, the goal held within 1 to 7 days; nothing for a blank name. Returns its id.
std::optional<QUuid> create(WorkspaceStore &store, const QString &name, const QString &emoji,
                            AccentPalette accent, qint64 targetPerWeek);
/// Marks or unmarks the day.
void toggle(WorkspaceStore &store, const QUuid &habitID, QDate day);
/// The same for the day of this moment.
void toggle(WorkspaceStore &store, const QUuid &habitID, Timestamp moment);
/// @param targetPerWeek held within 1 to 7
void setTarget(WorkspaceStore &store, const QUuid &habitID, qint64 targetPerWeek);
/// The days of the habit go with it.
void remove(WorkspaceStore &store, const QUuid &habitID);

qsizetype doneToday(const WorkspaceStore &store);
/// The longest streak that any habit has today.
qsizetype bestStreak(const WorkspaceStore &store);
} // namespace HabitOperations
