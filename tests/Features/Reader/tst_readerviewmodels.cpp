#include "Features/Reader/BookViewModel.h"
#include "Features/Reader/DiscoverViewModel.h"
#include "Features/Reader/ReaderViewModel.h"
#include "Harness/HttpTestServer.h"
#include "Harness/TestWorkspace.h"
#include "Store/BookOperations.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;
using Pace = HttpTestServer::Pace;
using Phase = DiscoverViewModel::Phase;

namespace
{
void finishTurn()
{
    QCoreApplication::sendPostedEvents();
}
} // namespace

class ReaderViewModelsTest : public QObject
{
    Q_OBJECT

private:
    QUuid addBook(int number, const QString &title, const QString &text = {})
    {
        const Book book{.id = QUuid::createUuid(), .gutenbergID = number, .title = title};
        BookOperations::add(m_workspace.store(), book);
        if (!text.isEmpty())
            (void)m_workspace.store().bookLibrary().write(book.id, text);
        finishTurn();
        return book.id;
    }
    const Book *book(const QUuid &id) { return m_workspace.store().list<Book>().first(id); }

    QJsonObject found(int number, const QString &path)
    {
        QJsonObject formats;
        if (!path.isEmpty())
            formats.insert(u"text/plain"_s, m_files->url(path).toString());
        return {{u"id"_s, number},
                {u"title"_s, u"Book %1"_s.arg(number)},
                {u"authors"_s, QJsonArray()},
                {u"subjects"_s, QJsonArray()},
                {u"languages"_s, QJsonArray{u"en"_s}},
                {u"formats"_s, formats}};
    }
    void answerSearch(const QJsonArray &books)
    {
        const QJsonObject response{{u"count"_s, books.size()}, {u"results"_s, books}};
        m_catalogue.answer(u"/books"_s, {.body = QJsonDocument(response).toJson()});
    }
    std::unique_ptr<DiscoverViewModel> discover()
    {
        auto model = std::make_unique<DiscoverViewModel>();
        model->setCatalogue(m_catalogue.url());
        model->setDownloads(&m_downloads);
        model->setSession(&m_session);
        return model;
    }
    std::unique_ptr<BookViewModel> opened(const QUuid &id)
    {
        auto model = std::make_unique<BookViewModel>();
        model->setBookID(id);
        model->setSession(&m_session);
        if (!QTest::qWaitFor([&] { return !model->isLoading(); }, 60'000))
            return nullptr;
        return model;
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    BookDownloads m_downloads{&m_session};
    HttpTestServer m_catalogue;
    std::unique_ptr<HttpTestServer> m_files;

private slots:
    void initTestCase()
    {
        const TestCertificate certificate = TestCertificate::make();
        QVERIFY(!certificate.isNull());
        certificate.trust();
        m_files = std::make_unique<HttpTestServer>(certificate);
    }
    void init()
    {
        m_workspace.reset();
        m_catalogue.forgetRequests();
        m_files->forgetRequests();
    }

    void opensTheFirstBook()
    {
        const QUuid first = addBook(1, u"A"_s);
        const QUuid second = addBook(2, u"B"_s);
        ReaderViewModel reader;
        reader.setSession(&m_session);
        QCOMPARE(reader.selectedBookID(), first);
        reader.setMode(u"discover"_s);
        reader.open(second);
        QCOMPARE(reader.mode(), u"library"_s);
        QCOMPARE(reader.selectedRow(), 1);

        // A closed book stays closed, whatever changes.
        reader.closeBook();
        addBook(3, u"C"_s);
        QVERIFY(!reader.hasSelection());
        reader.open(second);
        reader.remove(second);
        finishTurn();
        QVERIFY(!reader.hasSelection());
        QCOMPARE(m_session.undo()->message(), u"Book removed"_s);
        m_workspace.ui().setSelection(Destination(Destination::Kind::reader));
        m_session.undo()->undo();
        finishTurn();
        QCOMPARE(reader.selectedRow(), 1);
    }

    void keepsTheTypeWithinBounds()
    {
        ReaderViewModel reader;
        reader.setSession(&m_session);
        for (int i = 0; i < 8; ++i)
            reader.adjustScale(1);
        finishTurn();
        QCOMPARE(m_workspace.store().settings().readerFontScale, 1.6);
        QVERIFY(!reader.canGrow());
        for (int i = 0; i < 20; ++i)
            reader.adjustScale(-1);
        finishTurn();
        QCOMPARE(reader.fontScale(), 0.85);
        QVERIFY(!reader.canShrink());
        reader.toggleSerif();
        reader.toggleInk();
        finishTurn();
        QVERIFY(!reader.isSerif());
        QVERIFY(reader.isInkMode());
    }

    void findsThePlaceAgain()
    {
        const QUuid id = addBook(1, u"Emma"_s, u"one\n\ntwo\n\nthree\n\nfour"_s);
        const Timestamp before = book(id)->updatedDate;
        {
            const auto model = opened(id);
            QVERIFY(model);
            QCOMPARE(model->rows()->rowCount(), 4);
            QCOMPARE(model->topRow(), 0);
            m_workspace.advanceHours(1);
            model->setTopRow(2);
            QCOMPARE(book(id)->lastLocation, 0);
        }
        QCOMPARE(book(id)->lastLocation, 2);
        QVERIFY(book(id)->updatedDate > before);
        QCOMPARE(opened(id)->topRow(), 2);

        // The file has become shorter.
        (void)m_workspace.store().bookLibrary().write(id, u"one\n\ntwo"_s);
        QCOMPARE(opened(id)->topRow(), 1);
        m_workspace.store().bookLibrary().deleteText(id);
        const auto without = opened(id);
        QVERIFY(without->isMissing());
        without->setTopRow(7);
        without->keepPlace();
        QCOMPARE(book(id)->lastLocation, 2);
        // Nor does a place in a book become something to undo by itself.
        QCOMPARE(m_session.undo()->undoText(), u"Undo Add Book"_s);
    }

    void theLastOpenedBookIsShown()
    {
        const QUuid large = addBook(1, u"Large"_s, u"a line\n\n"_s.repeated(200'000));
        const QUuid small = addBook(2, u"Small"_s, u"a line"_s);
        BookViewModel model;
        model.setSession(&m_session);
        model.setBookID(large);
        QVERIFY(model.isLoading());
        QCOMPARE(model.title(), u"Large"_s);
        model.setBookID(small);
        QTRY_VERIFY(!model.isLoading());
        QCOMPARE(model.rows()->rowCount(), 1);
        model.setBookID({});
        QVERIFY(model.isMissing());
    }

    void goesFromMatchToMatch()
    {
        const auto model = opened(addBook(1, u"Emma"_s, u"a\n\nEmma\n\nb\n\nemma, Emma\n\nc"_s));
        BookFinder *const finder = model->finder();
        QSignalSpy shown(finder, &BookFinder::shown);
        model->setTopRow(2);
        finder->open();
        finder->setQuery(u"emma"_s);
        QCOMPARE(shown.takeLast(), (QVariantList{3, 0}));
        QCOMPARE(finder->countText(), u"2 of 3"_s);
        finder->next();
        QCOMPARE(shown.takeLast(), (QVariantList{3, 6}));
        finder->next();
        QCOMPARE(shown.takeLast(), (QVariantList{1, 0}));
        finder->previous();
        QCOMPARE(finder->countText(), u"3 of 3"_s);
        finder->setQuery(u"emmas"_s);
        QCOMPARE(finder->countText(), u"No matches"_s);
        finder->next();
        finder->setQuery(QString());
        QCOMPARE(finder->countText(), QString());
    }

    void selectsAcrossParagraphs()
    {
        const auto model = opened(addBook(1, u"Emma"_s, u"one two\n\nthree\n\nfour five"_s));
        BookSelection *const selection = model->selection();
        selection->begin(2, 4);
        selection->extend(0, 4);
        QCOMPARE(selection->text(), u"two\n\nthree\n\nfour"_s);
        QCOMPARE(selection->inRow(0), QPoint(4, 7));
        QCOMPARE(selection->inRow(1), QPoint(0, 5));
        selection->selectWord(0, 5);
        QCOMPARE(selection->text(), u"two"_s);
        selection->clear();
        selection->extendByRow(1, 1);
        QCOMPARE(selection->text(), u"three"_s);
        selection->extendByRow(1, 1);
        QCOMPARE(selection->text(), u"three\n\nfour five"_s);
        selection->extendByRow(1, -1);
        selection->extendByRow(1, -1);
        QCOMPARE(selection->text(), u"one two\n\nthree"_s);
        selection->selectAll();
        selection->copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one two\n\nthree\n\nfour five"_s);
    }

    void searchesOnceTheQueryStands()
    {
        answerSearch({found(1, u"/1.txt"_s)});
        const auto model = discover();
        model->setQuery(u"ab"_s);
        QTest::qWait(100);
        model->setQuery(u"abc"_s);
        QCOMPARE(model->phase(), Phase::idle);
        QTRY_COMPARE(model->phase(), Phase::found);
        QCOMPARE(m_catalogue.requests().size(), 1);
        QVERIFY(m_catalogue.requests().first().target.contains("search=abc&"));
        QCOMPARE(model->rowList().first().title, u"Book 1"_s);

        // An answer that comes after the field was emptied is not shown.
        m_catalogue.answer(u"/books"_s, {.body = "{\"count\":0,\"results\":[]}", .pace = Pace::onRelease});
        model->setQuery(u"late"_s);
        QTRY_COMPARE(model->phase(), Phase::loading);
        QTRY_COMPARE(m_catalogue.openConnections(), 1);
        model->setQuery(u" "_s);
        QCOMPARE(model->phase(), Phase::idle);
        QVERIFY(model->rowList().isEmpty());
        m_catalogue.release(u"/books"_s);
        QTRY_COMPARE(m_catalogue.openConnections(), 0);
        QTest::qWait(50);
        QCOMPARE(model->phase(), Phase::idle);

        answerSearch({});
        model->setQuery(u"xyzzy"_s);
        QTRY_COMPARE(model->phase(), Phase::nothingFound);
        m_catalogue.answer(u"/books"_s, {.pace = Pace::hangingUp});
        model->searchNow();
        QTRY_COMPARE(model->phase(), Phase::failed);
        QVERIFY(!model->failure().isEmpty());
    }

    void downloadsTwoBooksAtOnce()
    {
        answerSearch({found(1, u"/1.txt"_s), found(2, u"/2.txt"_s), found(3, {})});
        m_files->answer(u"/1.txt"_s, {.body = "First\r\n\r\nbook", .pace = Pace::onRelease});
        m_files->answer(u"/2.txt"_s, {.body = "Second", .pace = Pace::onRelease});
        const auto model = discover();
        QSignalSpy ready(model.get(), &DiscoverViewModel::bookReady);
        model->setQuery(u"x"_s);
        QTRY_COMPARE(model->phase(), Phase::found);
        model->read(1);
        model->read(1);
        model->read(2);
        model->read(3);
        QVERIFY(model->rowList()[0].isDownloading && model->rowList()[1].isDownloading);
        QVERIFY(!model->rowList()[2].hasText && !model->rowList()[2].isDownloading);
        QTRY_COMPARE(m_files->requests().size(), 2);
        m_files->release(u"/2.txt"_s);
        QTRY_COMPARE(ready.count(), 1);
        QVERIFY(model->rowList()[1].isInLibrary && model->rowList()[0].isDownloading);
        m_files->release(u"/1.txt"_s);
        QTRY_COMPARE(ready.count(), 2);
        const QUuid id = ready.last().first().toUuid();
        QCOMPARE(book(id)->gutenbergID, 1);
        QCOMPARE(m_workspace.store().bookLibrary().text(id), u"First\n\nbook"_s);

        // What is in the library is opened without a request.
        m_files->forgetRequests();
        model->read(1);
        QCOMPARE(ready.last().first().toUuid(), id);
        QVERIFY(m_files->requests().isEmpty());
    }

    void cancelsADownload()
    {
        answerSearch({found(1, u"/1.txt"_s)});
        m_files->answer(u"/1.txt"_s, {.body = "Half", .contentLength = 8, .pace = Pace::stalling});
        const auto model = discover();
        model->setQuery(u"x"_s);
        QTRY_COMPARE(model->phase(), Phase::found);
        model->read(1);
        QTRY_COMPARE(model->rowList()[0].progressText, u"50 %"_s);
        m_downloads.cancel(1);
        QVERIFY(!model->rowList()[0].isDownloading);
        QTRY_COMPARE(m_files->openConnections(), 0);
        QVERIFY(m_workspace.store().list<Book>().isEmpty());
        QCOMPARE(m_downloads.errorMessage(), QString());
    }

    void downloadsOutliveTheScreen()
    {
        answerSearch({found(1, u"/1.txt"_s)});
        m_files->answer(u"/1.txt"_s, {.body = "First", .pace = Pace::onRelease});
        auto model = discover();
        model->setQuery(u"x"_s);
        QTRY_COMPARE(model->phase(), Phase::found);
        model->read(1);
        QTRY_COMPARE(m_files->requests().size(), 1);
        model.reset();
        QVERIFY(m_downloads.find(1));

        // Back again it goes on in the list, and does not open by itself.
        model = discover();
        QSignalSpy ready(model.get(), &DiscoverViewModel::bookReady);
        model->setQuery(u"x"_s);
        QTRY_COMPARE(model->phase(), Phase::found);
        QVERIFY(model->rowList()[0].isDownloading);
        m_files->release(u"/1.txt"_s);
        QTRY_VERIFY(model->rowList()[0].isInLibrary);
        QVERIFY(!m_downloads.find(1) && ready.isEmpty());
        const Book &stored = m_workspace.store().list<Book>().at(0);
        QCOMPARE(m_workspace.store().bookLibrary().text(stored.id), u"First"_s);
    }

    void tellsWhatWentWrong()
    {
        answerSearch({found(1, u"/1.txt"_s)});
        m_files->answer(u"/1.txt"_s, {.status = 404});
        const auto model = discover();
        model->setQuery(u"x"_s);
        QTRY_COMPARE(model->phase(), Phase::found);
        model->read(1);
        QTRY_COMPARE(m_downloads.errorMessage(),
                     u"Couldn't download that book. Check your connection and try again."_s);
        QVERIFY(!model->rowList()[0].isDownloading);
        m_files->answer(u"/1.txt"_s, {.body = " \n "});
        model->read(1);
        QTRY_COMPARE(m_downloads.errorMessage(), u"That book didn't return any text."_s);
        QVERIFY(m_workspace.store().list<Book>().isEmpty());
    }

    void fetchesALostTextAgain()
    {
        const QUuid id = addBook(7, u"Emma"_s);
        m_workspace.store().change<Book>(
            id, [&](Book &book) { book.downloadURL = m_files->url(u"/7.txt"_s).toString(); });
        m_files->answer(u"/7.txt"_s, {.body = "Emma"});
        const auto model = discover();
        QSignalSpy ready(model.get(), &DiscoverViewModel::bookReady);
        model->fetchAgain(id);
        QTRY_COMPARE(ready.count(), 1);
        QCOMPARE(m_workspace.store().bookLibrary().text(id), u"Emma"_s);
        QCOMPARE(m_workspace.store().list<Book>().size(), 1);
        QCOMPARE(book(id)->title, u"Emma"_s);
    }
};

QTEST_MAIN(ReaderViewModelsTest)
#include "tst_readerviewmodels.moc"
