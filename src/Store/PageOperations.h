#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with pages and notes. Each is an action; an unknown id does nothing.
namespace PageOperations
{
QUuid create(WorkspaceStore &store, PageKind kind);
/// A note of the text, titled by its first line; nothing for a blank text. Returns its id.
std::optional<QUuid> createNote(WorkspaceStore &store, const QString &text);
/// Takes what was typed over, key by key or at once.
void rename(WorkspaceStore &store, const QUuid &pageID, const QString &title);
void setIcon(WorkspaceStore &store, const QUuid &pageID, const QString &icon);
/// Makes a note of a page and a page of a note.
void convert(WorkspaceStore &store, const QUuid &pageID);
void toggleFavorite(WorkspaceStore &store, const QUuid &pageID);
void duplicate(WorkspaceStore &store, const QUuid &pageID);
/// @param folderID nothing makes the page loose
void move(WorkspaceStore &store, const QUuid &pageID, std::optional<QUuid> folderID);
void remove(WorkspaceStore &store, const QUuid &pageID);

using Pages = QList<const Page *>;

/// The notes, those changed last first.
Pages notes(const WorkspaceStore &store);
/// The pages that are no notes, those changed last first.
Pages recent(const WorkspaceStore &store);
/// The favorites of both kinds, those changed last first.
Pages recentFavorites(const WorkspaceStore &store);
/// The favorites of both kinds, in their order.
Pages pinned(const WorkspaceStore &store);
/// The pages in no folder, in their order.
Pages loose(const WorkspaceStore &store);
/// The pages of a folder, in their order.
Pages inFolder(const WorkspaceStore &store, const QUuid &folderID);
} // namespace PageOperations

/// What is done with folders.
namespace FolderOperations
{
Folder create(WorkspaceStore &store, const QString &name, const QString &icon);
void rename(WorkspaceStore &store, const QUuid &folderID, const QString &name);
/// The pages of the folder stay, as loose pages.
void remove(WorkspaceStore &store, const QUuid &folderID);

/// All folders in their order.
QList<const Folder *> ordered(const WorkspaceStore &store);
} // namespace FolderOperations
