#pragma once

#include "Features/Shell/SidebarRows.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// The menu of what has no button of its own: modules, favourites and loose pages.
class OverflowMenuViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Whether the menu begins with the modules that have no tab in the bottom bar.
    Q_PROPERTY(bool listsModules READ listsModules WRITE setListsModules NOTIFY listsModulesChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)

public:
    explicit OverflowMenuViewModel(QObject *parent = nullptr) : ViewModel(parent)
    {
        follow<Page>();
        followSettings();
    }

    bool listsModules() const { return m_listsModules; }
    void setListsModules(bool lists)
    {
        if (std::exchange(m_listsModules, lists) == lists)
            return;
        requestRefresh();
        emit listsModulesChanged();
    }
    QAbstractItemModel *rows() { return &m_rows; }
    const QList<SidebarRow> &rowList() const { return m_rows.rows(); }

    /// Whether the row is a place to go to.
    Q_INVOKABLE bool isPlace(int row) const
    {
        return row >= 0 && row < rowList().size() && rowList().at(row).place;
    }
    /// Goes to the place of the row; false for a row that is none.
    Q_INVOKABLE bool activate(int row)
    {
        if (isPlace(row))
            ui().setSelection(*rowList().at(row).place);
        return isPlace(row);
    }

signals:
    void listsModulesChanged();

private:
    void refresh(const ChangeSet &) override
    {
        m_rows.setRows(SidebarRows::overflow(store(), m_listsModules));
    }

    bool m_listsModules = false;
    KeyedListModel<SidebarRow> m_rows;
};
