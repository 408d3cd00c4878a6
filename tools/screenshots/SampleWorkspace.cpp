#include "SampleWorkspace.h"

#include "Store/PageOperations.h"
#include "Store/TaskOperations.h"
#include "Store/WorkspaceStore.h"

namespace
{
QUuid addPage(WorkspaceStore &store, const QString &title, const QString &icon, bool isFavorite = false,
              std::optional<QUuid> folderID = std::nullopt)
{
    const QUuid id = PageOperations::create(store, PageKind::page);
    store.change<Page>(id, [&](Page &page) {
        page.title = title;
        page.isFavorite = isFavorite;
        page.folderID = folderID;
        if (!icon.isEmpty())
            page.icon = icon;
    });
    return id;
}

void addTasks(WorkspaceStore &store)
{
    const Timestamp now = store.clock().now();
    const auto inDays = [now](int days) { return now + std::chrono::hours(24 * days); };
    TaskOperations::create(store, QStringLiteral("Write the quarterly letter"), TaskPriority::high, now);
    TaskOperations::cycleStatus(store, TaskOperations::create(store, QStringLiteral("Plan the week"),
                                                              TaskPriority::medium, inDays(3)));
    TaskOperations::create(store, QStringLiteral("Read the onboarding tips"), TaskPriority::low,
                           std::nullopt);
    TaskOperations::create(
        store, QStringLiteral("Call the print shop about the covers, paper stock and the long lead time"),
        TaskPriority::medium, inDays(-3));
    TaskOperations::create(store, QStringLiteral("Explore databases"), TaskPriority::low, inDays(10));
    TaskOperations::toggleDone(store, TaskOperations::create(store, QStringLiteral("Try the block editor"),
                                                             TaskPriority::medium, now));
}

void addSnippet(WorkspaceStore &store, const QString &title, CodeLanguage language, const QString &source)
{
    store.add(CodeDocument{.id = QUuid::createUuid(),
                           .title = title,
                           .language = language,
                           .source = source,
                           .createdDate = store.clock().now(),
                           .updatedDate = store.clock().now()});
}
} // namespace

void SampleWorkspace::addCode(WorkspaceStore &store)
{
    const QString readings = QStringLiteral(
        "# The warmest and the coldest day of a week\n"
        "from dataclasses import dataclass\n"
        "\n"
        "\n"
        "@dataclass\n"
        "class Reading:\n"
        "    day: str\n"
        "    celsius: float\n"
        "\n"
        "    def fahrenheit(self) -> float:\n"
        "        return self.celsius * 9 / 5 + 32\n"
        "\n"
        "\n"
        "readings = [\n"
        "    Reading(\"Mon\", 12.5),\n"
        "    Reading(\"Tue\", 14.0),\n"
        "    Reading(\"Wed\", 9.5),\n"
        "    Reading(\"Thu\", 17.25),\n"
        "]\n"
        "\n"
        "for reading in sorted(readings, key=lambda reading: reading.celsius):\n"
        "    print(f\"{reading.day}: {reading.celsius:5.1f} °C  {reading.fahrenheit():5.1f} °F\")\n"
        "print(\"warmest:\", max(readings, key=lambda reading: reading.celsius).day)\n");
    addSnippet(store, QStringLiteral("readings.py"), CodeLanguage::python, readings);
    addSnippet(store, QStringLiteral("Parse the export"), CodeLanguage::python,
               QStringLiteral("import json\n\ntext = '{\"name\": \"Zoë\", }'\nprint(\"reading\", len(text))\n"
                              "print(json.loads(text))\n"));
    QString table = QStringLiteral("-- One line a city\nCREATE TABLE city (name, people);\n");
    for (int i = 1; i <= 40; ++i)
        table += QStringLiteral(
                     "INSERT INTO city VALUES ('A city with a rather long name, the %1th of them all, on "
                     "the river beyond the hills', %2); -- counted by hand in spring, again in autumn\n")
                     .arg(i)
                     .arg(i * 1234);
    addSnippet(store, QStringLiteral("Cities and how many people live in them, counted twice a year"),
               CodeLanguage::sql, table);
    addSnippet(store, QStringLiteral("backup.sh"), CodeLanguage::shell,
               QStringLiteral("tar czf notes.tar.gz notes\n"));
    addSnippet(store, QStringLiteral("Greeting"), CodeLanguage::swift, QStringLiteral("print(\"Hello\")\n"));
    addSnippet(store, {}, CodeLanguage::plain, {});
}

void SampleWorkspace::fill(WorkspaceStore &store)
{
    store.changeSettings([](AppSettings &settings) { settings.userName = QStringLiteral("Zoë"); });
    addTasks(store);
    addPage(store, QStringLiteral("Welcome to Zoë's Workspace"), {}, true);
    addPage(store, QStringLiteral("Reading list"), QStringLiteral("📚"), true);
    addPage(store, QStringLiteral("Weekly review"), {});
    addPage(store, QStringLiteral("Garden plan"), QStringLiteral("🌱"));
    const QUuid work = FolderOperations::create(store, QStringLiteral("Work"), QStringLiteral("📁")).id;
    addPage(store, QStringLiteral("Meeting notes"), {}, false, work);
    addPage(store, QStringLiteral("Launch checklist"), QStringLiteral("🚀"), false, work);
    const QUuid travel = FolderOperations::create(store, QStringLiteral("Travel"), QStringLiteral("🧭")).id;
    addPage(store, QStringLiteral("Lisbon in spring"), {}, false, travel);
}

void SampleWorkspace::crowd(WorkspaceStore &store)
{
    store.changeSettings([](AppSettings &settings) {
        settings.workspaceName =
            QStringLiteral("The workspace of the whole extended family and of its friends");
    });
    addTasks(store);
    QList<QUuid> folders;
    for (int i = 1; i <= 8; ++i) {
        const QString name = i == 3 ? QStringLiteral("Folder with a rather long name ").repeated(7)
                                    : QStringLiteral("Folder %1").arg(i);
        folders.append(FolderOperations::create(store, name, QStringLiteral("📁")).id);
    }
    for (int i = 1; i <= 60; ++i) {
        const QString title = i % 7 == 3
                                  ? QStringLiteral("A title that goes on and on ").repeated(8).left(200)
                                  : QStringLiteral("Page %1").arg(i);
        const bool isLoose = i % 3 == 0;
        addPage(store, title, i % 5 == 0 ? QStringLiteral("🌊") : QString(), i % 20 == 0,
                isLoose ? std::nullopt : std::optional(folders.at(i % folders.size())));
    }
}

void SampleWorkspace::manyTasks(WorkspaceStore &store)
{
    fill(store);
    const Timestamp now = store.clock().now();
    TaskOperations::create(
        store, QStringLiteral("Sort the letters of the whole last year by sender and by month ").repeated(4),
        TaskPriority::high, now - std::chrono::hours(90));
    TaskOperations::create(store, QStringLiteral("قراءة الكتاب الجديد"), TaskPriority::low, now);
    TaskOperations::create(store, QStringLiteral("Water the plants 🪴 and feed the cat 🐈"),
                           TaskPriority::medium, {});
    TaskOperations::create(store, {}, TaskPriority::medium, {});
    for (int i = 1; i <= 10'000; ++i)
        TaskOperations::create(store, QStringLiteral("Task %1").arg(i), TaskPriority(i % 3),
                               now + std::chrono::hours(24) * (i % 30));
}

void SampleWorkspace::notes(WorkspaceStore &store, int count)
{
    static const QStringList titles{QStringLiteral("Groceries"),       QStringLiteral("Ideas for the garden"),
                                    QStringLiteral("Call with Amira"), QStringLiteral("Books to read"),
                                    QStringLiteral("Packing list"),    QStringLiteral("Talk, first outline")};
    static const QStringList texts{
        QStringLiteral("Oats, apples, coffee"),
        QStringLiteral("Move the roses to the south wall before the frost. The old bench could stand by the "
                       "pond, with lavender on both sides and a path of flat stones leading up to it."),
        QStringLiteral("She likes the second draft better. Send the numbers by Thursday."),
        QString(),
        QStringLiteral("Passport, charger, rain jacket, the small camera, letters to answer on the train"),
        QStringLiteral("Begin with the question, not the answer. Three stories: the lighthouse, the ledger, "
                       "the long queue. End on the photograph.")};
    static const QStringList icons{QStringLiteral("📝"), QStringLiteral("🌸"), QStringLiteral("📌"),
                                   QStringLiteral("🔖"), QStringLiteral("🧭"), QStringLiteral("💡")};
    for (int i = 0; i < count; ++i) {
        const QUuid id = PageOperations::create(store, PageKind::note);
        store.change<Page>(id, [&](Page &note) {
            const int kind = (count - i) % int(titles.size());
            note.title = titles.at(kind);
            note.icon = icons.at(kind);
            note.content.first().text = texts.at(kind);
            note.updatedDate -= std::chrono::hours(7) * (count - i);
            if (count - i == 2)
                note.title = QStringLiteral("A title that goes on and on ").repeated(8).left(200);
            if (count - i == 4)
                note.content.first().text = QStringLiteral("Averyveryverylongwordwithoutanygap").repeated(9);
            if (count - i == 5) {
                note.title.clear();
                note.content.first().text = QStringLiteral("قراءة الكتاب الجديد ").repeated(12);
            }
        });
    }
}
