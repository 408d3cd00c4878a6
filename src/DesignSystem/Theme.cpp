#include "DesignSystem/Theme.h"

#include "DesignSystem/OVEmojiProvider.h"
#include "DesignSystem/OVGlowProvider.h"
#include "DesignSystem/OVIconProvider.h"
#include "DesignSystem/OVShadowProvider.h"
#include "DesignSystem/ThemeRevision.h"

#include <QQmlEngine>

#include <utility>

namespace
{
template <typename Provider>
void addProvider(QQmlEngine &engine)
{
    if (!engine.imageProvider(Provider::name))
        engine.addImageProvider(Provider::name, new Provider);
}
} // namespace

Theme *Theme::create(QQmlEngine *engine, QJSEngine *)
{
    addProvider<OVIconProvider>(*engine);
    addProvider<OVShadowProvider>(*engine);
    addProvider<OVGlowProvider>(*engine);
    addProvider<OVEmojiProvider>(*engine);
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
