#pragma once

#include <QPointF>

class QPainter;
class QTextLayout;

/// Text in a PDF.
namespace PdfText
{
/// Draws a layout, letters in their embedded fonts and coloured ones, which have no outlines, as pictures.
void paint(QPainter &painter, const QTextLayout &layout, QPointF position);
} // namespace PdfText
