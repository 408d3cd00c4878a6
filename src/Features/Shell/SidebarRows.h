#pragma once

#include "Features/Shell/SidebarRow.h"

#include <QList>
#include <QSet>

class WorkspaceStore;
struct Page;

/// Lays out the lines of the sidebar.
namespace SidebarRows
{
/// What the person did to the sidebar itself; it goes when the sidebar goes.
struct State {
    QSet<QUuid> collapsedFolders;
    /// Of "favorites" and "pages".
    QSet<QString> collapsedSections;
    bool addingFolder = false;
    /// Null while no folder is being renamed.
    QUuid renamingFolderID;
};

QList<SidebarRow> build(const WorkspaceStore &store, const State &state);

/// The text that counts the open tasks; empty when there are none.
QString openTaskCount(const WorkspaceStore &store);
/// Gives the row the page's title and icon.
void showPage(SidebarRow &row, const Page &page);

/// Ids of rows. A page or folder in its own place has its own id.
QUuid moduleRowID(const QString &module);
QUuid favoriteRowID(const QUuid &pageID);
} // namespace SidebarRows
