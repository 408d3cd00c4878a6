#include "Store/PageOperations.h"

#include "Foundation/Graphemes.h"
#include "Foundation/LineText.h"
#include "Store/Questions.h"

namespace
{
bool isPage(const Page &page)
{
    return page.kind == PageKind::page;
}

template <typename Edit>
void changePage(WorkspaceStore &store, const QUuid &pageID, const QString &name, Edit edit)
{
    const Action action(store, name);
    store.change<Page>(pageID, [&](Page &page) {
        edit(page);
        page.updatedDate = store.now();
    });
}
} // namespace

QUuid PageOperations::create(WorkspaceStore &store, PageKind kind)
{
    const Action action(store,
                        kind == PageKind::note ? ActionText::tr("New Note") : ActionText::tr("New Page"));
    Page page;
    page.id = store.makeId();
    page.kind = kind;
    page.icon = kind == PageKind::note ? QStringLiteral("📝") : QStringLiteral("📄");
    page.content = {Block{.id = store.makeId()}};
    page.createdDate = page.updatedDate = store.now();
    page.sortOrder = secondsSince1970(page.createdDate);
    store.add(page);
    return page.id;
}

std::optional<QUuid> PageOperations::createNote(WorkspaceStore &store, const QString &text)
{
    static constexpr qsizetype titleLength = 60;
    const QString trimmed = LineText::withLineFeeds(text).trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    const Action action(store, ActionText::tr("New Note"));
    const QUuid id = create(store, PageKind::note);
    store.change<Page>(id, [&](Page &note) {
        note.title = Graphemes::left(trimmed.section(u'\n', 0, 0), titleLength).trimmed();
        note.content.first().text = trimmed;
    });
    return id;
}

void PageOperations::rename(WorkspaceStore &store, const QUuid &pageID, const QString &title)
{
    const Page *const page = store.pages().first(pageID);
    if (!page || page->title == title)
        return;
    const Action action(store, Typing{.text = {pageID, QStringLiteral("title")},
                                      .before = page->title,
                                      .after = title,
                                      .name = ActionText::tr("Rename Page")});
    changePage(store, pageID, {}, [&](Page &changed) { changed.title = title; });
}

void PageOperations::setIcon(WorkspaceStore &store, const QUuid &pageID, const QString &icon)
{
    changePage(store, pageID, ActionText::tr("Change Icon"), [&](Page &page) { page.icon = icon; });
}

void PageOperations::convert(WorkspaceStore &store, const QUuid &pageID)
{
    const Page *const page = store.pages().first(pageID);
    const bool becomesNote = page && isPage(*page);
    changePage(store, pageID,
               becomesNote ? ActionText::tr("Convert to Note") : ActionText::tr("Convert to Page"),
               [&](Page &page) { page.kind = becomesNote ? PageKind::note : PageKind::page; });
}

void PageOperations::toggleFavorite(WorkspaceStore &store, const QUuid &pageID)
{
    changePage(store, pageID, ActionText::tr("Change Favorite"),
               [](Page &page) { page.isFavorite = !page.isFavorite; });
}

void PageOperations::duplicate(WorkspaceStore &store, const QUuid &pageID)
{
    const Page *const original = store.pages().first(pageID);
    if (!original)
        return;
    const Action action(store, ActionText::tr("Duplicate Page"));
    Page copy = *original;
    copy.id = store.makeId();
    copy.title += QStringLiteral(" copy");
    copy.isFavorite = false;
    copy.createdDate = copy.updatedDate = store.now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    for (Block &block : copy.content)
        block.id = store.makeId();
    store.add(copy);
}

void PageOperations::move(WorkspaceStore &store, const QUuid &pageID, std::optional<QUuid> folderID)
{
    changePage(store, pageID, ActionText::tr("Move Page"), [&](Page &page) { page.folderID = folderID; });
}

void PageOperations::remove(WorkspaceStore &store, const QUuid &pageID)
{
    const Page *const page = store.pages().first(pageID);
    if (!page)
        return;
    const bool isNote = !isPage(*page);
    const Action action(store, isNote ? ActionText::tr("Delete Note") : ActionText::tr("Delete Page"));
    action.setMessage(isNote ? ActionText::tr("Note deleted") : ActionText::tr("Page deleted"));
    store.erase<Page>(pageID);
}

PageOperations::Pages PageOperations::notes(const WorkspaceStore &store)
{
    return Questions::newestFirst(
        Questions::where(store.pages(), [](const Page &page) { return !isPage(page); }), &Page::updatedDate);
}

PageOperations::Pages PageOperations::recent(const WorkspaceStore &store)
{
    return Questions::newestFirst(Questions::where(store.pages(), isPage), &Page::updatedDate);
}

PageOperations::Pages PageOperations::recentFavorites(const WorkspaceStore &store)
{
    return Questions::newestFirst(Questions::where(store.pages(), &Page::isFavorite), &Page::updatedDate);
}

PageOperations::Pages PageOperations::pinned(const WorkspaceStore &store)
{
    return Questions::ascending(Questions::where(store.pages(), &Page::isFavorite), &Page::sortOrder);
}

PageOperations::Pages PageOperations::loose(const WorkspaceStore &store)
{
    return Questions::ascending(
        Questions::where(store.pages(), [](const Page &page) { return isPage(page) && !page.folderID; }),
        &Page::sortOrder);
}

PageOperations::Pages PageOperations::inFolder(const WorkspaceStore &store, const QUuid &folderID)
{
    return Questions::ascending(
        Questions::where(store.pages(),
                         [&](const Page &page) { return isPage(page) && page.folderID == folderID; }),
        &Page::sortOrder);
}

Folder FolderOperations::create(WorkspaceStore &store, const QString &name, const QString &icon)
{
    const Action action(store, ActionText::tr("New Folder"));
    const Timestamp moment = store.now();
    const Folder folder{store.makeId(), name, icon, secondsSince1970(moment), moment, moment};
    store.add(folder);
    return folder;
}

void FolderOperations::rename(WorkspaceStore &store, const QUuid &folderID, const QString &name)
{
    const Action action(store, ActionText::tr("Rename Folder"));
    store.change<Folder>(folderID, [&](Folder &folder) {
        folder.name = name;
        folder.updatedDate = store.now();
    });
}

void FolderOperations::remove(WorkspaceStore &store, const QUuid &folderID)
{
    if (!store.folders().contains(folderID))
        return;
    const Action action(store, ActionText::tr("Delete Folder"));
    action.setMessage(ActionText::tr("Folder deleted"));
    for (const QUuid &pageID :
         Questions::ids(store.pages(), [&](const Page &page) { return page.folderID == folderID; }))
        PageOperations::move(store, pageID, std::nullopt);
    store.erase<Folder>(folderID);
}

QList<const Folder *> FolderOperations::ordered(const WorkspaceStore &store)
{
    return Questions::ascending(Questions::where(store.folders(), [](const Folder &) { return true; }),
                                &Folder::sortOrder);
}
