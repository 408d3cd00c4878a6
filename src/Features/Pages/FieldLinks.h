#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickTextDocument>
#include <QtQml/qqmlregistration.h>

class LinkHighlighter;

/// Draws the addresses in a text field as links, except the one that the caret is in. The text stays as it
/// is.
class FieldLinks : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The `textDocument` of a TextEdit.
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged FINAL)
    /// What the document holds.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    /// Where the caret stands; -1 while it is elsewhere.
    Q_PROPERTY(int caret READ caret WRITE setCaret NOTIFY caretChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    const QString &text() const { return m_text; }
    void setText(const QString &text);
    int caret() const { return m_caret; }
    void setCaret(int caret);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

signals:
    void documentChanged();
    void textChanged();
    void caretChanged();
    void colorChanged();

private:
    /// Most texts hold no address, so that the highlighter is made for the first that does.
    void makeHighlighter();

    QPointer<QQuickTextDocument> m_document;
    QString m_text;
    int m_caret = -1;
    QColor m_color;
    LinkHighlighter *m_highlighter = nullptr;
};
