#pragma once

#include "Features/Pages/BlockRange.h"

/// The blocks of a page that the user has selected: from the anchor, where the selection began, to the focus,
/// to which it was extended. It keeps to its blocks when others come, go or move.
class BlockSelection
{
public:
    bool isEmpty() const { return m_anchor.isNull(); }
    const QUuid &anchor() const { return m_anchor; }
    const QUuid &focus() const { return m_focus; }

    void select(const QUuid &anchor, const QUuid &focus);
    void selectAll(const QList<Block> &blocks);
    void clear() { select({}, {}); }
    /// Moves the focus by as many blocks, downwards if positive, up to the edge of the page.
    void extend(const QList<Block> &blocks, qsizetype delta);
    /// Where the blocks stand; empty if an end of the selection is no longer among them.
    BlockRange in(const QList<Block> &blocks) const;

private:
    QUuid m_anchor;
    QUuid m_focus;
};
