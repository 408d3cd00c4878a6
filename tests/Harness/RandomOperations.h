#pragma once

#include "Harness/ManualClock.h"
#include "Store/BookOperations.h"
#include "Store/CodeOperations.h"
#include "Store/DatabaseOperations.h"
#include "Store/DeckOperations.h"
#include "Store/EventOperations.h"
#include "Store/HabitOperations.h"
#include "Store/PageOperations.h"
#include "Store/ProjectOperations.h"
#include "Store/StarterContent.h"
#include "Store/TaskOperations.h"

#include <random>

/// Does random things to a workspace, each by an operation that a screen offers.
class RandomOperations
{
public:
    RandomOperations(WorkspaceStore &store, ManualClock &clock, unsigned seed)
        : m_store(store), m_clock(clock), m_random(seed)
    {
    }

    int below(qsizetype count) { return count < 1 ? 0 : int(m_random() % unsigned(count)); }

    void act()
    {
        m_clock.advance(std::chrono::milliseconds(below(5'000)));
        using Operation = void (RandomOperations::*)();
        static constexpr auto operations = std::to_array<Operation>(
            {&RandomOperations::actOnTasks, &RandomOperations::actOnTasks, &RandomOperations::actOnPages,
             &RandomOperations::actOnPages, &RandomOperations::type, &RandomOperations::type,
             &RandomOperations::actOnProjects, &RandomOperations::actOnDatabases,
             &RandomOperations::actOnRest, &RandomOperations::actOnMany});
        (this->*operations[std::size_t(below(operations.size()))])();
    }

private:
    template <typename Record>
    QUuid any()
    {
        const auto &list = m_store.list<Record>();
        return list.isEmpty() || below(50) == 0 ? QUuid::createUuid() : list.at(below(list.size())).id;
    }
    QString text() { return QStringLiteral("Text %1").arg(below(1'000)); }

    void actOnTasks()
    {
        const QUuid task = any<TaskItem>();
        switch (below(7)) {
        case 0:
        case 1:
            TaskOperations::create(m_store, text(), TaskPriority::high, m_store.now());
            break;
        case 2:
            return TaskOperations::cycleStatus(m_store, task);
        case 3:
            return TaskOperations::rename(m_store, task, text());
        case 4:
            return TaskOperations::setDue(m_store, task, std::nullopt);
        case 5:
            return TaskOperations::cyclePriority(m_store, task);
        case 6:
            return TaskOperations::remove(m_store, task);
        }
    }

    void actOnPages()
    {
        const QUuid page = any<Page>();
        const QUuid folder = any<Folder>();
        switch (below(9)) {
        case 0:
            PageOperations::create(m_store, below(2) ? PageKind::page : PageKind::note);
            break;
        case 1:
            return PageOperations::convert(m_store, page);
        case 2:
            return PageOperations::toggleFavorite(m_store, page);
        case 3:
            return PageOperations::duplicate(m_store, page);
        case 4:
            return PageOperations::move(m_store, page, folder);
        case 5:
            FolderOperations::create(m_store, text(), QStringLiteral("📁"));
            break;
        case 6:
            return FolderOperations::remove(m_store, folder);
        case 7:
            return PageOperations::remove(m_store, page);
        case 8:
            return PageOperations::rename(m_store, page, text());
        }
    }

    void type()
    {
        const QUuid id = any<Page>();
        const Page *const page = m_store.pages().first(id);
        if (!page || page->content.isEmpty())
            return;
        const Block block = page->content.first();
        QString next = block.text;
        const qsizetype caret = below(next.size() + 1);
        if (below(3) == 0 && caret > 0)
            next.remove(caret - 1, 1);
        else
            next.insert(caret, below(4) ? u'x' : u' ');
        const Action action(m_store, Typing{{block.id, QStringLiteral("text")}, block.text, next});
        m_store.change<Page>(id, [&](Page &changed) {
            changed.content.first().text = next;
            changed.updatedDate = m_store.now();
        });
    }

    void actOnProjects()
    {
        const QUuid project = any<Project>();
        switch (below(5)) {
        case 0:
            ProjectOperations::create(m_store, ProjectTemplates::all().first());
            break;
        case 1:
            return ProjectOperations::addTask(m_store, project, text());
        case 2:
            return ProjectOperations::addMilestone(m_store, project, text());
        case 3:
            return ProjectOperations::setStatus(m_store, project, ProjectStatus::onHold);
        case 4:
            return ProjectOperations::remove(m_store, project);
        }
    }

    void actOnDatabases()
    {
        const QUuid table = any<DatabaseTable>();
        const QUuid row = any<DBRow>();
        switch (below(6)) {
        case 0:
            return DatabaseOperations::create(m_store, {.id = m_store.makeId(), .name = text()});
        case 1:
        case 2:
            DatabaseOperations::addRow(m_store, table, {{QStringLiteral("key"), text()}});
            break;
        case 3:
            return DatabaseOperations::setValue(m_store, text(), row, row);
        case 4:
            return DatabaseOperations::duplicateRow(m_store, row);
        case 5:
            return below(4) ? DatabaseOperations::removeRow(m_store, row)
                            : DatabaseOperations::remove(m_store, table);
        }
    }

    void actOnRest()
    {
        switch (below(11)) {
        case 0:
            return HabitOperations::toggle(m_store, any<Habit>(), m_store.now());
        case 1:
            BookOperations::add(m_store, {.id = m_store.makeId(), .gutenbergID = below(5), .title = text()});
            break;
        case 2:
            return BookOperations::remove(m_store, any<Book>());
        case 3:
            DeckOperations::duplicate(m_store, any<Deck>());
            break;
        case 4:
            return DeckOperations::remove(m_store, any<Deck>());
        case 5:
            CodeOperations::create(m_store);
            break;
        case 6:
            return CodeOperations::setSource(m_store, any<CodeDocument>(), text());
        case 7:
            return CodeOperations::remove(m_store, any<CodeDocument>());
        case 8:
            return EventOperations::remove(m_store, any<CalendarEvent>());
        case 9:
            EventOperations::create(m_store, text(), m_store.now() + std::chrono::hours(below(96) - 48),
                                    below(2) ? std::optional<qint64>(below(1'440)) : std::nullopt,
                                    EventKind::event);
            break;
        case 10:
            HabitOperations::create(m_store, text(), QStringLiteral("🌱"), AccentPalette::green, below(9));
            break;
        }
    }

    void actOnMany()
    {
        switch (below(4)) {
        case 0:
            return StarterContent::seed(
                m_store, {OrvelModule::tasks, OrvelModule::projects, OrvelModule::decks}, true);
        case 1:
            return StarterContent::removeExampleContent(m_store);
        case 2: {
            QSet<QUuid> ids;
            for (int i = below(40); i > 0; --i)
                ids.insert(any<TaskItem>());
            return m_store.erase<TaskItem>(ids);
        }
        case 3: {
            const Action action = Action::background(m_store);
            m_store.change<Book>(any<Book>(), [this](Book &book) { book.lastLocation = below(1'000); });
            break;
        }
        }
    }

    WorkspaceStore &m_store;
    ManualClock &m_clock;
    std::mt19937 m_random;
};
