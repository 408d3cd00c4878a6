#pragma once

#include "Models/AppSettings.h"
#include "Support/Destination.h"

/// How the modules are grouped, named as destinations and spread over tabs.
namespace OrvelNavigation
{
/// Modules that stand together in the sidebar and in menus.
struct Group {
    QString id;
    std::optional<QString> label;
    QList<OrvelModule> modules;

    bool operator==(const Group &) const = default;
};

/// All modules in the order of the sidebar and of menus.
QList<Group> groups();
/// The groups with their visible modules only; a group left empty is dropped, its label with it.
QList<Group> visibleGroups(const AppSettings &settings);

Destination destination(OrvelModule module);
/// The module that is this destination; nothing for the settings and for a single record, so that no module
/// is highlighted then.
std::optional<OrvelModule> module(const Destination &destination);

/// The modules of the bottom tab bar: those with a tab of their own, and those behind "More".
struct TabSplit {
    QList<OrvelModule> inlineModules;
    QList<OrvelModule> overflow;

    bool operator==(const TabSplit &) const = default;
};
TabSplit splitTabs(const QList<OrvelModule> &visibleModules);

/// The name of the workspace, or "Orvel" if that is blank.
QString windowTitle(const AppSettings &settings);
} // namespace OrvelNavigation
