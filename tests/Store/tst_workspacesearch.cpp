#include "Harness/ManualClock.h"
#include "Store/DatabaseOperations.h"
#include "Store/PreparedSearch.h"
#include "Store/TaskOperations.h"

#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class WorkspaceSearchTest : public QObject
{
    Q_OBJECT

private:
    ManualClock m_clock;

    std::unique_ptr<WorkspaceStore> open()
    {
        return std::make_unique<WorkspaceStore>(
            WorkspaceStore::Options{u"/nowhere/workspace.json"_s, &m_clock, 1h});
    }
    static Page page(const QString &title, const QStringList &blocks)
    {
        Page page{.id = QUuid::createUuid(), .title = title};
        for (const QString &text : blocks)
            page.content.append({.id = QUuid::createUuid(), .text = text});
        return page;
    }
    static QString upper(const QUuid &id) { return id.toString(QUuid::WithoutBraces).toUpper(); }

    /// The ids of pages, tasks, code documents and decks that a plain look at everything finds.
    static QStringList plainScan(const WorkspaceStore &store, const QString &query)
    {
        const QString wanted = query.trimmed().toLower();
        QStringList found;
        if (wanted.isEmpty())
            return found;
        for (const Page &page : store.pages())
            if (page.title.toLower().contains(wanted) || page.previewText().toLower().contains(wanted))
                found.append(u"page-"_s + upper(page.id));
        for (const TaskItem &task : store.tasks())
            if (task.title.toLower().contains(wanted))
                found.append(u"task-"_s + upper(task.id));
        for (const CodeDocument &document : store.codeDocuments())
            if (document.title.toLower().contains(wanted) || document.source.toLower().contains(wanted))
                found.append(u"code-"_s + upper(document.id));
        for (const Deck &deck : store.list<Deck>())
            if (deck.matches(wanted))
                found.append(u"deck-"_s + upper(deck.id));
        return found.mid(0, WorkspaceSearch::mostResults);
    }
    static QStringList ids(const QList<SearchResult> &results)
    {
        QStringList ids;
        for (const SearchResult &result : results)
            ids.append(result.id);
        return ids;
    }

private slots:
    /// One record of each kind, found in the fixed order and shown to the letter.
    void everyKindToTheLetter()
    {
        using Kind = SearchResultKind;
        const auto store = open();
        const QUuid id = QUuid::createUuid();
        const QString text = upper(id);
        Deck deck = Deck::fresh(m_clock.now(), id);
        deck.summary = u"needle"_s;
        deck.title = u" "_s;
        store->add(deck);
        store->add(Book{.id = id, .title = u"Book"_s, .author = u"Needle, A"_s});
        store->add(CodeDocument{
            .id = id, .title = u" "_s, .language = CodeLanguage::python, .source = u"x = 'NEEDLE'"_s});
        store->add(Habit{.id = id,
                         .name = u"needle"_s,
                         .emoji = u"💧"_s,
                         .targetPerWeek = 5,
                         .completions = {u"2026-03-12"_s}});
        store->add(CalendarEvent{.id = id, .title = u"Needle day"_s, .date = m_clock.now()});
        store->add(DatabaseTable{.id = id, .name = u"Needles"_s});
        DatabaseOperations::addRow(*store, id, {});
        store->add(Project{.id = id, .name = u"Project"_s, .icon = u"🎯"_s, .details = u"Of needles"_s});
        store->add(TaskItem{.id = id, .title = u"Needle task"_s, .status = TaskStatus::done});
        Page note = page(u"needle"_s, {});
        note.id = id;
        note.kind = PageKind::note;
        store->add(note);
        Page untitled = page(u" "_s, {u"a neEDle"_s, u"in hay"_s});
        untitled.id = QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11);
        store->add(untitled);

        using To = Destination::Kind;
        const QList<SearchResult> expected{
            {u"page-"_s + text, Kind::note, u"needle"_s, u"note"_s, u"📄"_s, Destination::page(id)},
            {u"page-"_s + upper(untitled.id), Kind::page, u"Untitled"_s, u"a neEDle in hay"_s, u"📄"_s,
             Destination::page(untitled.id)},
            {u"task-"_s + text,
             Kind::task,
             u"Needle task"_s,
             u"Done · done"_s,
             {},
             Destination::to(To::tasks)},
            {u"project-"_s + text, Kind::project, u"Project"_s, u"Not started"_s, u"🎯"_s,
             Destination::project(id)},
            {u"db-"_s + text, Kind::database, u"Needles"_s, u"1 records"_s, u"🗂️"_s,
             Destination::to(To::databases)},
            {u"event-"_s + text,
             Kind::event,
             u"Needle day"_s,
             u"Mar 13, 2026"_s,
             {},
             Destination::to(To::calendar)},
            {u"habit-"_s + text, Kind::habit, u"needle"_s, u"1 day streak · 1/5 this week"_s, u"💧"_s,
             Destination::to(To::habits)},
            {u"code-"_s + text, Kind::code, u"Untitled"_s, u"Python"_s, {}, Destination::codeDocument(id)},
            {u"book-"_s + text, Kind::book, u"Book"_s, u"Needle, A"_s, {}, Destination::to(To::reader)},
            {u"deck-"_s + text, Kind::deck, u"Untitled"_s, u"0 slides · Ink"_s, {}, Destination::deck(id)}};
        WorkspaceSearch search(*store);
        const QList<SearchResult> found = search.search(u"  NEEDLE\n"_s);
        for (qsizetype i = 0; i < std::min(found.size(), expected.size()); ++i)
            QVERIFY2(found[i] == expected[i], qPrintable(found[i].id + found[i].title + found[i].subtitle));
        QCOMPARE(found.size(), expected.size());
        QVERIFY(search.search(u" \n"_s).isEmpty());
    }

    void neverMoreThanForty()
    {
        const auto store = open();
        for (int i = 0; i < 50; ++i)
            store->add(page(u"Meeting %1"_s.arg(i), {}));
        TaskOperations::create(*store, u"Meeting"_s, TaskPriority::low, {});
        WorkspaceSearch search(*store);
        const QList<SearchResult> found = search.search(u"meet"_s);
        QCOMPARE(found.size(), 40);
        QCOMPARE(found.last().title, u"Meeting 39"_s);
    }

    void previewsAreCutAtNinetyCharacters()
    {
        const auto store = open();
        store->add(page(u"t"_s, {u"👩‍👩‍👧"_s.repeated(100)}));
        QCOMPARE(WorkspaceSearch(*store).search(u"t"_s).first().subtitle,
                 u"👩‍👩‍👧"_s.repeated(90));
    }

    /// Over random workspaces and edits the results are those of a plain look at everything.
    void equalsAPlainScan()
    {
        std::mt19937 random(41);
        const QStringList words{u"Meeting"_s, u"İstanbul"_s, u"straße"_s, u"ab"_s, u"ba"_s, u"😀x"_s,
                                u"ΣΑΣ"_s,     u"e\u0301"_s,  u"日本語"_s, u" "_s,  u"q"_s};
        const auto word = [&] { return words[qsizetype(random() % std::size_t(words.size()))]; };
        const auto sentence = [&] {
            QString text;
            for (unsigned i = 0; i < random() % 12; ++i)
                text += word() + (random() % 3 ? u" "_s : QString());
            return text;
        };
        for (int round = 0; round < 20; ++round) {
            const auto store = open();
            WorkspaceSearch search(*store);
            // Some of the signatures share their words with others, and some don't.
            for (int i = 0; i < round * 10; ++i)
                store->add(page(sentence(), {sentence()}));
            for (int step = 0; step < 120; ++step) {
                const QList<Page> &pages = store->pages().all();
                const auto any = [&] { return pages[qsizetype(random() % std::size_t(pages.size()))].id; };
                const unsigned action = pages.isEmpty() ? 0 : unsigned(random() % 14);
                if (action < 3)
                    store->add(page(sentence(), {sentence(), sentence()}));
                else if (action == 3)
                    store->erase<Page>(any());
                else if (action == 4)
                    store->change<Page>(any(), [&](Page &page) { page.title = sentence(); });
                else if (action == 5)
                    store->change<Page>(any(), [&](Page &page) { page.content.last().text += word(); });
                else if (action == 6)
                    store->add(
                        CodeDocument{.id = QUuid::createUuid(), .title = sentence(), .source = sentence()});
                else if (action == 7)
                    search.prepare(0ms);
                else if (action == 8 && random() % 20 == 0)
                    store->resetEverything(true);
                else if (action == 9)
                    store->add(TaskItem{.id = QUuid::createUuid(), .title = sentence()});
                else if (action == 10 && !store->tasks().isEmpty())
                    store->erase<TaskItem>(store->tasks().at(0).id);
                else if (action == 11)
                    store->add(Deck{.id = QUuid::createUuid(),
                                    .title = sentence(),
                                    .slides = {{.title = sentence(), .body = sentence()}}});
                else if (action > 11)
                    store->undo();
                QString query = sentence().mid(qsizetype(random() % 3), 1 + qsizetype(random() % 8));
                if (!pages.isEmpty() && random() % 2)
                    query = store->pages().first(any())->previewText().mid(qsizetype(random() % 9),
                                                                           1 + qsizetype(random() % 9));
                QCOMPARE(ids(search.search(query)), plainScan(*store, query));
                const QString wanted = query.trimmed().toLower();
                const auto matching = search.matching<Page>(query);
                QCOMPARE(matching.size(), std::ranges::count_if(pages, [&](const Page &page) {
                             return !wanted.isEmpty() && (page.title.toLower().contains(wanted) ||
                                                          page.previewText().toLower().contains(wanted));
                         }));
            }
        }
    }

    void preparesInPieces()
    {
        const auto store = open();
        for (int i = 0; i < 2000; ++i)
            store->add(page(u"p"_s, {u"some text to look at "_s.repeated(20)}));
        WorkspaceSearch search(*store);
        int pieces = 1;
        while (!search.prepare(1ms))
            ++pieces;
        QVERIFY(pieces > 1);
        QCOMPARE(search.search(u"text to look"_s).size(), 40);
        QVERIFY(search.search(u"text to like"_s).isEmpty());
    }

    void isPreparedByTheTurnsOfTheLoop()
    {
        const auto store = open();
        for (int i = 0; i < 500; ++i)
            store->add(page(u"p"_s, {u"some text to look at "_s.repeated(20)}));
        PreparedSearch search(*store, {0ms, 0ms, 0ms});
        QVERIFY(!search.isReady());
        QTRY_VERIFY(search.isReady());
        store->change<Page>(store->pages().all().last().id, [](Page &page) { page.title = u"moon"_s; });
        QVERIFY(!search.isReady());
        QCOMPARE(search.search(u"moon"_s).size(), 1);
        QTRY_VERIFY(search.isReady());
        store->erase<Page>(store->pages().all().first().id);
        QCOMPARE(search.search(u"moon"_s).size(), 1);
    }
};

QTEST_GUILESS_MAIN(WorkspaceSearchTest)
#include "tst_workspacesearch.moc"
