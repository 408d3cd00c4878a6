#pragma once

#include "Features/Shell/SidebarRows.h"
#include "Foundation/CoalescedCall.h"
#include "Foundation/KeyedListModel.h"
#include "Session/SessionTypes.h"

#include <QtQml/qqmlregistration.h>

/// The sidebar: all its lines in one list, what folds and what is being named. Rows are told by their place
/// in the list.
class SidebarViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(UIState *ui READ ui WRITE setUi NOTIFY uiChanged REQUIRED FINAL)
    /// Whether the person sees the sidebar. A hidden one works out nothing.
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    /// `Destination::text()` of what the window shows.
    Q_PROPERTY(QString selection READ selection NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool showsIcons READ showsIcons NOTIFY showsIconsChanged FINAL)
    Q_PROPERTY(QString folderName READ folderName WRITE setFolderName NOTIFY folderNameChanged FINAL)
    Q_PROPERTY(QString renameText READ renameText WRITE setRenameText NOTIFY renameTextChanged FINAL)

public:
    explicit SidebarViewModel(QObject *parent = nullptr);

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);
    UIState *ui() const { return m_ui; }
    void setUi(UIState *ui);
    bool isShown() const { return m_isShown; }
    void setShown(bool shown);
    QAbstractItemModel *rows() { return &m_rows; }
    const QList<SidebarRow> &rowList() const { return m_rows.rows(); }
    QString selection() const { return m_selection; }
    bool showsIcons() const { return m_showsIcons; }

    /// The name typed for a new folder, and the one typed for the folder being renamed.
    QString folderName() const { return m_folderName; }
    void setFolderName(const QString &name);
    QString renameText() const { return m_renameText; }
    void setRenameText(const QString &text);

    /// Does what a click on the row does.
    Q_INVOKABLE void activate(int row);
    /// Deletes the page or folder of the row; other rows stay.
    Q_INVOKABLE void remove(int row);
    Q_INVOKABLE void newPage();

    /// The nearest row before or after this one at which the keyboard stops, or this one at the ends.
    /// @param direction -1 or 1
    Q_INVOKABLE int neighbour(int row, int direction) const;
    /// Unfolds the row, or goes into it when it is open: the row to go to.
    Q_INVOKABLE int moveIn(int row);
    /// Folds the row, or goes from a page to its folder: the row to go to.
    Q_INVOKABLE int moveOut(int row);
    /// The row of what the window shows, or the first one.
    Q_INVOKABLE int selectedRow() const;
    /// -1 for an unknown folder.
    Q_INVOKABLE int folderRow(const QUuid &folderID) const;

    Q_INVOKABLE void beginRename(int row);
    /// Gives the folder its new name; one that is blank leaves the old.
    Q_INVOKABLE void commitRename();
    Q_INVOKABLE void cancelRename();
    Q_INVOKABLE void beginFolder();
    /// Makes the folder; a blank name makes none.
    Q_INVOKABLE void commitFolder();
    Q_INVOKABLE void cancelFolder();

signals:
    void storeChanged();
    void uiChanged();
    void isShownChanged();
    void selectionChanged();
    void showsIconsChanged();
    void folderNameChanged();
    void renameTextChanged();

private:
    /// What the sidebar shows of a page, and where.
    struct PageFace {
        QString title;
        QString icon;
        PageKind kind;
        bool isFavorite;
        std::optional<QUuid> folderID;
        double sortOrder;

        explicit PageFace(const Page &page);
        bool operator==(const PageFace &) const = default;
        bool standsWith(const PageFace &other) const;
    };

    const SidebarRow *rowAt(int row) const;
    void setFolded(const SidebarRow &row, bool folded);
    void endNaming();

    void follow(const ChangeSet &changes);
    void followPages(const RecordChanges &changes);
    void followPage(const Page &page);
    void followSettings();
    void followSelection();
    void rebuild();
    void countTasks();

    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
    bool m_isShown = true;
    bool m_showsIcons = true;
    QString m_selection;
    QString m_folderName;
    QString m_renameText;
    SidebarRows::State m_state;
    KeyedListModel<SidebarRow> m_rows;
    /// So that typing in a page is known to change nothing here.
    QHash<QUuid, PageFace> m_faces;
    CoalescedCall m_rebuild{[this] { rebuild(); }};
    CoalescedCall m_countTasks{[this] { countTasks(); }};
};
