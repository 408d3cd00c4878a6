#pragma once

#include "Models/Page.h"

class UIState;
class WorkspaceStore;

/// What the shell does to pages, wherever it offers it.
namespace PageActions
{
/// Makes an empty page or note and opens it.
void create(WorkspaceStore &store, UIState &ui, PageKind kind);
/// Deletes the page. If it is open, the window goes to the dashboard first.
void erase(WorkspaceStore &store, UIState &ui, const QUuid &pageID);
} // namespace PageActions
