#include "DesignSystem/CanvasDescriptor.h"

#include <initializer_list>

namespace
{

QList<QColor> colors(std::initializer_list<QRgb> values)
{
    QList<QColor> list;
    for (const QRgb value : values)
        list.append(QColor::fromRgb(value));
    return list;
}

} // namespace

CanvasDescriptor canvasDescriptor(CanvasStyle style)
{
    switch (style) {
    case CanvasStyle::none:
        return {};
    case CanvasStyle::paper:
        return {colors({0xFFFDF7, 0xF6F3EC}), colors({0x171614, 0x101010}), false};
    case CanvasStyle::mist:
        return {colors({0xF7F9FC, 0xEEF2F8}), colors({0x14161B, 0x0E1014}), false};
    case CanvasStyle::dawn:
        return {colors({0xFFF6EE, 0xFDEAF2, 0xEEF3FF}), colors({0x1C1418, 0x140F1A, 0x0E0E16}), false};
    case CanvasStyle::dusk:
        return {colors({0xF3EEFF, 0xFCEBF3, 0xEAF1FF}), colors({0x171227, 0x1E1220, 0x0E1020}), false};
    case CanvasStyle::aurora:
        return {colors({0xEAFBF3, 0xE9F1FF, 0xF3ECFF}), colors({0x0B1B1A, 0x0D1526, 0x150E24}), true};
    case CanvasStyle::sunset:
        return {colors({0xFFF1E6, 0xFFE3EC, 0xFDE7D8}), colors({0x241310, 0x26121A, 0x140C0A}), false};
    case CanvasStyle::forest:
        return {colors({0xEFF7EE, 0xE7F2EF, 0xF4F7EA}), colors({0x0E1A12, 0x0C1716, 0x101A0F}), true};
    case CanvasStyle::ocean:
        return {colors({0xEAF6FB, 0xE6F0FA, 0xEAFBF7}), colors({0x0A1822, 0x0B1620, 0x08191A}), true};
    case CanvasStyle::blossom:
        return {colors({0xFFF2F6, 0xFDF0FA, 0xF5F0FF}), colors({0x22121A, 0x1E1020, 0x161026}), false};
    case CanvasStyle::candy:
        return {colors({0xFDEFF6, 0xEDF3FF, 0xF0FBF5}), colors({0x20131C, 0x101528, 0x0F1D18}), false};
    case CanvasStyle::midnight:
        return {colors({0xEDEFF7, 0xE6EAFA, 0xF2EEF8}), colors({0x0B0E1A, 0x0A0C18, 0x100B16}), false};
    case CanvasStyle::ember:
        return {colors({0xFFF4E8, 0xFDE9E0, 0xF8E9E4}), colors({0x211208, 0x1E0F0A, 0x140C0A}), true};
    }
    return {};
}
