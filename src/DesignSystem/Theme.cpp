#include "DesignSystem/Theme.h"

#include "DesignSystem/OVIconProvider.h"
#include "DesignSystem/ThemeRevision.h"

#include <QQmlEngine>

Theme *Theme::create(QQmlEngine *engine, QJSEngine *)
{
    if (!engine->imageProvider(OVIconProvider::name))
        engine->addImageProvider(OVIconProvider::name, new OVIconProvider);
    return new Theme(nullptr);
}

Theme::Theme(QObject *parent) : QObject(parent), m_colors(OVTheme::colors())
{
    connect(&ThemeRevision::shared(), &ThemeRevision::valueChanged, this, [this] {
        m_colors = OVTheme::colors();
        emit changed();
    });
}

int Theme::control(int pixels)
{
    // Tight and loose rows differ less than gaps do, and large text always finds room.
    const double density = 1 + (snapshot().densityScale - 1) / 2;
    return qRound(pixels * density * std::max(1.0, snapshot().fontScale));
}
