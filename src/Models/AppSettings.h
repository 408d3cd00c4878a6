#pragma once

#include "Models/OrvelModule.h"
#include "Models/ThemeSettings.h"

#include <QList>
#include <QStringList>
#include <QUuid>

enum class AppearanceMode { system, light, dark };

template <>
struct EnumTable<AppearanceMode> {
    static constexpr auto cases = std::to_array<EnumCase<AppearanceMode>>({
        {AppearanceMode::system, "system", QT_TRANSLATE_NOOP("EnumLabel", "System")},
        {AppearanceMode::light, "light", QT_TRANSLATE_NOOP("EnumLabel", "Light")},
        {AppearanceMode::dark, "dark", QT_TRANSLATE_NOOP("EnumLabel", "Dark")},
    });
};

/// A saved video link of the relax screen.
struct RelaxLink {
    QUuid id;
    QString name;
    QString url;

    bool operator==(const RelaxLink &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &RelaxLink::id}, Field{"name", &RelaxLink::name},
                          Field{"url", &RelaxLink::url}};
    }
};

/// Everything that the user can choose. It lies in the workspace file and so travels with it.
struct AppSettings {
    QString userName;
    QString workspaceName = QStringLiteral("My Workspace");
    QString workspaceIcon = QStringLiteral("🧠");
    AppearanceMode appearance = AppearanceMode::system;
    bool sidebarShowsIcons = true;
    bool reducedMotion = false;
    qint64 defaultFocusMinutes = 25;
    /// Raw texts of the hidden modules; one that names no module is kept and ignored.
    QStringList hiddenModules;
    bool hasCompletedOnboarding = false;
    ThemeSettings theme;
    bool menuBarEnabled = true;
    bool menuBarShowsTasks = true;
    QList<RelaxLink> relaxLinks;
    QString relaxLastURL;
    /// The monochrome paper look; it forces a light window.
    bool inkMode = false;
    bool readerSerif = true;
    double readerFontScale = 1.0;

    bool operator==(const AppSettings &) const = default;

    /// "Good morning" and the like, with the user's name if there is one.
    /// @param hour hour of the user's day, from 0 to 23
    QString greeting(int hour) const;
    /// The modules that are not hidden, in module order.
    QList<OrvelModule> visibleModules() const;
    void setModule(OrvelModule module, bool visible);

    static constexpr bool isTolerant = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"userName", &AppSettings::userName},
                          Field{"workspaceName", &AppSettings::workspaceName},
                          Field{"workspaceIcon", &AppSettings::workspaceIcon},
                          Field{"appearance", &AppSettings::appearance},
                          Field{"sidebarShowsIcons", &AppSettings::sidebarShowsIcons},
                          Field{"reducedMotion", &AppSettings::reducedMotion},
                          Field{"defaultFocusMinutes", &AppSettings::defaultFocusMinutes},
                          Field{"hiddenModules", &AppSettings::hiddenModules},
                          Field{"hasCompletedOnboarding", &AppSettings::hasCompletedOnboarding},
                          Field{"theme", &AppSettings::theme},
                          Field{"menuBarEnabled", &AppSettings::menuBarEnabled},
                          Field{"menuBarShowsTasks", &AppSettings::menuBarShowsTasks},
                          Field{"relaxLinks", &AppSettings::relaxLinks},
                          Field{"relaxLastURL", &AppSettings::relaxLastURL},
                          Field{"inkMode", &AppSettings::inkMode},
                          Field{"readerSerif", &AppSettings::readerSerif},
                          Field{"readerFontScale", &AppSettings::readerFontScale}};
    }
};
