#include "Harness/ManualClock.h"
#include "SampleSnapshot.h"
#include "Store/BookOperations.h"
#include "Store/CodeOperations.h"
#include "Store/DatabaseOperations.h"
#include "Store/DeckOperations.h"
#include "Store/EventOperations.h"
#include "Store/HabitOperations.h"
#include "Store/PageOperations.h"
#include "Store/ProjectOperations.h"
#include "Store/SnapshotCodec.h"
#include "Store/StarterContent.h"
#include "Store/TaskOperations.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
QByteArray encoded(const WorkspaceStore &store)
{
    return SnapshotCodec::encode(store.snapshot());
}

/// Does random things to a workspace, each by an operation that a screen offers.
class Walk
{
public:
    Walk(WorkspaceStore &store, ManualClock &clock, unsigned seed)
        : m_store(store), m_clock(clock), m_random(seed)
    {
    }

    int below(qsizetype count) { return count < 1 ? 0 : int(m_random() % unsigned(count)); }

    void act()
    {
        m_clock.advance(std::chrono::milliseconds(below(5'000)));
        using Operation = void (Walk::*)();
        static constexpr auto operations = std::to_array<Operation>(
            {&Walk::actOnTasks, &Walk::actOnTasks, &Walk::actOnPages, &Walk::actOnPages, &Walk::type,
             &Walk::type, &Walk::actOnProjects, &Walk::actOnDatabases, &Walk::actOnRest, &Walk::actOnMany});
        (this->*operations[std::size_t(below(operations.size()))])();
    }

private:
    template <typename Record>
    QUuid any()
    {
        const auto &list = m_store.list<Record>();
        return list.isEmpty() || below(50) == 0 ? QUuid::createUuid() : list.at(below(list.size())).id;
    }
    QString text() { return u"Text %1"_s.arg(below(1'000)); }

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
            FolderOperations::create(m_store, text(), u"📁"_s);
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
        const Action action(m_store, Typing{{block.id, u"text"_s}, block.text, next});
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
            DatabaseOperations::addRow(m_store, table, {{u"key"_s, text()}});
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
        switch (below(9)) {
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
} // namespace

class UndoHistoryTest : public QObject
{
    Q_OBJECT

private:
    ManualClock m_clock;

    std::unique_ptr<WorkspaceStore> open(const QTemporaryDir &folder, UndoHistory::Limits limits = {})
    {
        return std::make_unique<WorkspaceStore>(
            WorkspaceStore::Options{.filePath = folder.filePath(u"workspace.json"_s),
                                    .clock = &m_clock,
                                    .saveDelay = 1h,
                                    .undoLimits = limits});
    }

private slots:
    void bringsBackEveryByte_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 4; ++seed)
            QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }

    /// After each undo and each redo the workspace is, byte for byte, what it was at that point.
    void bringsBackEveryByte()
    {
        QFETCH(unsigned, seed);
        const QTemporaryDir folder;
        auto store = open(folder);
        Walk walk(*store, m_clock, seed);
        std::mt19937 random(seed);
        // The states that undo steps lead to, the last being the present one, and those that were undone.
        QList<QByteArray> done{encoded(*store)};
        QList<QByteArray> undone;
        for (int i = 0; i < 1'500; ++i) {
            const auto choice = random() % 10;
            if (choice < 6) {
                const std::size_t steps = store->history().size();
                walk.act();
                if (!store->history().redoStep())
                    undone.clear();
                // Typing that goes on and what happens in the background become part of the step before.
                if (store->history().size() > steps && !store->history().lastIsBackground())
                    done.append(encoded(*store));
                else
                    done.last() = encoded(*store);
            } else if (choice < 9 && done.size() > 1) {
                QVERIFY(store->undo());
                undone.append(done.takeLast());
                QCOMPARE(encoded(*store), done.last());
            } else if (choice == 9 && !undone.isEmpty()) {
                QVERIFY(store->redo());
                done.append(undone.takeLast());
                QCOMPARE(encoded(*store), done.last());
            }
            if (i % 200 == 0) {
                store->saveNow();
                WorkspaceFile file(
                    {.path = store->filePath(), .rescueFolder = {}, .now = [this] { return m_clock.now(); }});
                QCOMPARE(SnapshotCodec::encode(file.load().snapshot), encoded(*store));
            }
        }
        while (done.size() > 1 && store->undo()) {
            done.removeLast();
            QCOMPARE(encoded(*store), done.last());
        }
    }

    void tellsOneChangeSetAnAction()
    {
        const QTemporaryDir folder;
        const auto store = open(folder);
        const auto project = ProjectOperations::createBlank(*store, u"Boat"_s).value();
        ProjectOperations::addTask(*store, project, u"Sail"_s);
        const QUuid task = store->tasks().at(0).id;
        QList<ChangeSet> told;
        connect(store.get(), &WorkspaceStore::changed, this,
                [&](const ChangeSet &changes) { told.append(changes); });

        ProjectOperations::remove(*store, project);
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.last().of<Project>().removed, QSet{project});
        QCOMPARE(told.last().of<TaskItem>().replaced, QSet{task});
        QCOMPARE(told.last().of<Activity>().removed.size(), 1);
        QVERIFY(!told.last().touches<Page>());
        QCOMPARE(told.last().message, u"Project deleted"_s);

        store->undo();
        QCOMPARE(told.size(), 2);
        QCOMPARE(told.last().of<Project>().inserted, QSet{project});
        QCOMPARE(store->tasks().at(0).projectID, project);
        QCOMPARE(TaskOperations::ofProject(*store, project).size(), 1);

        {
            const Action action(*store, u"Nothing"_s);
            const QUuid made = TaskOperations::create(*store, u"Come and gone"_s);
            TaskOperations::remove(*store, made);
        }
        QVERIFY(told.last().isEmpty() || told.size() == 2);
    }

    void keepsWithinItsLimits()
    {
        const QTemporaryDir folder;
        const auto store = open(folder, {.maxSteps = 10, .maxBytes = 100'000});
        for (int i = 0; i < 30; ++i)
            TaskOperations::create(*store, u"Task %1"_s.arg(i));
        QCOMPARE(store->history().size(), 10u);
        const QUuid task = store->tasks().at(0).id;
        for (int i = 0; i < 10; ++i)
            TaskOperations::rename(*store, task, QString(20'000, QChar(u'a' + i)));
        QVERIFY(store->history().bytes() <= 100'000);
        QVERIFY(store->history().size() >= 1);
        while (store->undo()) {
        }
        QVERIFY(store->history().bytes() <= 200'000);
    }

    /// A text file is deleted only when its book can't come back.
    void putsOffWhatCannotBeUndone()
    {
        const QTemporaryDir folder;
        const auto store = open(folder, {.maxSteps = 2});
        const Book book = BookOperations::add(*store, {.id = QUuid::createUuid(), .gutenbergID = 1});
        QVERIFY(store->bookLibrary().write(book.id, u"Once"_s));
        BookOperations::remove(*store, book.id);
        store->undo();
        QVERIFY(store->list<Book>().contains(book.id));
        TaskOperations::create(*store, u"One"_s);
        TaskOperations::create(*store, u"Two"_s);
        TaskOperations::create(*store, u"Three"_s);
        QCOMPARE(store->bookLibrary().text(book.id), u"Once"_s);
        BookOperations::remove(*store, book.id);
        TaskOperations::create(*store, u"Four"_s);
        QCOMPARE(store->bookLibrary().text(book.id), u"Once"_s);
        TaskOperations::create(*store, u"Five"_s);
        QCOMPARE(store->bookLibrary().text(book.id), QString());
    }

    void takesTypingBackByWords_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QStringList>("undone");
        // "<" is Backspace, "|" a caret that went elsewhere and came back.
        QTest::newRow("words") << u"one two  three"_s << QStringList{u"one two  "_s, u"one "_s, u""_s};
        QTest::newRow("line") << u"a\nb"_s << QStringList{u"a\n"_s, u"a"_s, u""_s};
        QTest::newRow("mistyped") << u"helo<lo"_s << QStringList{u"hel"_s, u"helo"_s, u""_s};
        QTest::newRow("deleted") << u"one two<<<<<"_s
                                 << QStringList{u"one"_s, u"one two"_s, u"one "_s, u""_s};
        QTest::newRow("elsewhere") << u"on|ly"_s << QStringList{u"on"_s, u""_s};
        QTest::newRow("repeated") << u"aaa"_s << QStringList{u""_s};
    }

    void takesTypingBackByWords()
    {
        QFETCH(QString, keys);
        QFETCH(QStringList, undone);
        const QTemporaryDir folder;
        const auto store = open(folder);
        const QUuid document = CodeOperations::create(*store).id;
        const auto source = [&] { return store->codeDocuments().first(document)->source; };
        for (const QChar key : keys) {
            QString next = source();
            if (key == u'|')
                store->endTyping();
            else if (key == u'<')
                next.chop(1);
            else
                next.append(key);
            CodeOperations::setSource(*store, document, next, next.size());
        }
        const QString last = source();
        for (const QString &expected : undone) {
            QVERIFY(store->undo());
            QCOMPARE(source(), expected);
        }
        for (qsizetype i = 0; i < undone.size(); ++i)
            QVERIFY(store->redo());
        QCOMPARE(source(), last);
    }
};

QTEST_GUILESS_MAIN(UndoHistoryTest)
#include "tst_undohistory.moc"
