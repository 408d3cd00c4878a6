#include "Features/Shell/NavigationViewModel.h"

#include "Session/PageActions.h"
#include "Support/OrvelNavigation.h"

namespace
{
QList<ModuleTab> tabsOf(const QList<OrvelModule> &modules)
{
    QList<ModuleTab> tabs;
    for (OrvelModule module : modules)
        tabs.append({QUuid::createUuidV5(QUuid(), enumRawText(module)), enumLabel(module), enumSymbol(module),
                     OrvelNavigation::destination(module).text()});
    return tabs;
}
} // namespace

void NavigationViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &WorkspaceStore::changed, this, [this](const ChangeSet &changes) {
        if (changes.settings)
            m_followSettings.request();
    });
    followSettings();
    emit storeChanged();
}

void NavigationViewModel::setUi(UIState *ui)
{
    if (m_ui == ui)
        return;
    m_ui = ui;
    connect(ui, &UIState::selectionChanged, this, &NavigationViewModel::followSelection);
    followSelection();
    emit uiChanged();
}

void NavigationViewModel::newPage()
{
    PageActions::create(*m_store, *m_ui, PageKind::page);
}

void NavigationViewModel::newNote()
{
    PageActions::create(*m_store, *m_ui, PageKind::note);
}

void NavigationViewModel::followSettings()
{
    const AppSettings &settings = m_store->settings();
    const QList<OrvelModule> visible = settings.visibleModules();
    const auto counts = std::pair(tabCount(), inlineTabCount());
    m_tabs.setRows(tabsOf(visible));
    m_inlineTabs.setRows(tabsOf(OrvelNavigation::splitTabs(visible).inlineModules));
    if (counts != std::pair(tabCount(), inlineTabCount()))
        emit tabCountChanged();
    const auto before = std::tuple(m_style, m_workspaceName, m_workspaceIcon);
    m_style = enumRawText(settings.theme.navigation);
    m_workspaceName = OrvelNavigation::windowTitle(settings);
    m_workspaceIcon = settings.workspaceIcon;
    if (before != std::tuple(m_style, m_workspaceName, m_workspaceIcon))
        emit changed();
    findChosenTab();
}

void NavigationViewModel::followSelection()
{
    m_selection = m_ui->selection().text();
    emit selectionChanged();
    findChosenTab();
}

void NavigationViewModel::findChosenTab()
{
    const auto found = std::ranges::find(tabList(), m_selection, &ModuleTab::destination);
    m_chosenTab = found == tabList().end() ? -1 : int(found - tabList().begin());
    emit chosenTabChanged();
}
