#pragma once

#include "DesignSystem/OVTheme.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the user chose of the appearance, as views read it from `Theme`.
class ThemeChoices : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool dark READ dark NOTIFY changed FINAL)
    Q_PROPERTY(bool inkMode READ inkMode NOTIFY changed FINAL)
    Q_PROPERTY(bool glassySurfaces READ glassySurfaces NOTIFY changed FINAL)
    Q_PROPERTY(bool motionEnabled READ motionEnabled NOTIFY changed FINAL)
    Q_PROPERTY(bool animatedBackground READ animatedBackground NOTIFY changed FINAL)
    Q_PROPERTY(bool accentIcons READ accentIcons NOTIFY changed FINAL)
    Q_PROPERTY(bool tabBarLabels READ tabBarLabels NOTIFY changed FINAL)
    Q_PROPERTY(bool showQuote READ showQuote NOTIFY changed FINAL)
    Q_PROPERTY(bool compactSidebar READ compactSidebar NOTIFY changed FINAL)
    Q_PROPERTY(QString navigation READ navigation NOTIFY changed FINAL)
    Q_PROPERTY(double fontScale READ fontScale NOTIFY changed FINAL)
    Q_PROPERTY(double cornerScale READ cornerScale NOTIFY changed FINAL)
    Q_PROPERTY(double densityScale READ densityScale NOTIFY changed FINAL)

public:
    bool dark() const { return snapshot().dark; }
    bool inkMode() const { return snapshot().inkMode; }
    bool glassySurfaces() const { return snapshot().glassySurfaces; }
    bool motionEnabled() const { return snapshot().motionEnabled; }
    bool animatedBackground() const { return snapshot().animatedBackground; }
    bool accentIcons() const { return snapshot().accentIcons; }
    bool tabBarLabels() const { return snapshot().tabBarLabels; }
    bool showQuote() const { return snapshot().showQuote; }
    bool compactSidebar() const { return snapshot().compactSidebar; }
    QString navigation() const { return enumRawText(snapshot().navigation); }
    double fontScale() const { return snapshot().fontScale; }
    double cornerScale() const { return snapshot().cornerScale; }
    double densityScale() const { return snapshot().densityScale; }

signals:
    /// The choices or the durations may have changed.
    void changed();
    /// A change of the colours measures no text anew, and one of the sizes paints nothing anew, so each kind
    /// of property tells of itself.
    void colorsChanged();
    void typeChanged();
    void sizesChanged();

protected:
    using QObject::QObject;

    static const OVThemeSnapshot &snapshot() { return OVTheme::current(); }
    /// Things that hold or go with text grow with it.
    static int scaled(int pixels) { return qRound(pixels * snapshot().fontScale); }
};
