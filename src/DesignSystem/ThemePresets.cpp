#include "DesignSystem/ThemePresets.h"

#include <array>

namespace
{

struct PresetRow {
    AccentPalette accent;
    CanvasStyle canvas;
    FontChoice font;
    CornerStyle corner;
    DensityStyle density;
    AnimationLevel animation;
};

PresetRow rowOf(ThemePreset preset)
{
    using enum AnimationLevel;
    using enum CornerStyle;
    using enum DensityStyle;
    using Accent = AccentPalette;
    using Canvas = CanvasStyle;
    using Font = FontChoice;
    constexpr auto rows = std::to_array<PresetRow>({
        {Accent::mono, Canvas::none, Font::system, soft, comfortable, normal},
        {Accent::graphite, Canvas::mist, Font::system, soft, comfortable, normal},
        {Accent::graphite, Canvas::paper, Font::monospaced, sharp, cozy, subtle},
        {Accent::violet, Canvas::aurora, Font::rounded, round, comfortable, lively},
        {Accent::indigo, Canvas::dusk, Font::rounded, round, comfortable, normal},
        {Accent::green, Canvas::forest, Font::serif, soft, spacious, subtle},
        {Accent::cyan, Canvas::ocean, Font::system, soft, comfortable, normal},
        {Accent::orange, Canvas::ember, Font::serif, soft, comfortable, lively},
    });
    static_assert(rows.size() == EnumTable<ThemePreset>::cases.size());
    return rows.at(static_cast<std::size_t>(preset));
}

} // namespace

void applyThemePreset(ThemePreset preset, ThemeSettings &settings)
{
    const PresetRow row = rowOf(preset);
    settings.accent = row.accent;
    settings.canvas = row.canvas;
    settings.font = row.font;
    settings.corner = row.corner;
    settings.density = row.density;
    settings.animation = row.animation;
    settings.preset = preset;
}
