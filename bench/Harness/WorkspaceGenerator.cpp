#include "Harness/WorkspaceGenerator.h"

#include "Store/SnapshotCodec.h"
#include "Store/WorkspaceStore.h"

#include <array>
#include <random>

namespace
{
constexpr std::array words{
    u"the",     u"a",       u"of",      u"and",      u"to",       u"in",      u"is",      u"that",
    u"for",     u"it",      u"with",    u"as",       u"was",      u"on",      u"be",      u"at",
    u"by",      u"this",    u"from",    u"or",       u"we",       u"an",      u"which",   u"their",
    u"plan",    u"draft",   u"review",  u"letter",   u"meeting",  u"garden",  u"week",    u"morning",
    u"notes",   u"reading", u"project", u"budget",   u"question", u"answer",  u"chapter", u"kitchen",
    u"travel",  u"ticket",  u"invoice", u"deadline", u"idea",     u"sketch",  u"table",   u"results",
    u"measure", u"compare", u"write",   u"call",     u"buy",      u"prepare", u"finish",  u"begin",
    u"quiet",   u"small",   u"long",    u"bright",   u"early",    u"next",    u"open",    u"whole",
    u"café",    u"naïve",   u"Zoë",     u"résumé",   u"São",      u"über",    u"— then",  u"“so”",
};
constexpr std::array specials{
    u"\"quoted\"", u"https://example.org/a/b?c=d", u"and/or", u"🌱", u"✅ done", u"it’s", u"C:\\notes", u"½",
};

class Generator
{
public:
    /// One record of most kinds, in the proportions of a workspace in use.
    void addUnit(Snapshot &to)
    {
        to.list<Page>().append(page(PageKind::page, 12));
        to.list<Page>().append(page(PageKind::note, 2));
        for (int i = 0; i < 6; ++i)
            to.list<TaskItem>().append(task());
        if (to.list<DatabaseTable>().isEmpty())
            to.list<DatabaseTable>().append(table());
        for (int i = 0; i < 8; ++i)
            to.list<DBRow>().append(row(to.list<DatabaseTable>().first()));
        to.list<CalendarEvent>().append(
            {id(), text(4), moment(), below(1440), EventKind::event, text(8), moment()});
        to.list<Activity>().append({id(), id(), text(6), QStringLiteral("note"), moment()});
        to.list<CodeDocument>().append(
            {id(), text(1), CodeLanguage::python, code(), false, order(), moment(), moment()});
        if (below(4) == 0)
            to.list<Deck>().append(deck());
        if (below(8) == 0)
            to.list<Folder>().append({id(), text(2), QStringLiteral("📁"), order(), moment(), moment()});
        if (below(8) == 0)
            to.list<Project>().append({id(),
                                       text(3),
                                       QStringLiteral("🎯"),
                                       text(20),
                                       ProjectStatus::inProgress,
                                       {},
                                       false,
                                       {},
                                       {{id(), text(3), false}, {id(), text(3), true}},
                                       moment(),
                                       moment()});
        if (below(20) == 0)
            to.list<Habit>().append(habit());
    }

    Page page(PageKind kind, int blocks)
    {
        Page page{id(),     text(4), QStringLiteral("📄"), kind, {}, below(10) == 0, {}, order(),
                  moment(), moment()};
        for (int i = 0; i < blocks; ++i) {
            const auto type = enumCases<BlockType>().at(std::size_t(below(9))).value;
            page.content.append({id(), type, text(type == BlockType::paragraph ? 60 : 25), below(2) == 0});
        }
        return page;
    }

    TaskItem task()
    {
        TaskItem task{id(), text(6), enumCases<TaskStatus>().at(std::size_t(below(3))).value};
        task.notes = below(3) == 0 ? text(15) : QString();
        task.createdDate = task.updatedDate = moment();
        if (below(2) == 0)
            task.dueDate = moment();
        if (task.status == TaskStatus::done)
            task.completedDate = moment();
        return task;
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }

    QUuid id()
    {
        return QUuid(m_random(), ushort(m_random()), ushort(0x4000 | (m_random() & 0xfff)), 0x8d, 0xef, 1, 2,
                     uchar(m_random()), uchar(m_random()), uchar(m_random()), uchar(m_random()));
    }

    Timestamp moment() { return Timestamp(std::chrono::seconds(1'700'000'000 + below(80'000'000))); }
    double order() { return secondsSince1970(moment()) + below(1000) / 1000.0; }

    QString text(int length)
    {
        QString text;
        for (int i = 0; i < length; ++i) {
            if (i > 0)
                text += i % 29 == 0 ? u'\n' : u' ';
            text += below(25) == 0 ? QStringView(specials.at(std::size_t(below(int(specials.size())))))
                                   : QStringView(words.at(std::size_t(below(int(words.size())))));
        }
        return text;
    }

    QString code()
    {
        QString code;
        for (int i = 0; i < 12; ++i)
            code += QStringLiteral("\tfor item in range(%1):\n\t\tprint(\"%2\", item / 2)\n")
                        .arg(below(100))
                        .arg(text(2));
        return code;
    }

    DatabaseTable table()
    {
        DatabaseTable table{id(), text(2)};
        for (const DBPropertyType type :
             {DBPropertyType::text, DBPropertyType::status, DBPropertyType::date, DBPropertyType::number})
            table.properties.append({id(), text(1), type, {QStringLiteral("Open"), QStringLiteral("Done")}});
        table.createdDate = table.updatedDate = moment();
        return table;
    }

    DBRow row(const DatabaseTable &table)
    {
        DBRow row{id(), table.id, {}, order(), moment(), moment()};
        const auto put = [&](int property, const QString &value) {
            row.values.insert(DBRow::valueKey(table.properties.at(property).id), value);
        };
        put(0, text(5));
        put(1, below(2) == 0 ? QStringLiteral("Open") : QStringLiteral("Done"));
        put(2, QStringLiteral("2026-03-%1").arg(1 + below(28), 2, 10, QLatin1Char('0')));
        put(3, QString::number(below(100'000) / 100.0));
        return row;
    }

    Deck deck()
    {
        Deck deck = Deck::fresh(moment(), id());
        deck.title = text(4);
        for (int i = 0; i < 8; ++i) {
            Slide slide = Slide::fresh(id());
            slide.kind = enumCases<SlideKind>().at(std::size_t(i)).value;
            slide.title = text(5);
            slide.body = text(30);
            slide.notes = text(20);
            deck.slides.append(slide);
        }
        return deck;
    }

    Habit habit()
    {
        Habit habit{id(), text(2), QStringLiteral("📚"), AccentPalette::teal, 5};
        for (int day = 1; day <= 28; ++day)
            habit.completions.insert(QStringLiteral("2026-02-%1").arg(day, 2, 10, QLatin1Char('0')));
        habit.createdDate = moment();
        return habit;
    }

    std::mt19937 m_random;
};
} // namespace

Snapshot WorkspaceGenerator::ofFileSize(qsizetype bytes)
{
    static constexpr int sampleUnits = 40;
    Generator generator;
    Snapshot workspace;
    for (int i = 0; i < sampleUnits; ++i)
        generator.addUnit(workspace);
    const qsizetype units = bytes * sampleUnits / SnapshotCodec::encode(workspace).size();
    for (qsizetype i = sampleUnits; i < units; ++i)
        generator.addUnit(workspace);
    return workspace;
}

Snapshot WorkspaceGenerator::ofBusyYears()
{
    Snapshot workspace = ofFileSize(10'000'000);
    Generator generator;
    std::mt19937 random(11);
    const QDateTime noon(QDate::currentDate(), {12, 0});
    const auto moment = [&] {
        const int days = random() % 10 == 0 ? 45 : 730;
        return toTimestamp(noon.addDays(int(random() % unsigned(2 * days)) - days));
    };
    auto &projects = workspace.list<Project>();
    auto &tasks = workspace.list<TaskItem>();
    auto &events = workspace.list<CalendarEvent>();
    while (projects.size() < 200)
        projects.append({.id = QUuid::createUuid(),
                         .name = QStringLiteral("Project %1").arg(projects.size()),
                         .icon = QStringLiteral("🎯"),
                         .details = QStringLiteral("Everything about it, in a line or two."),
                         .status = ProjectStatus::inProgress});
    while (tasks.size() < 10'000)
        tasks.append(generator.task());
    while (events.size() < 10'000)
        events.append({.id = QUuid::createUuid(),
                       .title = QStringLiteral("Review the draft %1").arg(events.size()),
                       .kind = enumCases<EventKind>().at(random() % 3).value,
                       .createdDate = moment()});
    for (qsizetype i = 0; i < tasks.size(); ++i) {
        tasks[i].projectID = projects.at(i % projects.size()).id;
        if (i % 2 == 0)
            tasks[i].dueDate = moment();
    }
    for (CalendarEvent &event : events) {
        event.date = moment();
        if (random() % 3 > 0)
            event.timeMinutes = random() % 1440;
    }
    return workspace;
}

Snapshot WorkspaceGenerator::ofTasksAndPages(int tasks, int pages)
{
    Generator generator;
    Snapshot workspace;
    for (int i = 0; i < tasks; ++i)
        workspace.list<TaskItem>().append(generator.task());
    for (int i = 0; i < pages; ++i)
        workspace.list<Page>().append(generator.page(i % 3 == 0 ? PageKind::note : PageKind::page, 6));
    return workspace;
}

QList<Page> WorkspaceGenerator::longPages(int count, qsizetype length)
{
    static const QStringList vocabulary =
        QStringLiteral(
            "the quiet morning letter draft of a river garden paper Plan meeting notes with review "
            "and project chapter steady work light window for Zoë café walk read write again before")
            .split(u' ');
    std::mt19937 random(3);
    QList<Page> pages;
    for (int i = 0; i < count; ++i) {
        QString text;
        while (text.size() < length)
            text += vocabulary[qsizetype(random() % std::size_t(vocabulary.size()))] + u' ';
        pages.append({.id = QUuid::createUuid(),
                      .title = QStringLiteral("Page %1").arg(i),
                      .content = {{.id = QUuid::createUuid(), .text = text.left(length)}}});
    }
    return pages;
}

Snapshot WorkspaceGenerator::ofEveryKind(int count, qsizetype pageLength)
{
    Snapshot workspace;
    workspace.list<Page>() = longPages(count, pageLength);
    for (int i = 0; i < count; ++i) {
        const auto id = [] { return QUuid::createUuid(); };
        const auto title = [i](const char *kind) {
            return QStringLiteral("%1 %2").arg(QLatin1String(kind)).arg(i);
        };
        workspace.list<TaskItem>().append({.id = id(), .title = title("Task")});
        workspace.list<Project>().append({.id = id(), .name = title("Project"), .details = title("About")});
        workspace.list<DatabaseTable>().append({.id = id(), .name = title("Database")});
        workspace.list<DBRow>().append({.id = id(), .tableID = workspace.list<DatabaseTable>().last().id});
        workspace.list<CalendarEvent>().append({.id = id(), .title = title("Event")});
        workspace.list<Habit>().append({.id = id(), .name = title("Habit")});
        workspace.list<CodeDocument>().append({.id = id(), .title = title("Code"), .source = title("print")});
        workspace.list<Book>().append({.id = id(), .title = title("Book"), .author = title("Author")});
        workspace.list<Deck>().append({.id = id(), .title = title("Deck")});
    }
    return workspace;
}

void WorkspaceGenerator::addTo(WorkspaceStore &store, const Snapshot &workspace)
{
    const Action action(store, QString());
    std::apply(
        [&]<typename... Kind>(const Kind &...) {
            const auto add = [&](const auto &records) {
                for (const auto &record : records)
                    store.add(record);
            };
            (add(workspace.list<typename Kind::Record>()), ...);
        },
        RecordKinds::all);
}
