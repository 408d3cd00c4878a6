#include "DesignSystem/LineSpacing.h"

#include <QTextBlock>
#include <QTextCursor>

void LineSpacing::setDocument(QQuickTextDocument *document)
{
    if (document == m_document)
        return;
    if (m_document)
        m_document->textDocument()->disconnect(this);
    m_document = document;
    if (m_document)
        connect(m_document->textDocument(), &QTextDocument::contentsChanged, this,
                &LineSpacing::applyWhenSet);
    emit documentChanged();
    apply();
}

void LineSpacing::setDistance(int distance)
{
    if (distance == m_distance)
        return;
    m_distance = distance;
    emit distanceChanged();
    apply();
}

void LineSpacing::applyWhenSet()
{
    // A line that is typed or pasted takes its spacing from the line before it. Only a text that was set as a
    // whole comes without, and such a text has nothing to undo yet.
    const QTextDocument *document = m_document->textDocument();
    const QTextBlock last = document->lastBlock();
    if (last.blockFormat().lineHeightType() != QTextBlockFormat::LineDistanceHeight)
        apply();
}

void LineSpacing::apply()
{
    if (!m_document || m_applying)
        return;
    m_applying = true;
    QTextDocument *document = m_document->textDocument();
    const bool undoable = document->isUndoRedoEnabled();
    const bool nothingToUndo = !document->isUndoAvailable();
    if (nothingToUndo)
        document->setUndoRedoEnabled(false);

    QTextBlockFormat format;
    format.setLineHeight(m_distance, QTextBlockFormat::LineDistanceHeight);
    QTextCursor cursor(document);
    cursor.select(QTextCursor::Document);
    cursor.joinPreviousEditBlock();
    cursor.mergeBlockFormat(format);
    cursor.endEditBlock();

    if (nothingToUndo)
        document->setUndoRedoEnabled(undoable);
    m_applying = false;
}
