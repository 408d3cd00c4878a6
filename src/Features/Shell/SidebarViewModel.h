#pragma once

#include "Features/Shell/SidebarRows.h"
#include "Foundation/KeyedListModel.h"
#include "Models/Page.h"
#include "Session/ViewModel.h"

/// The sidebar: all its rows in one list, what is folded, and what is being named. Rows are told by their
/// position in the list.
class SidebarViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    /// The row at which the keyboard stands in the list.
    Q_PROPERTY(int currentRow READ currentRow WRITE setCurrentRow NOTIFY currentRowChanged FINAL)
    /// Whether a field stands in place of a row, in which a folder gets its name.
    Q_PROPERTY(bool isNaming READ isNaming NOTIFY isNamingChanged FINAL)
    Q_PROPERTY(QString nameText MEMBER m_nameText NOTIFY nameTextChanged FINAL)

public:
    explicit SidebarViewModel(QObject *parent = nullptr);

    QAbstractItemModel *rows() { return &m_rows; }
    const QList<SidebarRow> &rowList() const { return m_rows.rows(); }
    int currentRow() const { return m_currentRow; }
    void setCurrentRow(int row);
    bool isNaming() const { return m_state.addingFolder || !m_state.renamingFolderID.isNull(); }

    /// Does what a click on the row does.
    Q_INVOKABLE void activate(int row);
    /// Deletes the page or folder of the row; other rows stay.
    Q_INVOKABLE void remove(int row);
    Q_INVOKABLE void newPage();

    /// Whether the keyboard stops at the row.
    Q_INVOKABLE bool isStop(int row) const;
    /// Unfolds the row, or goes into it when it is open: the row to go to.
    Q_INVOKABLE int moveIn(int row);
    /// Folds the row, or goes from a page to its folder: the row to go to.
    Q_INVOKABLE int moveOut(int row);
    /// -1 for an unknown folder.
    Q_INVOKABLE int folderRow(const QUuid &folderID) const { return rowOf({folderID, {}}); }

    Q_INVOKABLE void beginRename(int row);
    /// Makes the folder, or gives it its new name; a blank name changes nothing.
    Q_INVOKABLE void commitName();
    Q_INVOKABLE void cancelName();

signals:
    void currentRowChanged();
    void isNamingChanged();
    void nameTextChanged();
    /// The rows stand as they are to, and the current row is known among them.
    void laidOut();
    /// The current row is now that of what the window shows, and has to come into view.
    void selectionRevealed();

private:
    using RowId = RowKey<SidebarRow>;

    /// What the sidebar shows of a page, and where.
    struct PageFace {
        QString title;
        QString icon;
        PageKind kind = PageKind::page;
        bool isFavorite = false;
        std::optional<QUuid> folderID;
        double sortOrder = 0;

        bool operator==(const PageFace &) const = default;
        bool standsWith(const PageFace &other) const;
    };

    void start() override;
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

    /// Shows what changed on pages where they stand; false if the rows are to be laid out anew.
    bool showPages(const RecordChanges &changes);
    bool showPage(const Page &page);
    void layOut();
    /// Finds the current row among other rows, or what stands for it.
    void restoreCurrentRow();
    void followSelection();
    void revealSelection();

    const SidebarRow *rowAt(int row) const;
    int rowOf(const RowId &id) const;
    /// -1 where the window shows what has no row.
    int selectedRow() const;
    void setFolded(const SidebarRow &row, bool folded);
    void beginNaming(const QUuid &folderID, const QString &name);

    SidebarRows::State m_state;
    QList<OrvelModule> m_modules;
    QString m_nameText;
    int m_currentRow = 0;
    /// Of the current row.
    RowId m_currentId;
    bool m_isRemoving = false;
    KeyedListModel<SidebarRow> m_rows;
    /// So that typing in a page is known to change nothing here.
    QHash<QUuid, PageFace> m_faces;
    CoalescedCall m_layOut{[this] { layOut(); }};
    CoalescedCall m_revealSelection{[this] { revealSelection(); }};
};
