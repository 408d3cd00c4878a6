#include "Features/Code/CodeFinder.h"

#include "Foundation/LineText.h"
#include "Foundation/TextSearch.h"

#include <algorithm>

void CodeFinder::setText(const QString &text, bool isOther)
{
    const QString next = LineText::withLineFeeds(text);
    if (m_text == next && !isOther)
        return;
    m_text = next;
    m_folded.clear();
    if (isOther) {
        m_matches.clear();
        m_from = 0;
    }
    if (isOpen())
        searchAgain(false);
}

void CodeFinder::startAt(int position)
{
    m_from = position;
    // The last match is where the user was before.
    if (!isOpen())
        m_matches.clear();
}

TextMarkList CodeFinder::marks() const
{
    TextMarkList list;
    if (isOpen())
        for (qsizetype i = 0; i < m_matches.size(); ++i)
            list.marks.append({m_matches[i], m_length, i == current()});
    return list;
}

void CodeFinder::show(const QString &text)
{
    if (text.trimmed().isEmpty())
        return;
    // The text may have changed since it was last searched, and the query may be the same.
    startAt(0);
    setQuery({});
    setQuery(text);
    choose();
}

bool CodeFinder::choose()
{
    const bool isFound = current() >= 0 && current() < m_matches.size();
    if (isFound)
        emit shown(m_matches[current()], m_length, true);
    return isFound;
}

TextFinder::Found CodeFinder::search(const QString &query)
{
    if (current() >= 0 && current() < m_matches.size())
        m_from = m_matches[current()];
    if (m_folded.size() != m_text.size())
        m_folded = TextSearch::fold(m_text);
    const QString wanted = TextSearch::fold(query);
    m_length = int(wanted.size());
    m_matches = TextSearch::find(m_folded, wanted);
    if (m_matches.isEmpty())
        return {};
    const auto next = std::ranges::lower_bound(m_matches, m_from);
    return {int(m_matches.size()), next == m_matches.end() ? 0 : int(next - m_matches.begin())};
}

void CodeFinder::replaceMatches(int first, int last, const QString &by)
{
    QString text;
    int copied = 0;
    for (int i = first; i < last; ++i) {
        text += QStringView(m_text).sliced(copied, m_matches[i] - copied);
        text += by;
        copied = m_matches[i] + m_length;
    }
    const int caret = int(text.size());
    text += QStringView(m_text).sliced(copied);
    m_matches.clear();
    m_from = caret;
    emit replaced(text, caret, last - first);
    // The owner has told the text by now, and if not, here it is.
    setText(text, false);
    searchAgain(true);
}
