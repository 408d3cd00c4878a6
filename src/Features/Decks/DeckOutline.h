#pragma once

#include "Models/Deck.h"

/// A deck as an outline in text, with the speaker notes.
namespace DeckOutline
{
QString markdown(const Deck &deck);
QString plainText(const Deck &deck);
} // namespace DeckOutline
