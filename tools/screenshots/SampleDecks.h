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
/// Three hundred slides.
QUuid many(WorkspaceStore &store);
/// None at all.
QUuid bare(WorkspaceStore &store);
} // namespace SampleDecks
