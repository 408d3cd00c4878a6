#pragma once

class WorkspaceStore;

/// Workspaces for the screens of habits and charts.
namespace SamplePractice
{
void threeHabits(WorkspaceStore &store);
void fortyHabits(WorkspaceStore &store);
/// Two weeks of tasks and pages, half a year of events, four projects and five habits.
void ordinary(WorkspaceStore &store);
/// The same with 60 projects and 20 habits.
void crowded(WorkspaceStore &store);
/// One of everything that is counted.
void single(WorkspaceStore &store);
/// Counts of five digits, and one bar above all others.
void huge(WorkspaceStore &store);
} // namespace SamplePractice
