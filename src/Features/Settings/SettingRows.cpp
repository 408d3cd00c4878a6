#include "Features/Settings/SettingRows.h"

#include "DesignSystem/AccentColors.h"
#include "DesignSystem/AppearanceSymbol.h"
#include "DesignSystem/OVFonts.h"
#include "DesignSystem/ThemePresets.h"
#include "Support/SettingFields.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace
{
using Choices = QList<SettingChoice>;

QString tr(const char *text)
{
    return QCoreApplication::translate("SettingRows", text);
}

/// One choice a case of the enum, by its label.
template <TabledEnum Enum>
Choices casesOf(const std::function<void(Enum, SettingChoice &)> &fill = {})
{
    Choices choices;
    for (const EnumCase<Enum> &entry : enumCases<Enum>()) {
        const QString raw = enumRawText(entry.value);
        SettingChoice choice{.label = enumLabel(entry.value), .raw = raw, .value = raw};
        if (fill)
            fill(entry.value, choice);
        choices.append(choice);
    }
    return choices;
}

/// One choice a case, by its raw text.
template <TabledEnum Enum>
Choices rawCasesOf()
{
    return casesOf<Enum>([](Enum value, SettingChoice &choice) { choice.label = enumRawText(value); });
}

/// The settings as they would be without ink mode in a light or dark window.
AppSettings plain(AppSettings settings, bool dark)
{
    settings.inkMode = false;
    settings.appearance = dark ? AppearanceMode::dark : AppearanceMode::light;
    return settings;
}

OVLook lookOf(const AppSettings &settings)
{
    return OVLook::of(OVThemeSnapshot::resolved(settings, false));
}

Choices presets(const AppSettings &settings, bool dark)
{
    return casesOf<ThemePreset>([&](ThemePreset preset, SettingChoice &choice) {
        AppSettings next = plain(settings, dark);
        applyThemePreset(preset, next.theme);
        choice.family = OVFonts::family(next.theme.font);
        choice.looks = {lookOf(next)};
    });
}

Choices accents(bool dark)
{
    return casesOf<AccentPalette>([dark](AccentPalette accent, SettingChoice &choice) {
        const AccentColors colors = accentColors(accent);
        choice.color = dark ? colors.dark : colors.light;
        choice.onColor = dark ? colors.onDark : colors.onLight;
    });
}

Choices canvases(const AppSettings &settings, bool dark)
{
    return casesOf<CanvasStyle>([&](CanvasStyle canvas, SettingChoice &choice) {
        AppSettings next = plain(settings, dark);
        next.theme.canvas = canvas;
        choice.looks = {lookOf(next)};
        choice.symbol = canvas == CanvasStyle::none ? u"slash.circle"_s : QString();
    });
}

Choices fonts()
{
    return casesOf<FontChoice>(
        [](FontChoice font, SettingChoice &choice) { choice.family = OVFonts::family(font); });
}

Choices appearances(const AppSettings &settings)
{
    return casesOf<AppearanceMode>([&settings](AppearanceMode mode, SettingChoice &choice) {
        AppSettings next = plain(settings, false);
        next.appearance = mode;
        choice.symbol = appearanceSymbol(mode);
        choice.looks = OVLook::possible(next);
    });
}

Choices navigations()
{
    struct Texts {
        const char *title;
        const char *detail;
    };
    static constexpr auto texts = std::to_array<Texts>({
        {QT_TRANSLATE_NOOP("SettingRows", "Sidebar"),
         QT_TRANSLATE_NOOP("SettingRows", "Classic split view with a full sidebar.")},
        {QT_TRANSLATE_NOOP("SettingRows", "Top tabs"),
         QT_TRANSLATE_NOOP("SettingRows", "A slim row of tabs above your content.")},
        {QT_TRANSLATE_NOOP("SettingRows", "Bottom tabs"),
         QT_TRANSLATE_NOOP("SettingRows", "A familiar tab bar pinned to the bottom.")},
        {QT_TRANSLATE_NOOP("SettingRows", "Glass dock"),
         QT_TRANSLATE_NOOP("SettingRows", "A floating Liquid Glass dock.")},
    });
    return casesOf<NavigationStyle>([](NavigationStyle style, SettingChoice &choice) {
        const Texts &text = texts.at(std::size_t(style));
        choice.label = tr(text.title);
        choice.detail = tr(text.detail);
    });
}

Choices modules(const AppSettings &settings)
{
    return casesOf<OrvelModule>([&settings](OrvelModule module, SettingChoice &choice) {
        choice.symbol = enumSymbol(module);
        choice.detail = moduleBlurb(module);
        choice.isSelected = !settings.hiddenModules.contains(enumRawText(module));
    });
}

Choices scales(std::initializer_list<std::pair<const char *, double>> steps)
{
    Choices choices;
    for (const auto &[label, scale] : steps)
        choices.append({.label = tr(label), .value = scale});
    return choices;
}

Choices textSizes()
{
    return scales({{QT_TRANSLATE_NOOP("SettingRows", "Small"), 0.9},
                   {QT_TRANSLATE_NOOP("SettingRows", "Default"), 1.0},
                   {QT_TRANSLATE_NOOP("SettingRows", "Large"), 1.1},
                   {QT_TRANSLATE_NOOP("SettingRows", "Huge"), 1.25}});
}

Choices readerSizes()
{
    return scales({{QT_TRANSLATE_NOOP("SettingRows", "Small"), 0.88},
                   {QT_TRANSLATE_NOOP("SettingRows", "Medium"), 1.0},
                   {QT_TRANSLATE_NOOP("SettingRows", "Large"), 1.2},
                   {QT_TRANSLATE_NOOP("SettingRows", "XL"), 1.45}});
}

Choices focusLengths()
{
    Choices choices;
    for (const qint64 minutes : {15, 25, 45, 60})
        choices.append({.label = tr("%1 min").arg(minutes), .value = minutes});
    return choices;
}

Choices offered(QStringView field, const AppSettings &settings, bool dark)
{
    if (field == u"theme.preset")
        return presets(settings, dark);
    if (field == u"theme.accent")
        return accents(dark);
    if (field == u"theme.canvas")
        return canvases(settings, dark);
    if (field == u"theme.font")
        return fonts();
    if (field == u"theme.fontScale")
        return textSizes();
    if (field == u"theme.navigation")
        return navigations();
    if (field == u"theme.density")
        return rawCasesOf<DensityStyle>();
    if (field == u"theme.corner")
        return rawCasesOf<CornerStyle>();
    if (field == u"theme.animation")
        return rawCasesOf<AnimationLevel>();
    if (field == u"appearance")
        return appearances(settings);
    if (field == u"defaultFocusMinutes")
        return focusLengths();
    if (field == u"readerFontScale")
        return readerSizes();
    return {};
}

bool isSame(const QVariant &a, const QVariant &b)
{
    if (a.typeId() == QMetaType::Double)
        return std::abs(a.toDouble() - b.toDouble()) < 0.01;
    return a == b;
}
} // namespace

QList<SettingChoice> SettingRows::of(QStringView field, const AppSettings &settings, bool dark)
{
    if (field == u"hiddenModules")
        return modules(settings);
    Choices choices = offered(field, settings, dark);
    const QVariant current = SettingFields::value(settings, field);
    for (SettingChoice &choice : choices)
        choice.isSelected = isSame(choice.value, current);
    return choices;
}
