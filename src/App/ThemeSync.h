#pragma once

#include "DesignSystem/SystemAppearance.h"
#include "Store/WorkspaceStore.h"

/// Keeps the appearance of the program in step with the settings and with the desktop.
class ThemeSync : public QObject
{
    Q_OBJECT

public:
    /// Applies the theme at once. Both live longer than this object.
    ThemeSync(const WorkspaceStore *store, const SystemAppearance *desktop, QObject *parent = nullptr);
};
