#include "DesignSystem/OVColors.h"

OVColors OVColors::of(bool inkMode, bool dark)
{
    const auto paper = [=](QRgb inDark, QRgb inLight, QRgb inInkMode) {
        return QColor::fromRgb(inkMode ? inInkMode : dark ? inDark : inLight);
    };
    const auto mark = [=](QRgb inDark, QRgb inLight) { return QColor::fromRgb(dark ? inDark : inLight); };
    return {
        .canvas = paper(0x191919, 0xFFFFFF, 0xF4F1E7),
        .sidebar = paper(0x1F1F1F, 0xFAFAF9, 0xEDE9DC),
        .surface = paper(0x252525, 0xFFFFFF, 0xFBF9F1),
        .subtle = paper(0x2A2A2A, 0xF7F7F5, 0xEBE6D7),
        .hover = paper(0x2E2E2E, 0xF1F1EF, 0xE2DCC9),
        .border = paper(0x303030, 0xE9E9E7, 0xCFC8B4),
        .borderStrong = paper(0x3C3C3C, 0xD9D9D6, 0xB3AB92),
        .ink = paper(0xEDEDED, 0x37352F, 0x1B1A16),
        .inkSecondary = paper(0x9B9B9B, 0x73726E, 0x4C4738),
        .inkTertiary = paper(0x6F6F6F, 0xA5A29B, 0x736C58),
        .link = mark(0x5B9EE8, 0x2383E2),
        .danger = mark(0xEB6C6C, 0xE03E3E),
        .warning = mark(0xE0A458, 0xCB912F),
        .success = mark(0x63BE8A, 0x2E9E5B),
        .info = mark(0x6FB3D6, 0x337EA9),
    };
}
