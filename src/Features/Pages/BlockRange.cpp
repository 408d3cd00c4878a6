#include "Features/Pages/BlockRange.h"

#include "Features/Pages/PageBlocks.h"

#include <algorithm>

void BlockRange::replace(QList<Block> &blocks, const QList<Block> &others) const
{
    const qsizetype same = std::min(count, others.size());
    std::copy_n(others.begin(), same, blocks.begin() + first);
    if (same < count)
        blocks.remove(first + same, count - same);
    if (same == others.size())
        return;
    blocks.insert(first + same, others.size() - same, Block());
    std::copy(others.begin() + same, others.end(), blocks.begin() + first + same);
}

void BlockRange::duplicate(QList<Block> &blocks, const std::function<QUuid()> &makeID) const
{
    QList<Block> copies = of(blocks);
    for (Block &copy : copies)
        copy.id = makeID();
    BlockRange{end(), 0}.replace(blocks, copies);
}

void BlockRange::moveTo(QList<Block> &blocks, qsizetype place) const
{
    const auto begin = blocks.begin();
    if (place < first)
        std::rotate(begin + place, begin + first, begin + end());
    else if (place > end())
        std::rotate(begin + first, begin + end(), begin + place);
}

void BlockRange::changeType(QList<Block> &blocks, BlockType type) const
{
    for (qsizetype i = first; i < end(); ++i)
        PageBlocks::changeType(blocks[i], type);
}
