#pragma once

#include "Features/Palette/PaletteRow.h"
#include "Session/CommandSource.h"
#include "Store/WorkspaceStore.h"

struct SearchResult;

/// What the palette lists.
namespace PaletteRows
{
inline constexpr qsizetype mostLinks = 6;
inline constexpr qsizetype mostRecent = 5;

/// The places visited last, and after them the pages changed last; then the first of the visible modules.
/// @param present where the user is, which is no recent place
/// @param visited the latest first
QList<PaletteRow> start(const WorkspaceStore &store, const Destination &present,
                        const QList<Destination> &visited);

/// The results in groups of one kind each, the kinds in the order in which they first appear.
/// Behind them come the commands whose titles hold the query.
QList<PaletteRow> found(const QList<SearchResult> &results, const QList<NamedCommand> &commands,
                        const QString &query);
} // namespace PaletteRows
