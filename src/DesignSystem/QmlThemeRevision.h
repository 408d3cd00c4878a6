#pragma once

#include "DesignSystem/ThemeRevision.h"

#include <QQmlEngine>
#include <QtQml/qqmlregistration.h>

/// Lets QML read the one `ThemeRevision`.
struct QmlThemeRevision {
    Q_GADGET
    QML_FOREIGN(ThemeRevision)
    QML_NAMED_ELEMENT(ThemeRevision)
    QML_SINGLETON

public:
    static ThemeRevision *create(QQmlEngine *, QJSEngine *)
    {
        QJSEngine::setObjectOwnership(&ThemeRevision::shared(), QJSEngine::CppOwnership);
        return &ThemeRevision::shared();
    }
};
