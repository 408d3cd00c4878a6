#include "Support/OrvelNavigation.h"

#include "Foundation/LineText.h"

#include <algorithm>

namespace
{
constexpr qsizetype tabLimit = 4;
constexpr int firstModuleKind = int(Destination::Kind::dashboard);

constexpr Destination::Kind kindOf(OrvelModule module)
{
    return Destination::Kind(firstModuleKind + int(module));
}

static_assert(std::ranges::all_of(enumCases<OrvelModule>(), [](const EnumCase<OrvelModule> &entry) {
    return enumRaw(kindOf(entry.value)) == entry.raw;
}));
} // namespace

QList<OrvelNavigation::Group> OrvelNavigation::groups()
{
    using enum OrvelModule;
    return {
        {QStringLiteral("home"), std::nullopt, {dashboard, today, focus}},
        {QStringLiteral("workspaces"),
         QCoreApplication::translate("OrvelNavigation", "Workspaces"),
         {tasks, calendar, projects, notes, databases, code, decks}},
        {QStringLiteral("explore"),
         QCoreApplication::translate("OrvelNavigation", "Explore"),
         {habits, insights, relax, reader}},
    };
}

QList<OrvelNavigation::Group> OrvelNavigation::visibleGroups(const AppSettings &settings)
{
    const QList<OrvelModule> visible = settings.visibleModules();
    QList<Group> shown = groups();
    for (Group &group : shown)
        group.modules.removeIf([&visible](OrvelModule module) { return !visible.contains(module); });
    shown.removeIf([](const Group &group) { return group.modules.isEmpty(); });
    return shown;
}

Destination OrvelNavigation::destination(OrvelModule module)
{
    return Destination::to(kindOf(module));
}

std::optional<OrvelModule> OrvelNavigation::module(const Destination &destination)
{
    return enumFromRaw<OrvelModule>(enumRaw(destination.kind));
}

OrvelNavigation::TabSplit OrvelNavigation::splitTabs(const QList<OrvelModule> &visibleModules)
{
    return {visibleModules.first(std::min(tabLimit, visibleModules.size())),
            visibleModules.sliced(std::min(tabLimit, visibleModules.size()))};
}

QString OrvelNavigation::windowTitle(const AppSettings &settings)
{
    const bool isBlank = settings.workspaceName.trimmed().isEmpty();
    return isBlank ? QStringLiteral("Orvel") : LineText::shown(settings.workspaceName);
}
