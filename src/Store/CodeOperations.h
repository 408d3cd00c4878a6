#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with code documents. Each is an action; an unknown id does nothing.
namespace CodeOperations
{
/// An empty document; returns it.
CodeDocument create(WorkspaceStore &store);
/// The id of the copy, or nothing for an unknown id.
std::optional<QUuid> duplicate(WorkspaceStore &store, const QUuid &documentID);
void rename(WorkspaceStore &store, const QUuid &documentID, const QString &title);
void setLanguage(WorkspaceStore &store, const QUuid &documentID, CodeLanguage language);
/// Takes what was typed over.
/// @param caret where the caret stands in the new source; -1 if that is not known
void setSource(WorkspaceStore &store, const QUuid &documentID, const QString &source, qsizetype caret = -1);
void remove(WorkspaceStore &store, const QUuid &documentID);
} // namespace CodeOperations
