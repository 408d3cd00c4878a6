#pragma once

#include "Models/Block.h"

#include <functional>

/// Blocks of a page that follow each other, and what is done to them as one.
struct BlockRange {
    qsizetype first = 0;
    qsizetype count = 0;

    bool operator==(const BlockRange &) const = default;

    bool isEmpty() const { return count == 0; }
    /// The place after the last block.
    qsizetype end() const { return first + count; }
    QList<Block> of(const QList<Block> &blocks) const { return blocks.mid(first, count); }

    /// Puts others in the place of the blocks.
    void replace(QList<Block> &blocks, const QList<Block> &others) const;
    /// Puts copies directly after the blocks.
    void duplicate(QList<Block> &blocks, const std::function<QUuid()> &makeID) const;
    /// Moves the blocks to before the one that stands at this place; those at a place within stay.
    void moveTo(QList<Block> &blocks, qsizetype place) const;
    /// Keeps the texts; the check marks stay for to-dos only.
    void changeType(QList<Block> &blocks, BlockType type) const;
};
