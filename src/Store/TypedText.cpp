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
    typed.m_removed = before.mid(front, before.size() - front - back).toString();
    typed.m_inserted = after.mid(front, after.size() - front - back).toString();
    return typed;
}

bool TypedText::continueWith(const TypedText &next)
{
    const bool isBreak = m_inserted.contains(u'\n') || next.m_inserted.contains(u'\n');
    if (isBreak)
        return false;
    if (m_removed.isEmpty() && next.m_removed.isEmpty() && !m_inserted.isEmpty() &&
        !next.m_inserted.isEmpty()) {
        if (next.m_position != endAfter() || beginsWord(m_inserted.back(), next.m_inserted.front()))
            return false;
        m_inserted += next.m_inserted;
        return true;
    }
    if (!m_inserted.isEmpty() || !next.m_inserted.isEmpty() || m_removed.isEmpty() ||
        next.m_removed.isEmpty())
        return false;
    if (next.m_position + next.m_removed.size() == m_position &&
        !beginsWord(m_removed.front(), next.m_removed.back())) {
        m_removed.prepend(next.m_removed);
        m_position = next.m_position;
        return true;
    }
    if (next.m_position == m_position && !beginsWord(m_removed.back(), next.m_removed.front())) {
        m_removed += next.m_removed;
        return true;
    }
    return false;
}
