#include "DesignSystem/FieldText.h"

#include <QTextCursor>
#include <QTextDocument>

void FieldText::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    if (m_document)
        m_document->textDocument()->disconnect(this);
    m_document = document;
    if (m_document) {
        m_document->textDocument()->setUndoRedoEnabled(false);
        connect(m_document->textDocument(), &QTextDocument::contentsChanged, this, &FieldText::readField);
    }
    emit documentChanged();
    fillField();
}

void FieldText::setText(const QString &text)
{
    const bool isNew = m_text != text;
    m_text = text;
    fillField();
    if (isNew)
        emit textChanged();
}

void FieldText::setComposing(bool composing)
{
    if (m_composing == composing)
        return;
    m_composing = composing;
    emit composingChanged();
    fillField();
}

QString FieldText::fieldText() const
{
    return m_document->textDocument()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void FieldText::readField()
{
    if (m_filling)
        return;
    QString text = fieldText();
    if (text == m_shown)
        return;
    m_shown = text;
    m_text = text;
    emit edited(text);
}

void FieldText::fillField()
{
    if (!m_document || m_composing || m_filling)
        return;
    const QString shown = fieldText();
    qsizetype begin = 0;
    qsizetype shownEnd = shown.size();
    qsizetype end = m_text.size();
    while (begin < std::min(shownEnd, end) && shown[begin] == m_text[begin])
        ++begin;
    while (begin < std::min(shownEnd, end) && shown[shownEnd - 1] == m_text[end - 1])
        --shownEnd, --end;
    m_shown = shown;
    if (begin == shownEnd && begin == end)
        return;

    m_filling = true;
    QTextCursor cursor(m_document->textDocument());
    cursor.setPosition(int(begin));
    cursor.setPosition(int(shownEnd), QTextCursor::KeepAnchor);
    cursor.insertText(m_text.sliced(begin, end - begin));
    m_filling = false;
    m_shown = fieldText();
}
