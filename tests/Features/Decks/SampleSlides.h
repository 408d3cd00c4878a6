#pragma once

#include "Models/Deck.h"

/// Slides with every field filled that their kind shows, and some that it doesn't.
namespace SampleSlides
{
inline Slide slide(SlideKind kind)
{
    Slide slide;
    slide.kind = kind;
    slide.kicker = QStringLiteral("Spring 2026");
    slide.title = QStringLiteral("A calm place to think");
    slide.subtitle = QStringLiteral("What changes, and why");
    slide.body = QStringLiteral("Keep it short\n\nEnd with a clear ask");
    slide.bodyB = QStringLiteral("Second column\n  indented");
    slide.notes = QStringLiteral("Breathe\nand speak slowly");
    if (kind == SlideKind::section)
        slide.kicker = QStringLiteral("01");
    if (kind == SlideKind::stats)
        slide.body = QStringLiteral("72 | Conversion rate\n1.4s | Median | load\n98\n5 | Never shown");
    if (kind == SlideKind::quote)
        slide.body = QStringLiteral("Simplicity is a gift to be simple.");
    return slide;
}

/// Gives the slide more text than its regions have room for.
inline void overfill(Slide &slide)
{
    const QString sentence = QStringLiteral("A calm place needs some more words than a line has room for. ");
    slide.title = sentence.repeated(2).trimmed();
    slide.body = sentence.repeated(8).trimmed();
    if (slide.kind == SlideKind::stats)
        slide.body =
            QStringLiteral("1,234,567.89 EUR | Revenue\n72 %1| Label %1\n99.999999 % | x").arg(sentence);
    else if (slide.kind != SlideKind::quote)
        slide.body = slide.bodyB = (sentence + u'\n').repeated(8).trimmed();
}

inline Deck deck()
{
    Deck deck;
    deck.title = QStringLiteral("R&D <5> \"plans\"");
    deck.author = QStringLiteral("Zoë's team");
    deck.summary = QStringLiteral("Where we stand");
    deck.updatedDate = std::chrono::sys_days(std::chrono::year(2026) / 3 / 1);
    for (const auto &entry : enumCases<SlideKind>())
        deck.slides.append(slide(entry.value));
    return deck;
}
} // namespace SampleSlides
