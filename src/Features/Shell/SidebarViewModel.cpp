#include "Features/Shell/SidebarViewModel.h"

#include "Session/PageActions.h"
#include "Store/PageOperations.h"

#include <QScopedValueRollback>

SidebarViewModel::SidebarViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Page, Folder, TaskItem>();
    followSettings();
}

void SidebarViewModel::start()
{
    connect(&ui(), &UIState::selectionChanged, this, &SidebarViewModel::followSelection);
    m_revealSelection.request();
}

void SidebarViewModel::refresh(const ChangeSet &changes)
{
    const bool pagesStand = showPages(changes.of<Page>());
    const bool modulesStand = store().settings().visibleModules() == m_modules;
    if (!pagesStand || !modulesStand || changes.touches<Folder>())
        return layOut();
    if (changes.touches<TaskItem>())
        m_rows.changeRow({QUuid(), enumRawText(OrvelModule::tasks)},
                         [this](SidebarRow &row) { row.detail = SidebarRows::openTaskCount(store()); });
}

bool SidebarViewModel::PageFace::standsWith(const PageFace &other) const
{
    return kind == other.kind && isFavorite == other.isFavorite && folderID == other.folderID &&
           sortOrder == other.sortOrder;
}

bool SidebarViewModel::showPages(const RecordChanges &changes)
{
    if (changes.isReloaded) {
        m_faces.clear();
        m_faces.reserve(store().pages().size());
        for (const Page &page : store().pages())
            showPage(page);
        return false;
    }
    bool isStanding = changes.removed.isEmpty();
    for (const QUuid &id : changes.removed)
        m_faces.remove(id);
    for (const QSet<QUuid> *ids : {&changes.inserted, &changes.replaced})
        for (const QUuid &id : *ids)
            isStanding &= showPage(*store().pages().first(id));
    return isStanding;
}

bool SidebarViewModel::showPage(const Page &page)
{
    PageFace next{page.title, page.icon, page.kind, page.isFavorite, page.folderID, page.sortOrder};
    const auto shown = m_faces.find(page.id);
    if (shown == m_faces.end()) {
        m_faces.insert(page.id, std::move(next));
        return false;
    }
    if (*shown == next)
        return true;
    const bool isStanding = shown->standsWith(next);
    *shown = std::move(next);
    if (isStanding)
        for (const QString &name : {QString(), SidebarRows::favorites})
            m_rows.changeRow({page.id, name}, [&page](SidebarRow &row) { SidebarRows::showPage(row, page); });
    return isStanding;
}

void SidebarViewModel::layOut()
{
    m_modules = store().settings().visibleModules();
    m_rows.setRows(SidebarRows::sidebar(store(), m_state));
    restoreCurrentRow();
    emit laidOut();
}

bool SidebarViewModel::reveal(const UndoPlace &place)
{
    const int row = folderRow(place.record);
    if (!store().list<Folder>().first(place.record) || row < 0)
        return false;
    setCurrentRow(row);
    emit selectionRevealed();
    return true;
}

void SidebarViewModel::setCurrentRow(int row)
{
    const SidebarRow *const found = rowAt(row);
    m_currentId = found ? found->id() : RowId();
    if (std::exchange(m_currentRow, row) != row)
        emit currentRowChanged();
}

void SidebarViewModel::restoreCurrentRow()
{
    int row = rowOf(m_currentId);
    if (row < 0) {
        // A page that went out of sight is in its folder.
        const Page *const page = store().pages().first(m_currentId.first);
        row = page && page->folderID ? folderRow(*page->folderID) : -1;
    }
    if (row < 0) {
        row = std::min(m_currentRow, int(rowList().size()) - 1);
        while (row > 0 && !isStop(row))
            --row;
    }
    setCurrentRow(row);
}

void SidebarViewModel::followSelection()
{
    const Page *const page = store().pages().first(ui().selection().id);
    if (page && selectedRow() < 0) {
        const bool wasFolded = page->folderID ? m_state.collapsedFolders.remove(*page->folderID)
                                              : m_state.collapsedSections.remove(SidebarRows::pages);
        if (wasFolded)
            m_layOut.request();
    }
    if (!m_isRemoving)
        m_revealSelection.request();
}

void SidebarViewModel::revealSelection()
{
    const SidebarRow *const current = rowAt(m_currentRow);
    const int row = selectedRow();
    if (row < 0 || (current && current->place == ui().selection()))
        return;
    setCurrentRow(row);
    emit selectionRevealed();
}

const SidebarRow *SidebarViewModel::rowAt(int row) const
{
    return row >= 0 && row < rowList().size() ? &rowList().at(row) : nullptr;
}

int SidebarViewModel::rowOf(const RowId &id) const
{
    const auto found = std::ranges::find(rowList(), id, &SidebarRow::id);
    return found == rowList().end() ? -1 : int(found - rowList().begin());
}

int SidebarViewModel::selectedRow() const
{
    const auto found = std::ranges::find(rowList(), std::optional(ui().selection()), &SidebarRow::place);
    return found == rowList().end() ? -1 : int(found - rowList().begin());
}

void SidebarViewModel::activate(int row)
{
    const SidebarRow *const found = rowAt(row);
    if (!found)
        return;
    switch (found->kind) {
    case SidebarRow::Kind::search:
        return ui().setSearchPresented(true);
    case SidebarRow::Kind::newPage:
    case SidebarRow::Kind::hint:
        return newPage();
    case SidebarRow::Kind::section:
    case SidebarRow::Kind::folder:
        return setFolded(*found, !found->isCollapsed);
    case SidebarRow::Kind::newFolder:
        return beginNaming({}, {});
    case SidebarRow::Kind::module:
    case SidebarRow::Kind::page:
        return ui().setSelection(*found->place);
    case SidebarRow::Kind::label:
        return;
    }
}

void SidebarViewModel::remove(int row)
{
    const SidebarRow *const found = rowAt(row);
    if (!found)
        return;
    const QUuid id = found->recordID;
    // The window may go to another place by it, but the keyboard stays where the row was.
    const QScopedValueRollback removing(m_isRemoving, true);
    if (found->kind == SidebarRow::Kind::page)
        PageActions::erase(store(), ui(), id);
    else if (found->kind == SidebarRow::Kind::folder)
        FolderOperations::remove(store(), id);
}

void SidebarViewModel::newPage()
{
    PageActions::create(store(), ui(), PageKind::page);
}

bool SidebarViewModel::isStop(int row) const
{
    const SidebarRow *const found = rowAt(row);
    return found && found->kind != SidebarRow::Kind::label;
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
    const bool isInside = next && next->kind == SidebarRow::Kind::page &&
                          (found->kind == SidebarRow::Kind::section || next->depth > found->depth);
    return isInside ? row + 1 : row;
}

int SidebarViewModel::moveOut(int row)
{
    const SidebarRow *const found = rowAt(row);
    if (!found || (found->kind != SidebarRow::Kind::page && !found->isFoldable()))
        return row;
    if (found->isFoldable()) {
        setFolded(*found, true);
        return row;
    }
    while (rowAt(row) && !rowAt(row)->isFoldable())
        --row;
    return std::max(row, 0);
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
        keep(m_state.collapsedSections, row.name);
    m_layOut.request();
}

void SidebarViewModel::beginRename(int row)
{
    const SidebarRow *const found = rowAt(row);
    if (found && found->kind == SidebarRow::Kind::folder && !found->isEditing)
        beginNaming(found->recordID, found->title);
}

void SidebarViewModel::beginNaming(const QUuid &folderID, const QString &name)
{
    m_nameText = name;
    emit nameTextChanged();
    m_state.renamingFolderID = folderID;
    m_state.addingFolder = folderID.isNull();
    emit isNamingChanged();
    m_layOut.request();
}

void SidebarViewModel::commitName()
{
    const QString name = m_nameText.trimmed();
    if (!name.isEmpty() && m_state.addingFolder)
        m_currentId = {FolderOperations::create(store(), name, QStringLiteral("📁")).id, {}};
    else if (!name.isEmpty() && isNaming())
        FolderOperations::rename(store(), m_state.renamingFolderID, name);
    cancelName();
}

void SidebarViewModel::cancelName()
{
    if (!isNaming())
        return;
    m_state.addingFolder = false;
    m_state.renamingFolderID = {};
    emit isNamingChanged();
    m_layOut.request();
}
