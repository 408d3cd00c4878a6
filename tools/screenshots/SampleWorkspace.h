#pragma once

class WorkspaceStore;

/// Workspaces to look at.
namespace SampleWorkspace
{
/// What somebody has after a month.
void fill(WorkspaceStore &store);
/// What somebody has after years: sixty pages, eight folders and titles of two hundred characters.
void crowd(WorkspaceStore &store);
} // namespace SampleWorkspace
