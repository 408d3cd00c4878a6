#pragma once

#include "Models/ThemeSettings.h"

#include <QColor>
#include <QList>

/// How one canvas style paints the window.
struct CanvasDescriptor {
    /// Gradient colours for light and for dark windows; empty where the plain canvas colour shows.
    QList<QColor> light;
    QList<QColor> dark;
    /// The style is vivid: its drifting blobs are drawn stronger.
    bool vivid = false;

    bool operator==(const CanvasDescriptor &) const = default;
};

CanvasDescriptor canvasDescriptor(CanvasStyle style);
