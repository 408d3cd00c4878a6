#include "Features/Reader/BookMatches.h"

#include "Foundation/TextSearch.h"

#include <algorithm>

BookMatches::BookMatches(SharedBookContents contents, const QString &query) : m_contents(std::move(contents))
{
    if (!m_contents || query.trimmed().isEmpty())
        return;
    const QString wanted = TextSearch::fold(query);
    m_length = int(wanted.size());
    m_positions = TextSearch::find(m_contents->folded(), wanted);
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
