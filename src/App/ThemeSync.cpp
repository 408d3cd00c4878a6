#include "App/ThemeSync.h"

#include "DesignSystem/OVTheme.h"

ThemeSync::ThemeSync(const WorkspaceStore *store, const SystemAppearance *desktop, QObject *parent)
    : QObject(parent)
{
    const auto follow = [](bool dark) { OVTheme::setSystemDark(dark); };
    const auto apply = [store] { OVTheme::apply(store->settings()); };
    const auto followSettings = [apply](const ChangeSet &changes) {
        if (changes.settings)
            apply();
    };
    connect(desktop, &SystemAppearance::changed, this, follow);
    connect(store, &WorkspaceStore::changed, this, followSettings);
    follow(desktop->isDark());
    apply();
}
