#pragma once

#include "Models/Block.h"

#include <QHash>

/// Which part of each long text of a page is shown and edited. What it costs to lay a text out grows with its
/// length, so of a long one only a part is shown at a time, and what stands around it stays as it is.
class ShownParts
{
public:
    /// Positions in the text of a block.
    struct Part {
        qsizetype begin = 0;
        qsizetype end = 0;

        bool operator==(const Part &) const = default;
        QString in(const QString &text) const { return text.sliced(begin, end - begin); }
    };

    /// The longest text that is shown whole, in UTF-16 units. Code is laid out line by line, so it may be
    /// longer.
    static constexpr qsizetype maxTextLength = 16'000;
    static constexpr qsizetype maxCodeLength = 100'000;

    /// The part of a block that is shown: all of it unless it is long.
    Part of(const Block &block) const;
    /// Remembers the part as the user has made it by typing; it may become somewhat longer than others.
    void keep(const Block &block, const Part &part);
    /// Shows the part that this position lies in, if it does not lie in the one that is shown.
    void show(const Block &block, qsizetype position);
    /// Shows the part before (-1) or after (1) the one that is shown; false if there is none.
    bool step(const Block &block, int direction);

private:
    QHash<QUuid, Part> m_parts;
};
