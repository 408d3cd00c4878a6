#include "Features/Pages/BlockSplice.h"

#include "Features/Pages/BlockRange.h"
#include "Features/Pages/PageBlocks.h"

namespace
{
bool holdsLine(const Block &block)
{
    return block.type != BlockType::code && block.type != BlockType::divider;
}
} // namespace

BlockSplice::Place BlockSplice::insert(QList<Block> &blocks, const QUuid &id, qsizetype begin, qsizetype end,
                                       QList<Block> pasted, const std::function<QUuid()> &makeID)
{
    const qsizetype index = PageBlocks::indexOf(blocks, id);
    if (index < 0)
        return {};
    for (Block &block : pasted)
        block.id = makeID();
    const Block target = blocks[index];
    const bool takesText = holdsLine(target);
    const QString head = takesText ? target.text.first(begin) : target.text;
    const QString tail = takesText ? target.text.sliced(end) : QString();
    if (takesText && pasted.first().type == BlockType::paragraph) {
        Block joined = target;
        joined.text = head + pasted.first().text;
        pasted.first() = joined;
    } else if (takesText && head.trimmed().isEmpty()) {
        pasted.first().id = target.id;
    } else {
        pasted.prepend(target);
        pasted.first().text = head;
    }
    const Place place{pasted.last().id, pasted.last().text.size()};
    if (holdsLine(pasted.last()))
        pasted.last().text += tail;
    else if (!tail.isEmpty())
        pasted.append(Block{.id = makeID(), .text = tail});
    BlockRange{index, 1}.replace(blocks, pasted);
    return place;
}
