#pragma once

#include "Models/AppSettings.h"

/// The symbol beside an appearance to choose.
inline QString appearanceSymbol(AppearanceMode mode)
{
    switch (mode) {
    case AppearanceMode::system:
        return QStringLiteral("circle.lefthalf.filled");
    case AppearanceMode::light:
        return QStringLiteral("sun.max");
    case AppearanceMode::dark:
        return QStringLiteral("moon");
    }
    return {};
}
