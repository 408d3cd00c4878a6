#pragma once

#include "Support/OrvelNavigation.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What views read of the settings, as `Orvel.settings`; the theme has its own road, `Theme`.
struct ShownSettings {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(bool hasCompletedOnboarding MEMBER hasCompletedOnboarding FINAL)
    /// The name of the workspace, or "Orvel" if that is blank.
    Q_PROPERTY(QString workspaceName MEMBER workspaceName FINAL)
    Q_PROPERTY(QString workspaceIcon MEMBER workspaceIcon FINAL)
    /// Raw text of the `NavigationStyle`.
    Q_PROPERTY(QString navigation MEMBER navigation FINAL)
    Q_PROPERTY(bool sidebarShowsIcons MEMBER sidebarShowsIcons FINAL)

public:
    bool hasCompletedOnboarding = false;
    QString workspaceName;
    QString workspaceIcon;
    QString navigation;
    bool sidebarShowsIcons = true;

    static ShownSettings of(const AppSettings &settings)
    {
        return {settings.hasCompletedOnboarding, OrvelNavigation::windowTitle(settings),
                settings.workspaceIcon, enumRawText(settings.theme.navigation), settings.sidebarShowsIcons};
    }
    bool operator==(const ShownSettings &) const = default;
};
