#include "Features/Reader/BookMarks.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

BookMarks::BookMarks(QObject *parent) : QObject(parent)
{
    connect(this, &BookMarks::changed, this, &BookMarks::mark);
}

void BookMarks::setFinder(BookFinder *finder)
{
    if (m_finder == finder)
        return;
    if (m_finder)
        m_finder->disconnect(this);
    m_finder = finder;
    if (m_finder)
        connect(m_finder, &BookFinder::matchesChanged, this, &BookMarks::mark);
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
    QList<QTextLayout::FormatRange> ranges;
    for (int i = first; i < last; ++i) {
        const BookMatches::Match match = matches.at(i);
        QTextCharFormat format;
        format.setBackground(i == m_finder->current() ? m_currentColor : m_color);
        ranges.append({match.start, match.length, format});
    }
    m_hasMarks = !ranges.isEmpty();
    QTextDocument *const document = m_document->textDocument();
    const QTextBlock block = document->firstBlock();
    block.layout()->setFormats(ranges);
    document->markContentsDirty(block.position(), block.length());
}
