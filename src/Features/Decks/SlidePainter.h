#pragma once

#include "Features/Decks/SlideRegion.h"

#include <QFont>

class QPainter;

/// The one drawing of a slide, for canvas, filmstrip, presenter and PDF alike. Text is laid out on the
/// reference canvas and then scaled, so a line breaks at the same word at every size. Text that overflows its
/// rectangle is drawn, not cut.
namespace SlidePainter
{
/// Draws the regions at the painter's origin.
/// @param width of the slide in the painter's units
void paint(QPainter &painter, const QList<SlideRegion> &regions, const SlideTheme &theme, double width);

/// The font of a text region on the reference canvas.
QFont font(const SlideRegion &region);

/// A visual line of a laid out text region, in the units of the reference canvas.
struct PlacedLine {
    QString text;
    QRectF rect;
};
/// Where the texts of a region stand, markers left out.
QList<PlacedLine> placedLines(const SlideRegion &region);
} // namespace SlidePainter
