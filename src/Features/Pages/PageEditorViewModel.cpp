#include "Features/Pages/PageEditorViewModel.h"

void PageEditorViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &WorkspaceStore::pagesChanged, this, &PageEditorViewModel::refresh);
    emit storeChanged();
    refresh();
}

void PageEditorViewModel::setPageID(const QUuid &pageID)
{
    if (m_pageID == pageID)
        return;
    m_pageID = pageID;
    emit pageIDChanged();
    refresh();
}

void PageEditorViewModel::refresh()
{
    const Page *const page = m_store ? m_store->pages().first(m_pageID) : nullptr;
    if (!page || m_title == page->title)
        return;
    m_title = page->title;
    emit titleChanged();
}
