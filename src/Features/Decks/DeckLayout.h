#pragma once

#include "Features/Decks/SlideRegion.h"

/// Turns a slide into its regions. Every rectangle is a constant of the slide's kind, except the stat cards,
/// which share the width; nothing measures text.
namespace DeckLayout
{
/// The reference canvas.
inline constexpr QSizeF canvas(1280, 720);

/// All regions of a slide from back to front.
/// @param index counted from zero
/// @param total slides in the deck
QList<SlideRegion> regions(const Slide &slide, const SlideTheme &theme, int index, int total,
                           bool showNumbers, const QString &deckTitle);

QList<SlideRegion> titleSlide(const Slide &slide, const SlideTheme &theme);
QList<SlideRegion> sectionSlide(const Slide &slide, const SlideTheme &theme);
QList<SlideRegion> statementSlide(const Slide &slide, const SlideTheme &theme);
QList<SlideRegion> bulletsSlide(const Slide &slide, const SlideTheme &theme);
QList<SlideRegion> twoColumnSlide(const Slide &slide, const SlideTheme &theme);
QList<SlideRegion> quoteSlide(const Slide &slide, const SlideTheme &theme);
QList<SlideRegion> statsSlide(const Slide &slide, const SlideTheme &theme);
QList<SlideRegion> closingSlide(const Slide &slide, const SlideTheme &theme);

/// The lines with the theme's markers; blank ones get none but count.
QList<SlideRegion::Line> bulletLines(const QStringList &lines, const SlideTheme &theme);
QList<SlideRegion> footer(const SlideTheme &theme, int index, int total, bool showNumbers,
                          const QString &deckTitle);

/// A line of a stats slide: what stands before and behind its first bar, trimmed.
struct Stat {
    QString value;
    QString label;

    bool operator==(const Stat &) const = default;
};
Stat stat(const QString &line);
/// Whether nothing but blanks and tabs stands in the line.
bool isBlankLine(const QString &line);
} // namespace DeckLayout
