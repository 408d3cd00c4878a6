#include "Features/Shell/SidebarRows.h"

#include "DesignSystem/KeyText.h"
#include "Store/PageOperations.h"
#include "Store/Questions.h"
#include "Support/OVShortcuts.h"
#include "Support/OrvelNavigation.h"
#include "Support/RecordIcon.h"

namespace
{
using Kind = SidebarRow::Kind;
using SidebarRows::State;

QUuid namedRowID(const QString &name)
{
    static const QUuid sidebar(QStringLiteral("{9d0b7c4e-3a55-4c0a-9f0e-6b1f5a2c7d11}"));
    return QUuid::createUuidV5(sidebar, name);
}

/// The pages of the sidebar, each list in the order in which it is shown.
struct Pages {
    QList<const Page *> favorites;
    QList<const Page *> loose;
    QHash<QUuid, QList<const Page *>> byFolder;
};

// One walk for all folders, where asking the store for each folder would walk all pages for each.
Pages sortedPages(const WorkspaceStore &store)
{
    const auto any = [](const Page &) { return true; };
    Pages pages;
    for (const Page *page : Questions::ascending(Questions::where(store.pages(), any), &Page::sortOrder)) {
        if (page->isFavorite)
            pages.favorites.append(page);
        if (page->kind != PageKind::page)
            continue;
        if (page->folderID)
            pages.byFolder[*page->folderID].append(page);
        else
            pages.loose.append(page);
    }
    return pages;
}

SidebarRow pageRow(const QUuid &id, const Page &page, int depth)
{
    SidebarRow row{.id = id,
                   .kind = Kind::page,
                   .recordID = page.id,
                   .destination = Destination::page(page.id).text(),
                   .depth = depth};
    SidebarRows::showPage(row, page);
    return row;
}

void addQuickActions(QList<SidebarRow> &rows)
{
    rows.append({.id = namedRowID(QStringLiteral("search")),
                 .kind = Kind::search,
                 .title = QStringLiteral("Search"),
                 .symbol = QStringLiteral("magnifyingglass"),
                 .detail = KeyText::of(OVShortcuts::portableKeys(u"palette"))});
    rows.append({.id = namedRowID(QStringLiteral("newPage")),
                 .kind = Kind::newPage,
                 .title = QStringLiteral("New page"),
                 .symbol = QStringLiteral("square.and.pencil"),
                 .detail = KeyText::of(OVShortcuts::portableKeys(u"newPage"))});
}

SidebarRow moduleRow(OrvelModule module, const WorkspaceStore &store)
{
    return {.id = SidebarRows::moduleRowID(enumRawText(module)),
            .kind = Kind::module,
            .title = enumLabel(module),
            .symbol = enumSymbol(module),
            .destination = OrvelNavigation::destination(module).text(),
            .detail = module == OrvelModule::tasks ? SidebarRows::openTaskCount(store) : QString()};
}

void addGroups(QList<SidebarRow> &rows, const WorkspaceStore &store)
{
    for (const OrvelNavigation::Group &group : OrvelNavigation::visibleGroups(store.settings())) {
        const qsizetype start = rows.size();
        if (group.label)
            rows.append({.id = namedRowID(QStringLiteral("label/") + group.id),
                         .kind = Kind::label,
                         .title = *group.label});
        for (OrvelModule module : group.modules)
            rows.append(moduleRow(module, store));
        rows[start].startsGroup = true;
    }
}

void addSection(QList<SidebarRow> &rows, const QString &section, const QString &title, const State &state)
{
    rows.append({.id = namedRowID(QStringLiteral("section/") + section),
                 .kind = Kind::section,
                 .title = title,
                 .startsGroup = true,
                 .isCollapsed = state.collapsedSections.contains(section),
                 .section = section});
}

void addFavorites(QList<SidebarRow> &rows, const Pages &pages, const State &state)
{
    if (pages.favorites.isEmpty())
        return;
    addSection(rows, QStringLiteral("favorites"), QStringLiteral("Favorites"), state);
    if (rows.constLast().isCollapsed)
        return;
    for (const Page *page : pages.favorites)
        rows.append(pageRow(SidebarRows::favoriteRowID(page->id), *page, 0));
}

void addLoosePages(QList<SidebarRow> &rows, const Pages &pages, const State &state)
{
    addSection(rows, QStringLiteral("pages"), QStringLiteral("Pages"), state);
    if (rows.constLast().isCollapsed)
        return;
    if (pages.loose.isEmpty())
        rows.append({.id = namedRowID(QStringLiteral("noPages")),
                     .kind = Kind::hint,
                     .title = QStringLiteral("No pages yet. Create your first one.")});
    for (const Page *page : pages.loose)
        rows.append(pageRow(page->id, *page, 0));
}

void addFolders(QList<SidebarRow> &rows, const WorkspaceStore &store, const Pages &pages, const State &state)
{
    bool isFirst = true;
    for (const Folder *folder : FolderOperations::ordered(store)) {
        const RecordIcon icon = RecordIcon::of(*folder);
        const bool isCollapsed = state.collapsedFolders.contains(folder->id);
        rows.append({.id = folder->id,
                     .kind = Kind::folder,
                     .recordID = folder->id,
                     .title = folder->name,
                     .symbol = icon.symbol,
                     .emoji = icon.emoji,
                     .startsGroup = std::exchange(isFirst, false),
                     .isCollapsed = isCollapsed,
                     .isEditing = folder->id == state.renamingFolderID});
        if (isCollapsed)
            continue;
        for (const Page *page : pages.byFolder.value(folder->id))
            rows.append(pageRow(page->id, *page, 1));
    }
}
} // namespace

QList<SidebarRow> SidebarRows::build(const WorkspaceStore &store, const State &state)
{
    const Pages pages = sortedPages(store);
    QList<SidebarRow> rows;
    addQuickActions(rows);
    addGroups(rows, store);
    addFavorites(rows, pages, state);
    addLoosePages(rows, pages, state);
    addFolders(rows, store, pages, state);
    rows.append({.id = namedRowID(QStringLiteral("newFolder")),
                 .kind = Kind::newFolder,
                 .title = QStringLiteral("New folder"),
                 .symbol = QStringLiteral("folder.badge.plus"),
                 .isEditing = state.addingFolder});
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

QUuid SidebarRows::moduleRowID(const QString &module)
{
    return namedRowID(QStringLiteral("module/") + module);
}

QUuid SidebarRows::favoriteRowID(const QUuid &pageID)
{
    // Cheap, since there may be thousands, and different for different pages.
    QUuid id = pageID;
    id.data1 = ~id.data1;
    return id;
}
