#include "DesignSystem/ThemeColors.h"

#include "DesignSystem/CanvasDescriptor.h"
#include "DesignSystem/Contrast.h"

ThemeColors::ThemeColors(QObject *parent) : ThemeChoices(parent)
{
    readColors();
}

QColor ThemeColors::selection() const
{
    QColor color = accent();
    color.setAlphaF(0.22F);
    return color;
}

QColor ThemeColors::focusRing() const
{
    QColor color = accent();
    color.setAlphaF(0.6F);
    return color;
}

QColor ThemeColors::ovScrim() const
{
    QColor color = Qt::black;
    color.setAlphaF(dark() ? 0.5F : 0.22F);
    return color;
}

void ThemeColors::readColors()
{
    m_colors = OVTheme::colors();
    m_inkSecondary = Contrast::readableInk(m_colors.inkSecondary, canvasColors());
}

QList<QColor> ThemeColors::canvasColors() const
{
    const CanvasDescriptor canvas = canvasDescriptor(snapshot().canvas);
    return snapshot().dark ? canvas.dark : canvas.light;
}

bool ThemeColors::vividCanvas() const
{
    return canvasDescriptor(snapshot().canvas).vivid;
}
