#pragma once

#include "Features/Decks/SlideText.h"

#include <QColor>

class QPainter;

/// The one drawing of a slide, for canvas, filmstrip, presenter and PDF alike. Text is laid out on the
/// reference canvas and then scaled, so a line breaks at the same word at every size.
namespace SlidePainter
{
/// Draws the regions at the painter's origin.
/// @param width of the slide in the painter's units
void paint(QPainter &painter, const QList<SlideRegion> &regions, const SlideTheme &theme, double width);

/// For drawing region by region: has the painter's units be those of the reference canvas.
void begin(QPainter &painter, double width);
void paintBox(QPainter &painter, const SlideRegion &region);
void paintText(QPainter &painter, const SlideText &text, const SlideRegion &region, const SlideTheme &theme);

/// The colour of six hexadecimal digits; black for anything else.
QColor color(const QString &hex);
/// Where the texts of a region stand, markers left out.
QList<SlideText::PlacedLine> placedLines(const SlideRegion &region);
} // namespace SlidePainter
