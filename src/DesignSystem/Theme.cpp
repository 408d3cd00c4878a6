#include "DesignSystem/Theme.h"

#include "DesignSystem/CanvasDescriptor.h"
#include "DesignSystem/Contrast.h"
#include "DesignSystem/OVGlowProvider.h"
#include "DesignSystem/OVIconProvider.h"
#include "DesignSystem/OVShadowProvider.h"
#include "DesignSystem/ThemeRevision.h"

#include <QQmlEngine>

Theme *Theme::create(QQmlEngine *engine, QJSEngine *)
{
    if (!engine->imageProvider(OVIconProvider::name))
        engine->addImageProvider(OVIconProvider::name, new OVIconProvider);
    if (!engine->imageProvider(OVShadowProvider::name))
        engine->addImageProvider(OVShadowProvider::name, new OVShadowProvider);
    if (!engine->imageProvider(OVGlowProvider::name))
        engine->addImageProvider(OVGlowProvider::name, new OVGlowProvider);
    return new Theme(nullptr);
}

Theme::Theme(QObject *parent) : QObject(parent)
{
    readColors();
    connect(&ThemeRevision::shared(), &ThemeRevision::valueChanged, this, [this] {
        readColors();
        emit changed();
    });
}

QColor Theme::selection() const
{
    QColor color = accent();
    color.setAlphaF(0.22F);
    return color;
}

QColor Theme::focusRing() const
{
    QColor color = accent();
    color.setAlphaF(0.6F);
    return color;
}

QColor Theme::ovScrim() const
{
    QColor color = Qt::black;
    color.setAlphaF(dark() ? 0.5F : 0.22F);
    return color;
}

void Theme::readColors()
{
    m_colors = OVTheme::colors();
    m_inkSecondary = Contrast::readableInk(m_colors.inkSecondary, canvasColors());
}

int Theme::control(int pixels)
{
    // Tight and loose rows differ less than gaps do, and large text always finds room.
    const double density = 1 + (snapshot().densityScale - 1) / 2;
    return qRound(pixels * density * std::max(1.0, snapshot().fontScale));
}

QList<QColor> Theme::canvasColors() const
{
    const CanvasDescriptor canvas = canvasDescriptor(snapshot().canvas);
    return snapshot().dark ? canvas.dark : canvas.light;
}

bool Theme::vividCanvas() const
{
    return canvasDescriptor(snapshot().canvas).vivid;
}
