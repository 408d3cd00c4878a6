#include "Features/Onboarding/OnboardingViewModel.h"

#include "Store/StarterContent.h"

using namespace Qt::StringLiterals;

void OnboardingViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store)
        connect(m_store, &WorkspaceStore::changed, this, [this](const ChangeSet &changes) {
            if (changes.settings)
                emit appearancesChanged();
        });
    emit storeChanged();
    emit appearancesChanged();
}

QString OnboardingViewModel::progressText() const
{
    return u"Step %1 of %2"_s.arg(step() + 1).arg(stepCount());
}

QStringList OnboardingViewModel::workspaceIcons()
{
    return {u"🧠"_s, u"🚀"_s, u"🌱"_s, u"📚"_s, u"🎯"_s, u"🗂️"_s,
            u"⚡️"_s, u"🧩"_s, u"🌊"_s, u"🪐"_s, u"🔮"_s, u"🏔️"_s};
}

QList<OnboardingModule> OnboardingViewModel::modules()
{
    QList<OnboardingModule> modules;
    for (const EnumCase<OrvelModule> &entry : enumCases<OrvelModule>()) {
        const auto blurb = moduleBlurb(entry.value);
        modules.append({.title = enumLabel(entry.value),
                        .blurb = QString::fromUtf16(blurb.data(), qsizetype(blurb.size())),
                        .symbol = enumSymbol(entry.value)});
    }
    return modules;
}

QList<bool> OnboardingViewModel::selectedModules() const
{
    QList<bool> selected;
    for (const EnumCase<OrvelModule> &entry : enumCases<OrvelModule>())
        selected.append(m_selectedModules.contains(entry.value));
    return selected;
}

void OnboardingViewModel::setAppearance(int appearance)
{
    if (appearance == this->appearance() || appearance < 0 ||
        appearance >= int(enumCases<AppearanceMode>().size()))
        return;
    m_appearance = AppearanceMode(appearance);
    emit choicesChanged();
}

QList<OnboardingAppearance> OnboardingViewModel::appearances() const
{
    AppSettings settings = m_store ? m_store->settings() : AppSettings();
    const std::array symbols{u"circle.lefthalf.filled"_s, u"sun.max"_s, u"moon"_s};
    QList<OnboardingAppearance> appearances;
    for (const EnumCase<AppearanceMode> &entry : enumCases<AppearanceMode>()) {
        settings.appearance = entry.value;
        // What follows the desktop can come out light or dark; the others are the same on either.
        QList<OVLook> looks{OVLook::of(OVThemeSnapshot::resolved(settings, false))};
        if (const OVLook other = OVLook::of(OVThemeSnapshot::resolved(settings, true));
            other != looks.first())
            looks.append(other);
        appearances.append({enumLabel(entry.value), symbols.at(std::size_t(entry.value)), std::move(looks)});
    }
    return appearances;
}

QList<OnboardingSummaryRow> OnboardingViewModel::summary() const
{
    const auto orElse = [](const QString &text, const QString &other) {
        const QString trimmed = text.trimmed();
        return trimmed.isEmpty() ? other : trimmed;
    };
    return {
        {u"person"_s, u"Name"_s, orElse(m_name, u"Not set"_s)},
        {u"house"_s, u"Workspace"_s, orElse(m_workspaceName, defaultWorkspaceName())},
        {u"square.grid.2x2"_s, u"Modules"_s,
         hidesEveryModule() ? u"None"_s : u"%1 enabled"_s.arg(m_selectedModules.size())},
        {u"sparkles"_s, u"Example content"_s, m_includeSamples ? u"Included"_s : u"Blank slate"_s},
        {u"circle.lefthalf.filled"_s, u"Appearance"_s, enumLabel(m_appearance)},
    };
}

void OnboardingViewModel::toggleModule(int module)
{
    QList<OrvelModule> modules;
    for (const EnumCase<OrvelModule> &entry : enumCases<OrvelModule>())
        if (m_selectedModules.contains(entry.value) != (int(entry.value) == module))
            modules.append(entry.value);
    selectModules(modules);
}

void OnboardingViewModel::selectAllModules()
{
    selectModules(AppSettings().visibleModules());
}

void OnboardingViewModel::clearModules()
{
    selectModules({});
}

void OnboardingViewModel::selectModules(const QList<OrvelModule> &modules)
{
    if (m_selectedModules == modules)
        return;
    m_selectedModules = modules;
    emit choicesChanged();
}

void OnboardingViewModel::goTo(int step)
{
    if (step == this->step() || step < 0 || step >= stepCount())
        return;
    m_step = OnboardingStep(step);
    emit stepChanged();
}

void OnboardingViewModel::finish()
{
    if (m_finished)
        return;
    m_finished = true;
    StarterContent::completeOnboarding(*m_store, {.userName = m_name,
                                                  .workspaceName = m_workspaceName,
                                                  .workspaceIcon = m_workspaceIcon,
                                                  .appearance = m_appearance,
                                                  .modules = m_selectedModules,
                                                  .includeSamples = m_includeSamples});
    m_ui->setSelection(Destination::to(Destination::Kind::dashboard));
}
