#pragma once

#include "Features/Shell/OverflowRow.h"
#include "Foundation/CoalescedCall.h"
#include "Foundation/KeyedListModel.h"
#include "Session/SessionTypes.h"

#include <QtQml/qqmlregistration.h>

/// The menu of what has no button of its own: modules, favourites and loose pages.
class OverflowMenuViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(UIState *ui MEMBER m_ui REQUIRED FINAL)
    /// Whether the menu begins with the modules that have no tab in the bottom bar.
    Q_PROPERTY(bool listsModules READ listsModules WRITE setListsModules NOTIFY listsModulesChanged FINAL)
    /// A closed menu works out nothing.
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)

public:
    explicit OverflowMenuViewModel(QObject *parent = nullptr) : QObject(parent) {}

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);
    bool listsModules() const { return m_listsModules; }
    void setListsModules(bool lists);
    bool isShown() const { return m_isShown; }
    void setShown(bool shown);
    QAbstractItemModel *rows() { return &m_rows; }
    const QList<OverflowRow> &rowList() const { return m_rows.rows(); }

    /// Goes to the place of the row; false for a row that is none.
    Q_INVOKABLE bool activate(int row);
    /// The nearest row before or after this one that is a place, or this one at the ends.
    /// @param direction -1 or 1
    Q_INVOKABLE int neighbour(int row, int direction) const;

signals:
    void storeChanged();
    void listsModulesChanged();
    void isShownChanged();

private:
    void rebuild();

    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
    bool m_listsModules = false;
    bool m_isShown = false;
    KeyedListModel<OverflowRow> m_rows;
    CoalescedCall m_rebuild{[this] { rebuild(); }};
};
