#include "Features/Reader/BookMatches.h"

#include <algorithm>

namespace
{
/// Which unit of the query is rare in English, so that looking for it first skips most of the text.
qsizetype rarestUnit(QStringView query)
{
    static constexpr QStringView frequentFirst = u" etaoinshrdlucmfwygpbvk";
    qsizetype rarest = 0;
    qsizetype best = -1;
    for (qsizetype i = 0; i < query.size(); ++i) {
        const qsizetype place = frequentFirst.indexOf(query[i]);
        const qsizetype rarity = place < 0 ? frequentFirst.size() : place;
        if (rarity > best) {
            best = rarity;
            rarest = i;
        }
    }
    return rarest;
}
} // namespace

BookMatches::BookMatches(SharedBookContents contents, const QString &query) : m_contents(std::move(contents))
{
    if (!m_contents || query.trimmed().isEmpty())
        return;
    const QString wanted = BookContents::fold(query);
    const QStringView text = m_contents->folded();
    m_length = int(wanted.size());
    const qsizetype offset = rarestUnit(wanted);
    const QChar unit = wanted[offset];
    for (qsizetype at = text.indexOf(unit, offset); at >= 0;) {
        const qsizetype start = at - offset;
        const bool isMatch = text.sliced(start).startsWith(wanted);
        if (isMatch)
            m_positions.append(int(start));
        at = text.indexOf(unit, isMatch ? at + m_length : at + 1);
    }
}

BookMatches::Match BookMatches::at(int index) const
{
    const int position = m_positions[index];
    const int row = m_contents->rowAt(position);
    return {row, position - m_contents->rows()[row].start, m_length};
}

int BookMatches::firstFrom(int row) const
{
    if (m_positions.isEmpty())
        return -1;
    const int first = inRow(row).first;
    return first < count() ? first : 0;
}

BookMatches::Numbers BookMatches::inRow(int row) const
{
    if (m_positions.isEmpty() || row < 0 || row >= m_contents->rowCount())
        return {};
    const BookContents::Row &wanted = m_contents->rows()[row];
    const auto begin = std::ranges::lower_bound(m_positions, wanted.start);
    const auto end = std::ranges::lower_bound(begin, m_positions.end(), wanted.start + wanted.length);
    return {int(begin - m_positions.begin()), int(end - m_positions.begin())};
}
