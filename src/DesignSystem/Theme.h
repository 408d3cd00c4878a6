#pragma once

#include "DesignSystem/ThemeSizes.h"
#include "DesignSystem/ThemeSpring.h"

#include <QEasingCurve>

class QJSEngine;
class QQmlEngine;

/// What views read of the appearance: every colour, size and duration has its name here, and nothing is
/// literal in a view. Sizes are whole pixels, already multiplied by the scales that the user chose. Here
/// stand the durations, in milliseconds and 0 where motion is off; the rest is in the classes below.
class Theme : public ThemeSizes
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int durationHover READ durationHover NOTIFY changed FINAL)
    Q_PROPERTY(int durationMenu READ durationMenu NOTIFY changed FINAL)
    Q_PROPERTY(int durationScreen READ durationScreen NOTIFY changed FINAL)
    Q_PROPERTY(int durationRemoval READ durationRemoval NOTIFY changed FINAL)
    Q_PROPERTY(int durationSpring READ durationSpring NOTIFY changed FINAL)
    Q_PROPERTY(double springResponse READ springResponse NOTIFY changed FINAL)
    Q_PROPERTY(QEasingCurve springEasing READ springEasing NOTIFY changed FINAL)
    Q_PROPERTY(int tooltipDelay READ tooltipDelay NOTIFY changed FINAL)
    Q_PROPERTY(int toastDuration READ toastDuration NOTIFY changed FINAL)
    /// Of a toast that offers an action.
    Q_PROPERTY(int toastActionDuration READ toastActionDuration NOTIFY changed FINAL)

public:
    /// Also gives the engine its icons.
    static Theme *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    int durationHover() const { return duration(120); }
    int durationMenu() const { return duration(120); }
    int durationScreen() const { return duration(160); }
    int durationRemoval() const { return duration(160); }
    int durationSpring() const { return duration(ThemeSpring::duration(snapshot().animation)); }
    double springResponse() const { return ThemeSpring::response(snapshot().animation); }
    QEasingCurve springEasing() const { return ThemeSpring::curve(snapshot().animation); }
    int tooltipDelay() const { return 500; }
    int toastDuration() const { return 4000; }
    int toastActionDuration() const { return 6000; }

private:
    explicit Theme(QObject *parent);

    void update();
    static int duration(double milliseconds) { return snapshot().motionEnabled ? qRound(milliseconds) : 0; }

    /// What the views have read.
    OVThemeSnapshot m_shown;
};
