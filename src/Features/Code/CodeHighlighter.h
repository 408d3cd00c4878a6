#pragma once

#include "Features/Code/CodeSyntax.h"
#include "Models/CodeLanguage.h"

#include <QColor>
#include <QObject>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTimer>

#include <array>
#include <limits>

class QTextDocument;

/// Colours a document as `CodeSyntax::tokens` of its whole text says, and keeps it so while it is edited. A
/// key costs the lines it changed. What a key changes further down, as when a comment is opened, follows in
/// small portions, one a turn of the event loop, so that no key has to wait for a long document.
///
/// Finding the tokens is cheap, but a line with new colours has to be set and painted anew. So a view tells
/// which lines it shows, and the others take their colours when they come into view.
///
/// The text's own font and colour are left to the document; tokens differ from it by colour and weight.
/// It keeps its notes in the blocks' user state, which belongs to it alone.
class CodeHighlighter : public QObject
{
    Q_OBJECT

public:
    /// One for each kind of token, in the order of `CodeTokenKind`.
    using Colors = std::array<QColor, 5>;

    /// @param document lives at least as long
    explicit CodeHighlighter(QTextDocument *document, QObject *parent = nullptr);

    /// Colours anew if the language is another one.
    void setLanguage(CodeLanguage language);
    /// Colours anew if a colour is another one.
    void setColors(const Colors &colors);

    /// Colours these lines alone from now on, counted from 0; at first all are.
    void setVisibleLines(int first, int last);

    /// Whether all visible lines have their colours.
    bool isSettled() const { return m_next.isNull(); }
    /// Whether the document changes at this moment because of its colours alone.
    bool isColoring() const { return m_isColoring; }
    /// Colours at once what is still to be done.
    void settle();

private:
    void recolor(int from, int removed, int added);
    void recolorAll();
    /// Goes on from `m_next` for about this many units of text.
    void colorPortion(qsizetype units);
    /// Colours lines up to the one that begins at `until`. Gives the line to go on with, if there is one.
    QTextBlock colorLines(QTextBlock block, int until, qsizetype units);
    /// Finds the tokens of the line. Gives what it leaves open.
    CodeSyntax::Open scan(const QTextBlock &block, CodeSyntax::Open open);
    /// Sets the colours of the tokens found last on the line.
    void paint(const QTextBlock &block);
    bool isVisible(int line) const { return line >= m_firstVisible && line <= m_lastVisible; }
    void goOnFrom(const QTextBlock &block);

    QTextDocument *m_document;
    CodeLanguage m_language = CodeLanguage::plain;
    std::array<QTextCharFormat, 5> m_formats;
    /// The first line that may have wrong colours; null if all are right.
    QTextCursor m_next;
    /// The last line that was changed since it got its colours.
    QTextCursor m_lastChanged;
    QTimer m_portions;
    int m_firstVisible = 0;
    int m_lastVisible = std::numeric_limits<int>::max();
    bool m_isColoring = false;
    QList<CodeToken> m_tokens;
};
