#pragma once

#include "Features/Code/CodeHighlighter.h"

#include <QPointer>
#include <QQuickTextDocument>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>

/// The text of a code editor: its colours, what the keys for indentation do to it, where the caret stands,
/// and the road of the text from and to who owns it.
class CodeEditorDocument : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The `textDocument` of a TextEdit.
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged FINAL)
    /// The owner's text. Another one than what the editor has told last takes the place of what is shown.
    /// What is typed is undone by the owner, in whose text it stands.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    /// The raw text of a `CodeLanguage`; an unknown one reads as the first language.
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged FINAL)
    /// The stretch of the document that is in view, in its pixels.
    Q_PROPERTY(qreal viewTop READ viewTop WRITE setViewTop NOTIFY viewChanged FINAL)
    Q_PROPERTY(qreal viewHeight READ viewHeight WRITE setViewHeight NOTIFY viewChanged FINAL)

    Q_PROPERTY(int caret READ caret WRITE setCaret NOTIFY caretChanged FINAL)
    /// Both from 1; the column counts UTF-16 units.
    Q_PROPERTY(int caretLine READ caretLine NOTIFY caretMoved FINAL)
    Q_PROPERTY(int caretColumn READ caretColumn NOTIFY caretMoved FINAL)
    Q_PROPERTY(int lineCount READ lineCount NOTIFY lineCountChanged FINAL)
    /// Whether more of a long text is still to come. It can't be edited before that.
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged FINAL)

public:
    explicit CodeEditorDocument(QObject *parent = nullptr);

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    /// Null before there is a document.
    QTextDocument *textDocument() const { return m_document ? m_document->textDocument() : nullptr; }

    const QString &text() const { return m_text; }
    void setText(const QString &text);
    QString language() const { return m_language; }
    void setLanguage(const QString &language);
    qreal viewTop() const { return m_viewTop; }
    void setViewTop(qreal top);
    qreal viewHeight() const { return m_viewHeight; }
    void setViewHeight(qreal height);

    int caret() const { return m_caret; }
    void setCaret(int caret);
    int caretLine() const { return m_caretLine; }
    int caretColumn() const { return m_caretColumn; }
    int lineCount() const { return m_lineCount; }
    bool isLoading() const { return m_slices.isActive(); }

    /// Puts four blanks in the place of the selection, or before each of its lines if it has several.
    Q_INVOKABLE void indent(int selectionStart, int selectionEnd);
    /// Takes up to four blanks, or a tab, from the beginning of each line of the selection.
    Q_INVOKABLE void outdent(int selectionStart, int selectionEnd);
    /// Begins a new line with the blanks that the present one begins with.
    Q_INVOKABLE void breakLine(int selectionStart, int selectionEnd);
    /// Takes the blanks before the caret back to the last stop of the indentation. Does nothing and returns
    /// false if there is anything else before it on its line.
    Q_INVOKABLE bool removeIndent(int caret);

signals:
    void documentChanged();
    void textChanged();
    void languageChanged();
    void viewChanged();
    void caretChanged();
    void caretMoved();
    void lineCountChanged();
    void isLoadingChanged();
    /// The text as the user has made it, after each change.
    void edited(const QString &text);
    /// A text from outside has come, and the caret belongs here now.
    void caretPlaced(int position);
    /// Lines may lie elsewhere than before.
    void laidOut();

private:
    void contentsWereChanged();
    /// Gives the document this text with as few changes as it takes, so that the caret keeps its place.
    void show(const QString &text);
    /// Puts a text into the document, of a long one the beginning; the rest follows turn by turn.
    void insert(const QTextCursor &place, const QString &text);
    void insertSlice();
    void tellLineCount();
    void applyLanguage();
    void locateCaret();
    void showColors();
    /// The lines that a selection touches; one that ends at the beginning of a line does not touch it.
    std::pair<int, int> linesOf(int selectionStart, int selectionEnd) const;

    QPointer<QQuickTextDocument> m_document;
    std::unique_ptr<CodeHighlighter> m_highlighter;
    QString m_text;
    /// The same as the document has it, with line feeds alone at the ends of lines.
    QString m_shown;
    QString m_language;
    qreal m_viewTop = 0;
    qreal m_viewHeight = 0;
    int m_caret = 0;
    int m_caretLine = 1;
    int m_caretColumn = 1;
    int m_lineCount = 1;
    /// Whether the document has changed by more than its colours.
    bool m_isEdited = false;
    bool m_isShowing = false;
    /// What is still to be inserted, from an offset on, and where.
    QString m_pending;
    qsizetype m_inserted = 0;
    QTextCursor m_pendingPlace;
    QTimer m_slices;
};
