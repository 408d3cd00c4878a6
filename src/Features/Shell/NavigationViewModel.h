#pragma once

#include "DesignSystem/KeyText.h"
#include "Features/Shell/ModuleTab.h"
#include "Foundation/CoalescedCall.h"
#include "Foundation/KeyedListModel.h"
#include "Session/SessionTypes.h"
#include "Support/OVShortcuts.h"

#include <QtQml/qqmlregistration.h>

/// What stands around the detail pane: the style of navigation, the tabs, and the workspace's name.
class NavigationViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(UIState *ui READ ui WRITE setUi NOTIFY uiChanged REQUIRED FINAL)
    /// Raw text of the `NavigationStyle`.
    Q_PROPERTY(QString style READ style NOTIFY changed FINAL)
    Q_PROPERTY(QString workspaceName READ workspaceName NOTIFY changed FINAL)
    Q_PROPERTY(QString workspaceIcon READ workspaceIcon NOTIFY changed FINAL)
    /// `Destination::text()` of what the window shows.
    Q_PROPERTY(QString selection READ selection NOTIFY selectionChanged FINAL)
    /// The place of the shown module in `tabs`; -1 where it has none.
    Q_PROPERTY(int chosenTab READ chosenTab NOTIFY chosenTabChanged FINAL)
    /// Whether the window shows a module that has no tab of its own in the bottom bar.
    Q_PROPERTY(bool isMoreChosen READ isMoreChosen NOTIFY chosenTabChanged FINAL)
    /// All visible modules, and those with a tab of their own in the bottom bar.
    Q_PROPERTY(QAbstractItemModel *tabs READ tabs CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel *inlineTabs READ inlineTabs CONSTANT FINAL)
    Q_PROPERTY(int tabCount READ tabCount NOTIFY tabCountChanged FINAL)
    Q_PROPERTY(int inlineTabCount READ inlineTabCount NOTIFY tabCountChanged FINAL)
    Q_PROPERTY(QString searchKeys READ searchKeys CONSTANT FINAL)
    Q_PROPERTY(QString newPageKeys READ newPageKeys CONSTANT FINAL)
    Q_PROPERTY(QString newNoteKeys READ newNoteKeys CONSTANT FINAL)
    Q_PROPERTY(QString shortcutsKeys READ shortcutsKeys CONSTANT FINAL)
    Q_PROPERTY(QString settingsKeys READ settingsKeys CONSTANT FINAL)

public:
    explicit NavigationViewModel(QObject *parent = nullptr) : QObject(parent) {}

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);
    UIState *ui() const { return m_ui; }
    void setUi(UIState *ui);

    QString style() const { return m_style; }
    QString workspaceName() const { return m_workspaceName; }
    QString workspaceIcon() const { return m_workspaceIcon; }
    QString selection() const { return m_selection; }
    int chosenTab() const { return m_chosenTab; }
    bool isMoreChosen() const { return m_chosenTab >= m_inlineTabs.rows().size(); }
    QAbstractItemModel *tabs() { return &m_tabs; }
    QAbstractItemModel *inlineTabs() { return &m_inlineTabs; }
    int tabCount() const { return int(m_tabs.rows().size()); }
    int inlineTabCount() const { return int(m_inlineTabs.rows().size()); }
    const QList<ModuleTab> &tabList() const { return m_tabs.rows(); }
    const QList<ModuleTab> &inlineTabList() const { return m_inlineTabs.rows(); }

    QString searchKeys() const { return keysOf(u"palette"); }
    QString newPageKeys() const { return keysOf(u"newPage"); }
    QString newNoteKeys() const { return keysOf(u"newNote"); }
    QString shortcutsKeys() const { return keysOf(u"shortcuts"); }
    QString settingsKeys() const { return keysOf(u"settings"); }

    Q_INVOKABLE void newPage();
    Q_INVOKABLE void newNote();

signals:
    void storeChanged();
    void uiChanged();
    void changed();
    void selectionChanged();
    void chosenTabChanged();
    void tabCountChanged();

private:
    static QString keysOf(QStringView shortcut) { return KeyText::of(OVShortcuts::portableKeys(shortcut)); }
    void followSettings();
    void followSelection();
    void findChosenTab();

    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
    QString m_style;
    QString m_workspaceName;
    QString m_workspaceIcon;
    QString m_selection;
    int m_chosenTab = -1;
    KeyedListModel<ModuleTab> m_tabs;
    KeyedListModel<ModuleTab> m_inlineTabs;
    CoalescedCall m_followSettings{[this] { followSettings(); }};
};
