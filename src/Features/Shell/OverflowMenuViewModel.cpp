#include "Features/Shell/OverflowMenuViewModel.h"

#include "Features/Shell/SidebarRows.h"
#include "Store/PageOperations.h"
#include "Support/OrvelNavigation.h"
#include "Support/RecordIcon.h"

namespace
{
QUuid namedRowID(const QString &name)
{
    return QUuid::createUuidV5(QUuid(), name);
}

void addModules(QList<OverflowRow> &rows, const AppSettings &settings)
{
    for (OrvelModule module : OrvelNavigation::splitTabs(settings.visibleModules()).overflow)
        rows.append({.id = namedRowID(enumRawText(module)),
                     .title = enumLabel(module),
                     .symbol = enumSymbol(module),
                     .destination = OrvelNavigation::destination(module).text()});
}

void addPages(QList<OverflowRow> &rows, const QString &heading, const PageOperations::Pages &pages,
              QUuid (*idOf)(const QUuid &pageID))
{
    if (pages.isEmpty())
        return;
    rows.append({.id = namedRowID(heading), .title = heading});
    for (const Page *page : pages) {
        const RecordIcon icon = RecordIcon::of(*page);
        rows.append({.id = idOf(page->id),
                     .title = page->title.isEmpty() ? Page().title : page->title,
                     .symbol = icon.symbol,
                     .emoji = icon.emoji,
                     .destination = Destination::page(page->id).text()});
    }
}
} // namespace

void OverflowMenuViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &WorkspaceStore::changed, this, [this](const ChangeSet &changes) {
        if (changes.settings || changes.touches<Page>())
            m_rebuild.request();
    });
    emit storeChanged();
}

void OverflowMenuViewModel::setListsModules(bool lists)
{
    if (m_listsModules == lists)
        return;
    m_listsModules = lists;
    m_rebuild.request();
    emit listsModulesChanged();
}

void OverflowMenuViewModel::setShown(bool shown)
{
    if (m_isShown == shown)
        return;
    m_isShown = shown;
    rebuild();
    emit isShownChanged();
}

bool OverflowMenuViewModel::activate(int row)
{
    if (row < 0 || row >= rowList().size() || rowList().at(row).destination.isEmpty())
        return false;
    m_ui->select(rowList().at(row).destination);
    return true;
}

int OverflowMenuViewModel::neighbour(int row, int direction) const
{
    for (qsizetype next = row + direction; next >= 0 && next < rowList().size(); next += direction)
        if (!rowList().at(next).destination.isEmpty())
            return int(next);
    return row;
}

void OverflowMenuViewModel::rebuild()
{
    if (!m_isShown)
        return;
    QList<OverflowRow> rows;
    if (m_listsModules)
        addModules(rows, m_store->settings());
    addPages(rows, QStringLiteral("Favourites"), PageOperations::pinned(*m_store),
             &SidebarRows::favoriteRowID);
    addPages(rows, QStringLiteral("Pages"), PageOperations::loose(*m_store),
             [](const QUuid &id) { return id; });
    if (rows.isEmpty())
        rows.append({.id = namedRowID(QStringLiteral("empty")),
                     .title = QStringLiteral("No pages yet. Create your first one.")});
    m_rows.setRows(rows);
}
