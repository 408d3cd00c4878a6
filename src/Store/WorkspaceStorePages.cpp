#include "Store/Questions.h"
#include "Store/WorkspaceStore.h"

namespace
{
bool isPage(const Page &page)
{
    return page.kind == PageKind::page;
}
} // namespace

QUuid WorkspaceStore::newPage(PageKind kind)
{
    Page page;
    page.id = m_options.makeId();
    page.kind = kind;
    page.icon = kind == PageKind::note ? QStringLiteral("📝") : QStringLiteral("📄");
    page.content = {Block{.id = m_options.makeId()}};
    page.createdDate = page.updatedDate = now();
    page.sortOrder = secondsSince1970(page.createdDate);
    add(page);
    return page.id;
}

void WorkspaceStore::renamePage(const QUuid &pageID, const QString &title)
{
    change<Page>(pageID, [&](Page &page) {
        page.title = title;
        page.updatedDate = now();
    });
}

void WorkspaceStore::setPageIcon(const QUuid &pageID, const QString &icon)
{
    change<Page>(pageID, [&](Page &page) {
        page.icon = icon;
        page.updatedDate = now();
    });
}

void WorkspaceStore::convertPage(const QUuid &pageID)
{
    change<Page>(pageID, [this](Page &page) {
        page.kind = page.kind == PageKind::page ? PageKind::note : PageKind::page;
        page.updatedDate = now();
    });
}

void WorkspaceStore::toggleFavorite(const QUuid &pageID)
{
    change<Page>(pageID, [this](Page &page) {
        page.isFavorite = !page.isFavorite;
        page.updatedDate = now();
    });
}

void WorkspaceStore::duplicatePage(const QUuid &pageID)
{
    const Page *const original = pages().first(pageID);
    if (!original)
        return;
    Page copy = *original;
    copy.id = m_options.makeId();
    copy.title += QStringLiteral(" copy");
    copy.isFavorite = false;
    copy.createdDate = copy.updatedDate = now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    for (Block &block : copy.content)
        block.id = m_options.makeId();
    add(copy);
}

void WorkspaceStore::movePage(const QUuid &pageID, std::optional<QUuid> folderID)
{
    change<Page>(pageID, [&](Page &page) {
        page.folderID = folderID;
        page.updatedDate = now();
    });
}

Folder WorkspaceStore::newFolder(const QString &name, const QString &icon)
{
    const Timestamp moment = now();
    const Folder folder{m_options.makeId(), name, icon, secondsSince1970(moment), moment, moment};
    add(folder);
    return folder;
}

void WorkspaceStore::renameFolder(const QUuid &folderID, const QString &name)
{
    change<Folder>(folderID, [&](Folder &folder) {
        folder.name = name;
        folder.updatedDate = now();
    });
}

void WorkspaceStore::deleteFolder(const QUuid &folderID)
{
    if (!folders().first(folderID))
        return;
    for (const QUuid &pageID :
         Questions::ids(pages(), [&](const Page &page) { return page.folderID == folderID; }))
        movePage(pageID, std::nullopt);
    erase<Folder>(folderID);
}

WorkspaceStore::Found<Page> WorkspaceStore::notes() const
{
    return Questions::newestFirst(
        Questions::where(pages(), [](const Page &page) { return page.kind == PageKind::note; }),
        &Page::updatedDate);
}

WorkspaceStore::Found<Page> WorkspaceStore::recentPages() const
{
    return Questions::newestFirst(Questions::where(pages(), isPage), &Page::updatedDate);
}

WorkspaceStore::Found<Page> WorkspaceStore::pinnedPages() const
{
    return Questions::ascending(Questions::where(pages(), &Page::isFavorite), &Page::sortOrder);
}

WorkspaceStore::Found<Page> WorkspaceStore::loosePages() const
{
    return Questions::ascending(
        Questions::where(pages(), [](const Page &page) { return isPage(page) && !page.folderID; }),
        &Page::sortOrder);
}

WorkspaceStore::Found<Page> WorkspaceStore::pagesIn(const QUuid &folderID) const
{
    return Questions::ascending(
        Questions::where(pages(),
                         [&folderID](const Page &page) { return isPage(page) && page.folderID == folderID; }),
        &Page::sortOrder);
}

WorkspaceStore::Found<Folder> WorkspaceStore::orderedFolders() const
{
    return Questions::ascending(Questions::where(folders(), [](const Folder &) { return true; }),
                                &Folder::sortOrder);
}
