#pragma once

#include "Features/Decks/SlideRegion.h"

/// How every drawing and every file of a slide reads what a theme or a text holds.
namespace SlideStyle
{
/// The colour as six hexadecimal digits; black for anything else.
QString color(const QString &hex);
/// Letter spacing within what presentation files can say.
double tracking(double tracking);
/// Whether this may stand in a file and in a drawing: no control character but tab and line ends, no half of
/// a pair.
bool isDrawable(QStringView character);

/// A line of text as it is shown, and where each character of the stored one stands in it.
struct ShownText {
    QString text;
    /// For each UTF-16 unit of the stored text and for its end, the position in the shown text.
    QList<int> positions;

    int stored(int shownPosition) const;
};
/// Capitals as the region wants them, line separators for line feeds, and no control characters.
ShownText shown(const QString &stored, bool uppercase);
} // namespace SlideStyle
