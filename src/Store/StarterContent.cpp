#include "Store/StarterContent.h"

#include "Store/Questions.h"
#include "Store/StarterRecords.h"
#include "Store/WorkspaceStore.h"

namespace
{
const QString projectName = QStringLiteral("Launch Orvel");
const QString folderName = QStringLiteral("Ideas");

/// Titles by which examples are known.
const QStringList pageTitles{QStringLiteral("Meeting notes"), QStringLiteral("Reading list"),
                             QStringLiteral("Inbox")};
const QStringList taskTitles{
    QStringLiteral("Try the block editor"),     QStringLiteral("Plan the week"),
    QStringLiteral("Read the onboarding tips"), QStringLiteral("Set up your first project"),
    QStringLiteral("Explore databases"),        QStringLiteral("Choose a workspace icon"),
    QStringLiteral("Draft the plan"),           QStringLiteral("Share with the team")};
const QStringList habitNames{QStringLiteral("Drink water"), QStringLiteral("Read 20 minutes"),
                             QStringLiteral("Move your body")};
const QStringList eventTitles{QStringLiteral("Kickoff"), QStringLiteral("Draft the plan"),
                              QStringLiteral("Weekly review")};
const QStringList codeTitles{QStringLiteral("Welcome.swift")};
const QStringList deckTitles{QStringLiteral("Orvel in five slides")};

template <typename Record>
bool isExample(const Record &record)
{
    if constexpr (std::is_same_v<Record, Project>)
        return record.name == projectName;
    else if constexpr (std::is_same_v<Record, Page>)
        return pageTitles.contains(record.title);
    else if constexpr (std::is_same_v<Record, TaskItem>)
        return taskTitles.contains(record.title);
    else if constexpr (std::is_same_v<Record, Habit>)
        return habitNames.contains(record.name);
    else if constexpr (std::is_same_v<Record, CalendarEvent>)
        return eventTitles.contains(record.title);
    else if constexpr (std::is_same_v<Record, CodeDocument>)
        return codeTitles.contains(record.title);
    else
        return deckTitles.contains(record.title);
}

template <typename... Record>
bool holdsExample(const WorkspaceStore &store)
{
    return (std::ranges::any_of(store.list<Record>(), isExample<Record>) || ...);
}

template <typename... Record>
void removeExamples(WorkspaceStore &store)
{
    (store.remove<Record>(Questions::ids(store.list<Record>(), isExample<Record>)), ...);
}
} // namespace

void StarterContent::completeOnboarding(WorkspaceStore &store, const Choices &choices)
{
    AppSettings settings = store.settings();
    settings.userName = choices.userName.trimmed();
    const QString name = choices.workspaceName.trimmed();
    settings.workspaceName = name.isEmpty() ? AppSettings().workspaceName : name;
    settings.workspaceIcon = choices.workspaceIcon;
    settings.appearance = choices.appearance;
    settings.hiddenModules.clear();
    for (const auto &entry : enumCases<OrvelModule>())
        settings.setModule(entry.value, choices.modules.contains(entry.value));
    store.setSettings(settings);
    seed(store, choices.modules, choices.includeSamples);
    settings.hasCompletedOnboarding = true;
    store.setSettings(settings);
    store.saveNow();
}

void StarterContent::seed(WorkspaceStore &store, const QList<OrvelModule> &modules, bool samples)
{
    StarterRecords records(store);
    records.addWelcomePage();
    if (samples) {
        records.addPages();
        using Group = void (StarterRecords::*)();
        static constexpr auto groups = std::to_array<std::pair<OrvelModule, Group>>({
            {OrvelModule::notes, &StarterRecords::addInbox},
            {OrvelModule::tasks, &StarterRecords::addTasks},
            {OrvelModule::projects, &StarterRecords::addProject},
            {OrvelModule::databases, &StarterRecords::addDatabase},
            {OrvelModule::calendar, &StarterRecords::addEvents},
            {OrvelModule::habits, &StarterRecords::addHabits},
            {OrvelModule::code, &StarterRecords::addCode},
            {OrvelModule::decks, &StarterRecords::addDeck},
        });
        for (const auto &[module, group] : groups)
            if (modules.contains(module))
                (records.*group)();
    }
    store.saveNow();
}

bool StarterContent::hasExampleContent(const WorkspaceStore &store)
{
    return holdsExample<Project, Page, TaskItem, Habit, CalendarEvent, CodeDocument, Deck>(store);
}

void StarterContent::removeExampleContent(WorkspaceStore &store)
{
    for (const QUuid &projectID : Questions::ids(store.projects(), isExample<Project>)) {
        const auto isOfProject = [&projectID](const auto &record) { return record.projectID == projectID; };
        store.remove<TaskItem>(Questions::ids(store.tasks(), isOfProject));
        store.deleteProject(projectID);
    }
    for (const QUuid &folderID :
         Questions::ids(store.folders(), [](const Folder &folder) { return folder.name == folderName; }))
        store.deleteFolder(folderID);
    removeExamples<Page, TaskItem, Habit, CalendarEvent, CodeDocument, Deck>(store);
    store.scheduleSave();
}
