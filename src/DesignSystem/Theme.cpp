#include "DesignSystem/Theme.h"

#include "DesignSystem/OVGlowProvider.h"
#include "DesignSystem/OVIconProvider.h"
#include "DesignSystem/OVShadowProvider.h"
#include "DesignSystem/ThemeRevision.h"

#include <QQmlEngine>

#include <utility>

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

Theme::Theme(QObject *parent) : ThemeSizes(parent), m_shown(snapshot())
{
    connect(&ThemeRevision::shared(), &ThemeRevision::valueChanged, this, &Theme::update);
}

void Theme::update()
{
    const auto differs = [before = std::exchange(m_shown, snapshot())](auto... fields) {
        return ((before.*fields != snapshot().*fields) || ...);
    };
    using Look = OVThemeSnapshot;
    emit changed();
    if (differs(&Look::fontScale, &Look::densityScale, &Look::cornerScale, &Look::compactSidebar))
        emit sizesChanged();
    if (differs(&Look::fontScale, &Look::fontDesign))
        emit typeChanged();
    if (differs(&Look::accentColor, &Look::onAccent, &Look::canvas, &Look::inkMode, &Look::dark)) {
        readColors();
        emit colorsChanged();
    }
}
