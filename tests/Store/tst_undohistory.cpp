#include "Harness/RandomOperations.h"
#include "SampleSnapshot.h"
#include "Store/BookOperations.h"
#include "Store/CodeOperations.h"
#include "Store/ProjectOperations.h"
#include "Store/SnapshotCodec.h"
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
        RandomOperations operations(*store, m_clock, seed);
        std::mt19937 random(seed);
        // The states that undo steps lead to, the last being the present one, and those that were undone.
        QList<QByteArray> done{encoded(*store)};
        QList<QByteArray> undone;
        for (int i = 0; i < 1'500; ++i) {
            const auto choice = random() % 10;
            if (choice < 6) {
                const std::size_t steps = store->history().size();
                operations.act();
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
