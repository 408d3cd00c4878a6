#include "Features/Reader/BookFinder.h"

void BookFinder::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    // A longer query goes on from the match that it was at.
    const int from = m_current >= 0 ? m_matches.at(m_current).row : m_topRow;
    m_query = query;
    m_matches = BookMatches(m_contents, query);
    emit queryChanged();
    goTo(m_matches.firstFrom(from));
}

QString BookFinder::countText() const
{
    if (m_query.trimmed().isEmpty())
        return {};
    return count() == 0 ? tr("No matches") : tr("%L1 of %L2").arg(m_current + 1).arg(count());
}

void BookFinder::setContents(SharedBookContents contents)
{
    m_contents = std::move(contents);
    m_matches = {};
    m_current = -1;
    m_topRow = 0;
    if (!m_query.isEmpty()) {
        m_query.clear();
        emit queryChanged();
    }
    emit matchesChanged();
}

void BookFinder::step(int by)
{
    if (count() > 0)
        goTo((m_current + by + count()) % count());
}

void BookFinder::goTo(int match)
{
    m_current = match;
    emit matchesChanged();
    if (match < 0)
        return;
    const BookMatches::Match place = m_matches.at(match);
    emit shown(place.row, place.start);
}
