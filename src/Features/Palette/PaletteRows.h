#pragma once

#include "Features/Palette/PaletteRow.h"
#include "Store/WorkspaceStore.h"

struct SearchResult;

/// What the palette lists.
namespace PaletteRows
{
inline constexpr qsizetype mostLinks = 6;
inline constexpr qsizetype mostRecentPages = 5;

/// The first of the visible modules and the pages changed last.
QList<PaletteRow> start(const WorkspaceStore &store);

/// The results in groups of one kind each, the kinds in the order in which they first appear.
QList<PaletteRow> found(const QList<SearchResult> &results, const QString &query);
} // namespace PaletteRows
