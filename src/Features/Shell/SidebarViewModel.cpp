#include "Features/Shell/SidebarViewModel.h"

#include "Session/PageActions.h"
#include "Store/PageOperations.h"

SidebarViewModel::PageFace::PageFace(const Page &page)
    : title(page.title),
      icon(page.icon),
      kind(page.kind),
      isFavorite(page.isFavorite),
      folderID(page.folderID),
      sortOrder(page.sortOrder)
{
}

bool SidebarViewModel::PageFace::standsWith(const PageFace &other) const
{
    return kind == other.kind && isFavorite == other.isFavorite && folderID == other.folderID &&
           sortOrder == other.sortOrder;
}

SidebarViewModel::SidebarViewModel(QObject *parent) : QObject(parent) {}

void SidebarViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &WorkspaceStore::changed, this, &SidebarViewModel::follow);
    followSettings();
    rebuild();
    emit storeChanged();
}

void SidebarViewModel::setUi(UIState *ui)
{
    if (m_ui == ui)
        return;
    m_ui = ui;
    connect(ui, &UIState::selectionChanged, this, &SidebarViewModel::followSelection);
    followSelection();
    emit uiChanged();
}

void SidebarViewModel::setShown(bool shown)
{
    if (m_isShown == shown)
        return;
    m_isShown = shown;
    if (m_store)
        rebuild();
    emit isShownChanged();
}

void SidebarViewModel::setFolderName(const QString &name)
{
    if (m_folderName == name)
        return;
    m_folderName = name;
    emit folderNameChanged();
}

void SidebarViewModel::setRenameText(const QString &text)
{
    if (m_renameText == text)
        return;
    m_renameText = text;
    emit renameTextChanged();
}

const SidebarRow *SidebarViewModel::rowAt(int row) const
{
    return row >= 0 && row < rowList().size() ? &rowList().at(row) : nullptr;
}

void SidebarViewModel::activate(int row)
{
    using Kind = SidebarRow::Kind;
    const SidebarRow *const found = rowAt(row);
    if (!found)
        return;
    switch (found->kind) {
    case Kind::search:
        return m_ui->setSearchPresented(true);
    case Kind::newPage:
    case Kind::hint:
        return newPage();
    case Kind::section:
    case Kind::folder:
        return setFolded(*found, !found->isCollapsed);
    case Kind::newFolder:
        return beginFolder();
    case Kind::module:
    case Kind::page:
        return m_ui->select(found->destination);
    case Kind::label:
        return;
    }
}

void SidebarViewModel::remove(int row)
{
    const SidebarRow *const found = rowAt(row);
    if (!found)
        return;
    const QUuid id = found->recordID;
    if (found->kind == SidebarRow::Kind::page)
        PageActions::erase(*m_store, *m_ui, id);
    else if (found->kind == SidebarRow::Kind::folder)
        FolderOperations::remove(*m_store, id);
}

void SidebarViewModel::newPage()
{
    PageActions::create(*m_store, *m_ui, PageKind::page);
}

int SidebarViewModel::neighbour(int row, int direction) const
{
    for (int next = row + direction; rowAt(next); next += direction)
        if (rowAt(next)->isReachable())
            return next;
    return row;
}

int SidebarViewModel::moveIn(int row)
{
    const SidebarRow *const found = rowAt(row);
    if (!found || !found->isFoldable())
        return row;
    if (found->isCollapsed) {
        setFolded(*found, false);
        return row;
    }
    const SidebarRow *const next = rowAt(row + 1);
    const bool isInside = next && (next->kind == SidebarRow::Kind::page) &&
                          (found->kind == SidebarRow::Kind::section || next->depth > found->depth);
    return isInside ? row + 1 : row;
}

int SidebarViewModel::moveOut(int row)
{
    const SidebarRow *const found = rowAt(row);
    if (!found)
        return row;
    if (found->isFoldable()) {
        setFolded(*found, true);
        return row;
    }
    if (found->kind != SidebarRow::Kind::page)
        return row;
    int parent = row;
    while (rowAt(parent) && !rowAt(parent)->isFoldable())
        --parent;
    return std::max(parent, 0);
}

int SidebarViewModel::selectedRow() const
{
    const auto found = std::ranges::find(rowList(), m_selection, &SidebarRow::destination);
    return found == rowList().end() ? 0 : int(found - rowList().begin());
}

int SidebarViewModel::folderRow(const QUuid &folderID) const
{
    const auto found = std::ranges::find(rowList(), folderID, &SidebarRow::id);
    return found == rowList().end() ? -1 : int(found - rowList().begin());
}

void SidebarViewModel::setFolded(const SidebarRow &row, bool folded)
{
    const auto keep = [folded](auto &set, const auto &key) {
        if (folded)
            set.insert(key);
        else
            set.remove(key);
    };
    if (row.kind == SidebarRow::Kind::folder)
        keep(m_state.collapsedFolders, row.recordID);
    else
        keep(m_state.collapsedSections, row.section);
    m_rebuild.request();
}

void SidebarViewModel::beginRename(int row)
{
    const SidebarRow *const found = rowAt(row);
    if (!found || found->kind != SidebarRow::Kind::folder)
        return;
    setRenameText(found->title);
    m_state.renamingFolderID = found->recordID;
    m_state.addingFolder = false;
    m_rebuild.request();
}

void SidebarViewModel::commitRename()
{
    const QString name = m_renameText.trimmed();
    if (!name.isEmpty())
        FolderOperations::rename(*m_store, m_state.renamingFolderID, name);
    cancelRename();
}

void SidebarViewModel::cancelRename()
{
    endNaming();
}

void SidebarViewModel::beginFolder()
{
    setFolderName({});
    m_state.renamingFolderID = {};
    m_state.addingFolder = true;
    m_rebuild.request();
}

void SidebarViewModel::commitFolder()
{
    const QString name = m_folderName.trimmed();
    if (!name.isEmpty())
        FolderOperations::create(*m_store, name, QStringLiteral("📁"));
    cancelFolder();
}

void SidebarViewModel::cancelFolder()
{
    setFolderName({});
    endNaming();
}

void SidebarViewModel::endNaming()
{
    m_state.addingFolder = false;
    m_state.renamingFolderID = {};
    m_rebuild.request();
}

void SidebarViewModel::follow(const ChangeSet &changes)
{
    if (changes.settings)
        followSettings();
    if (changes.touches<Folder>())
        m_rebuild.request();
    if (changes.touches<TaskItem>())
        m_countTasks.request();
    followPages(changes.of<Page>());
}

void SidebarViewModel::followPages(const RecordChanges &changes)
{
    if (!changes.isReplacedOnly() || (!m_isShown && !changes.isEmpty()))
        return m_rebuild.request();
    for (const QUuid &id : changes.replaced)
        followPage(*m_store->pages().first(id));
}

void SidebarViewModel::followPage(const Page &page)
{
    const PageFace next(page);
    const auto shown = m_faces.find(page.id);
    if (shown == m_faces.end())
        return m_rebuild.request();
    if (*shown == next)
        return;
    if (!shown->standsWith(next))
        m_rebuild.request();
    *shown = next;
    const auto show = [&page](SidebarRow &row) { SidebarRows::showPage(row, page); };
    m_rows.changeRow(page.id, show);
    if (page.isFavorite)
        m_rows.changeRow(SidebarRows::favoriteRowID(page.id), show);
}

void SidebarViewModel::followSettings()
{
    const bool showsIcons = m_store->settings().sidebarShowsIcons;
    if (std::exchange(m_showsIcons, showsIcons) != showsIcons)
        emit showsIconsChanged();
    m_rebuild.request();
}

void SidebarViewModel::followSelection()
{
    m_selection = m_ui->selection().text();
    emit selectionChanged();
}

void SidebarViewModel::rebuild()
{
    if (!m_isShown)
        return;
    m_faces.clear();
    m_faces.reserve(m_store->pages().size());
    for (const Page &page : m_store->pages())
        m_faces.emplace(page.id, PageFace(page));
    m_rows.setRows(SidebarRows::build(*m_store, m_state));
}

void SidebarViewModel::countTasks()
{
    if (!m_isShown)
        return;
    m_rows.changeRow(SidebarRows::moduleRowID(enumRawText(OrvelModule::tasks)),
                     [this](SidebarRow &row) { row.detail = SidebarRows::openTaskCount(*m_store); });
}
