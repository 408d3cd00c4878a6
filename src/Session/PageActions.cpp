#include "Session/PageActions.h"

#include "Store/PageOperations.h"
#include "Support/UIState.h"

void PageActions::create(WorkspaceStore &store, UIState &ui, PageKind kind)
{
    const Action action(store, QString());
    ui.setSelection(Destination::page(PageOperations::create(store, kind)));
}

void PageActions::erase(WorkspaceStore &store, UIState &ui, const QUuid &pageID, Destination::Kind next)
{
    const Action action(store, QString());
    if (ui.selection() == Destination::page(pageID))
        ui.setSelection(Destination::to(next));
    PageOperations::remove(store, pageID);
}
