#include "Features/Reader/BookMarks.h"

#include <QTextCursor>
#include <QTextDocument>

BookMarks::BookMarks(QObject *parent) : QObject(parent), m_mark([this] { mark(); })
{
    connect(this, &BookMarks::changed, &m_mark, &CoalescedCall::request);
}

void BookMarks::setFinder(BookFinder *finder)
{
    if (m_finder == finder)
        return;
    if (m_finder)
        m_finder->disconnect(&m_mark);
    m_finder = finder;
    if (m_finder)
        connect(m_finder, &BookFinder::matchesChanged, &m_mark, &CoalescedCall::request);
    emit changed();
}

void BookMarks::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    m_document = document;
    emit changed();
}

void BookMarks::mark()
{
    if (!m_finder || !m_document)
        return;
    const BookMatches &matches = m_finder->matches();
    const auto [first, last] = matches.inRow(m_row);
    if (first == last && !m_hasMarks)
        return;
    m_hasMarks = first != last;
    // The toolkit draws no grounds for the formats of a layout, only for those of the document.
    QTextCursor cursor(m_document->textDocument());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.setCharFormat({});
    for (int i = first; i < last; ++i) {
        const BookMatches::Match match = matches.at(i);
        QTextCharFormat format;
        format.setBackground(i == m_finder->current() ? m_currentColor : m_color);
        cursor.setPosition(match.start);
        cursor.setPosition(match.start + match.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
    cursor.endEditBlock();
}
