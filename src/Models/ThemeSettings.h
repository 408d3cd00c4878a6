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
        {AccentPalette::mono, "mono", u"Mono"},
        {AccentPalette::graphite, "graphite", u"Graphite"},
        {AccentPalette::blue, "blue", u"Blue"},
        {AccentPalette::indigo, "indigo", u"Indigo"},
        {AccentPalette::violet, "violet", u"Violet"},
        {AccentPalette::teal, "teal", u"Teal"},
        {AccentPalette::green, "green", u"Green"},
        {AccentPalette::amber, "amber", u"Amber"},
        {AccentPalette::orange, "orange", u"Orange"},
        {AccentPalette::rose, "rose", u"Rose"},
        {AccentPalette::pink, "pink", u"Pink"},
        {AccentPalette::cyan, "cyan", u"Cyan"},
        {AccentPalette::red, "red", u"Red"},
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
        {CanvasStyle::none, "none", u"None"},
        {CanvasStyle::paper, "paper", u"Paper"},
        {CanvasStyle::mist, "mist", u"Mist"},
        {CanvasStyle::dawn, "dawn", u"Dawn"},
        {CanvasStyle::dusk, "dusk", u"Dusk"},
        {CanvasStyle::aurora, "aurora", u"Aurora"},
        {CanvasStyle::sunset, "sunset", u"Sunset"},
        {CanvasStyle::forest, "forest", u"Forest"},
        {CanvasStyle::ocean, "ocean", u"Ocean"},
        {CanvasStyle::blossom, "blossom", u"Blossom"},
        {CanvasStyle::candy, "candy", u"Candy"},
        {CanvasStyle::midnight, "midnight", u"Midnight"},
        {CanvasStyle::ember, "ember", u"Ember"},
    });
};

enum class FontChoice { system, rounded, serif, monospaced };

template <>
struct EnumTable<FontChoice> {
    static constexpr auto cases = std::to_array<EnumCase<FontChoice>>({
        {FontChoice::system, "system", u"System"},
        {FontChoice::rounded, "rounded", u"Rounded"},
        {FontChoice::serif, "serif", u"Serif"},
        {FontChoice::monospaced, "monospaced", u"Monospaced"},
    });
};

enum class CornerStyle { sharp, soft, round };

template <>
struct EnumTable<CornerStyle> {
    static constexpr auto cases = std::to_array<EnumCase<CornerStyle>>({
        {CornerStyle::sharp, "sharp", u"Sharp"},
        {CornerStyle::soft, "soft", u"Soft"},
        {CornerStyle::round, "round", u"Round"},
    });
};

enum class DensityStyle { cozy, comfortable, spacious };

template <>
struct EnumTable<DensityStyle> {
    static constexpr auto cases = std::to_array<EnumCase<DensityStyle>>({
        {DensityStyle::cozy, "cozy", u"Cozy"},
        {DensityStyle::comfortable, "comfortable", u"Comfortable"},
        {DensityStyle::spacious, "spacious", u"Spacious"},
    });
};

enum class NavigationStyle { sidebar, tabsTop, tabsBottom, glassDock };

template <>
struct EnumTable<NavigationStyle> {
    static constexpr auto cases = std::to_array<EnumCase<NavigationStyle>>({
        {NavigationStyle::sidebar, "sidebar", u"Sidebar"},
        {NavigationStyle::tabsTop, "tabsTop", u"Tabs on top"},
        {NavigationStyle::tabsBottom, "tabsBottom", u"Tabs at the bottom"},
        {NavigationStyle::glassDock, "glassDock", u"Glass dock"},
    });
};

enum class AnimationLevel { subtle, normal, lively };

template <>
struct EnumTable<AnimationLevel> {
    static constexpr auto cases = std::to_array<EnumCase<AnimationLevel>>({
        {AnimationLevel::subtle, "subtle", u"Subtle"},
        {AnimationLevel::normal, "normal", u"Normal"},
        {AnimationLevel::lively, "lively", u"Lively"},
    });
};

enum class ThemePreset { paper, mist, graphite, aurora, dusk, forest, ocean, ember };

template <>
struct EnumTable<ThemePreset> {
    static constexpr auto cases = std::to_array<EnumCase<ThemePreset>>({
        {ThemePreset::paper, "paper", u"Paper"},
        {ThemePreset::mist, "mist", u"Mist"},
        {ThemePreset::graphite, "graphite", u"Graphite"},
        {ThemePreset::aurora, "aurora", u"Aurora"},
        {ThemePreset::dusk, "dusk", u"Dusk"},
        {ThemePreset::forest, "forest", u"Forest"},
        {ThemePreset::ocean, "ocean", u"Ocean"},
        {ThemePreset::ember, "ember", u"Ember"},
    });
};

/// The choices of appearance, as the person made them. `OVTheme` resolves them into what screens read.
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
