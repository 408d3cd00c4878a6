#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with decks.
namespace DeckOperations
{
/// The copy, or nothing for an unknown id.
std::optional<Deck> duplicate(WorkspaceStore &store, const QUuid &deckID);
void remove(WorkspaceStore &store, const QUuid &deckID);
} // namespace DeckOperations
