#include "Harness/ManualClock.h"
#include "SampleSnapshot.h"
#include "Store/BookOperations.h"
#include "Store/DatabaseOperations.h"
#include "Store/DeckOperations.h"
#include "Store/HabitOperations.h"
#include "Store/PageOperations.h"
#include "Store/ProjectOperations.h"
#include "Store/SnapshotCodec.h"
#include "Store/TaskOperations.h"
#include "Store/WorkspaceStore.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using SampleSnapshot::id;

class WorkspaceStoreTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    ManualClock m_clock;
    int m_made = 0;

    QString path() const { return m_folder.filePath(u"workspace.json"_s); }

    std::unique_ptr<WorkspaceStore> open(std::chrono::milliseconds saveDelay = 1h)
    {
        return std::make_unique<WorkspaceStore>(
            WorkspaceStore::Options{path(), &m_clock, saveDelay, [this] { return id(1000 + m_made++); }});
    }
    std::unique_ptr<WorkspaceStore> openSample()
    {
        writeFile(SnapshotCodec::encode(SampleSnapshot::make()));
        auto store = open();
        m_made = 0;
        return store;
    }
    void writeFile(const QByteArray &bytes)
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray fileBytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init()
    {
        QFile::remove(path());
        m_made = 0;
        m_clock.setNow(ManualClock().now());
    }

    void startsEmptyAndWritesNothingByItself()
    {
        const auto store = open();
        QCOMPARE(store->snapshot(), Snapshot());
        QCOMPARE(store->settings().workspaceName, u"My Workspace"_s);
        QVERIFY(!store->settings().hasCompletedOnboarding);
        QCoreApplication::processEvents();
        QVERIFY(!QFile::exists(path()));
    }

    void loadsAndSavesEverything()
    {
        const auto store = openSample();
        QCOMPARE(store->snapshot(), SampleSnapshot::make());
        store->saveNow();
        QCOMPARE(fileBytes(), SnapshotCodec::encode(SampleSnapshot::make()));
    }

    void aFileThatIsNoJsonStaysUntilTheFirstSave()
    {
        writeFile("not json");
        const auto store = open();
        QCOMPARE(store->snapshot(), Snapshot());
        QCOMPARE(fileBytes(), "not json"_ba);
        PageOperations::create(*store, PageKind::page);
        store->saveNow();
        QCOMPARE(SnapshotCodec::decode(fileBytes(), m_clock.now(), &QUuid::createUuid)->list<Page>().size(),
                 1);
    }

    void manyRequestsMakeOneDelayedSave()
    {
        const auto store = open(0ms);
        for (int i = 0; i < 10; ++i)
            TaskOperations::create(*store, QString::number(i), TaskPriority::low, {});
        QVERIFY(!QFile::exists(path()));
        QTRY_VERIFY(QFile::exists(path()));
        QCOMPARE(open()->tasks().size(), 10);
        QVERIFY(QFile::remove(path()));
        QCoreApplication::processEvents();
        QVERIFY2(!QFile::exists(path()), "one save is enough");
    }

    void tellsOnlyRealChanges()
    {
        const auto store = openSample();
        QList<ChangeSet> told;
        connect(store.get(), &WorkspaceStore::changed, this,
                [&](const ChangeSet &changes) { told.append(changes); });
        store->change<TaskItem>(id(5), [](TaskItem &) {});
        store->changeSettings([](AppSettings &) {});
        TaskOperations::rename(*store, id(777), u"nobody"_s);
        QVERIFY(told.isEmpty());

        TaskOperations::rename(*store, id(5), u"New"_s);
        const QUuid added = TaskOperations::create(*store, u"Another"_s, TaskPriority::high, m_clock.now());
        TaskOperations::remove(*store, id(6));
        store->changeSettings([](AppSettings &settings) { settings.inkMode = true; });
        QCOMPARE(told.size(), 4);
        QCOMPARE(told[0].of<TaskItem>().replaced, QSet{id(5)});
        QCOMPARE(told[1].of<TaskItem>().inserted, QSet{added});
        QCOMPARE(told[2].of<TaskItem>().removed, QSet{id(6)});
        QVERIFY(!told[2].settings && told[3].settings);
        QVERIFY(!told[0].touches<Page>());
    }

    void recordsWithOneIdAreReachedTogether()
    {
        Snapshot sample = SampleSnapshot::make();
        sample.list<TaskItem>()[1].id = id(5);
        writeFile(SnapshotCodec::encode(sample));
        const auto store = open();
        QCOMPARE(store->tasks().first(id(5))->title, u"Letter"_s);
        TaskItem task = sample.list<TaskItem>()[0];
        task.title = u"Both"_s;
        store->change<TaskItem>(id(5), [&](TaskItem &changed) { changed = task; });
        QCOMPARE(store->tasks().all(), (QList<TaskItem>{task, task}));
        store->erase<TaskItem>(id(5));
        QVERIFY(store->tasks().isEmpty());
    }

    void newPagesAndNotes()
    {
        const auto store = open();
        m_clock.advance(250ms);
        const Timestamp now = m_clock.now();
        PageOperations::create(*store, PageKind::page);
        PageOperations::create(*store, PageKind::note);
        const auto made = [&](int number, PageKind kind, const QString &icon) {
            return Page{id(number), u"Untitled"_s, icon, kind, {Block{.id = id(number + 1)}}, false,
                        {},         1773394200.25, now,  now};
        };
        QCOMPARE(store->pages().all(),
                 (QList<Page>{made(1000, PageKind::page, u"📄"_s), made(1002, PageKind::note, u"📝"_s)}));
    }

    void pagesAreCopiedMovedAndStarred()
    {
        const auto store = openSample();
        const Page original = SampleSnapshot::make().list<Page>().first();
        const Timestamp now = m_clock.now();
        PageOperations::duplicate(*store, original.id);
        Page copy = original;
        copy.id = id(1000);
        copy.content[0].id = id(1001);
        copy.title += u" copy"_s;
        copy.isFavorite = false;
        copy.createdDate = copy.updatedDate = now;
        copy.sortOrder = secondsSince1970(now);
        QCOMPARE(store->pages().all(), (QList<Page>{original, copy}));

        m_clock.advance(1s);
        PageOperations::toggleFavorite(*store, copy.id);
        PageOperations::move(*store, copy.id, std::nullopt);
        copy.isFavorite = true;
        copy.folderID.reset();
        copy.updatedDate = m_clock.now();
        QCOMPARE(*store->pages().first(copy.id), copy);
    }

    void foldersLetTheirPagesGo()
    {
        const auto store = openSample();
        FolderOperations::rename(*store, id(2), u"Play"_s);
        const Folder made = FolderOperations::create(*store, u"Second"_s, u"📁"_s);
        QCOMPARE(store->folders().first(id(2))->name, u"Play"_s);
        QCOMPARE(*store->folders().first(made.id), made);
        FolderOperations::remove(*store, id(2));
        QCOMPARE(store->folders().all(), QList<Folder>{made});
        QVERIFY(!store->pages().first(id(3))->folderID);
        QCOMPARE(store->pages().first(id(3))->updatedDate, m_clock.now());
    }

    /// Completion dates follow the status through every way of changing it.
    void taskStatusKeepsItsCompletionDate()
    {
        const auto store = open();
        const QUuid task = TaskOperations::create(*store, u"t"_s, TaskPriority::medium, {});
        const auto state = [&] {
            const TaskItem &item = *store->tasks().first(task);
            return std::pair(item.status, item.completedDate);
        };
        using State = decltype(state());
        TaskOperations::cycleStatus(*store, task);
        QCOMPARE(state(), State(TaskStatus::inProgress, std::nullopt));
        m_clock.advance(1s);
        TaskOperations::toggleDone(*store, task);
        const Timestamp first = m_clock.now();
        QCOMPARE(state(), State(TaskStatus::done, first));
        m_clock.advance(1s);
        TaskOperations::cyclePriority(*store, task);
        QCOMPARE(state(), State(TaskStatus::done, first));
        QCOMPARE(store->tasks().first(task)->priority, TaskPriority::high);
        QCOMPARE(store->tasks().first(task)->updatedDate, m_clock.now());
        TaskOperations::toggleDone(*store, task);
        QCOMPARE(state(), State(TaskStatus::todo, std::nullopt));
        TaskOperations::cycleStatus(*store, task);
        TaskOperations::cycleStatus(*store, task);
        QCOMPARE(state(), State(TaskStatus::done, m_clock.now()));
        TaskOperations::cycleStatus(*store, task);
        QCOMPARE(state(), State(TaskStatus::todo, std::nullopt));
    }

    void deletingAProjectKeepsItsTasks()
    {
        const auto store = openSample();
        ProjectOperations::logActivity(*store, id(7), u"Note"_s, u"note"_s);
        ProjectOperations::logActivity(*store, id(777), u"Nobody"_s, u"note"_s);
        QCOMPARE(store->list<Activity>().size(), 2);
        QCOMPARE(store->list<Activity>().all().last(),
                 (Activity{id(1000), id(7), u"Note"_s, u"note"_s, m_clock.now()}));
        ProjectOperations::remove(*store, id(7));
        QVERIFY(store->projects().isEmpty());
        QVERIFY(store->list<Activity>().isEmpty());
        QVERIFY(!store->tasks().first(id(5))->projectID);
        QCOMPARE(store->tasks().size(), 2);
        QCOMPARE(store->list<CalendarEvent>().size(), 1);
    }

    void projectsFromTemplates()
    {
        const auto store = open();
        const Timestamp now = m_clock.now();
        const ProjectTemplate &trip = ProjectTemplates::all().at(2);
        const QUuid made = ProjectOperations::create(*store, trip);
        Project expected{.id = made, .name = u"Trip planner"_s, .icon = u"🧭"_s};
        expected.details = u"Everything for the next trip in one place."_s;
        for (const auto &[number, title] :
             {std::pair(1001, u"Dates booked"_s), std::pair(1002, u"Itinerary set"_s),
              std::pair(1003, u"Packed"_s)})
            expected.milestones.append({id(number), title, false});
        expected.createdDate = expected.updatedDate = now;
        QCOMPARE(store->projects().all(), QList<Project>{expected});
        QStringList titles;
        for (const TaskItem *task : TaskOperations::ofProject(*store, made))
            titles.append(task->title);
        QCOMPARE(titles, trip.tasks);
        QCOMPARE(ProjectOperations::activities(*store, made).first()->text,
                 u"Created from the Trip planner template"_s);

        ProjectOperations::toggleMilestone(*store, made, id(1002));
        ProjectOperations::addMilestone(*store, made, u" Home again\n"_s);
        ProjectOperations::addMilestone(*store, made, u"  "_s);
        ProjectOperations::removeMilestone(*store, made, id(1001));
        QCOMPARE(store->projects().first(made)->milestones.size(), 3);
        QVERIFY(store->projects().first(made)->milestones.first().done);
        QCOMPARE(store->list<Activity>().all().last().text, u"Added milestone “Home again”"_s);

        const Project copy = *store->projects().first(ProjectOperations::createFrom(*store, made).value());
        QCOMPARE(copy.name, u"Trip planner copy"_s);
        QCOMPARE(copy.milestones.size(), 3);
        QVERIFY(!copy.milestones.first().done);
        QVERIFY(copy.milestones.first().id != id(1002));
        QVERIFY(TaskOperations::ofProject(*store, copy.id).isEmpty());
        QVERIFY(!ProjectOperations::createFrom(*store, id(777)));

        QVERIFY(!ProjectOperations::createBlank(*store, u" \t"_s));
        const QUuid blank = ProjectOperations::createBlank(*store, u" Bare "_s).value();
        QCOMPARE(store->projects().first(blank)->name, u"Bare"_s);
        ProjectOperations::setStatus(*store, blank, ProjectStatus::onHold);
        ProjectOperations::setStatus(*store, blank, ProjectStatus::onHold);
        ProjectOperations::setStatus(*store, id(777), ProjectStatus::onHold);
        ProjectOperations::addTask(*store, blank, u" "_s);
        QCOMPARE(ProjectOperations::activities(*store, blank).size(), 3);
        QCOMPARE(store->list<Activity>().all().last().text, u"Status changed to On hold"_s);
        QVERIFY(TaskOperations::ofProject(*store, blank).isEmpty());
    }

    void habitsToggleTheLocalDay()
    {
        const auto store = openSample();
        m_clock.setTimeZone(QTimeZone("Pacific/Auckland"));
        const auto before = store->list<Habit>().first(id(11))->completions;
        HabitOperations::toggle(*store, id(11), m_clock.now() + 4h);
        QVERIFY(store->list<Habit>().first(id(11))->completions.contains(u"2026-03-14"_s));
        HabitOperations::toggle(*store, id(11), m_clock.now() + 4h);
        QCOMPARE(store->list<Habit>().first(id(11))->completions, before);
        QCOMPARE(HabitOperations::bestStreak(*store), 0);
        HabitOperations::toggle(*store, id(11), m_clock.now());
        QCOMPARE(HabitOperations::bestStreak(*store), 1);
        m_clock.setTimeZone(QTimeZone::utc());
    }

    void aBookIsKeptOncePerCatalogueNumber()
    {
        const auto store = openSample();
        Book again = store->list<Book>().all().first();
        again.id = id(500);
        again.progress = 0.75;
        const Book stored = BookOperations::add(*store, again);
        again.id = id(15);
        QCOMPARE(stored, again);
        QCOMPARE(store->list<Book>().all(), QList<Book>{again});
        again.gutenbergID = 11;
        again.id = id(501);
        BookOperations::add(*store, again);
        QCOMPARE(store->list<Book>().size(), 2);
    }

    void databasesAndTheirRows()
    {
        const auto store = openSample();
        const DBRow added = DatabaseOperations::addRow(*store, id(20), {{u"k"_s, u"v"_s}}).value();
        QVERIFY(!DatabaseOperations::addRow(*store, id(777), {}));
        DatabaseOperations::setValue(*store, QString(), id(21), id(25));
        QVERIFY(store->list<DBRow>().first(id(25))->values.contains(DBRow::valueKey(id(21))));
        QCOMPARE(store->list<DBRow>().first(id(25))->value(SampleSnapshot::table().properties.first()),
                 QString());
        DatabaseOperations::duplicateRow(*store, added.id);
        QCOMPARE(store->list<DBRow>().all().last().values, added.values);
        QCOMPARE(DatabaseOperations::rows(*store, id(20)).size(), 3);
        DatabaseOperations::remove(*store, id(20));
        QVERIFY(store->list<DatabaseTable>().isEmpty());
        QVERIFY(store->list<DBRow>().isEmpty());
    }

    void decksAreCopiedWithNewIds()
    {
        const auto store = openSample();
        const Deck original = store->list<Deck>().all().first();
        const Deck copy = DeckOperations::duplicate(*store, original.id).value();
        QVERIFY(!DeckOperations::duplicate(*store, id(777)));
        Deck expected = original;
        expected.id = id(1000);
        expected.slides[0].id = id(1001);
        expected.title = u"Untitled copy"_s;
        expected.createdDate = expected.updatedDate = m_clock.now();
        expected.sortOrder = secondsSince1970(m_clock.now());
        QCOMPARE(copy, expected);
        QCOMPARE(store->list<Deck>().all(), (QList<Deck>{original, expected}));
    }

    void resetErasesAtOnce_data()
    {
        QTest::addColumn<bool>("keep");
        QTest::newRow("keeping the onboarding") << true;
        QTest::newRow("with the onboarding again") << false;
    }
    void resetErasesAtOnce()
    {
        QFETCH(bool, keep);
        const auto store = openSample();
        QList<ChangeSet> told;
        connect(store.get(), &WorkspaceStore::changed, this,
                [&](const ChangeSet &changes) { told.append(changes); });
        TaskOperations::create(*store, u"Gone soon"_s);
        store->resetEverything(keep);
        Snapshot expected;
        expected.settings.hasCompletedOnboarding = keep;
        QCOMPARE(store->snapshot(), expected);
        QCOMPARE(fileBytes(), SnapshotCodec::encode(expected));
        QCOMPARE(told.size(), 2);
        QVERIFY(told[1].of<Page>().isReloaded && told[1].settings);
        QVERIFY(!store->undo());
    }

    void liesInThePersonsDataFolder()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.filePath(u"share/deep"_s)));
        QCOMPARE(WorkspaceStore::defaultFilePath(), m_folder.filePath(u"share/deep/Orvel/workspace.json"_s));
        QVERIFY(QFileInfo(m_folder.filePath(u"share/deep/Orvel"_s)).isDir());

        writeFile("a file where the folder should be");
        qputenv("XDG_DATA_HOME", QFile::encodeName(path() + u"/inside"_s));
        QCOMPARE(WorkspaceStore::defaultFilePath(), QDir::tempPath() + u"/Orvel/workspace.json"_s);
    }
};

QTEST_GUILESS_MAIN(WorkspaceStoreTest)
#include "tst_workspacestore.moc"
