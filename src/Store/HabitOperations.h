#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with habits.
namespace HabitOperations
{
/// Marks or unmarks the day of this moment; an unknown id does nothing.
void toggle(WorkspaceStore &store, const QUuid &habitID, Timestamp moment);

qsizetype doneToday(const WorkspaceStore &store);
/// The longest streak that any habit has today.
qsizetype bestStreak(const WorkspaceStore &store);
} // namespace HabitOperations
