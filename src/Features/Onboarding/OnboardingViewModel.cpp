#include "Features/Onboarding/OnboardingViewModel.h"

#include "DesignSystem/AppearanceSymbol.h"
#include "Store/StarterContent.h"
#include "Support/WorkspaceIcons.h"

using namespace Qt::StringLiterals;

namespace
{
/// What a step says above its content and on its button.
struct StepText {
    const char *title;
    const char *subtitle;
    const char *primary;
};

constexpr auto goOn = QT_TRANSLATE_NOOP("OnboardingViewModel", "Continue");
constexpr std::array steps{
    StepText{QT_TRANSLATE_NOOP("OnboardingViewModel", "Welcome to Orvel"),
             QT_TRANSLATE_NOOP(
                 "OnboardingViewModel",
                 "A calm, focused workspace for pages, tasks, projects and notes, all on your device."),
             QT_TRANSLATE_NOOP("OnboardingViewModel", "Get started")},
    StepText{QT_TRANSLATE_NOOP("OnboardingViewModel", "Make it yours"),
             QT_TRANSLATE_NOOP("OnboardingViewModel", "Tell us who you are and name your workspace."), goOn},
    StepText{QT_TRANSLATE_NOOP("OnboardingViewModel", "Choose your tools"),
             QT_TRANSLATE_NOOP("OnboardingViewModel", "You can hide or show any of these later in Settings."),
             goOn},
    StepText{QT_TRANSLATE_NOOP("OnboardingViewModel", "Start with a little content"),
             QT_TRANSLATE_NOOP("OnboardingViewModel",
                               "We can drop in a few example items so nothing feels empty."),
             goOn},
    StepText{QT_TRANSLATE_NOOP("OnboardingViewModel", "Pick a look"),
             QT_TRANSLATE_NOOP("OnboardingViewModel", "Orvel follows your system appearance by default."),
             goOn},
    StepText{QT_TRANSLATE_NOOP("OnboardingViewModel", "You're all set"),
             QT_TRANSLATE_NOOP("OnboardingViewModel", "Review your setup and jump in."),
             QT_TRANSLATE_NOOP("OnboardingViewModel", "Enter workspace")},
};

QList<OnboardingModule> allModules()
{
    QList<OnboardingModule> modules;
    for (const EnumCase<OrvelModule> &entry : enumCases<OrvelModule>()) {
        modules.append({.id = entry.value,
                        .title = enumLabel(entry.value),
                        .blurb = moduleBlurb(entry.value),
                        .symbol = enumSymbol(entry.value)});
    }
    return modules;
}
} // namespace

OnboardingViewModel::OnboardingViewModel(QObject *parent) : ViewModel(parent)
{
    followSettings();
    m_modules.setRows(allModules());
}

int OnboardingViewModel::stepCount()
{
    return int(steps.size());
}

QString OnboardingViewModel::title() const
{
    return tr(steps.at(m_step).title);
}

QString OnboardingViewModel::subtitle() const
{
    return tr(steps.at(m_step).subtitle);
}

QString OnboardingViewModel::primaryText() const
{
    return tr(steps.at(m_step).primary);
}

QStringList OnboardingViewModel::workspaceIcons()
{
    return ::workspaceIcons();
}

QString OnboardingViewModel::progressText() const
{
    return tr("Step %1 of %2").arg(step() + 1).arg(stepCount());
}

void OnboardingViewModel::setAppearance(int appearance)
{
    if (appearance == this->appearance() || appearance < 0 ||
        appearance >= int(enumCases<AppearanceMode>().size()))
        return;
    m_appearance = AppearanceMode(appearance);
    refresh({});
    emit choicesChanged();
}

void OnboardingViewModel::refresh(const ChangeSet &)
{
    AppSettings settings = store().settings();
    QList<OnboardingAppearance> appearances;
    for (const EnumCase<AppearanceMode> &entry : enumCases<AppearanceMode>()) {
        settings.appearance = entry.value;
        appearances.append({entry.value, enumLabel(entry.value), appearanceSymbol(entry.value),
                            OVLook::possible(settings), entry.value == m_appearance});
    }
    m_appearances.setRows(appearances);
}

QList<OnboardingSummaryRow> OnboardingViewModel::summary() const
{
    const auto orElse = [](const QString &text, const QString &other) {
        const QString trimmed = text.trimmed();
        return trimmed.isEmpty() ? other : trimmed;
    };
    const auto moduleCount = selectedModules().size();
    return {
        {u"person"_s, tr("Name"), orElse(m_name, tr("Not set"))},
        {u"house"_s, tr("Workspace"), orElse(m_workspaceName, defaultWorkspaceName())},
        {u"square.grid.2x2"_s, tr("Modules"),
         moduleCount == 0 ? tr("None") : tr("%1 enabled").arg(moduleCount)},
        {u"sparkles"_s, tr("Example content"), m_includeSamples ? tr("Included") : tr("Blank slate")},
        {u"circle.lefthalf.filled"_s, tr("Appearance"), enumLabel(m_appearance)},
    };
}

QList<OrvelModule> OnboardingViewModel::selectedModules() const
{
    QList<OrvelModule> selected;
    for (const OnboardingModule &module : moduleList())
        if (module.isSelected)
            selected.append(module.id);
    return selected;
}

void OnboardingViewModel::toggleModule(int module)
{
    QList<OnboardingModule> modules = moduleList();
    if (module < 0 || module >= modules.size())
        return;
    modules[module].isSelected = !modules.at(module).isSelected;
    setModules(modules);
}

void OnboardingViewModel::selectModules(bool selected)
{
    QList<OnboardingModule> modules = moduleList();
    for (OnboardingModule &module : modules)
        module.isSelected = selected;
    setModules(modules);
}

void OnboardingViewModel::setModules(const QList<OnboardingModule> &modules)
{
    if (modules == moduleList())
        return;
    m_modules.setRows(modules);
    emit choicesChanged();
}

void OnboardingViewModel::goTo(int step)
{
    if (step == m_step || step < 0 || step >= stepCount())
        return;
    m_step = step;
    emit stepChanged();
}

void OnboardingViewModel::finish()
{
    if (std::exchange(m_isFinished, true))
        return;
    StarterContent::completeOnboarding(store(), {.userName = m_name,
                                                 .workspaceName = m_workspaceName,
                                                 .workspaceIcon = m_workspaceIcon,
                                                 .appearance = m_appearance,
                                                 .modules = selectedModules(),
                                                 .includeSamples = m_includeSamples});
    ui().setSelection(Destination::to(Destination::Kind::dashboard));
}
