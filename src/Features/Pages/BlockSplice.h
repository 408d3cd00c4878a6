#pragma once

#include "Models/Block.h"

#include <functional>

/// Puts blocks into a page where a text is being written.
namespace BlockSplice
{
/// Where a caret stands.
struct Place {
    QUuid blockID;
    qsizetype position = 0;
};

/// Puts blocks in the place of what stands from `begin` to `end` in the text of a block. A paragraph at their
/// start goes on in that text, and what followed it goes on in the last of them. Returns where the caret
/// belongs.
/// @param pasted not empty; their ids are made here
Place insert(QList<Block> &blocks, const QUuid &id, qsizetype begin, qsizetype end, QList<Block> pasted,
             const std::function<QUuid()> &makeID);
} // namespace BlockSplice
