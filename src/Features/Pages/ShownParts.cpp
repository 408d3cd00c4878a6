#include "Features/Pages/ShownParts.h"

#include <algorithm>

namespace
{
qsizetype maxLength(const Block &block)
{
    return block.type == BlockType::code ? ShownParts::maxCodeLength : ShownParts::maxTextLength;
}

/// The place nearest before a position at which a text can be cut: after a line of code or a word, if there
/// is one within a tenth of a part.
qsizetype cutBefore(const Block &block, qsizetype position)
{
    const QString &text = block.text;
    if (position <= 0 || position >= text.size())
        return std::clamp(position, qsizetype(0), text.size());
    const qsizetype least = std::max(position - maxLength(block) / 10, qsizetype(1));
    const auto endsHere = [&](qsizetype at) {
        return block.type == BlockType::code ? text[at - 1] == u'\n' : text[at - 1].isSpace();
    };
    for (qsizetype at = position; at >= least; --at)
        if (endsHere(at))
            return at;
    return text[position].isLowSurrogate() ? position - 1 : position;
}

ShownParts::Part partFrom(const Block &block, qsizetype begin)
{
    return {begin, cutBefore(block, begin + maxLength(block))};
}
} // namespace

ShownParts::Part ShownParts::of(const Block &block) const
{
    const qsizetype size = block.text.size();
    if (size <= maxLength(block))
        return {0, size};
    const Part kept = m_parts.value(block.id);
    if (kept.end > kept.begin && kept.end <= size && kept.end - kept.begin <= 2 * maxLength(block))
        return kept;
    return partFrom(block, cutBefore(block, std::min(kept.begin, size - maxLength(block))));
}

void ShownParts::keep(const Block &block, const Part &part)
{
    if (block.text.size() > maxLength(block))
        m_parts.insert(block.id, part);
    else
        m_parts.remove(block.id);
}

void ShownParts::show(const Block &block, qsizetype position)
{
    const Part part = of(block);
    if (position < part.begin || position > part.end)
        keep(block, partFrom(block, cutBefore(block, position - maxLength(block) / 2)));
}

bool ShownParts::step(const Block &block, int direction)
{
    const Part part = of(block);
    if (direction < 0 ? part.begin == 0 : part.end == block.text.size())
        return false;
    keep(block, direction > 0 ? partFrom(block, part.end)
                              : Part{cutBefore(block, part.begin - maxLength(block)), part.begin});
    return true;
}
