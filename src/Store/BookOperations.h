#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with books.
namespace BookOperations
{
/// A book with the same catalogue number is replaced and its id kept. Returns the stored book.
Book add(WorkspaceStore &store, const Book &book);
/// Remembers the paragraph that the user has come to. An unknown id does nothing.
void keepPlace(WorkspaceStore &store, const QUuid &bookID, qint64 paragraph);
/// Its text is deleted once this can no longer be undone. An unknown id does nothing.
void remove(WorkspaceStore &store, const QUuid &bookID);
} // namespace BookOperations
