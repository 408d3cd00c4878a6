#include "Store/StarterRecords.h"

#include "Store/DatabaseOperations.h"
#include "Store/PageOperations.h"
#include "Store/ProjectOperations.h"
#include "Support/DatabaseTemplates.h"
#include "Support/OVDate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

StarterRecords::StarterRecords(WorkspaceStore &store) : m_store(store), m_now(store.clock().now()) {}

Page StarterRecords::page(PageKind kind, const QString &title, const QString &icon,
                          const QList<Line> &lines) const
{
    Page page{.id = QUuid::createUuid(), .title = title, .icon = icon, .kind = kind};
    for (const Line &line : lines)
        page.content.append({.id = QUuid::createUuid(), .type = line.type, .text = line.text});
    page.sortOrder = secondsSince1970(m_now);
    page.createdDate = page.updatedDate = m_now;
    return page;
}

Timestamp StarterRecords::day(int offset) const
{
    return OVDate::startOfDay(m_store.clock().today().addDays(offset), m_store.clock().timeZone());
}

void StarterRecords::addWelcomePage()
{
    using enum BlockType;
    const QString name = m_store.settings().userName.trimmed();
    Page welcome = page(
        PageKind::page, u"Welcome to "_s + (name.isEmpty() ? u"Orvel"_s : name + u"'s Workspace"_s), u"👋"_s,
        {{heading1, u"Welcome"_s},
         {paragraph,
          u"This is your workspace. Everything lives in the sidebar: pages, tasks, projects, databases and "
          "notes all read from the same data."_s},
         {callout, u"Press ⌘K anywhere to search across pages, tasks, projects and databases."_s},
         {heading2, u"A few things to try"_s},
         {bulleted, u"Create a page and type / for commands"_s},
         {bulleted, u"Add a task and give it a due date"_s},
         {bulleted, u"Start a focus session"_s},
         {bulleted, u"Databases can be viewed as a table, board or list"_s},
         {bulleted, u"Projects group tasks and show live progress"_s},
         {paragraph, u"Delete this page whenever you like. It's just a page."_s}});
    welcome.isFavorite = true;
    welcome.sortOrder = 0;
    m_store.add(welcome);
}

void StarterRecords::addPages()
{
    using enum BlockType;
    m_store.add(page(PageKind::page, u"Meeting notes"_s, u"📝"_s,
                     {{paragraph, u"Agenda, decisions and follow-ups."_s},
                      {checklist, u"Review the roadmap"_s},
                      {checklist, u"Weekly sync"_s},
                      {checklist, u"Assign owners"_s}}));
    FolderOperations::create(m_store, u"Ideas"_s, u"📁"_s);
    Page list =
        page(PageKind::note, u"Reading list"_s, u"📚"_s, {{paragraph, u"Books and links to revisit."_s}});
    list.sortOrder = 2;
    m_store.add(list);
}

void StarterRecords::addInbox()
{
    m_store.add(page(PageKind::note, u"Inbox"_s, u"📝"_s,
                     {{BlockType::paragraph, u"Quick capture. Anything on your mind."_s}}));
}

void StarterRecords::addTasks()
{
    struct Sample {
        QString title;
        TaskStatus status;
        TaskPriority priority;
        std::optional<int> dueInDays;
    };
    for (const Sample &sample :
         {Sample{u"Try the block editor"_s, TaskStatus::done, TaskPriority::medium, {}},
          Sample{u"Plan the week"_s, TaskStatus::inProgress, TaskPriority::high, 0},
          Sample{u"Read the onboarding tips"_s, TaskStatus::todo, TaskPriority::low, 1},
          Sample{u"Set up your first project"_s, TaskStatus::todo, TaskPriority::medium, 3},
          Sample{u"Explore databases"_s, TaskStatus::todo, TaskPriority::low, {}}}) {
        TaskItem task{.id = QUuid::createUuid(), .title = sample.title, .status = sample.status};
        task.priority = sample.priority;
        if (sample.dueInDays)
            task.dueDate = day(*sample.dueInDays);
        if (sample.status == TaskStatus::done)
            task.completedDate = m_now;
        task.createdDate = task.updatedDate = m_now;
        m_store.add(task);
    }
}

void StarterRecords::addProject()
{
    Project project{.id = QUuid::createUuid(), .name = u"Launch Orvel"_s, .icon = u"🚀"_s};
    project.details = u"Get the workspace ready and invite the team."_s;
    project.status = ProjectStatus::inProgress;
    project.milestones = {{QUuid::createUuid(), u"Workspace set up"_s, true},
                          {QUuid::createUuid(), u"First project created"_s, false},
                          {QUuid::createUuid(), u"Team invited"_s, false}};
    project.createdDate = project.updatedDate = m_now;
    m_store.add(project);
    ProjectOperations::logActivity(m_store, project.id, u"Project created"_s, u"status"_s);
    for (const QString &title : {u"Choose a workspace icon"_s, u"Draft the plan"_s, u"Share with the team"_s})
        ProjectOperations::addTask(m_store, project.id, title);
}

void StarterRecords::addDatabase()
{
    const auto reading = std::ranges::find(DatabaseTemplates::all(), u"reading"_s, &DatabaseTemplate::id);
    const DatabaseTable table = reading->table(QUuid::createUuid(), m_now);
    DatabaseOperations::create(m_store, table);
    const auto column = [&table](const QString &name) {
        return DBRow::valueKey(std::ranges::find(table.properties, name, &DBProperty::name)->id);
    };
    for (const auto &[title, author, status] :
         {std::tuple(u"Thinking, Fast and Slow"_s, u"Daniel Kahneman"_s, u"Finished"_s),
          std::tuple(u"The Design of Everyday Things"_s, u"Don Norman"_s, u"Finished"_s),
          std::tuple(u"Deep Work"_s, u"Cal Newport"_s, u"To read"_s)})
        DatabaseOperations::addRow(
            m_store, table.id,
            {{column(u"Title"_s), title}, {column(u"Author"_s), author}, {column(u"Status"_s), status}});
}

void StarterRecords::addEvents()
{
    for (const auto &[title, offset, minutes] :
         {std::tuple(u"Kickoff"_s, 0, 600), std::tuple(u"Draft the plan"_s, 1, 840),
          std::tuple(u"Weekly review"_s, 4, 960)}) {
        CalendarEvent event{.id = QUuid::createUuid(), .title = title};
        event.date = day(offset);
        event.timeMinutes = minutes;
        event.createdDate = m_now;
        m_store.add(event);
    }
}

void StarterRecords::addHabits()
{
    const QDate today = m_store.clock().today();
    for (const auto &[name, emoji, accent, target] :
         {std::tuple(u"Drink water"_s, u"💧"_s, AccentPalette::cyan, 7),
          std::tuple(u"Read 20 minutes"_s, u"📚"_s, AccentPalette::indigo, 5),
          std::tuple(u"Move your body"_s, u"🏃"_s, AccentPalette::orange, 4)}) {
        Habit habit{.id = QUuid::createUuid(), .name = name, .emoji = emoji};
        habit.accent = accent;
        habit.targetPerWeek = target;
        for (const int before : {1, 2, 3, 5, 6})
            habit.completions.insert(OVDate::dayKey(today.addDays(-before)));
        habit.sortOrder = secondsSince1970(m_now);
        habit.createdDate = m_now;
        m_store.add(habit);
    }
}

void StarterRecords::addCode()
{
    CodeDocument document{.id = QUuid::createUuid(), .title = u"Welcome.swift"_s};
    document.source =
        u"struct WelcomeView {\n    let name: String\n\n    func show() {\n        print(\"Hello, \\(name). "
        "Make something small today.\")\n    }\n}\n\nWelcomeView(name: \"Orvel\").show()\n"_s;
    document.sortOrder = secondsSince1970(m_now);
    document.createdDate = document.updatedDate = m_now;
    m_store.add(document);
}

void StarterRecords::addDeck()
{
    Deck deck = Deck::fresh(m_now, QUuid::createUuid());
    deck.title = u"Orvel in five slides"_s;
    deck.summary = u"A short deck to try the canvas, themes and export."_s;
    const auto add = [&deck](SlideKind kind, auto fill) {
        Slide slide = Slide::fresh(QUuid::createUuid());
        slide.kind = kind;
        fill(slide);
        deck.slides.append(slide);
    };
    add(SlideKind::title, [](Slide &slide) {
        slide.title = u"Orvel"_s;
        slide.subtitle = u"Type directly on the slide — no separate editing mode"_s;
    });
    add(SlideKind::bullets, [](Slide &slide) {
        slide.title = u"What you can do here"_s;
        slide.body = u"Write on the canvas, in place\nSwitch themes and everything restyles\n"
                     "Export to PowerPoint, PDF or Markdown"_s;
        slide.notes = u"Mention that exports use the same layout the canvas draws."_s;
    });
    add(SlideKind::twoColumn, [](Slide &slide) {
        slide.title = u"Two columns"_s;
        slide.body = u"Left column\nOne idea per line"_s;
        slide.bodyB = u"Right column\nKeeps things tidy"_s;
    });
    add(SlideKind::stats, [](Slide &slide) {
        slide.title = u"Numbers land harder"_s;
        slide.body = u"8 | Themes\n8 | Slide layouts\n4 | Export formats"_s;
    });
    add(SlideKind::quote, [](Slide &slide) {
        slide.body = u"Good slides are short sentences, made large."_s;
        slide.subtitle = u"Orvel"_s;
    });
    add(SlideKind::closing, [](Slide &slide) {
        slide.title = u"Thank you"_s;
        slide.subtitle = u"Press ⌘⇧P to present"_s;
    });
    m_store.add(deck);
}
