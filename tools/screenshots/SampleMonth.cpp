#include "SampleMonth.h"

#include "SampleWorkspace.h"
#include "Store/DatabaseOperations.h"
#include "Store/HabitOperations.h"
#include "Store/ProjectOperations.h"
#include "Store/StarterContent.h"
#include "Store/TaskOperations.h"
#include "Store/WorkspaceStore.h"
#include "Support/DatabaseTemplates.h"
#include "Support/OVDate.h"
#include "Support/ProjectTemplates.h"

using namespace Qt::StringLiterals;

namespace
{
QString longTitle()
{
    return u"A title that goes on and on "_s.repeated(8).left(200);
}

Timestamp startOfDay(const WorkspaceStore &store, int daysAhead)
{
    return OVDate::startOfDay(store.clock().today().addDays(daysAhead), store.clock().timeZone());
}

void addEvent(WorkspaceStore &store, const QString &title, int daysAhead, std::optional<qint64> minutes,
              EventKind kind = EventKind::event)
{
    store.add(CalendarEvent{.id = QUuid::createUuid(),
                            .title = title,
                            .date = startOfDay(store, daysAhead),
                            .timeMinutes = minutes,
                            .kind = kind,
                            .createdDate = store.now()});
}

void addEvents(WorkspaceStore &store)
{
    for (int week = -3; week <= 3; ++week) {
        addEvent(store, u"Piano lesson"_s, 7 * week + 1, 17 * 60);
        addEvent(store, u"Market"_s, 7 * week + 3, 9 * 60 + 30, EventKind::reminder);
    }
    addEvent(store, u"Breakfast with Amira"_s, 0, 8 * 60 + 15);
    addEvent(store, u"Send the proofs to the printer"_s, 0, {}, EventKind::deadline);
    addEvent(store, u"Dentist"_s, 2, 14 * 60 + 45);
    addEvent(store, u"Visit from Lisbon"_s, 5, {});
    addEvent(store, u"Hand in the grant application"_s, 9, 18 * 60, EventKind::deadline);
}

void addHabits(WorkspaceStore &store)
{
    const struct {
        QString name, emoji;
        AccentPalette accent;
        int target, every;
    } habits[] = {{u"Read twenty pages"_s, u"📚"_s, AccentPalette::blue, 5, 1},
                  {u"Walk by the river"_s, u"🚶"_s, AccentPalette::mono, 4, 2},
                  {u"Stretch"_s, u"🧘"_s, AccentPalette::rose, 7, 3}};
    for (const auto &habit : habits) {
        const QUuid id = *HabitOperations::create(store, habit.name, habit.emoji, habit.accent, habit.target);
        for (int day = 0; day < 60; day += habit.every)
            HabitOperations::toggle(store, id, startOfDay(store, -day));
    }
}

void addProjects(WorkspaceStore &store)
{
    for (const ProjectTemplate &from : ProjectTemplates::all()) {
        const QUuid id = ProjectOperations::create(store, from);
        const Project project = *store.projects().first(id);
        if (!project.milestones.isEmpty())
            ProjectOperations::toggleMilestone(store, id, project.milestones.first().id);
        ProjectOperations::logActivity(store, id, u"Called the printer about the paper"_s, u"note"_s);
        store.change<Project>(id, [&](Project &changed) {
            changed.dueDate = startOfDay(store, int(12 - store.projects().size() * 5));
        });
    }
    ProjectOperations::createBlank(store, u"Bench by the pond"_s);
    int place = 0;
    for (const TaskItem &task : QList<TaskItem>(store.tasks().begin(), store.tasks().end())) {
        if (++place % 3 == 0)
            TaskOperations::toggleDone(store, task.id);
    }
}

void addDatabases(WorkspaceStore &store)
{
    for (const DatabaseTemplate &from : DatabaseTemplates::all()) {
        const DatabaseTable table = from.table(QUuid::createUuid(), store.now());
        DatabaseOperations::create(store, table);
        for (int row = 1; row <= 24; ++row) {
            QMap<QString, QString> values;
            for (const DBProperty &property : table.properties) {
                const QString key = DBRow::valueKey(property.id);
                if (supportsOptions(property.type) && !property.options.isEmpty())
                    values[key] = property.options.at(row % property.options.size());
                else if (property.type == DBPropertyType::date)
                    values[key] = OVDate::dayKey(startOfDay(store, row - 12), store.clock().timeZone());
                else if (property.type == DBPropertyType::number || property.type == DBPropertyType::progress)
                    values[key] = QString::number(row * 4);
                else if (property.type == DBPropertyType::checkbox)
                    values[key] = row % 2 ? u"true"_s : u"false"_s;
                else if (property.type == DBPropertyType::url)
                    values[key] = u"https://example.org/%1"_s.arg(row);
                else
                    values[key] = u"%1 %2"_s.arg(property.name).arg(row);
            }
            DatabaseOperations::addRow(store, table.id, values);
        }
    }
}

void addBooks(WorkspaceStore &store)
{
    const std::pair<QString, QString> books[] = {
        {u"The Time Machine"_s, u"Wells, H. G."_s},
        {u"Walden, and On the Duty of Civil Disobedience"_s, u"Thoreau, Henry David"_s},
        {u"Middlemarch"_s, u"Eliot, George"_s}};
    qint64 number = 35;
    for (const auto &[title, author] : books)
        store.add(Book{.id = QUuid::createUuid(),
                       .gutenbergID = ++number,
                       .title = title,
                       .author = author,
                       .subjects = {u"Fiction"_s},
                       .progress = double(number - 35) / 4,
                       .createdDate = store.now(),
                       .updatedDate = store.now()});
}

const Project *projectWith(const WorkspaceStore &store, bool isFull)
{
    const auto found = std::ranges::find_if(store.projects(), [isFull](const Project &project) {
        return project.milestones.isEmpty() != isFull && project.dueDate.has_value() == isFull;
    });
    return found == store.projects().end() ? nullptr : &*found;
}
} // namespace

void SampleMonth::fill(WorkspaceStore &store)
{
    SampleWorkspace::fill(store);
    QList<OrvelModule> modules;
    for (const EnumCase<OrvelModule> &module : enumCases<OrvelModule>())
        modules.append(module.value);
    StarterContent::seed(store, modules, true);
    const Action action(store, QString());
    addEvents(store);
    addHabits(store);
    addProjects(store);
    addDatabases(store);
    addBooks(store);
}

void SampleMonth::crowd(WorkspaceStore &store)
{
    fill(store);
    const Action action(store, QString());
    for (int day = -35; day <= 35; ++day)
        for (int i = 0; i < 30; ++i)
            addEvent(store, i % 5 == 3 ? longTitle() : u"Appointment %1"_s.arg(i), day, 8 * 60 + i * 20,
                     enumCases<EventKind>().at(std::size_t(i + day + 35) % 3).value);
    for (int i = 0; i < 60; ++i)
        ProjectOperations::createBlank(store, i == 3 ? longTitle() : u"Project %1"_s.arg(i));
    for (int i = 0; i < 20; ++i)
        HabitOperations::create(store, i == 3 ? longTitle() : u"Habit %1"_s.arg(i), u"🌱"_s,
                                AccentPalette::mono, 1 + i % 7);
}

QUuid SampleMonth::fullProject(const WorkspaceStore &store)
{
    return projectWith(store, true)->id;
}

QUuid SampleMonth::bareProject(const WorkspaceStore &store)
{
    return projectWith(store, false)->id;
}
