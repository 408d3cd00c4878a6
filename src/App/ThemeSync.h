#pragma once

#include "App/DesktopAppearance.h"
#include "Store/WorkspaceStore.h"

/// Keeps the appearance of the program in step with the settings and with the desktop.
class ThemeSync : public QObject
{
    Q_OBJECT

public:
    /// Applies the theme at once. Both live longer than this object.
    ThemeSync(const WorkspaceStore *store, const DesktopAppearance *desktop, QObject *parent = nullptr);
};
