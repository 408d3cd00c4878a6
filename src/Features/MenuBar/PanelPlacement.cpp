#include "Features/MenuBar/PanelPlacement.h"

#include <algorithm>

namespace
{
constexpr int gap = 8;
}

QPoint PanelPlacement::place(const QSize &panel, const QPoint &icon, const QRect &screen,
                             const QRect &available)
{
    const QRect free = available.adjusted(gap, gap, -gap, -gap);
    const int right = std::max(free.left(), free.right() + 1 - panel.width());
    const int bottom = std::max(free.top(), free.bottom() + 1 - panel.height());
    if (icon.isNull() || !screen.contains(icon)) {
        // Most desktops have their icons at the end of the bar, on top unless it lies at the bottom.
        const bool barIsBelow = available.bottom() < screen.bottom() && available.top() == screen.top();
        return {right, barIsBelow ? bottom : free.top()};
    }
    const bool iconIsBelow = icon.y() > screen.center().y();
    const int x = std::clamp(icon.x() - panel.width() / 2, free.left(), right);
    const int y = iconIsBelow ? icon.y() - gap - panel.height() : icon.y() + gap;
    return {x, std::clamp(y, free.top(), bottom)};
}
