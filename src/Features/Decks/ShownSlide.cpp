#include "Features/Decks/ShownSlide.h"

#include "Features/Decks/DeckLayout.h"

ShownSlide ShownSlide::of(const Deck &deck, int index)
{
    return {deck.slides[index], deck.theme, index, int(deck.slides.size()), deck.showNumbers, deck.title};
}

QList<SlideRegion> ShownSlide::regions() const
{
    return DeckLayout::regions(slide, theme, index, total, showNumbers, deckTitle);
}
