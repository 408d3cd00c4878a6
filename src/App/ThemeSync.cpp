#include "App/ThemeSync.h"

#include "DesignSystem/OVTheme.h"

ThemeSync::ThemeSync(const WorkspaceStore *store, const DesktopAppearance *desktop, QObject *parent)
    : QObject(parent)
{
    const auto follow = [desktop] { OVTheme::setSystemDark(desktop->isDark()); };
    const auto apply = [store] { OVTheme::apply(store->settings()); };
    connect(desktop, &DesktopAppearance::darkChanged, this, follow);
    connect(store, &WorkspaceStore::settingsChanged, this, apply);
    follow();
    apply();
}
