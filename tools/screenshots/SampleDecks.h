#pragma once

#include "Models/SlideTheme.h"

#include <QUuid>

class WorkspaceStore;

/// Decks to look at.
namespace SampleDecks
{
/// A slide of every kind.
QUuid everyKind(WorkspaceStore &store, const SlideTheme &theme);
/// The same with more text than the slides have room for.
QUuid crowded(WorkspaceStore &store);
QUuid many(WorkspaceStore &store, int count);
/// None at all.
QUuid bare(WorkspaceStore &store);
} // namespace SampleDecks
