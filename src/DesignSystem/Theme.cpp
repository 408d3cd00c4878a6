#include "DesignSystem/Theme.h"

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

Theme::Theme(QObject *parent) : ThemeSizes(parent)
{
    connect(&ThemeRevision::shared(), &ThemeRevision::valueChanged, this, [this] {
        readColors();
        emit changed();
    });
}
