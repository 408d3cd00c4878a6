#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

/// The text of a book in the rows that the reader shows: a row is a paragraph, or a piece of one that is too
/// long to be laid out at once. It never changes, so that any thread may make and read it.
class BookContents
{
public:
    struct Row {
        /// The paragraph it belongs to, by which places in the book are kept.
        int paragraph = 0;
        /// In `text`, in UTF-16 units.
        int start = 0;
        int length = 0;
        /// How many words of the book come before the row.
        int wordsBefore = 0;
        /// Whether the row goes on with the paragraph of the row before.
        bool continues = false;
        /// Whether it looks like the heading of a chapter.
        bool isHeading = false;
    };

    /// Longest row, in UTF-16 units.
    static constexpr int longestRow = 6000;
    /// Words that are read in a minute.
    static constexpr int readingSpeed = 230;

    /// The paragraphs of a text: what stands between blank lines, each on one line, without empty ones.
    static QStringList makeParagraphs(const QString &text);

    explicit BookContents(const QStringList &paragraphs);

    const QList<Row> &rows() const { return m_rows; }
    int rowCount() const { return int(m_rows.size()); }
    QStringView rowText(int row) const;
    /// The row that begins the paragraph. One beyond the end means the last paragraph; -1 without any.
    int rowOfParagraph(qint64 paragraph) const;
    /// The row that holds this place in the text.
    int rowAt(int position) const;
    /// What lies behind the beginning of the row, as a part of the book's words.
    double progressAt(int row) const;
    /// How long the words from this row on take to read, rounded up.
    int minutesLeft(int row) const;

    /// The whole text, a row a line.
    const QString &text() const { return m_text; }
    /// The same as `TextSearch` compares it.
    const QString &folded() const { return m_folded; }

private:
    void append(const QString &paragraph, int number);

    QString m_text;
    QString m_folded;
    QList<Row> m_rows;
    int m_words = 0;
};

using SharedBookContents = std::shared_ptr<const BookContents>;
