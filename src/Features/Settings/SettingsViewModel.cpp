#include "Features/Settings/SettingsViewModel.h"

#include "Store/StarterContent.h"
#include "Support/WorkspaceIcons.h"

#include <QLocale>

namespace
{
const QString menuBarKey = QStringLiteral("orvel.menuBarEnabled");
}

SettingsViewModel::SettingsViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Page, TaskItem, Project, Habit, DatabaseTable, CalendarEvent, CodeDocument, Deck>();
}

void SettingsViewModel::start()
{
    connect(&session()->preferences(), &Preferences::changed, this, [this](const QString &key) {
        if (key == menuBarKey)
            emit menuBarEnabledChanged();
    });
    // A switch may have asked before there was a session.
    emit menuBarEnabledChanged();
}

void SettingsViewModel::refresh(const ChangeSet &)
{
    const auto count = []<typename Record>(const QString &label, const RecordList<Record> &list) {
        return SettingsCount{label, QLocale().toString(qlonglong(list.size()))};
    };
    m_counts.setRows({count(tr("Pages"), store().pages()), count(tr("Tasks"), store().tasks()),
                      count(tr("Projects"), store().projects()), count(tr("Habits"), store().list<Habit>()),
                      count(tr("Databases"), store().list<DatabaseTable>())});
    const bool hasExamples = StarterContent::hasExampleContent(store());
    if (std::exchange(m_hasExampleContent, hasExamples) != hasExamples)
        emit hasExampleContentChanged();
}

QStringList SettingsViewModel::workspaceIcons()
{
    return ::workspaceIcons();
}

bool SettingsViewModel::menuBarEnabled() const
{
    return session() && session()->preferences().value(menuBarKey, true).toBool();
}

void SettingsViewModel::setMenuBarEnabled(bool enabled)
{
    store().changeSettings([enabled](AppSettings &settings) { settings.menuBarEnabled = enabled; });
    session()->preferences().setValue(menuBarKey, enabled);
}

QString SettingsViewModel::updatesText() const
{
    const QString site = session() && session()->updates() ? session()->updates()->site() : QString();
    if (site.isEmpty())
        return tr("This copy of Orvel was built without an update site.");
    return tr("Orvel checks %1 on launch and whenever you ask, then offers any newer build here.").arg(site);
}

QString SettingsViewModel::versionText() const
{
    if (!session() || !session()->updates())
        return {};
    const UpdateService &updates = *session()->updates();
    return tr("Orvel %1 (%2)").arg(updates.currentVersion(), updates.currentBuild());
}

void SettingsViewModel::removeExampleContent()
{
    StarterContent::removeExampleContent(store());
}

void SettingsViewModel::rerunOnboarding()
{
    ui().setSelection(Destination::to(Destination::Kind::dashboard));
    store().changeSettings([](AppSettings &settings) { settings.hasCompletedOnboarding = false; });
}

void SettingsViewModel::resetWorkspace()
{
    ui().setSelection(Destination::to(Destination::Kind::dashboard));
    store().resetEverything(false);
}
