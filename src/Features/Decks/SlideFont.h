#pragma once

#include "Features/Decks/SlideRegion.h"

#include <QFont>

class QTextLayout;

/// The fonts of slides, and how a line of text is set in them.
namespace SlideFont
{
/// The font of a text region on the reference canvas.
QFont of(const SlideRegion &region);
QFont ofMarkers(const SlideRegion &region);
/// Gives the layout a shown text in the region's font. What is typed is what shows: no characters are drawn
/// as one sign, and those that ask for it are emoji in colour.
void setText(QTextLayout &layout, const QString &text, const SlideRegion &region);
/// The line with an ellipsis at its end, shortened until it is no wider than this.
QString endedLine(QString line, const QFont &font, double width);
} // namespace SlideFont
