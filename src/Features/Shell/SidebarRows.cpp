#include "Features/Shell/SidebarRows.h"

#include "DesignSystem/KeyText.h"
#include "Store/PageOperations.h"
#include "Store/Questions.h"
#include "Support/OVShortcuts.h"
#include "Support/OrvelNavigation.h"
#include "Support/RecordIcon.h"

namespace
{
using State = SidebarRows::State;
using PageList = QList<const Page *>;

/// The pages of the sidebar, each list in the order in which it is shown.
struct Pages {
    PageList favorites;
    PageList loose;
    QHash<QUuid, PageList> byFolder;
};

// One walk for all folders, where asking for the pages of each would walk all pages for each.
Pages sortedPages(const WorkspaceStore &store)
{
    const auto isShown = [](const Page &page) { return page.isFavorite || page.kind == PageKind::page; };
    Pages pages;
    for (const Page *page :
         Questions::ascending(Questions::where(store.pages(), isShown), &Page::sortOrder)) {
        if (page->isFavorite)
            pages.favorites.append(page);
        if (page->kind == PageKind::page)
            (page->folderID ? pages.byFolder[*page->folderID] : pages.loose).append(page);
    }
    return pages;
}

void addPages(QList<SidebarRow> &rows, const PageList &pages, const QString &name = {}, int depth = 0)
{
    for (const Page *page : pages) {
        rows.append({.kind = SidebarRow::Kind::page,
                     .recordID = page->id,
                     .name = name,
                     .place = Destination::page(page->id),
                     .depth = depth});
        SidebarRows::showPage(rows.last(), *page);
    }
}

SidebarRow moduleRow(OrvelModule module)
{
    return {.kind = SidebarRow::Kind::module,
            .name = enumRawText(module),
            .title = enumLabel(module),
            .symbol = enumSymbol(module),
            .place = OrvelNavigation::destination(module)};
}

void addGroups(QList<SidebarRow> &rows, const WorkspaceStore &store)
{
    for (const OrvelNavigation::Group &group : OrvelNavigation::visibleGroups(store.settings())) {
        const qsizetype start = rows.size();
        if (group.label)
            rows.append({.kind = SidebarRow::Kind::label,
                         .name = QStringLiteral("label/") + group.id,
                         .title = *group.label});
        for (OrvelModule module : group.modules) {
            rows.append(moduleRow(module));
            if (module == OrvelModule::tasks)
                rows.last().detail = SidebarRows::openTaskCount(store);
        }
        rows[start].startsGroup = true;
    }
}

/// Adds the heading of a section, and tells whether it is open.
bool addSection(QList<SidebarRow> &rows, const QString &name, const QString &title, const State &state)
{
    const bool isCollapsed = state.collapsedSections.contains(name);
    rows.append({.kind = SidebarRow::Kind::section,
                 .name = name,
                 .title = title,
                 .startsGroup = true,
                 .isCollapsed = isCollapsed});
    return !isCollapsed;
}

void addFolders(QList<SidebarRow> &rows, const WorkspaceStore &store, const Pages &pages, const State &state)
{
    bool isFirst = true;
    for (const Folder *folder : FolderOperations::ordered(store)) {
        const RecordIcon icon = RecordIcon::of(*folder);
        const bool isCollapsed = state.collapsedFolders.contains(folder->id);
        rows.append({.kind = SidebarRow::Kind::folder,
                     .recordID = folder->id,
                     .title = folder->name,
                     .symbol = icon.symbol,
                     .emoji = icon.emoji,
                     .startsGroup = std::exchange(isFirst, false),
                     .isCollapsed = isCollapsed,
                     .isEditing = folder->id == state.renamingFolderID});
        if (!isCollapsed)
            addPages(rows, pages.byFolder.value(folder->id), {}, 1);
    }
}
} // namespace

QList<SidebarRow> SidebarRows::sidebar(const WorkspaceStore &store, const State &state)
{
    const Pages lists = sortedPages(store);
    QList<SidebarRow> rows{{.kind = SidebarRow::Kind::search,
                            .name = QStringLiteral("search"),
                            .title = tr("Search"),
                            .symbol = QStringLiteral("magnifyingglass"),
                            .detail = KeyText::of(OVShortcuts::portableKeys(u"palette"))},
                           {.kind = SidebarRow::Kind::newPage,
                            .name = QStringLiteral("newPage"),
                            .title = tr("New page"),
                            .symbol = QStringLiteral("square.and.pencil"),
                            .detail = KeyText::of(OVShortcuts::portableKeys(u"newPage"))}};
    addGroups(rows, store);
    if (!lists.favorites.isEmpty() && addSection(rows, favorites, tr("Favorites"), state))
        addPages(rows, lists.favorites, favorites);
    if (addSection(rows, pages, tr("Pages"), state)) {
        if (lists.loose.isEmpty())
            rows.append({.kind = SidebarRow::Kind::hint,
                         .name = QStringLiteral("noPages"),
                         .title = tr("No pages yet. Create your first one.")});
        addPages(rows, lists.loose);
    }
    addFolders(rows, store, lists, state);
    rows.append({.kind = SidebarRow::Kind::newFolder,
                 .name = QStringLiteral("newFolder"),
                 .title = tr("New folder"),
                 .symbol = QStringLiteral("folder.badge.plus"),
                 .isEditing = state.addingFolder});
    return rows;
}

QList<SidebarRow> SidebarRows::overflow(const WorkspaceStore &store, bool withModules)
{
    QList<SidebarRow> rows;
    if (withModules)
        for (OrvelModule module : OrvelNavigation::splitTabs(store.settings().visibleModules()).overflow)
            rows.append(moduleRow(module));
    const auto addList = [&rows](const QString &name, const QString &title, const PageList &list) {
        if (list.isEmpty())
            return;
        rows.append({.name = QStringLiteral("label/") + name, .title = title});
        addPages(rows, list, name);
    };
    addList(favorites, tr("Favourites"), PageOperations::pinned(store));
    addList(pages, tr("Pages"), PageOperations::loose(store));
    if (rows.isEmpty())
        rows.append({.name = QStringLiteral("noPages"), .title = tr("No pages yet. Create your first one.")});
    return rows;
}

QString SidebarRows::openTaskCount(const WorkspaceStore &store)
{
    const auto isOpen = [](const TaskItem &task) { return task.status != TaskStatus::done; };
    const auto count = std::ranges::count_if(store.tasks(), isOpen);
    return count == 0 ? QString() : QString::number(count);
}

void SidebarRows::showPage(SidebarRow &row, const Page &page)
{
    const RecordIcon icon = RecordIcon::of(page);
    row.title = page.title.isEmpty() ? Page().title : page.title;
    row.symbol = icon.symbol;
    row.emoji = icon.emoji;
}
