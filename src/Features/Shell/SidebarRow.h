#pragma once

#include "Foundation/EnumTable.h"

#include <QObject>
#include <QUuid>

/// One line of the sidebar.
struct SidebarRow {
    Q_GADGET
    Q_PROPERTY(QString kind READ kindText FINAL)
    Q_PROPERTY(QUuid recordID MEMBER recordID FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString emoji MEMBER emoji FINAL)
    Q_PROPERTY(QString destination MEMBER destination FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(int depth MEMBER depth FINAL)
    Q_PROPERTY(bool startsGroup MEMBER startsGroup FINAL)
    Q_PROPERTY(bool isCollapsed MEMBER isCollapsed FINAL)
    Q_PROPERTY(bool isEditing MEMBER isEditing FINAL)
    Q_PROPERTY(QString section MEMBER section FINAL)

public:
    enum class Kind { search, newPage, module, label, section, page, folder, hint, newFolder };

    /// Unique in the list; a page that is a favourite has two rows.
    QUuid id;
    Kind kind = Kind::label;
    /// The page or folder of the row.
    QUuid recordID = {};
    QString title = {};
    QString symbol = {};
    /// Shown instead of the symbol.
    QString emoji = {};
    /// `Destination::text()` of what the row opens; empty where it opens nothing.
    QString destination = {};
    /// Quiet text at the right end: keys or a count.
    QString detail = {};
    int depth = 0;
    /// Whether a gap stands above the row.
    bool startsGroup = false;
    bool isCollapsed = false;
    /// Whether a field stands in place of the row.
    bool isEditing = false;
    /// The name of a section, under which its folding is kept.
    QString section = {};

    bool operator==(const SidebarRow &) const = default;

    /// The kind's name, by which the view chooses the look of the row.
    QString kindText() const;
    bool isFoldable() const { return kind == Kind::section || kind == Kind::folder; }
    /// Whether the keyboard stops at the row.
    bool isReachable() const { return kind != Kind::label; }
};

template <>
struct EnumTable<SidebarRow::Kind> {
    static constexpr auto cases = std::to_array<EnumCase<SidebarRow::Kind>>({
        {SidebarRow::Kind::search, "search"},
        {SidebarRow::Kind::newPage, "newPage"},
        {SidebarRow::Kind::module, "module"},
        {SidebarRow::Kind::label, "label"},
        {SidebarRow::Kind::section, "section"},
        {SidebarRow::Kind::page, "page"},
        {SidebarRow::Kind::folder, "folder"},
        {SidebarRow::Kind::hint, "hint"},
        {SidebarRow::Kind::newFolder, "newFolder"},
    });
};

inline QString SidebarRow::kindText() const
{
    return enumRawText(kind);
}
