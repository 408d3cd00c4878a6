#include "Store/TypedText.h"

#include <algorithm>

namespace
{
/// Whether a new word begins between these two characters, in the direction of typing.
bool beginsWord(QChar last, QChar next)
{
    return last.isSpace() && !next.isSpace();
}
} // namespace

TypedText TypedText::between(QStringView before, QStringView after, qsizetype caret)
{
    const qsizetype common = std::min(before.size(), after.size());
    const auto commonFront = [&](qsizetype most) {
        return std::mismatch(before.begin(), before.begin() + most, after.begin()).first - before.begin();
    };
    const auto commonBack = [&](qsizetype most) {
        qsizetype count = 0;
        while (count < most && before[before.size() - 1 - count] == after[after.size() - 1 - count])
            ++count;
        return count;
    };
    const bool isCaretKnown = caret >= 0 && caret <= after.size();
    qsizetype back = isCaretKnown ? commonBack(std::min(common, after.size() - caret)) : 0;
    const qsizetype front = commonFront(common - back);
    if (!isCaretKnown)
        back = commonBack(common - front);
    TypedText typed;
    typed.m_position = front;
    typed.m_removed = Piece::of(before.mid(front, before.size() - front - back));
    typed.m_inserted = Piece::of(after.mid(front, after.size() - front - back));
    return typed;
}

TypedText::Piece TypedText::Piece::of(QStringView text)
{
    if (text.isEmpty())
        return {};
    return {text.size(), text.front(), text.back(), text.contains(u'\n')};
}

void TypedText::Piece::append(const Piece &next)
{
    length += next.length;
    last = next.last;
}

bool TypedText::continueWith(const TypedText &next)
{
    if (m_inserted.hasLineBreak || next.m_inserted.hasLineBreak)
        return false;
    const bool inserts = m_removed.length == 0 && m_inserted.length > 0;
    const bool nextInserts = next.m_removed.length == 0 && next.m_inserted.length > 0;
    if (inserts && nextInserts) {
        if (next.m_position != endAfter() || beginsWord(m_inserted.last, next.m_inserted.first))
            return false;
        m_inserted.append(next.m_inserted);
        return true;
    }
    if (m_inserted.length > 0 || next.m_inserted.length > 0 || m_removed.length == 0 ||
        next.m_removed.length == 0)
        return false;
    if (next.m_position + next.m_removed.length == m_position &&
        !beginsWord(m_removed.first, next.m_removed.last)) {
        Piece removed = next.m_removed;
        removed.append(m_removed);
        m_removed = removed;
        m_position = next.m_position;
        return true;
    }
    if (next.m_position == m_position && !beginsWord(m_removed.last, next.m_removed.first)) {
        m_removed.append(next.m_removed);
        return true;
    }
    return false;
}
