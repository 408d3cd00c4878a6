#include "Features/Pages/PageMenuViewModel.h"

#include "Session/PageActions.h"
#include "Store/PageOperations.h"

QString PageMenuViewModel::favoriteTitle() const
{
    return m_isFavorite ? tr("Remove from favorites") : tr("Add to favorites");
}

QString PageMenuViewModel::favoriteSymbol() const
{
    return m_isFavorite ? QStringLiteral("star.fill") : QStringLiteral("star");
}

void PageMenuViewModel::open(const QUuid &pageID)
{
    m_pageID = pageID;
    const Page *const page = store().pages().first(pageID);
    if (!page)
        return;
    m_isFavorite = page->isFavorite;
    QList<FolderChoice> choices{{{}, m_noFolderTitle, !page->folderID}};
    for (const Folder *folder : FolderOperations::ordered(store()))
        choices.append({folder->id, folder->name, page->folderID == folder->id});
    m_folders.setRows(choices);
    emit opened();
}

void PageMenuViewModel::toggleFavorite()
{
    PageOperations::toggleFavorite(store(), m_pageID);
}

void PageMenuViewModel::duplicate()
{
    PageOperations::duplicate(store(), m_pageID);
}

void PageMenuViewModel::moveTo(const QUuid &folderID)
{
    PageOperations::move(store(), m_pageID, folderID.isNull() ? std::nullopt : std::optional(folderID));
}

void PageMenuViewModel::remove()
{
    PageActions::erase(store(), ui(), m_pageID);
}
