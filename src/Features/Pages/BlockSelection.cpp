#include "Features/Pages/BlockSelection.h"

#include "Features/Pages/PageBlocks.h"

#include <algorithm>

void BlockSelection::select(const QUuid &anchor, const QUuid &focus)
{
    m_anchor = anchor;
    m_focus = focus;
}

void BlockSelection::selectAll(const QList<Block> &blocks)
{
    if (!blocks.isEmpty())
        select(blocks.first().id, blocks.last().id);
}

void BlockSelection::extend(const QList<Block> &blocks, qsizetype delta)
{
    const qsizetype focus = PageBlocks::indexOf(blocks, m_focus);
    if (focus >= 0)
        m_focus = blocks[std::clamp<qsizetype>(focus + delta, 0, blocks.size() - 1)].id;
}

BlockRange BlockSelection::in(const QList<Block> &blocks) const
{
    if (isEmpty())
        return {};
    const qsizetype anchor = PageBlocks::indexOf(blocks, m_anchor);
    const qsizetype focus = m_focus == m_anchor ? anchor : PageBlocks::indexOf(blocks, m_focus);
    if (anchor < 0 || focus < 0)
        return {};
    const auto [first, last] = std::minmax(anchor, focus);
    return {first, last - first + 1};
}
