#include "App/AppearanceTrial.h"

#include "DesignSystem/OVTheme.h"

AppearanceTrial::~AppearanceTrial()
{
    OVTheme::tryAppearance(std::nullopt);
}

void AppearanceTrial::setAppearance(int appearance)
{
    if (m_appearance == appearance)
        return;
    m_appearance = appearance;
    OVTheme::tryAppearance(AppearanceMode(appearance));
    emit appearanceChanged();
}
