#pragma once

#include "Store/Snapshot.h"

class WorkspaceStore;

/// Workspaces for measuring, the same at every run. Their texts read like English with a few accents, quotes,
/// line ends, links and emoji.
namespace WorkspaceGenerator
{
/// A mix of all kinds of records whose file has about this many bytes.
Snapshot ofFileSize(qsizetype bytes);

/// The mix in 10 MB, and 10,000 tasks, 10,000 events and 200 projects: a tenth of the tasks and events fall
/// on the weeks around today, the others within some years.
Snapshot ofBusyYears();

/// Nothing but these.
Snapshot ofTasksAndPages(int tasks, int pages);

/// As many of each kind that the search looks into, titled "Page 0", "Task 0" and so on; the pages with a
/// text of this length in units.
Snapshot ofEveryKind(int count, qsizetype pageLength);

/// Adds all records in one action.
void addTo(WorkspaceStore &store, const Snapshot &workspace);

/// Pages titled "Page 0" and so on, each with one text of this length in units.
QList<Page> longPages(int count, qsizetype length);
} // namespace WorkspaceGenerator
