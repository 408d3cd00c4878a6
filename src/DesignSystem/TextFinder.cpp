#include "DesignSystem/TextFinder.h"

#include <utility>

TextFinder::TextFinder(QObject *parent) : QObject(parent)
{
    for (const auto shown : {&TextFinder::matchesChanged, &TextFinder::isOpenChanged})
        connect(this, shown, this, [this] {
            ++m_revision;
            emit revisionChanged();
        });
}

void TextFinder::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    emit queryChanged();
    searchAgain(true);
}

void TextFinder::setReplacing(bool replacing)
{
    if (std::exchange(m_isReplacing, replacing) != replacing)
        emit isReplacingChanged();
}

QString TextFinder::countText() const
{
    if (m_query.trimmed().isEmpty())
        return {};
    return m_count == 0 ? tr("No matches") : tr("%L1 of %L2").arg(m_current + 1).arg(m_count);
}

void TextFinder::open(const QString &text)
{
    if (!std::exchange(m_isOpen, true)) {
        emit isOpenChanged();
        if (text.isEmpty() || text == m_query)
            searchAgain(true);
    }
    if (!text.isEmpty())
        setQuery(text);
    emit opened();
}

void TextFinder::openReplace(const QString &text)
{
    setReplacing(canReplace());
    open(text);
}

void TextFinder::close()
{
    if (!std::exchange(m_isOpen, false))
        return;
    setReplacing(false);
    emit isOpenChanged();
}

void TextFinder::replace()
{
    if (m_current >= 0 && canReplace())
        replaceMatches(m_current, m_current + 1, m_replacement);
}

void TextFinder::replaceAll()
{
    if (m_count > 0 && canReplace())
        replaceMatches(0, m_count, m_replacement);
}

void TextFinder::searchAgain(bool shows)
{
    Found found;
    if (m_query.trimmed().isEmpty())
        clearMatches();
    else
        found = search(m_query);
    m_count = found.count;
    goTo(found.first, shows);
}

void TextFinder::reset()
{
    m_count = 0;
    m_current = -1;
    clearMatches();
    if (!std::exchange(m_query, QString()).isEmpty())
        emit queryChanged();
    emit matchesChanged();
}

void TextFinder::step(int by)
{
    if (!m_isOpen) {
        open();
        // That leads to the first match from where the user is.
        if (by > 0)
            return;
    }
    if (m_count > 0)
        goTo((m_current + by + m_count) % m_count, true);
}

void TextFinder::goTo(int match, bool shows)
{
    m_current = match;
    emit matchesChanged();
    if (match >= 0 && shows)
        showMatch(match);
}
