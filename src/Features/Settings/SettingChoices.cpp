#include "Features/Settings/SettingChoices.h"

#include "DesignSystem/OVTheme.h"
#include "DesignSystem/ThemePresets.h"
#include "DesignSystem/ThemeRevision.h"
#include "Features/Settings/SettingRows.h"
#include "Support/SettingFields.h"

SettingChoices::SettingChoices(QObject *parent) : ViewModel(parent)
{
    followSettings();
    // The desktop may turn dark, too.
    connect(&ThemeRevision::shared(), &ThemeRevision::valueChanged, this, &SettingChoices::requestRefresh);
}

void SettingChoices::setField(const QString &field)
{
    if (m_field == field)
        return;
    m_field = field;
    emit fieldChanged();
    requestRefresh();
    flush();
}

void SettingChoices::refresh(const ChangeSet &)
{
    m_rows.setRows(SettingRows::of(m_field, store().settings(), OVTheme::current().dark));
    const auto selected = std::ranges::find(choices(), true, &SettingChoice::isSelected);
    const int index = selected == choices().end() ? -1 : int(selected - choices().begin());
    if (std::exchange(m_currentIndex, index) != index)
        emit currentIndexChanged();
}

void SettingChoices::choose(int index)
{
    if (index < 0 || index >= choices().size())
        return;
    const SettingChoice choice = choices().at(index);
    store().changeSettings([this, &choice](AppSettings &settings) {
        if (m_field == u"hiddenModules")
            settings.setModule(*enumFromRaw<OrvelModule>(choice.raw), !choice.isSelected);
        else if (m_field == u"theme.preset")
            applyThemePreset(*enumFromRaw<ThemePreset>(choice.raw), settings.theme);
        else
            SettingFields::set(settings, m_field, choice.value);
    });
    // The mark moves in the same frame as all else that changes.
    flush();
}
