#include "Features/Shell/NavigationViewModel.h"

#include "DesignSystem/KeyText.h"
#include "Session/PageActions.h"
#include "Support/OVShortcuts.h"
#include "Support/OrvelNavigation.h"

namespace
{
QList<ModuleTab> tabsOf(const QList<OrvelModule> &modules)
{
    QList<ModuleTab> tabs;
    for (OrvelModule module : modules)
        tabs.append({OrvelNavigation::destination(module).text(), enumLabel(module), enumSymbol(module)});
    return tabs;
}
} // namespace

NavigationViewModel::NavigationViewModel(QObject *parent) : ViewModel(parent)
{
    followSettings();
}

QString NavigationViewModel::keys(const QString &shortcut)
{
    return KeyText::of(OVShortcuts::portableKeys(shortcut));
}

void NavigationViewModel::runCommand(const QString &id)
{
    if (CommandSource *const commands = session()->commands())
        commands->runCommand(id);
}

void NavigationViewModel::newPage()
{
    PageActions::create(store(), ui(), PageKind::page);
}

void NavigationViewModel::newNote()
{
    PageActions::create(store(), ui(), PageKind::note);
}

void NavigationViewModel::start()
{
    connect(&ui(), &UIState::selectionChanged, this, &NavigationViewModel::followSelection);
    m_selection = ui().selection().text();
}

void NavigationViewModel::refresh(const ChangeSet &)
{
    const QList<OrvelModule> visible = store().settings().visibleModules();
    m_tabs.setRows(tabsOf(visible));
    m_inlineTabs.setRows(tabsOf(OrvelNavigation::splitTabs(visible).inlineModules));
    findChosenTab();
}

void NavigationViewModel::followSelection()
{
    m_selection = ui().selection().text();
    emit selectionChanged();
    findChosenTab();
}

void NavigationViewModel::findChosenTab()
{
    const auto found = std::ranges::find(tabList(), m_selection, &ModuleTab::id);
    m_chosenTab = found == tabList().end() ? -1 : int(found - tabList().begin());
    emit chosenTabChanged();
}
