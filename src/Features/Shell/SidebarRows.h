#pragma once

#include "Support/Destination.h"

#include <QCoreApplication>
#include <QList>
#include <QMetaEnum>
#include <QSet>

class WorkspaceStore;
struct Page;

/// One row of the sidebar or of the overflow menu.
struct SidebarRow {
    Q_GADGET
    Q_PROPERTY(QString kind READ kindText FINAL)
    Q_PROPERTY(QUuid recordID MEMBER recordID FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString emoji MEMBER emoji FINAL)
    Q_PROPERTY(QString destination READ destination FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(int depth MEMBER depth FINAL)
    Q_PROPERTY(bool startsGroup MEMBER startsGroup FINAL)
    Q_PROPERTY(bool isCollapsed MEMBER isCollapsed FINAL)
    Q_PROPERTY(bool isEditing MEMBER isEditing FINAL)

public:
    enum class Kind { search, newPage, module, label, section, page, folder, hint, newFolder };
    Q_ENUM(Kind)

    Kind kind = Kind::label;
    /// The page or folder of the row.
    QUuid recordID = {};
    /// Tells apart rows without a record, and the row of a favorite from that of the page in its own place.
    QString name = {};
    QString title = {};
    QString symbol = {};
    /// Shown instead of the symbol.
    QString emoji = {};
    /// What the row opens.
    std::optional<Destination> place = {};
    /// Quiet text at the right end: keys or a count.
    QString detail = {};
    int depth = 0;
    /// Whether a gap stands above the row.
    bool startsGroup = false;
    bool isCollapsed = false;
    /// Whether a field stands in place of the row.
    bool isEditing = false;

    /// The kind's name, by which the view chooses the look of the row.
    QString kindText() const
    {
        return QString::fromLatin1(QMetaEnum::fromType<Kind>().valueToKey(int(kind)));
    }
    std::pair<QUuid, QString> id() const { return {recordID, name}; }
    /// `Destination::text()` of what the row opens; empty where it opens nothing.
    QString destination() const { return place ? place->text() : QString(); }
    bool isFoldable() const { return kind == Kind::section || kind == Kind::folder; }

    bool operator==(const SidebarRow &) const = default;
};

/// Lays out the rows of the sidebar and of the overflow menu.
class SidebarRows
{
    Q_DECLARE_TR_FUNCTIONS(SidebarRows)

public:
    /// What the user did to the sidebar itself, kept as long as the sidebar is.
    struct State {
        QSet<QUuid> collapsedFolders;
        /// Of `favorites` and `pages`.
        QSet<QString> collapsedSections;
        bool addingFolder = false;
        /// Null while no folder is being renamed.
        QUuid renamingFolderID;
    };

    /// Names of the sections; that of the favorites is also the name of each row in it.
    static inline const QString favorites = QStringLiteral("favorites");
    static inline const QString pages = QStringLiteral("pages");

    static QList<SidebarRow> sidebar(const WorkspaceStore &store, const State &state);
    /// What has no button of its own.
    /// @param withModules whether it begins with the modules that have no tab in the bottom bar
    static QList<SidebarRow> overflow(const WorkspaceStore &store, bool withModules);

    /// The text that counts the open tasks; empty when there are none.
    static QString openTaskCount(const WorkspaceStore &store);
    /// Gives the row the page's title and icon.
    static void showPage(SidebarRow &row, const Page &page);
};
