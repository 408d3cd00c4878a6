#pragma once

#include "Models/ThemeSettings.h"

#include <QColor>

#include <array>

/// The colours of one accent: its fill in light and dark windows, and the text that stands on each.
struct AccentColors {
    QColor light;
    QColor dark;
    QColor onLight;
    QColor onDark;
};

inline AccentColors accentColors(AccentPalette accent)
{
    struct Pair {
        QRgb light;
        QRgb dark;
    };
    constexpr auto pairs = std::to_array<Pair>({
        {0x37352F, 0xF1F1F1},
        {0x5A5A5A, 0xC7C7C7},
        {0x2E6BE6, 0x6E9BFF},
        {0x4C51BF, 0x8B90F0},
        {0x7C5CFC, 0xA98CFF},
        {0x0F9B8E, 0x4FD1C5},
        {0x2E9E5B, 0x63BE8A},
        {0xC07A10, 0xE0A458},
        {0xDD5A18, 0xF08A4B},
        {0xD6336C, 0xF077A0},
        {0xC2255C, 0xEE7AB0},
        {0x0B7FA8, 0x5EC0E0},
        {0xD33E3E, 0xEB6C6C},
    });
    static_assert(pairs.size() == EnumTable<AccentPalette>::cases.size());
    const bool gray = accent == AccentPalette::mono || accent == AccentPalette::graphite;
    const Pair pair = pairs.at(static_cast<std::size_t>(accent));
    return {QColor::fromRgb(pair.light), QColor::fromRgb(pair.dark), QColor::fromRgb(0xFFFFFF),
            QColor::fromRgb(gray ? 0x1A1A1A : 0x141414)};
}
