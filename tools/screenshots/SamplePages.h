#pragma once

#include <QUuid>

class WorkspaceStore;

/// Pages to look at.
namespace SamplePages
{
/// Every type of block in every state, with texts of all lengths and scripts.
QUuid everyBlock(WorkspaceStore &store);
/// Two thousand blocks.
QUuid manyBlocks(WorkspaceStore &store);
/// Code blocks that succeed, fail and go on running, and paragraphs that ask for the slash menu.
QUuid workshop(WorkspaceStore &store);
} // namespace SamplePages
