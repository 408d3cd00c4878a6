#pragma once

class WorkspaceStore;

/// Workspaces to look at.
namespace SampleWorkspace
{
/// What somebody has after a month.
void fill(WorkspaceStore &store);
/// What somebody has after years: sixty pages, eight folders and titles of two hundred characters.
void crowd(WorkspaceStore &store);
/// Ten thousand tasks, with long, right-to-left and empty titles among the first.
void manyTasks(WorkspaceStore &store);
} // namespace SampleWorkspace
