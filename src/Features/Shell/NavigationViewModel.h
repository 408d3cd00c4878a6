#pragma once

#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// A module as a tab.
struct ModuleTab {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString destination MEMBER id FINAL)

public:
    /// `Destination::text()` of the module.
    QString id;
    QString title;
    QString symbol;

    bool operator==(const ModuleTab &) const = default;
};

/// What stands around the detail pane in every style of navigation: the visible modules as tabs, and what is
/// chosen.
class NavigationViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// `Destination::text()` of what the window shows.
    Q_PROPERTY(QString selection READ selection NOTIFY selectionChanged FINAL)
    /// All visible modules, and those with a tab of their own in the bottom bar.
    Q_PROPERTY(QAbstractItemModel *tabs READ tabs CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel *inlineTabs READ inlineTabs CONSTANT FINAL)
    /// The position of the shown module in `tabs`; -1 where it has none.
    Q_PROPERTY(int chosenTab READ chosenTab NOTIFY chosenTabChanged FINAL)
    /// Whether the window shows a module that has no tab of its own in the bottom bar.
    Q_PROPERTY(bool isMoreChosen READ isMoreChosen NOTIFY chosenTabChanged FINAL)

public:
    explicit NavigationViewModel(QObject *parent = nullptr);

    QString selection() const { return m_selection; }
    QAbstractItemModel *tabs() { return &m_tabs; }
    QAbstractItemModel *inlineTabs() { return &m_inlineTabs; }
    const QList<ModuleTab> &tabList() const { return m_tabs.rows(); }
    const QList<ModuleTab> &inlineTabList() const { return m_inlineTabs.rows(); }
    int chosenTab() const { return m_chosenTab; }
    bool isMoreChosen() const { return m_chosenTab >= m_inlineTabs.rows().size(); }

    /// The keys of a shortcut, such as "palette", as a user reads them.
    Q_INVOKABLE static QString keys(const QString &shortcut);
    /// Gives a command of the menus.
    Q_INVOKABLE void runCommand(const QString &id);
    Q_INVOKABLE void newPage();
    Q_INVOKABLE void newNote();

signals:
    void selectionChanged();
    void chosenTabChanged();

private:
    void start() override;
    void refresh(const ChangeSet &changes) override;
    void followSelection();
    void findChosenTab();

    QString m_selection;
    int m_chosenTab = -1;
    KeyedListModel<ModuleTab> m_tabs;
    KeyedListModel<ModuleTab> m_inlineTabs;
};
