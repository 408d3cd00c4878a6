#pragma once

#include "DesignSystem/ThemeChoices.h"

/// The colours of the theme.
class ThemeColors : public ThemeChoices
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QColor ovCanvas READ ovCanvas NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovSidebar READ ovSidebar NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovSurface READ ovSurface NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovSubtle READ ovSubtle NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovHover READ ovHover NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovBorder READ ovBorder NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovBorderStrong READ ovBorderStrong NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovInk READ ovInk NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovInkSecondary READ ovInkSecondary NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovInkTertiary READ ovInkTertiary NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovLink READ ovLink NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovDanger READ ovDanger NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovWarning READ ovWarning NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovSuccess READ ovSuccess NOTIFY changed FINAL)
    Q_PROPERTY(QColor ovInfo READ ovInfo NOTIFY changed FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed FINAL)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY changed FINAL)
    /// Behind selected text.
    Q_PROPERTY(QColor selection READ selection NOTIFY changed FINAL)
    /// The ring around what has the keyboard's focus.
    Q_PROPERTY(QColor focusRing READ focusRing NOTIFY changed FINAL)
    /// Over the window behind a sheet.
    Q_PROPERTY(QColor ovScrim READ ovScrim NOTIFY changed FINAL)
    Q_PROPERTY(QList<QColor> canvasColors READ canvasColors NOTIFY changed FINAL)
    Q_PROPERTY(bool vividCanvas READ vividCanvas NOTIFY changed FINAL)

public:
    QColor ovCanvas() const { return m_colors.canvas; }
    QColor ovSidebar() const { return m_colors.sidebar; }
    QColor ovSurface() const { return m_colors.surface; }
    QColor ovSubtle() const { return m_colors.subtle; }
    QColor ovHover() const { return m_colors.hover; }
    QColor ovBorder() const { return m_colors.border; }
    QColor ovBorderStrong() const { return m_colors.borderStrong; }
    QColor ovInk() const { return m_colors.ink; }
    /// Where the canvas is tinted, a shade stronger than the named colour, as it must stay readable there.
    QColor ovInkSecondary() const { return m_inkSecondary; }
    QColor ovInkTertiary() const { return m_colors.inkTertiary; }
    QColor ovLink() const { return m_colors.link; }
    QColor ovDanger() const { return m_colors.danger; }
    QColor ovWarning() const { return m_colors.warning; }
    QColor ovSuccess() const { return m_colors.success; }
    QColor ovInfo() const { return m_colors.info; }
    QColor accent() const { return snapshot().accentColor; }
    QColor onAccent() const { return snapshot().onAccent; }
    QColor selection() const;
    QColor focusRing() const;
    QColor ovScrim() const;
    /// The gradient of the window's ground; empty where the plain canvas colour shows.
    QList<QColor> canvasColors() const;
    bool vividCanvas() const;

protected:
    explicit ThemeColors(QObject *parent);

    /// Takes the colours of the present theme.
    void readColors();

private:
    OVColors m_colors;
    QColor m_inkSecondary;
};
