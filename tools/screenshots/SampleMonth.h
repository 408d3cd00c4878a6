#pragma once

#include <QUuid>

class WorkspaceStore;

/// Records of every kind around the day of the picture.
namespace SampleMonth
{
/// The workspace of a user of every module: the examples and a busy month.
void fill(WorkspaceStore &store);
/// The same with thirty entries a day and titles of two hundred characters.
void crowd(WorkspaceStore &store);
/// A project of `fill` with everything in it, and one with nothing.
QUuid fullProject(const WorkspaceStore &store);
QUuid bareProject(const WorkspaceStore &store);
} // namespace SampleMonth
