#include "Features/Pages/PageMenuViewModel.h"

#include "Session/PageActions.h"

QString PageMenuViewModel::favoriteTitle() const
{
    return m_isFavorite ? QStringLiteral("Remove from favorites") : QStringLiteral("Add to favorites");
}

QString PageMenuViewModel::favoriteSymbol() const
{
    return m_isFavorite ? QStringLiteral("star.fill") : QStringLiteral("star");
}

void PageMenuViewModel::open(const QUuid &pageID)
{
    m_pageID = pageID;
    const Page *const page = m_store->pages().first(pageID);
    if (!page)
        return;
    m_isFavorite = page->isFavorite;
    QList<FolderChoice> choices{{{}, m_noFolderTitle, !page->folderID}};
    for (const Folder *folder : m_store->orderedFolders())
        choices.append({folder->id, folder->name, page->folderID == folder->id});
    m_folders.setRows(choices);
    emit opened();
}

void PageMenuViewModel::toggleFavorite()
{
    m_store->toggleFavorite(m_pageID);
}

void PageMenuViewModel::duplicate()
{
    m_store->duplicatePage(m_pageID);
}

void PageMenuViewModel::moveTo(const QUuid &folderID)
{
    m_store->movePage(m_pageID, folderID.isNull() ? std::nullopt : std::optional(folderID));
}

void PageMenuViewModel::remove()
{
    PageActions::erase(*m_store, *m_ui, m_pageID);
}
