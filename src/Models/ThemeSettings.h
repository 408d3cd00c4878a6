#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"

enum class AccentPalette {
    mono,
    graphite,
    blue,
    indigo,
    violet,
    teal,
    green,
    amber,
    orange,
    rose,
    pink,
    cyan,
    red
};

template <>
struct EnumTable<AccentPalette> {
    static constexpr auto cases = std::to_array<EnumCase<AccentPalette>>({
        {AccentPalette::mono, "mono", QT_TRANSLATE_NOOP("EnumLabel", "Mono")},
        {AccentPalette::graphite, "graphite", QT_TRANSLATE_NOOP("EnumLabel", "Graphite")},
        {AccentPalette::blue, "blue", QT_TRANSLATE_NOOP("EnumLabel", "Blue")},
        {AccentPalette::indigo, "indigo", QT_TRANSLATE_NOOP("EnumLabel", "Indigo")},
        {AccentPalette::violet, "violet", QT_TRANSLATE_NOOP("EnumLabel", "Violet")},
        {AccentPalette::teal, "teal", QT_TRANSLATE_NOOP("EnumLabel", "Teal")},
        {AccentPalette::green, "green", QT_TRANSLATE_NOOP("EnumLabel", "Green")},
        {AccentPalette::amber, "amber", QT_TRANSLATE_NOOP("EnumLabel", "Amber")},
        {AccentPalette::orange, "orange", QT_TRANSLATE_NOOP("EnumLabel", "Orange")},
        {AccentPalette::rose, "rose", QT_TRANSLATE_NOOP("EnumLabel", "Rose")},
        {AccentPalette::pink, "pink", QT_TRANSLATE_NOOP("EnumLabel", "Pink")},
        {AccentPalette::cyan, "cyan", QT_TRANSLATE_NOOP("EnumLabel", "Cyan")},
        {AccentPalette::red, "red", QT_TRANSLATE_NOOP("EnumLabel", "Red")},
    });
};

enum class CanvasStyle {
    none,
    paper,
    mist,
    dawn,
    dusk,
    aurora,
    sunset,
    forest,
    ocean,
    blossom,
    candy,
    midnight,
    ember
};

template <>
struct EnumTable<CanvasStyle> {
    static constexpr auto cases = std::to_array<EnumCase<CanvasStyle>>({
        {CanvasStyle::none, "none", QT_TRANSLATE_NOOP("EnumLabel", "None")},
        {CanvasStyle::paper, "paper", QT_TRANSLATE_NOOP("EnumLabel", "Paper")},
        {CanvasStyle::mist, "mist", QT_TRANSLATE_NOOP("EnumLabel", "Mist")},
        {CanvasStyle::dawn, "dawn", QT_TRANSLATE_NOOP("EnumLabel", "Dawn")},
        {CanvasStyle::dusk, "dusk", QT_TRANSLATE_NOOP("EnumLabel", "Dusk")},
        {CanvasStyle::aurora, "aurora", QT_TRANSLATE_NOOP("EnumLabel", "Aurora")},
        {CanvasStyle::sunset, "sunset", QT_TRANSLATE_NOOP("EnumLabel", "Sunset")},
        {CanvasStyle::forest, "forest", QT_TRANSLATE_NOOP("EnumLabel", "Forest")},
        {CanvasStyle::ocean, "ocean", QT_TRANSLATE_NOOP("EnumLabel", "Ocean")},
        {CanvasStyle::blossom, "blossom", QT_TRANSLATE_NOOP("EnumLabel", "Blossom")},
        {CanvasStyle::candy, "candy", QT_TRANSLATE_NOOP("EnumLabel", "Candy")},
        {CanvasStyle::midnight, "midnight", QT_TRANSLATE_NOOP("EnumLabel", "Midnight")},
        {CanvasStyle::ember, "ember", QT_TRANSLATE_NOOP("EnumLabel", "Ember")},
    });
};

enum class FontChoice { system, rounded, serif, monospaced };

template <>
struct EnumTable<FontChoice> {
    static constexpr auto cases = std::to_array<EnumCase<FontChoice>>({
        {FontChoice::system, "system", QT_TRANSLATE_NOOP("EnumLabel", "System")},
        {FontChoice::rounded, "rounded", QT_TRANSLATE_NOOP("EnumLabel", "Rounded")},
        {FontChoice::serif, "serif", QT_TRANSLATE_NOOP("EnumLabel", "Serif")},
        {FontChoice::monospaced, "monospaced", QT_TRANSLATE_NOOP("EnumLabel", "Monospaced")},
    });
};

enum class CornerStyle { sharp, soft, round };

template <>
struct EnumTable<CornerStyle> {
    static constexpr auto cases = std::to_array<EnumCase<CornerStyle>>({
        {CornerStyle::sharp, "sharp", QT_TRANSLATE_NOOP("EnumLabel", "Sharp")},
        {CornerStyle::soft, "soft", QT_TRANSLATE_NOOP("EnumLabel", "Soft")},
        {CornerStyle::round, "round", QT_TRANSLATE_NOOP("EnumLabel", "Round")},
    });
};

enum class DensityStyle { cozy, comfortable, spacious };

template <>
struct EnumTable<DensityStyle> {
    static constexpr auto cases = std::to_array<EnumCase<DensityStyle>>({
        {DensityStyle::cozy, "cozy", QT_TRANSLATE_NOOP("EnumLabel", "Cozy")},
        {DensityStyle::comfortable, "comfortable", QT_TRANSLATE_NOOP("EnumLabel", "Comfortable")},
        {DensityStyle::spacious, "spacious", QT_TRANSLATE_NOOP("EnumLabel", "Spacious")},
    });
};

enum class NavigationStyle { sidebar, tabsTop, tabsBottom, glassDock };

template <>
struct EnumTable<NavigationStyle> {
    static constexpr auto cases = std::to_array<EnumCase<NavigationStyle>>({
        {NavigationStyle::sidebar, "sidebar", QT_TRANSLATE_NOOP("EnumLabel", "Sidebar")},
        {NavigationStyle::tabsTop, "tabsTop", QT_TRANSLATE_NOOP("EnumLabel", "Tabs on top")},
        {NavigationStyle::tabsBottom, "tabsBottom", QT_TRANSLATE_NOOP("EnumLabel", "Tabs at the bottom")},
        {NavigationStyle::glassDock, "glassDock", QT_TRANSLATE_NOOP("EnumLabel", "Glass dock")},
    });
};

enum class AnimationLevel { subtle, normal, lively };

template <>
struct EnumTable<AnimationLevel> {
    static constexpr auto cases = std::to_array<EnumCase<AnimationLevel>>({
        {AnimationLevel::subtle, "subtle", QT_TRANSLATE_NOOP("EnumLabel", "Subtle")},
        {AnimationLevel::normal, "normal", QT_TRANSLATE_NOOP("EnumLabel", "Normal")},
        {AnimationLevel::lively, "lively", QT_TRANSLATE_NOOP("EnumLabel", "Lively")},
    });
};

enum class ThemePreset { paper, mist, graphite, aurora, dusk, forest, ocean, ember };

template <>
struct EnumTable<ThemePreset> {
    static constexpr auto cases = std::to_array<EnumCase<ThemePreset>>({
        {ThemePreset::paper, "paper", QT_TRANSLATE_NOOP("EnumLabel", "Paper")},
        {ThemePreset::mist, "mist", QT_TRANSLATE_NOOP("EnumLabel", "Mist")},
        {ThemePreset::graphite, "graphite", QT_TRANSLATE_NOOP("EnumLabel", "Graphite")},
        {ThemePreset::aurora, "aurora", QT_TRANSLATE_NOOP("EnumLabel", "Aurora")},
        {ThemePreset::dusk, "dusk", QT_TRANSLATE_NOOP("EnumLabel", "Dusk")},
        {ThemePreset::forest, "forest", QT_TRANSLATE_NOOP("EnumLabel", "Forest")},
        {ThemePreset::ocean, "ocean", QT_TRANSLATE_NOOP("EnumLabel", "Ocean")},
        {ThemePreset::ember, "ember", QT_TRANSLATE_NOOP("EnumLabel", "Ember")},
    });
};

/// The choices of appearance, as the user made them. `OVTheme` resolves them into what screens read.
struct ThemeSettings {
    AccentPalette accent = AccentPalette::mono;
    CanvasStyle canvas = CanvasStyle::mist;
    FontChoice font = FontChoice::system;
    double fontScale = 1.0;
    CornerStyle corner = CornerStyle::soft;
    DensityStyle density = DensityStyle::comfortable;
    NavigationStyle navigation = NavigationStyle::sidebar;
    AnimationLevel animation = AnimationLevel::normal;
    bool accentIcons = false;
    bool glassySurfaces = true;
    bool animatedBackground = true;
    bool showQuote = true;
    bool compactSidebar = false;
    bool tabBarLabels = true;
    ThemePreset preset = ThemePreset::paper;

    bool operator==(const ThemeSettings &) const = default;

    static constexpr bool isTolerant = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"accent", &ThemeSettings::accent},
                          Field{"canvas", &ThemeSettings::canvas},
                          Field{"font", &ThemeSettings::font},
                          Field{"fontScale", &ThemeSettings::fontScale},
                          Field{"corner", &ThemeSettings::corner},
                          Field{"density", &ThemeSettings::density},
                          Field{"navigation", &ThemeSettings::navigation},
                          Field{"animation", &ThemeSettings::animation},
                          Field{"accentIcons", &ThemeSettings::accentIcons},
                          Field{"glassySurfaces", &ThemeSettings::glassySurfaces},
                          Field{"animatedBackground", &ThemeSettings::animatedBackground},
                          Field{"showQuote", &ThemeSettings::showQuote},
                          Field{"compactSidebar", &ThemeSettings::compactSidebar},
                          Field{"tabBarLabels", &ThemeSettings::tabBarLabels},
                          Field{"preset", &ThemeSettings::preset}};
    }
};
