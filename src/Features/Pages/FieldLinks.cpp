#include "Features/Pages/FieldLinks.h"

#include "Features/Pages/TextLinks.h"

#include <QSyntaxHighlighter>
#include <QTextDocument>

/// Colours the addresses of a document.
class LinkHighlighter : public QSyntaxHighlighter
{
public:
    LinkHighlighter(QTextDocument *document, QObject *parent) : QSyntaxHighlighter(parent)
    {
        setDocument(document);
    }

    void setColor(const QColor &color)
    {
        m_color = color;
        rehighlight();
    }

    void setCaret(int caret)
    {
        const QTextBlock before = document()->findBlock(std::max(m_caret, 0));
        const bool wasInLink = std::exchange(m_isInLink, isInLink(caret));
        m_caret = caret;
        // Most moves of the caret stay outside of all addresses.
        if (!wasInLink && !m_isInLink)
            return;
        rehighlightBlock(before);
        if (const QTextBlock now = document()->findBlock(std::max(caret, 0)); now != before)
            rehighlightBlock(now);
    }

protected:
    void highlightBlock(const QString &text) override
    {
        QTextCharFormat format;
        format.setForeground(m_color);
        format.setFontUnderline(true);
        const qsizetype caret = m_caret < 0 ? -1 : m_caret - currentBlock().position();
        for (const TextLinks::Link &link : TextLinks::in(text))
            if (caret < link.begin || caret > link.end)
                setFormat(int(link.begin), int(link.end - link.begin), format);
    }

private:
    bool isInLink(int caret) const
    {
        if (caret < 0)
            return false;
        const QTextBlock block = document()->findBlock(caret);
        return TextLinks::at(block.text(), caret - block.position()).isValid();
    }

    QColor m_color;
    int m_caret = -1;
    bool m_isInLink = false;
};

void FieldLinks::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    delete std::exchange(m_highlighter, nullptr);
    m_document = document;
    emit documentChanged();
    makeHighlighter();
}

void FieldLinks::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    emit textChanged();
    makeHighlighter();
}

void FieldLinks::setCaret(int caret)
{
    if (m_caret == caret)
        return;
    m_caret = caret;
    emit caretChanged();
    if (m_highlighter)
        m_highlighter->setCaret(caret);
}

void FieldLinks::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    emit colorChanged();
    if (m_highlighter)
        m_highlighter->setColor(color);
}

void FieldLinks::makeHighlighter()
{
    if (m_highlighter || !m_document || !TextLinks::mayHaveLinks(m_text))
        return;
    m_highlighter = new LinkHighlighter(m_document->textDocument(), this);
    m_highlighter->setColor(m_color);
    m_highlighter->setCaret(m_caret);
}
