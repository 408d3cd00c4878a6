#pragma once

class WorkspaceStore;

/// Databases as their screen shows them, each workspace with one.
namespace SampleDatabases
{
void empty(WorkspaceStore &store);
/// Twenty records with a property of every type.
void ordinary(WorkspaceStore &store);
/// The same with filters, a sort and a grouping.
void ruled(WorkspaceStore &store);
/// Two hundred records of sixty properties with long names, values of two hundred characters and thirty
/// options.
void crowded(WorkspaceStore &store);
} // namespace SampleDatabases
