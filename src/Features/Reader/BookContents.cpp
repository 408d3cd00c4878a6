#include "Features/Reader/BookContents.h"

#include "Features/Reader/BookHeading.h"
#include "Foundation/TextSearch.h"

#include <QStringTokenizer>

#include <algorithm>

namespace
{
int countWords(QStringView text)
{
    int count = 0;
    bool inWord = false;
    for (const QChar unit : text) {
        const bool isSpace = unit.isSpace();
        count += !isSpace && !inWord;
        inWord = !isSpace;
    }
    return count;
}

/// Where a row that begins at the start of this text ends: behind its last blank, if it has one.
qsizetype rowEnd(QStringView text)
{
    if (text.size() <= BookContents::longestRow)
        return text.size();
    const qsizetype blank = text.first(BookContents::longestRow).lastIndexOf(u' ');
    if (blank > 0)
        return blank + 1;
    const bool splitsPair = text[BookContents::longestRow - 1].isHighSurrogate();
    return BookContents::longestRow - splitsPair;
}
} // namespace

QStringList BookContents::makeParagraphs(const QString &text)
{
    QStringList paragraphs;
    for (const QStringView piece : QStringView(text).tokenize(u"\n\n")) {
        const QStringView trimmed = piece.trimmed();
        if (trimmed.isEmpty())
            continue;
        paragraphs.append(trimmed.toString());
        paragraphs.last().replace(u'\n', u' ');
    }
    return paragraphs;
}

BookContents::BookContents(const QStringList &paragraphs)
{
    qsizetype units = 0;
    for (const QString &paragraph : paragraphs)
        units += paragraph.size() + 1;
    m_text.reserve(units);
    m_rows.reserve(paragraphs.size());
    for (int i = 0; i < paragraphs.size(); ++i)
        append(paragraphs[i], i);
    m_folded = TextSearch::fold(m_text);
}

void BookContents::append(const QString &paragraph, int number)
{
    QStringView rest = paragraph;
    for (bool continues = false; !rest.isEmpty(); continues = true) {
        const QStringView piece = rest.first(rowEnd(rest));
        rest = rest.sliced(piece.size());
        m_rows.append({.paragraph = number,
                       .start = int(m_text.size()),
                       .length = int(piece.size()),
                       .wordsBefore = m_words,
                       .continues = continues,
                       .isHeading = !continues && BookHeading::looksLikeOne(paragraph)});
        m_words += countWords(piece);
        m_text += piece;
        m_text += u'\n';
    }
}

QStringView BookContents::rowText(int row) const
{
    return QStringView(m_text).sliced(m_rows[row].start, m_rows[row].length);
}

int BookContents::rowOfParagraph(qint64 paragraph) const
{
    if (m_rows.isEmpty())
        return -1;
    const auto wanted = std::clamp<qint64>(paragraph, 0, m_rows.last().paragraph);
    return int(std::ranges::lower_bound(m_rows, wanted, {}, &Row::paragraph) - m_rows.begin());
}

int BookContents::rowAt(int position) const
{
    return int(std::ranges::upper_bound(m_rows, position, {}, &Row::start) - m_rows.begin()) - 1;
}

double BookContents::progressAt(int row) const
{
    return m_words > 0 && row >= 0 && row < m_rows.size() ? double(m_rows[row].wordsBefore) / m_words : 0;
}

int BookContents::minutesLeft(int row) const
{
    if (row < 0 || row >= m_rows.size())
        return 0;
    return (m_words - m_rows[row].wordsBefore + readingSpeed - 1) / readingSpeed;
}
