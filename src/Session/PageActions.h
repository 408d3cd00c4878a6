#pragma once

#include "Models/Page.h"
#include "Support/Destination.h"

class UIState;
class WorkspaceStore;

/// What is done to pages from the outside, wherever it is offered.
namespace PageActions
{
/// Makes an empty page or note and opens it.
void create(WorkspaceStore &store, UIState &ui, PageKind kind);
/// Deletes the page. If it is open, the window goes to another place first.
void erase(WorkspaceStore &store, UIState &ui, const QUuid &pageID,
           Destination::Kind next = Destination::Kind::dashboard);
} // namespace PageActions
