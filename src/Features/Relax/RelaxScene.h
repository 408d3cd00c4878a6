#pragma once

#include "Foundation/EnumTable.h"

#include <QColor>

#include <array>

/// The ambient scenes of the relax screen.
enum class RelaxScene { aurora, ocean, forest, night, sunset, meadow, rain, embers };

template <>
struct EnumTable<RelaxScene> {
    static constexpr auto cases = std::to_array<EnumCase<RelaxScene>>({
        {RelaxScene::aurora, "aurora", QT_TRANSLATE_NOOP("EnumLabel", "Aurora")},
        {RelaxScene::ocean, "ocean", QT_TRANSLATE_NOOP("EnumLabel", "Ocean")},
        {RelaxScene::forest, "forest", QT_TRANSLATE_NOOP("EnumLabel", "Forest")},
        {RelaxScene::night, "night", QT_TRANSLATE_NOOP("EnumLabel", "Night sky")},
        {RelaxScene::sunset, "sunset", QT_TRANSLATE_NOOP("EnumLabel", "Sunset")},
        {RelaxScene::meadow, "meadow", QT_TRANSLATE_NOOP("EnumLabel", "Meadow")},
        {RelaxScene::rain, "rain", QT_TRANSLATE_NOOP("EnumLabel", "Rainfall")},
        {RelaxScene::embers, "embers", QT_TRANSLATE_NOOP("EnumLabel", "Embers")},
    });
};

/// The colours of the scene's backdrop from top to bottom.
constexpr std::array<QRgb, 3> relaxSceneColors(RelaxScene scene)
{
    constexpr std::array<std::array<QRgb, 3>, 8> colors{{
        {0xff0b1026, 0xff10233b, 0xff0a1a2b},
        {0xff0a2a3a, 0xff0e4a5c, 0xff06202c},
        {0xff0e1f16, 0xff173826, 0xff0a1710},
        {0xff05060f, 0xff0b1026, 0xff05060f},
        {0xff2a1040, 0xffb24a4a, 0xfff0a868},
        {0xff9fd8c4, 0xffcdebd3, 0xfff6efd6},
        {0xff1b2430, 0xff2a3644, 0xff141b24},
        {0xff1a0e08, 0xff3a1608, 0xff120806},
    }};
    return colors[std::size_t(scene)];
}
