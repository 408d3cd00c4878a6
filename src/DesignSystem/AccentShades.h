#pragma once

#include "DesignSystem/AccentColors.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// An accent as views draw it: its colours in light and in dark windows, and the inks that stand on them.
struct AccentShades {
    Q_GADGET
    QML_ANONYMOUS
    /// The raw text of the `AccentPalette`.
    Q_PROPERTY(QString raw MEMBER raw FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QColor light MEMBER light FINAL)
    Q_PROPERTY(QColor dark MEMBER dark FINAL)
    Q_PROPERTY(QColor onLight MEMBER onLight FINAL)
    Q_PROPERTY(QColor onDark MEMBER onDark FINAL)

public:
    QString raw;
    QString label;
    QColor light;
    QColor dark;
    QColor onLight;
    QColor onDark;

    bool operator==(const AccentShades &) const = default;

    static AccentShades of(AccentPalette accent)
    {
        const AccentColors colors = accentColors(accent);
        return {enumRawText(accent), enumLabel(accent), colors.light,
                colors.dark,         colors.onLight,    colors.onDark};
    }
};
