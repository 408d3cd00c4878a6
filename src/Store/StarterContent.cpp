#include "Store/StarterContent.h"

#include "Store/PageOperations.h"
#include "Store/ProjectOperations.h"
#include "Store/Questions.h"
#include "Store/StarterRecords.h"
#include "Store/TaskOperations.h"
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
    const auto ids = [&store]<typename One>() {
        const QList<QUuid> found = Questions::ids(store.list<One>(), isExample<One>);
        return QSet<QUuid>(found.begin(), found.end());
    };
    (store.erase<Record>(ids.template operator()<Record>()), ...);
}
} // namespace

void StarterContent::completeOnboarding(WorkspaceStore &store, const Choices &choices)
{
    {
        const Action action = Action::background(store);
        store.changeSettings([&](AppSettings &settings) {
            settings.userName = choices.userName.trimmed();
            const QString name = choices.workspaceName.trimmed();
            settings.workspaceName = name.isEmpty() ? AppSettings().workspaceName : name;
            settings.workspaceIcon = choices.workspaceIcon;
            settings.appearance = choices.appearance;
            settings.hiddenModules.clear();
            for (const auto &entry : enumCases<OrvelModule>())
                settings.setModule(entry.value, choices.modules.contains(entry.value));
        });
        seed(store, choices.modules, choices.includeSamples);
        store.changeSettings([](AppSettings &settings) { settings.hasCompletedOnboarding = true; });
    }
    // What an action did is known, and saved, once it has ended.
    store.saveNow();
}

void StarterContent::seed(WorkspaceStore &store, const QList<OrvelModule> &modules, bool samples)
{
    {
        const Action action(store, ActionText::tr("Add Example Content"));
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
    }
    store.saveNow();
}

bool StarterContent::hasExampleContent(const WorkspaceStore &store)
{
    return holdsExample<Project, Page, TaskItem, Habit, CalendarEvent, CodeDocument, Deck>(store);
}

void StarterContent::removeExampleContent(WorkspaceStore &store)
{
    const Action action(store, ActionText::tr("Remove Example Content"));
    action.setMessage(ActionText::tr("Example content removed"));
    for (const QUuid &projectID : Questions::ids(store.projects(), isExample<Project>)) {
        QSet<QUuid> taskIDs;
        for (const TaskItem *const task : TaskOperations::ofProject(store, projectID))
            taskIDs.insert(task->id);
        store.erase<TaskItem>(taskIDs);
        ProjectOperations::remove(store, projectID);
    }
    for (const QUuid &folderID :
         Questions::ids(store.folders(), [](const Folder &folder) { return folder.name == folderName; }))
        FolderOperations::remove(store, folderID);
    removeExamples<Page, TaskItem, Habit, CalendarEvent, CodeDocument, Deck>(store);
}
