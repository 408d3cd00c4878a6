#pragma once

#include "Features/Decks/SlideRegion.h"
#include "Models/Deck.h"

#include <QObject>

/// One slide of a deck with all that its drawing depends on.
struct ShownSlide {
    Q_GADGET

public:
    Slide slide;
    SlideTheme theme;
    /// Counted from zero.
    int index = 0;
    /// Slides in the deck; 0 for no slide at all.
    int total = 0;
    bool showNumbers = true;
    QString deckTitle;

    static ShownSlide of(const Deck &deck, int index);
    QList<SlideRegion> regions() const;

    bool operator==(const ShownSlide &) const = default;
};
