#pragma once

class WorkspaceStore;

/// Workspaces to look at.
namespace SampleWorkspace
{
/// What somebody has after a month.
void fill(WorkspaceStore &store);
/// What somebody has after years: sixty pages, eight folders and titles of two hundred characters.
void crowd(WorkspaceStore &store);
/// Snippets of several languages; the first one runs, the second fails, the third has long lines.
void addCode(WorkspaceStore &store);
/// Ten thousand tasks, with long, right-to-left and empty titles among the first.
void manyTasks(WorkspaceStore &store);
/// As many notes, with long and empty ones among the last.
void notes(WorkspaceStore &store, int count);
} // namespace SampleWorkspace
