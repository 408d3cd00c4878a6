#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with the entries of the calendar.
namespace EventOperations
{
void remove(WorkspaceStore &store, const QUuid &eventID);

/// The events of a calendar day, those without a time first.
QList<const CalendarEvent *> onDay(const WorkspaceStore &store, QDate day);
} // namespace EventOperations
