#pragma once

#include <QRect>

/// Where the panel of the icon opens.
namespace PanelPlacement
{
/// @param icon where the icon was clicked; null or off the screen if the desktop does not tell
/// @param screen the whole screen, and what of it windows may take
/// @return the upper left corner, next to the icon or else at the corner of the screen where icons are
QPoint place(const QSize &panel, const QPoint &icon, const QRect &screen, const QRect &available);
} // namespace PanelPlacement
