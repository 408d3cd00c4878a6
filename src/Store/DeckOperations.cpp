#include "Store/DeckOperations.h"

std::optional<Deck> DeckOperations::duplicate(WorkspaceStore &store, const QUuid &deckID)
{
    const Deck *const original = store.list<Deck>().first(deckID);
    if (!original)
        return std::nullopt;
    const Action action(store, ActionText::tr("Duplicate Deck"));
    Deck copy = *original;
    copy.id = store.makeId();
    copy.title += QStringLiteral(" copy");
    for (Slide &slide : copy.slides)
        slide.id = store.makeId();
    copy.createdDate = copy.updatedDate = store.now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    store.add(copy);
    return copy;
}

void DeckOperations::remove(WorkspaceStore &store, const QUuid &deckID)
{
    const Action action(store, ActionText::tr("Delete Deck"));
    action.setMessage(ActionText::tr("Deck deleted"));
    store.erase<Deck>(deckID);
}
