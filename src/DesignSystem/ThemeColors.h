#pragma once

#include "DesignSystem/ThemeChoices.h"

/// The colours of the theme.
class ThemeColors : public ThemeChoices
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QColor ovCanvas READ ovCanvas NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovSidebar READ ovSidebar NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovSurface READ ovSurface NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovSubtle READ ovSubtle NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovHover READ ovHover NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovBorder READ ovBorder NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovBorderStrong READ ovBorderStrong NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovInk READ ovInk NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovInkSecondary READ ovInkSecondary NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovInkTertiary READ ovInkTertiary NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovLink READ ovLink NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovDanger READ ovDanger NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovWarning READ ovWarning NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovSuccess READ ovSuccess NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor ovInfo READ ovInfo NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY colorsChanged FINAL)
    /// Behind selected text.
    Q_PROPERTY(QColor selection READ selection NOTIFY colorsChanged FINAL)
    /// The ring around what has the keyboard's focus.
    Q_PROPERTY(QColor focusRing READ focusRing NOTIFY colorsChanged FINAL)
    /// Over the window behind a sheet.
    Q_PROPERTY(QColor ovScrim READ ovScrim NOTIFY colorsChanged FINAL)
    Q_PROPERTY(QList<QColor> canvasColors READ canvasColors NOTIFY colorsChanged FINAL)
    Q_PROPERTY(bool vividCanvas READ vividCanvas NOTIFY colorsChanged FINAL)

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
