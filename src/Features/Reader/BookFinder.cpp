#include "Features/Reader/BookFinder.h"

void BookFinder::setContents(SharedBookContents contents)
{
    m_contents = std::move(contents);
    m_topRow = 0;
    reset();
}

TextMarkList BookFinder::marksIn(int row) const
{
    TextMarkList list;
    if (!isOpen())
        return list;
    const auto [first, last] = m_matches.inRow(row);
    for (int i = first; i < last; ++i) {
        const BookMatches::Match match = m_matches.at(i);
        list.marks.append({match.start, match.length, i == current()});
    }
    return list;
}

TextFinder::Found BookFinder::search(const QString &query)
{
    // A longer query goes on from the match that it was at.
    const int from = current() >= 0 ? m_matches.at(current()).row : m_topRow;
    m_matches = BookMatches(m_contents, query);
    return {m_matches.count(), m_matches.firstFrom(from)};
}

void BookFinder::showMatch(int match)
{
    const BookMatches::Match place = m_matches.at(match);
    emit shown(place.row, place.start);
}
