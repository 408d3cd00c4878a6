#include "Store/WorkspaceStore.h"

std::optional<Deck> WorkspaceStore::duplicateDeck(const QUuid &deckID)
{
    const Deck *const original = decks().first(deckID);
    if (!original)
        return std::nullopt;
    Deck copy = *original;
    copy.id = m_options.makeId();
    copy.title += QStringLiteral(" copy");
    for (Slide &slide : copy.slides)
        slide.id = m_options.makeId();
    copy.createdDate = copy.updatedDate = now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    add(copy);
    return copy;
}
