#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with the entries of the calendar.
namespace EventOperations
{
/// @param timeMinutes after midnight; nothing for an all-day entry
QUuid create(WorkspaceStore &store, const QString &title, Timestamp date, std::optional<qint64> timeMinutes,
             EventKind kind);
/// Adds events that come from elsewhere, in one step.
void addAll(WorkspaceStore &store, const QList<CalendarEvent> &events);
void remove(WorkspaceStore &store, const QUuid &eventID);

/// The events of a calendar day, those without a time first.
QList<const CalendarEvent *> onDay(const WorkspaceStore &store, QDate day);
} // namespace EventOperations
