#include "Features/Shell/PageActions.h"

#include "Store/WorkspaceStore.h"
#include "Support/UIState.h"

void PageActions::create(WorkspaceStore &store, UIState &ui, PageKind kind)
{
    ui.setSelection(Destination::page(store.newPage(kind)));
}

void PageActions::erase(WorkspaceStore &store, UIState &ui, const QUuid &pageID)
{
    if (ui.selection() == Destination::page(pageID))
        ui.setSelection(Destination::to(Destination::Kind::dashboard));
    store.erase<Page>(pageID);
}
